#include <gmock/gmock.h>

#include "recording_reader.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {
std::vector<std::string> CallsOf(std::string const & groups)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf(groups)).status, 0);
    return reader.calls;
}

// The common groups that most entities have, in front of their own.
std::string const kCommon = "6|DASHED wide; 8|Walls outer; 39|2.5; 62|5; 210|0; 220|0; 230|-1; ";

TEST(LineEntity, EndsAtItsLastCoordinate)
{
    EXPECT_THAT(CallsOf("0|LINE; " + kCommon + "10|1; 20|2; 30|3; 11|4; 21|5; 31|6; 39|9"),
                ElementsAre("LINE (1 2 3) (4 5 6) 5 2.5 'Walls' 'DASHED' (0 0 -1)"));
}

TEST(LineEntity, LosesAThicknessBehindItsLastCoordinate)
{
    EXPECT_THAT(CallsOf("0|LINE; 31|6; 39|2.5"), ElementsAre("LINE (0 0 0) (0 0 6) 0 0 '' '' (0 0 1)"));
}

TEST(LineEntity, WithoutItsLastCoordinateEndsAtTheNextEntity)
{
    EXPECT_THAT(CallsOf("0|LINE; 10|1; 0|LINE; 31|6"), ElementsAre("LINE (1 0 0) (0 0 0) 0 0 '' '' (0 0 1)",
                                                                   "LINE (0 0 0) (0 0 6) 0 0 '' '' (0 0 1)"));
}

TEST(LineEntity, HasASecondName)
{
    EXPECT_THAT(CallsOf("0|3DLINE; 8|A; 31|6"), ElementsAre("LINE (0 0 0) (0 0 6) 0 0 'A' '' (0 0 1)"));
}

TEST(LineEntity, KeepsTheEarlierValueWhereOneIsNoNumber)
{
    EXPECT_THAT(CallsOf("0|LINE; 10|1; 10|x; 20|y; 62|7; 62|red; 31|6"),
                ElementsAre("LINE (1 0 0) (0 0 6) 7 0 '' '' (0 0 1)"));
}

TEST(LineEntity, DoesNotInheritFromTheOneBefore)
{
    EXPECT_THAT(CallsOf("0|LINE; " + kCommon + "10|1; 31|6; 0|LINE; 31|1"),
                ElementsAre(testing::_, "LINE (0 0 0) (0 0 1) 0 0 '' '' (0 0 1)"));
}

TEST(ArcEntity, EndsAtItsEndAngle)
{
    EXPECT_THAT(CallsOf("0|ARC; " + kCommon + "10|1; 20|2; 30|3; 40|4; 50|30; 51|60; 40|5"),
                ElementsAre("ARC (1 2 3) 4 30 60 5 2.5 'Walls' 'DASHED' (0 0 -1)"));
}

TEST(ArcEntity, WithoutEndAngleEndsAtTheNextEntity)
{
    EXPECT_THAT(CallsOf("0|ARC; 40|4; 50|30"), ElementsAre("ARC (0 0 0) 4 30 0 0 0 '' '' (0 0 1)"));
}

TEST(CircleEntity, EndsAtTheNextEntity)
{
    EXPECT_THAT(CallsOf("0|CIRCLE; 40|4; 10|1; 20|2; 30|3; " + kCommon + "100|Circle; 0|CIRCLE"),
                ElementsAre("CIRCLE (1 2 3) 4 5 2.5 'Walls' 'DASHED' (0 0 -1)",
                            "CIRCLE (0 0 0) 0 0 0 '' '' (0 0 1)"));
}

TEST(SolidEntity, HasFourCorners)
{
    EXPECT_THAT(CallsOf("0|SOLID; " + kCommon +
                        "10|1; 20|2; 30|3; 11|4; 21|5; 31|6; 12|7; 22|8; 32|9; 13|10; 23|11; 33|12"),
                ElementsAre("SOLID (1 2 3) (4 5 6) (7 8 9) (10 11 12) 5 2.5 'Walls' 'DASHED' (0 0 -1)"));
}

