#include <algorithm>
#include <array>

#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
using Matrix = std::array<std::array<double, 3>, 3>;

double (*Raw(Matrix & m))[3]
{
    return reinterpret_cast<double(*)[3]>(m.data());
}

Matrix Product(Matrix const & a, Matrix const & b)
{
    Matrix result = {};
    for (size_t i = 0; i < 3; ++i)
        for (size_t j = 0; j < 3; ++j)
            for (size_t k = 0; k < 3; ++k)
                result[i][j] += a[i][k] * b[k][j];
    return result;
}

Matrix Transposed(Matrix const & a)
{
    Matrix result;
    for (size_t i = 0; i < 3; ++i)
        for (size_t j = 0; j < 3; ++j)
            result[i][j] = a[j][i];
    return result;
}

void ExpectMatrix(Matrix const & actual, Matrix const & expected, double margin = 1e-12)
{
    for (size_t i = 0; i < 3; ++i)
        for (size_t j = 0; j < 3; ++j)
            EXPECT_NEAR(actual[i][j], expected[i][j], margin) << i << ' ' << j;
}

Matrix const kA = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 10}}};
Matrix const kB = {{{2, -1, 0}, {0.5, 3, 1}, {1, 1, -4}}};
Matrix const kIdentity = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

/// Solves a x = b with the kernel; the code, and x.
int Solve(Matrix const & a, Matrix const & b, Matrix & x)
{
    CMathematics math;
    for (size_t i = 0; i < 3; ++i) {
        std::ranges::copy(a[i], math.m_dEqA[i]);
        std::ranges::copy(b[i], math.m_dEqB[i]);
    }
    int const code = math.SolveEqSystem33();
    for (size_t i = 0; i < 3; ++i)
        std::ranges::copy(math.m_dEqX[i], x[i].begin());
    return code;
}
}  // namespace

TEST(MatrixProducts, OfAPoint)
{
    CMathematics math;
    Matrix m = kA;
    TUVect3D p = P(1, 2, 3);
    ExpectPoint(math.mul(Raw(m), p), P(14, 32, 53), 0.0);
    math.MatrixPoint(Raw(m), p);
    ExpectPoint(p, P(14, 32, 53), 0.0);
    p = P(1, 2, 3);
    math.MatrixTransPoint(Raw(m), p);
    ExpectPoint(p, P(30, 36, 45), 0.0);
}

TEST(MatrixProducts, OfATensor)
{
    CMathematics math;
    Matrix t = kA;
    Matrix m = kB;
    math.MatrixTenzor(Raw(t), Raw(m));
    ExpectMatrix(m, Product(Product(kA, kB), Transposed(kA)));
    m = kB;
    math.MatrixTransTenzor(Raw(t), Raw(m));
    ExpectMatrix(m, Product(Product(Transposed(kA), kB), kA));
}

TEST(EquationSolver, SolvesThreeColumnsAtOnce)
{
    Matrix x;
    EXPECT_EQ(Solve(kA, kB, x), 1);
    ExpectMatrix(Product(kA, x), kB);
}

TEST(EquationSolver, SwapsRowsForAMissingPivot)
{
    Matrix const a = {{{0, 2, 1}, {1, 1, 1}, {2, 0, 3}}};
    Matrix x;
    EXPECT_EQ(Solve(a, kB, x), 1);
    ExpectMatrix(Product(a, x), kB);
}

TEST(EquationSolver, KeepsAGoodPivotThoughALargerOneIsThere)
{
    CMathematics math;
    Matrix const a = {{{1, 0, 0}, {1000, 1, 0}, {0, 0, 1}}};
    for (size_t i = 0; i < 3; ++i) {
        std::ranges::copy(a[i], math.m_dEqA[i]);
        std::ranges::copy(kIdentity[i], math.m_dEqB[i]);
    }
    EXPECT_EQ(math.SolveEqSystem33(), 1);
    EXPECT_EQ(math.m_dEqA[0][0], 1.0);  // a search for the largest would have put 1000 here
    EXPECT_EQ(math.m_dEqX[1][0], -1000.0);
}

TEST(EquationSolver, PivotLimitIsRelativeToTheLargestValue)
{
    Matrix x;
    Matrix a = kIdentity;
    a[0][0] = 1e7;
    a[2][2] = 1.001;
    EXPECT_EQ(Solve(a, kIdentity, x), 1);
    a[2][2] = 0.999;
    EXPECT_EQ(Solve(a, kIdentity, x), 0);
}

TEST(EquationSolver, SingularSystemFails)
{
    Matrix x;
    Matrix const twice = {{{1, 2, 3}, {2, 4, 6}, {1, 0, 1}}};
    EXPECT_EQ(Solve(twice, kIdentity, x), 0);
    Matrix const emptyColumn = {{{0, 2, 3}, {0, 4, 7}, {0, 0, 1}}};
    EXPECT_EQ(Solve(emptyColumn, kIdentity, x), 0);
}

TEST(EquationSolver, ZeroMatrixIsNotCaught)
{
    Matrix x;
    EXPECT_EQ(Solve({}, kIdentity, x), 1);
    EXPECT_FALSE(std::isfinite(x[0][0]));
}

TEST(EquationSolver, RandomSystemsAreSolved)
{
    Random random(3);
    for (int i = 0; i < 1000; ++i) {
        Matrix a;
        for (auto & row : a)
            for (double & value : row)
                value = random.Between(-5.0, 5.0);
        for (size_t k = 0; k < 3; ++k)
            a[k][k] += a[k][k] < 0.0 ? -12.0 : 12.0;
        Matrix x;
        ASSERT_EQ(Solve(a, kB, x), 1);
        ExpectMatrix(Product(a, x), kB);
    }
}

TEST(Polynomial, IsHornersRule)
{
    CMathematics math;
    double coefficients[] = {4.0, 3.0, -2.0, 0.5};
    EXPECT_EQ(math.PolynomValue(2.0, 3, coefficients), 4.0 + 6.0 - 8.0 + 4.0);
    EXPECT_EQ(math.PolynomValue(2.0, 0, coefficients), 4.0);
}
