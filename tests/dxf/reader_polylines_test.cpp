#include <gmock/gmock.h>

#include "recording_reader.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
std::string const kPlain = " 0 0 0 0 '' '' 0 0 0 (0 0 1)";  // behind the vertices of a plain LWPOLYLINE

int StatusOf(std::string const & groups)
{
    RecordingReader reader;
    return ReadDrawing(reader, EntitiesOf(groups)).status;
}

std::vector<std::string> CallsOf(std::string const & groups)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf(groups)).status, 0);
    return reader.calls;
}

TEST(LightweightPolyline, TakesAllItsGroups)
{
    EXPECT_THAT(
        CallsOf("0|LWPOLYLINE; 6|D; 8|A; 38|1.5; 39|2.5; 40|3; 41|4; 43|5; 62|6; 70|1; 90|2; 210|0; 220|1; "
                "230|0; 10|1; 20|2; 10|3; 20|4"),
        ElementsAre("LWPOLYLINE [1 2 0, 3 4 0] 1 6 1.5 2.5 'A' 'D' 5 3 4 (0 1 0)"));
}

TEST(LightweightPolyline, EndsAtItsLastPointWithoutBulges)
{
    // What follows the last point is lost.
    EXPECT_THAT(CallsOf("0|LWPOLYLINE; 90|2; 10|1; 20|2; 10|3; 20|4; 42|0.5; 70|1"),
                ElementsAre("LWPOLYLINE [1 2 0, 3 4 0]" + kPlain));
}

TEST(LightweightPolyline, WithBulgesBehindThePointsEndsAtTheNextEntity)
{
    EXPECT_THAT(
        CallsOf("0|LWPOLYLINE; 90|3; 10|1; 20|2; 42|0.5; 10|3; 20|4; 10|5; 20|6; 42|-1; 0|LINE; 31|1"),
        ElementsAre("LWPOLYLINE [1 2 0.5, 3 4 0, 5 6 -1]" + kPlain,
                    "LINE (0 0 0) (0 0 1) 0 0 '' '' (0 0 1)"));
}

TEST(LightweightPolyline, WithBulgesAheadOfThePointsEndsAtItsLastPoint)
{
    EXPECT_THAT(CallsOf("0|LWPOLYLINE; 90|2; 42|0.5; 10|1; 20|2; 42|-1; 10|3; 20|4; 70|1"),
                ElementsAre("LWPOLYLINE [1 2 0.5, 3 4 -1]" + kPlain));
}

TEST(LightweightPolyline, WithFewerPointsThanCountedHasThoseItRead)
{
    EXPECT_THAT(CallsOf("0|LWPOLYLINE; 90|5; 10|1; 20|2; 10|3"),
                ElementsAre("LWPOLYLINE [1 2 0, 3 0 0]" + kPlain));
}

TEST(LightweightPolyline, WithoutVerticesHasNone)
{
    EXPECT_THAT(CallsOf("0|LWPOLYLINE; 90|1"), ElementsAre("LWPOLYLINE []" + kPlain));
}

TEST(LightweightPolyline, IsClosedByTheFlagOneAlone)
{
    EXPECT_THAT(CallsOf("0|LWPOLYLINE; 70|1; 0|LWPOLYLINE; 70|129; 0|LWPOLYLINE; 70|0"),
                ElementsAre("LWPOLYLINE [] 1 0 0 0 '' '' 0 0 0 (0 0 1)", "LWPOLYLINE []" + kPlain,
                            "LWPOLYLINE []" + kPlain));
}

TEST(LightweightPolyline, WithoutAUsableCountRefusesVertices)
{
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 10|1"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|1; 10|1"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|0; 10|1"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|-3; 10|1"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|x; 10|1"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|1; 42|1"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|1; 20|1"), 5);
}

TEST(LightweightPolyline, RefusesAYAheadOfAnyVertex)
{
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|2; 20|1"), 5);
}

TEST(LightweightPolyline, RefusesMoreVerticesThanCounted)
{
    // With a bulge seen the polyline is still open behind its last point.
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|2; 10|1; 20|2; 42|1; 10|3; 20|4; 10|5"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|2; 10|1; 10|2; 10|3"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|2; 42|1; 42|2; 42|3"), 5);
}

TEST(LightweightPolyline, RefusesAForgedCountBeforeItAllocates)
{
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|2000000000; 10|1; 20|2"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|16777217"), 5);
    EXPECT_EQ(StatusOf("0|LWPOLYLINE; 90|16777216; 10|1; 20|2"), 0);
}

TEST(LightweightPolyline, StartsAnewAtASecondCount)
{
    EXPECT_THAT(CallsOf("0|LWPOLYLINE; 90|3; 10|1; 20|2; 10|3; 90|2; 10|5; 20|6"),
                ElementsAre("LWPOLYLINE [5 6 0]" + kPlain));
}

TEST(LightweightPolyline, EndsWithItsHooksStatus)
{
    RecordingReader reader;
    reader.statusOf["LWPOLYLINE"] = 70;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|LWPOLYLINE; 90|2; 10|1; 20|1; 10|2; 20|2")).status, 70);
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|LWPOLYLINE; 90|2")).status, 70);
}