TEST(FaceEntity, EndsAtItsEdgeFlags)
{
    EXPECT_THAT(
        CallsOf("0|3DFACE; 6|D; 8|A; 39|2; 62|3; 330|1F x; 10|1; 20|2; 30|3; 11|4; 12|7; 13|10; 70|5; 10|9"),
        ElementsAre("3DFACE (1 2 3) (4 0 0) (7 0 0) (10 0 0) 3 2 'A' 'D' 1 0 1 0 '1F'"));
}

TEST(FaceEntity, SplitsAllEdgeFlags)
{
    EXPECT_THAT(CallsOf("0|3DFACE; 70|10; 0|3DFACE; 70|15; 0|3DFACE; 70|16"),
                ElementsAre(testing::HasSubstr("0 1 0 1 ''"), testing::HasSubstr("1 1 1 1 ''"),
                            testing::HasSubstr("0 0 0 0 ''")));
}

TEST(FaceEntity, WithoutEdgeFlagsEndsAtTheNextEntity)
{
    EXPECT_THAT(CallsOf("0|3DFACE; 33|1"),
                ElementsAre("3DFACE (0 0 0) (0 0 0) (0 0 0) (0 0 1) 0 0 '' '' 0 0 0 0 ''"));
}

TEST(TextEntity, TakesTheTextWholeAndNeitherLayerNorColour)
{
    EXPECT_THAT(CallsOf("0|TEXT; 8|A; 62|3; 10|1; 20|2; 30|3; 40|2.5; 1| two words ; 50|45; 72|1; 73|2"),
                ElementsAre("TEXT (1 2 3) 2.5 ' two words ' 0 '' '' 45 0 0 3 (0 0 1)"));
}

TEST(TextEntity, EmptiesTheSharedLayer)
{
    RecordingReader reader;
    ReadDrawing(reader, EntitiesOf("0|LINE; 8|A; 31|1; 0|TEXT; 8|B"));
    EXPECT_STREQ(reader.Layer(), "");
}

TEST(MultilineTextEntity, TakesPlaceAndHeight)
{
    EXPECT_THAT(CallsOf("0|MTEXT; 8|A; 10|1; 20|2; 30|3; 40|2.5; 1|{a}; 71|5; 50|45"),
                ElementsAre("MTEXT (1 2 3) 2.5 '{a}' 0 '' '' 0 0 1 1 (0 0 1)"));
}

struct Direction
{
    char const * dx;
    char const * dy;
    double rotation;
};

class MultilineTextRotation : public testing::TestWithParam<Direction>
{
};

// The second quadrant isn't mirrored: 120 degrees have an acute angle of 60 and come out as 150.
INSTANTIATE_TEST_SUITE_P(Quadrants, MultilineTextRotation,
                         testing::Values(Direction{"1", "0", 0}, Direction{"1", "1", 45},
                                         Direction{"-0.5", "0.8660254037844386", 150},
                                         Direction{"-1", "1", 135}, Direction{"-1", "-1", 225},
                                         Direction{"1", "-1", 315}, Direction{"-1", "0", 0},
                                         Direction{"0", "2", 90}, Direction{"0", "-2", 270},
                                         Direction{"0.00009", "0.0001", 90}, Direction{"0.00009", "-5", 270},
                                         Direction{"0.00009", "0.00009", 0},
                                         Direction{"0.0001", "0.0001", 45}));

TEST_P(MultilineTextRotation, ComesFromTheDirection)
{
    auto const & [dx, dy, rotation] = GetParam();
    std::ostringstream expected;
    expected << "'' 0 '' '' " << rotation << " 0 0 0";
    EXPECT_THAT(CallsOf(std::string("0|MTEXT; 11|") + dx + "; 21|" + dy),
                ElementsAre(testing::HasSubstr(expected.str())));
}

TEST(MultilineTextEntity, AlignsByItsAttachmentPoint)
{
    // Horizontal and vertical number by attachment point 0 to 10.
    std::array const expected = {"0 0", "0 0", "1 0", "2 0", "0 1", "1 1", "2 1", "0 3", "1 3", "2 3", "0 0"};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_THAT(CallsOf("0|MTEXT; 71|" + std::to_string(i)),
                    ElementsAre(std::string("MTEXT (0 0 0) 0 '' 0 '' '' 0 0 ") + expected[i] + " (0 0 1)"));
}

