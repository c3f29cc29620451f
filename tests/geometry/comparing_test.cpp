#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
constexpr double kOkoli = 1e-6;
constexpr double kJustUnder = 0.999e-6;
}  // namespace

TEST(ComparePoints, ToleranceInSpaceIsASphere)
{
    CMathematics math;
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(kJustUnder, kJustUnder, kJustUnder), 1), 0);
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(kJustUnder, 0, 0), 1), 1);
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(0, 0, 1.001e-6), 1), 0);
}

TEST(ComparePoints, ToleranceInThePlaneIsABox)
{
    CMathematics math;
    EXPECT_EQ(math.ComparePoints(Q(0, 0), Q(kJustUnder, kJustUnder), 1), 1);
    EXPECT_EQ(math.ComparePoints(Q(0, 0), Q(1.001e-6, 0), 1), 0);
}

TEST(ComparePoints, LimitCountsAsEqual)
{
    CMathematics math;
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(kOkoli, 0, 0), 1), 1);
    EXPECT_EQ(math.ComparePoints(Q(0, 0), Q(kOkoli, kOkoli), 1), 1);
}

TEST(ComparePoints, AnyModeButZeroTakesTheTolerance)
{
    CMathematics math;
    for (int const mode : {1, 2, -1}) {
        EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(kJustUnder, 0, 0), mode), 1);
        EXPECT_EQ(math.ComparePoints(Q(0, 0), Q(kJustUnder, 0), mode), 1);
    }
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(kJustUnder, 0, 0), 0), 0);
    EXPECT_EQ(math.ComparePoints(Q(0, 0), Q(kJustUnder, 0), 0), 0);
}

TEST(ComparePoints, ExactModeTakesNoiseOff)
{
    CMathematics math;
    EXPECT_EQ(math.ComparePoints(P(0.1 + 0.2, 1, 1), P(0.3, 1, 1), 0), 1);
    EXPECT_EQ(math.ComparePoints(Q(0.1 + 0.2, 1), Q(0.3, 1), 0), 1);
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(1e-15, 0, 0), 0), 0);
}

TEST(ComparePoints, UsesTheObjectsTolerance)
{
    CMathematics math;
    math.SetOkoli(0.1);
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(0.09, 0, 0), 1), 1);
    math.SetOkoli(0.01);
    EXPECT_EQ(math.ComparePoints(P(0, 0, 0), P(0.09, 0, 0), 1), 0);
}

TEST(ComparePoints, WhatIsNoNumberIsNeverEqual)
{
    CMathematics math;
    for (int const mode : {0, 1}) {
        EXPECT_EQ(math.ComparePoints(P(kNan, 0, 0), P(kNan, 0, 0), mode), 0);
        EXPECT_EQ(math.ComparePoints(Q(kNan, 0), Q(0, 0), mode), 0);
        EXPECT_EQ(math.CompareDouble(kNan, kNan, mode), 0);
    }
}

TEST(CompareVectors, InSpaceComparesPerAxisAndElseExactly)
{
    CMathematics math;
    EXPECT_EQ(math.CompareVectors(P(0, 0, 0), P(kJustUnder, kJustUnder, kJustUnder), 1), 1);
    EXPECT_EQ(math.CompareVectors(P(0, 0, 0), P(kJustUnder, 0, 0), 2), 1);
    EXPECT_EQ(math.CompareVectors(P(0, 0, 0), P(kOkoli, 0, 0), 1), 1);
    EXPECT_EQ(math.CompareVectors(P(0, 0, 0), P(0, 0, 1.001e-6), 1), 0);
    EXPECT_EQ(math.CompareVectors(P(0.1 + 0.2, 1, 1), P(0.3, 1, 1), 0), 0);
    EXPECT_EQ(math.CompareVectors(P(0.3, 1, 1), P(0.3, 1, 1), 0), 1);
}

TEST(CompareVectors, InThePlaneTakesTheToleranceForModeOneOnly)
{
    CMathematics math;
    EXPECT_EQ(math.CompareVectors(Q(0, 0), Q(kJustUnder, kJustUnder), 1), 1);
    EXPECT_EQ(math.CompareVectors(Q(0, 0), Q(kJustUnder, 0), 2), 0);
    EXPECT_EQ(math.CompareVectors(Q(0.1 + 0.2, 1), Q(0.3, 1), 2), 1);
    EXPECT_EQ(math.CompareVectors(Q(0.1 + 0.2, 1), Q(0.3, 1), 0), 1);
}

TEST(CompareDouble, ModeOneTakesTheTolerance)
{
    CMathematics math;
    EXPECT_EQ(math.CompareDouble(0.0, kOkoli, 1), 1);
    EXPECT_EQ(math.CompareDouble(0.0, 1.001e-6, 1), 0);
    EXPECT_EQ(math.CompareDouble(0.0, kJustUnder, 2), 0);
}

TEST(CompareDouble, OtherModesTakeNoiseOff)
{
    CMathematics math;
    EXPECT_EQ(math.CompareDouble(1.0, 1.0 + 1e-15, 0), 1);
    // Against a scale not above 1e-14 nothing is noise.
    EXPECT_EQ(math.CompareDouble(0.0, 1e-15, 0), 0);
    EXPECT_EQ(math.CompareDouble(1.0, 1.0 + 1e-15, 7), 1);
}

TEST(CompareLine, DirectionDoesNotMatter)
{
    CMathematics math;
    TUVect3D a = P(0, 0, 0);
    TUVect3D b = P(1, 2, 3);
    TUVect3D c = P(1, 2, 3 + kJustUnder);
    EXPECT_EQ(math.CompareLine(a, b, a, c, 1), 1);
    EXPECT_EQ(math.CompareLine(a, b, c, a, 1), 1);
    EXPECT_EQ(math.CompareLine(a, b, c, a, 0), 0);
    EXPECT_EQ(math.CompareLine(a, b, a, a, 1), 0);
}
