#include <gmock/gmock.h>

#include <array>

#include "recording_reader.h"

using testing::ElementsAre;

namespace {
constexpr double kOld = 999;  // what stands in the box before

struct Box
{
    std::array<double, 6> sides = {kOld, kOld, kOld, kOld, kOld, kOld};
    int status = -1;
};

Box BoxOf(std::string const & bytes, int takeZeros = 0, int useBlocks = 0, int useEntities = 1)
{
    CMemFile file(bytes.data(), bytes.size());
    RecordingReader reader;
    reader.Create(&file);
    Box box;
    auto & [xMin, xMax, yMin, yMax, zMin, zMax] = box.sides;
    box.status = reader.GetBoundingBox(xMin, xMax, yMin, yMax, zMin, zMax, takeZeros, useBlocks, useEntities);
    return box;
}

TEST(DrawingBox, SpansAllPointsOfTheEntities)
{
    Box const box = BoxOf(EntitiesOf("0|LINE; 10|3; 20|-4; 30|5; 11|100; 0|ANYTHING; 10|-1; 20|8"));
    EXPECT_EQ(box.status, 0);
    EXPECT_THAT(box.sides, ElementsAre(-1, 3, -4, 8, 5, 5));
}

TEST(DrawingBox, CountsZerosOnlyWhenAsked)
{
    std::string const bytes = EntitiesOf("0|LINE; 10|3; 20|1e-6; 10|0; 20|-0.000001; 20|2");
    EXPECT_THAT(BoxOf(bytes, 0).sides, ElementsAre(3, 3, 2, 2, kOld, kOld));
    EXPECT_THAT(BoxOf(bytes, 1).sides, ElementsAre(0, 3, -1e-6, 2, kOld, kOld));
    EXPECT_THAT(BoxOf(bytes, 2).sides, ElementsAre(3, 3, 2, 2, kOld, kOld));
}

TEST(DrawingBox, LeavesAnAxisWithoutValues)
{
    EXPECT_THAT(BoxOf(EntitiesOf("0|LINE; 20|7")).sides, ElementsAre(kOld, kOld, 7, 7, kOld, kOld));
}

TEST(DrawingBox, PassesOverValuesThatAreNoNumbers)
{
    EXPECT_THAT(BoxOf(EntitiesOf("0|LINE; 10|7; 10|x; 10|nan; 10|8")).sides,
                ElementsAre(7, 8, kOld, kOld, kOld, kOld));
}

std::string const kBoth = Groups(
    "0|SECTION; 2|BLOCKS; 0|BLOCK; 10|50; 20|60; 0|ENDBLK; 0|ENDSEC; "
    "0|SECTION; 2|ENTITIES; 0|LINE; 10|1; 0|ENDSEC; 0|EOF");

TEST(DrawingBox, TakesTheSectionsAskedFor)
{
    EXPECT_THAT(BoxOf(kBoth, 0, 1, 0).sides, ElementsAre(50, 50, 60, 60, kOld, kOld));
    EXPECT_THAT(BoxOf(kBoth, 0, 0, 1).sides, ElementsAre(1, 1, kOld, kOld, kOld, kOld));
    EXPECT_THAT(BoxOf(kBoth, 0, 0, 0).sides, ElementsAre(kOld, kOld, kOld, kOld, kOld, kOld));
}

TEST(DrawingBox, OfALaterSectionReplacesTheAxesOnWhichItHasValues)
{
    EXPECT_THAT(BoxOf(kBoth, 0, 1, 1).sides, ElementsAre(1, 1, 60, 60, kOld, kOld));
}

TEST(DrawingBox, SkipsHeaderAndTables)
{
    Box const box =
        BoxOf(Groups("0|SECTION; 2|HEADER; 9|$EXTMIN; 10|-77; 0|ENDSEC; 0|SECTION; 2|TABLES; 10|88; "
                     "0|ENDSEC; 0|SECTION; 2|ENTITIES; 10|1; 0|ENDSEC; 0|EOF"),
              0, 1, 1);
    EXPECT_THAT(box.sides, ElementsAre(1, 1, kOld, kOld, kOld, kOld));
}

TEST(DrawingBox, GivesTheStatusOfADrawingCutShort)
{
    Box const box = BoxOf(Groups("0|SECTION; 2|ENTITIES; 10|1"));
    EXPECT_EQ(box.status, 2);
    EXPECT_THAT(box.sides, ElementsAre(1, 1, kOld, kOld, kOld, kOld));
    EXPECT_EQ(BoxOf("").status, 2);
}

TEST(DrawingBox, TellsWhetherTheSectionHadAValue)
{
    std::string const bytes = Groups("10|0; 0|ENDSEC; 10|4; 0|ENDSEC");
    CMemFile file(bytes.data(), bytes.size());
    RecordingReader reader;
    reader.Create(&file);
    Box box;
    auto & [xMin, xMax, yMin, yMax, zMin, zMax] = box.sides;
    int first = -1;
    EXPECT_EQ(reader.ReadSectionBoudingBox(xMin, xMax, yMin, yMax, zMin, zMax, 0, first), 0);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(reader.ReadSectionBoudingBox(xMin, xMax, yMin, yMax, zMin, zMax, 0, first), 0);
    EXPECT_EQ(first, 0);
}
}  // namespace