TEST(InsertEntity, TakesAllItsGroups)
{
    EXPECT_THAT(
        CallsOf("0|INSERT; 8|A; 66|1; 2|BOLT M12; 10|1; 20|2; 30|3; 41|4; 42|5; 43|6; 44|7; 45|8; 50|9; "
                "70|10; 71|11; 210|0; 220|1; 230|0; 0|ATTRIB; 1|x; 0|SEQEND; 0|LINE; 31|1"),
        ElementsAre("INSERT 'BOLT' (1 2 3) (4 5 6) 9 10 11 7 8 (0 1 0)",
                    "LINE (0 0 0) (0 0 1) 0 0 '' '' (0 0 1)"));
}

TEST(InsertEntity, HasScalesAndCountsOfOneByDefault)
{
    EXPECT_THAT(CallsOf("0|INSERT"), ElementsAre("INSERT '' (0 0 0) (1 1 1) 0 1 1 0 0 (0 0 1)"));
}

// The length of one of a recorded call's quoted words, counted from 0.
std::size_t QuotedLength(std::string const & call, int which)
{
    std::size_t at = 0;
    for (int i = 0; i < which; ++i)
        at = call.find('\'', call.find('\'', at) + 1) + 1;
    std::size_t const start = call.find('\'', at) + 1;
    return call.find('\'', start) - start;
}

TEST(EntityFields, CutLongWordsAtTheFieldsRoom)
{
    std::string const word(300, 'x');
    std::vector<std::string> const calls =
        CallsOf("0|LINE; 6|" + word + "; 8|" + word + "; 31|0; 0|INSERT; 2|" + word);
    ASSERT_THAT(calls, SizeIs(2));
    EXPECT_EQ(QuotedLength(calls[0], 0), 83U);
    EXPECT_EQ(QuotedLength(calls[0], 1), 83U);
    EXPECT_EQ(QuotedLength(calls[1], 0), 80U);
}

TEST(EntityFields, KeepTheEarlierWordWhereALineIsBlank)
{
    EXPECT_THAT(CallsOf("0|LINE; 8|A; 8|  ; 31|0"), ElementsAre("LINE (0 0 0) (0 0 0) 0 0 'A' '' (0 0 1)"));
}

// Changes groups on their way into the entities.
class MeddlingReader : public RecordingReader
{
  public:
    std::vector<std::string> asked;
    int skippedCode = -1;
    int endingCode = -1;
    int controlAtEnd = 2;
    int statusAtEnd = 0;

    int PreReadControl(EDXFEntType type, int & code, CString & data, int & status) override
    {
        asked.push_back(std::to_string(type) + ":" + std::to_string(code));
        status = 0;
        if (code == 62)
            data = "200";
        if (code == 9010)
            code = 10;
        if (code == endingCode) {
            status = statusAtEnd;
            return controlAtEnd;
        }
        status = code == skippedCode ? 66 : 0;
        return code == skippedCode ? 1 : 0;
    }
};

std::vector<std::string> AskedFor(std::string const & groups)
{
    MeddlingReader reader;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf(groups)).status, 0);
    return reader.asked;
}

TEST(GroupControl, IsAskedWithTheTypeOfEachEntity)
{
    EXPECT_THAT(AskedFor("0|LINE; 31|1"), ElementsAre("0:31"));
    EXPECT_THAT(AskedFor("0|ARC; 51|1"), ElementsAre("5:51"));
    EXPECT_THAT(AskedFor("0|CIRCLE; 40|1"), ElementsAre("0:40"));
    EXPECT_THAT(AskedFor("0|LWPOLYLINE; 70|1"), ElementsAre("1:70"));
    EXPECT_THAT(AskedFor("0|VERTEX; 70|1"), ElementsAre("2:70"));
    EXPECT_THAT(AskedFor("0|POLYLINE; 70|1; 0|SEQEND"), ElementsAre("2:70"));
    EXPECT_THAT(AskedFor("0|TEXT; 1|x"), ElementsAre("0:1"));
    EXPECT_THAT(AskedFor("0|MTEXT; 1|x"), ElementsAre("0:1"));
    EXPECT_THAT(AskedFor("0|SOLID; 10|1"), ElementsAre("0:10"));
    EXPECT_THAT(AskedFor("0|3DFACE; 70|1"), ElementsAre("0:70"));
    EXPECT_THAT(AskedFor("0|INSERT; 2|x"), ElementsAre("5:2"));
}

