// Matrices, the equation solver and polynomials of the kernel.

#include <algorithm>
#include <cmath>
#include <iterator>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// A pivot below this share of the largest matrix value is missing.
constexpr double kMissingPivot = 1e-7;

double LargestAbsolute(double const (&matrix)[3][3])
{
    double largest = 0.0;
    for (auto const & row : matrix)
        for (double const value : row)
            largest = std::max(largest, std::fabs(value));
    return largest;
}

/// The row that gives column k its pivot: k itself while its value is good, else the first good one; 3 if
/// none.
int PivotRow(double const (&matrix)[3][3], int k, double threshold)
{
    if (threshold == 0.0 || std::fabs(matrix[k][k]) >= threshold)
        return k;
    int row = k;
    while (row < 3 && !(std::fabs(matrix[row][k]) > threshold))
        ++row;
    return row;
}

/// row -= factor * other, rounding noise taken off.
void SubtractRow(double (&row)[3], double factor, double const (&other)[3])
{
    for (int column = 0; column < 3; ++column)
        row[column] = SnappedDifference(row[column], factor * other[column]);
}

/// m = left m right, where left and right are `t` and its transpose or the reverse.
void Transform(double const (*t)[3], double (*m)[3], bool transposedFirst)
{
    auto const left = [t, transposedFirst](int i, int j) { return transposedFirst ? t[j][i] : t[i][j]; };
    double product[3][3];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            product[i][j] = left(i, 0) * m[0][j] + left(i, 1) * m[1][j] + left(i, 2) * m[2][j];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            m[i][j] = product[i][0] * left(j, 0) + product[i][1] * left(j, 1) + product[i][2] * left(j, 2);
}
}  // namespace

void CMathematics::MatrixPoint(double (*const m)[3], TUVect3D & point)
{
    point = mul(m, point);
}

void CMathematics::MatrixTransPoint(double (*const m)[3], TUVect3D & point)
{
    TUVect3D const old = point;
    for (int i = 0; i < 3; ++i)
        point.a[i] = m[0][i] * old.x + m[1][i] * old.y + m[2][i] * old.z;
}

void CMathematics::MatrixTenzor(double (*const t)[3], double (*const m)[3])
{
    Transform(t, m, false);
}

void CMathematics::MatrixTransTenzor(double (*const t)[3], double (*const m)[3])
{
    Transform(t, m, true);
}

TUVect3D CMathematics::mul(double (*const m)[3], TUVect3D const & v)
{
    TUVect3D result;
    for (int i = 0; i < 3; ++i)
        result.a[i] = m[i][0] * v.x + m[i][1] * v.y + m[i][2] * v.z;
    return result;
}

int CMathematics::SolveEqSystem33()
{
    double const threshold = kMissingPivot * LargestAbsolute(m_dEqA);
    for (int k = 0; k < 3; ++k) {
        int const pivot = PivotRow(m_dEqA, k, threshold);
        if (pivot == 3)
            return 0;
        if (pivot != k) {
            std::swap(m_dEqA[pivot], m_dEqA[k]);
            std::swap(m_dEqB[pivot], m_dEqB[k]);
        }
        for (int i = k + 1; i < 3; ++i) {
            double const factor = m_dEqA[i][k] / m_dEqA[k][k];
            SubtractRow(m_dEqA[i], factor, m_dEqA[k]);
            SubtractRow(m_dEqB[i], factor, m_dEqB[k]);
        }
    }
    for (int k = 2; k >= 0; --k) {
        for (int j = k + 1; j < 3; ++j)
            SubtractRow(m_dEqB[k], m_dEqA[k][j], m_dEqX[j]);
        for (int column = 0; column < 3; ++column)
            m_dEqX[k][column] = m_dEqB[k][column] / m_dEqA[k][k];
    }
    return 1;
}

double CMathematics::PolynomValue(double x, unsigned char degree, double * const coefficients)
{
    double value = coefficients[degree];
    for (int i = degree - 1; i >= 0; --i)
        value = value * x + coefficients[i];
    return value;
}