TEST(Vertex, EndsAtItsBulge)
{
    EXPECT_THAT(CallsOf("0|VERTEX; 8|A b; 10|1; 20|2; 30|3; 42|0.5; 70|1; 10|9"),
                ElementsAre("VERTEX (1 2 3) 'A' 0.5 1 0"));
}

TEST(Vertex, EndsAtItsFlags)
{
    EXPECT_THAT(CallsOf("0|VERTEX; 10|1; 20|2; 70|1; 42|0.5"), ElementsAre("VERTEX (1 2 0) '' 0 0 0"));
}

TEST(Vertex, EndsAtTheNextEntity)
{
    EXPECT_THAT(CallsOf("0|VERTEX; 10|1; 0|LINE; 31|1"),
                ElementsAre("VERTEX (1 0 0) '' 0 0 0", "LINE (0 0 0) (0 0 1) 0 0 '' '' (0 0 1)"));
}

TEST(Vertex, OutsideOfAPolylineIsKeptInTheReader)
{
    RecordingReader reader;
    ReadDrawing(reader, EntitiesOf("0|VERTEX; 10|1; 20|2; 30|3; 42|0.5"));
    EXPECT_EQ(reader.Vertex().x, 1);
    EXPECT_EQ(reader.Vertex().z, 3);
    EXPECT_EQ(reader.VertexBulge(), 0.5);
    EXPECT_EQ(reader.VertexHasBulge(), 1);
    EXPECT_EQ(reader.counts["POLYLINE"], 0);
}

TEST(Polyline, TakesItsOwnGroupsAndItsVertices)
{
    EXPECT_THAT(
        CallsOf("0|POLYLINE; 6|D; 8|A; 66|1; 10|7; 20|8; 30|1.5; 39|2.5; 40|3; 41|4; 62|6; 70|1; 210|0; "
                "220|1; 230|0; 0|VERTEX; 8|B; 10|1; 20|2; 30|3; 42|0.5; 0|VERTEX; 8|B; 10|4; 20|5; 30|6; "
                "70|32; 0|SEQEND; 8|A"),
        ElementsAre("VERTEX (1 2 3) 'B' 0.5 1 1", "VERTEX (4 5 6) 'B' 0 0 1",
                    "POLYLINE [(1 2 3) 0.5, (4 5 6) 0] 1 6 1.5 2.5 'A' 'D' 3 4 (0 1 0)"));
}

TEST(Polyline, HasABulgeOfZeroForEachVertexWithoutOne)
{
    RecordingReader reader;
    ReadDrawing(
        reader,
        EntitiesOf("0|POLYLINE; 0|VERTEX; 10|1; 42|2; 0|VERTEX; 10|3; 0|VERTEX; 10|4; 70|0; 0|SEQEND"));
    EXPECT_EQ(reader.calls.back(), "POLYLINE [(1 0 0) 2, (3 0 0) 0, (4 0 0) 0] 0 0 0 0 '' '' 0 0 (0 0 1)");
}

TEST(Polyline, TakesNoGroupsBehindItsFirstVertex)
{
    RecordingReader reader;
    ReadDrawing(reader, EntitiesOf("0|POLYLINE; 0|VERTEX; 10|1; 42|0; 62|5; 70|1; 39|2; 0|SEQEND"));
    EXPECT_EQ(reader.calls.back(), "POLYLINE [(1 0 0) 0] 0 0 0 0 '' '' 0 0 (0 0 1)");
}

TEST(Polyline, EndsAtAnyOtherEntity)
{
    RecordingReader reader;
    ReadDrawing(reader, EntitiesOf("0|POLYLINE; 0|VERTEX; 10|1; 0|LINE; 31|1"));
    EXPECT_THAT(reader.calls,
                ElementsAre("VERTEX (1 0 0) '' 0 0 1", "POLYLINE [(1 0 0) 0] 0 0 0 0 '' '' 0 0 (0 0 1)",
                            "LINE (0 0 0) (0 0 1) 0 0 '' '' (0 0 1)"));
}

TEST(Polyline, WithoutVerticesHasNone)
{
    EXPECT_THAT(CallsOf("0|POLYLINE; 70|8; 0|SEQEND"), ElementsAre("POLYLINE [] 8 0 0 0 '' '' 0 0 (0 0 1)"));
}

TEST(Polyline, GoesOnAfterAVertexHooksStatusFour)
{
    RecordingReader reader;
    reader.statusOf["VERTEX"] = 4;
    EXPECT_EQ(
        ReadDrawing(reader, EntitiesOf("0|POLYLINE; 0|VERTEX; 10|1; 42|0; 0|VERTEX; 10|2; 0|SEQEND")).status,
        0);
    EXPECT_EQ(reader.calls.back(), "POLYLINE [(1 0 0) 0, (2 0 0) 0] 0 0 0 0 '' '' 0 0 (0 0 1)");
}

TEST(Polyline, EndsWithAVertexHooksStatus)
{
    RecordingReader reader;
    reader.statusOf["VERTEX"] = 70;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|POLYLINE; 0|VERTEX; 42|0; 0|SEQEND")).status, 70);
    EXPECT_EQ(reader.counts["POLYLINE"], 0);
}

TEST(Polyline, CutShortHasNoHook)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|ENTITIES; 0|POLYLINE; 0|VERTEX; 42|0")).status, 2);
    EXPECT_EQ(reader.counts["POLYLINE"], 0);
}
}  // namespace
