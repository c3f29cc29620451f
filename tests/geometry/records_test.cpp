#include "geometry/records.h"

#include <gtest/gtest.h>

#include <type_traits>

template <class T>
class PlainRecord : public testing::Test
{
};

using Records = testing::Types<TUVect2D, TUVect3D, TSPlane, TSPlaneEdge3D, TSPlaneEdge2D, TSelem,
                               TSPoint2DPlane, TSInterval, TSGeneralSet, TS3DBlock>;
TYPED_TEST_SUITE(PlainRecord, Records);

TYPED_TEST(PlainRecord, IsPlainMemory)
{
    EXPECT_TRUE(std::is_trivial_v<TypeParam>);
    EXPECT_TRUE(std::is_standard_layout_v<TypeParam>);
}

TEST(VectorRecord, NamesAndArrayAreTheSameDoubles)
{
    TUVect3D v = {{1.0, 2.0, 3.0}};
    v.a[1] = 5.0;
    EXPECT_EQ(v.y, 5.0);
    EXPECT_EQ(v.a[2], 3.0);
    EXPECT_EQ(sizeof(TUVect3D), 3 * sizeof(double));
    TUVect2D w = {{1.0, 2.0}};
    w.a[0] = 7.0;
    EXPECT_EQ(w.x, 7.0);
    EXPECT_EQ(sizeof(TUVect2D), 2 * sizeof(double));
}

TEST(EdgeKinds, HaveTheirCodes)
{
    EXPECT_EQ(EDGE_POINT, 0);
    EXPECT_EQ(EDGE_LINE, 1);
    EXPECT_EQ(EDGE_ARC, 2);
}

TEST(ArcMarker, LiesBelowItsLimit)
{
    EXPECT_EQ(ARC_MARKER, -1e100);
    EXPECT_LT(ARC_MARKER, ARC_MARKER_LIMIT);
}