TEST(GroupControl, IsNotAskedForVerticesOfAPolyline)
{
    EXPECT_THAT(AskedFor("0|POLYLINE; 70|1; 0|VERTEX; 10|1; 42|0; 91|3; 0|VERTEX; 10|2; 0|SEQEND"),
                ElementsAre("2:70"));
}

TEST(GroupControl, ChangesCodeAndValue)
{
    MeddlingReader reader;
    ReadDrawing(reader, EntitiesOf("0|LINE; 62|1; 9010|7; 31|0"));
    EXPECT_THAT(reader.calls, ElementsAre("LINE (7 0 0) (0 0 0) 200 0 '' '' (0 0 1)"));
}

TEST(GroupControl, SkipsAGroupWhateverTheStatus)
{
    MeddlingReader reader;
    reader.skippedCode = 31;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|LINE; 10|1; 31|6; 39|2")).status, 0);
    EXPECT_THAT(reader.calls, ElementsAre("LINE (1 0 0) (0 0 0) 0 2 '' '' (0 0 1)"));
}

TEST(GroupControl, EndsTheEntityWithItsStatus)
{
    MeddlingReader reader;
    reader.endingCode = 10;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|LINE; 10|1; 31|6; 0|CIRCLE; 40|1")).status, 0);
    EXPECT_THAT(reader.calls, ElementsAre("CIRCLE (0 0 0) 1 0 0 '' '' (0 0 1)"));
    reader.statusAtEnd = 55;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|LINE; 10|1; 31|6")).status, 55);
}

TEST(GroupControl, EndsTheEntityWithAStatusAlone)
{
    MeddlingReader reader;
    reader.endingCode = 10;
    reader.controlAtEnd = 0;
    reader.statusAtEnd = 55;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|LINE; 10|1; 31|6")).status, 55);
    EXPECT_THAT(reader.calls, IsEmpty());
}

TEST(EntityStatus, OfAHookAtTheLastGroupIsReturnedAsItIs)
{
    RecordingReader reader;
    std::string const bytes = Groups("31|6; 31|7");
    CMemFile file(bytes.data(), bytes.size());
    reader.Create(&file);
    EXPECT_EQ(reader.ReadEntLINE(), 0);
    reader.statusOf["LINE"] = 4;
    EXPECT_EQ(reader.ReadEntLINE(), 4);
}

TEST(EntityStatus, OfAHookAtAGroupZeroIsFourInPlaceOfZero)
{
    RecordingReader reader;
    std::string const bytes = Groups("40|6; 0|X; 40|1; 0|Y");
    CMemFile file(bytes.data(), bytes.size());
    reader.Create(&file);
    EXPECT_EQ(reader.ReadEntCIRCLE(), 4);
    EXPECT_EQ(reader.Data(), "X");
    reader.statusOf["CIRCLE"] = 9;
    EXPECT_EQ(reader.ReadEntCIRCLE(), 9);
}

TEST(DefaultHooks, DoNothingAndGoOn)
{
    PlainReader reader;
    std::string const entities =
        "0|LINE; 31|0; 0|3DFACE; 70|1; 0|ARC; 51|1; 0|LWPOLYLINE; 90|2; 10|1; 20|1; 0|POLYLINE; 0|VERTEX; "
        "42|1; "
        "0|SEQEND; 0|TEXT; 0|MTEXT; 0|SOLID; 0|CIRCLE; 0|INSERT; ";
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|TABLES; 0|LAYER; 2|A; 0|ENDSEC; 0|SECTION; 2|BLOCKS; "
                                         "0|BLOCK; 2|B; 3|B; " +
                                         entities + "0|ENDBLK; 0|ENDSEC; 0|SECTION; 2|ENTITIES; " + entities +
                                         "0|ENDSEC; 0|EOF"))
                  .status,
              0);
}
}  // namespace
