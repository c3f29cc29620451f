#include <gmock/gmock.h>

#include "dxf/layer_choice.h"
#include "platform/base/file_choice.h"
#include "platform/base/wait_cursor.h"
#include "recording_reader.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {
std::string const kPoint = "0|VERTEX; 8|A; 10|1; 20|2; 70|0";  // an entity of one call
std::string const kPointCall = "VERTEX (1 2 0) 'A' 0 0 0";

TEST(DrawingWalk, ReadsEntitiesUpToTheEnd)
{
    RecordingReader reader;
    Reading const reading = ReadDrawing(reader, EntitiesOf(kPoint + "; " + kPoint));
    EXPECT_EQ(reading.status, 0);
    EXPECT_THAT(reading.messages, IsEmpty());
    EXPECT_THAT(reader.calls, ElementsAre(kPointCall, kPointCall));
    EXPECT_EQ(reader.Section(), 0);
    EXPECT_EQ(reader.Lines(), 28);  // 14 groups
}

TEST(DrawingWalk, TakesLinesEndedByCarriageReturnAndLineFeed)
{
    RecordingReader reader;
    std::string bytes = EntitiesOf(kPoint);
    for (std::size_t at = 0; (at = bytes.find('\n', at)) != std::string::npos; at += 2)
        bytes.replace(at, 1, "\r\n");
    EXPECT_EQ(ReadDrawing(reader, bytes).status, 0);
    EXPECT_THAT(reader.calls, ElementsAre(kPointCall));
}

TEST(DrawingWalk, TakesALastLineWithoutALineEnd)
{
    RecordingReader reader;
    std::string bytes = EntitiesOf(kPoint);
    bytes.pop_back();
    EXPECT_EQ(ReadDrawing(reader, bytes).status, 0);
}

TEST(DrawingWalk, OfAnEmptyFileShowsLineZero)
{
    RecordingReader reader;
    Reading const reading = ReadDrawing(reader, "");
    EXPECT_EQ(reading.status, 2);
    ASSERT_THAT(reading.messages, SizeIs(1));
    EXPECT_THAT(reading.messages[0], HasSubstr(" 0."));
}

TEST(DrawingWalk, MessageIsCzechInTheCodePage)
{
    RecordingReader reader;
    Reading const reading = ReadDrawing(reader, "");
    EXPECT_THAT(reading.messages, ElementsAre("Chyba p\xF8i na\xE8\xEDt\xE1n\xED DXF souboru na \xF8\xE1"
                                              "dce 0."));
}

TEST(DrawingWalk, StopsAtABlankLineWhereACodeIsDue)
{
    RecordingReader reader;
    Reading const reading = ReadDrawing(reader, "0\nSECTION\n2\nENTITIES\n\nLINE\n");
    EXPECT_EQ(reading.status, 3);
    ASSERT_THAT(reading.messages, SizeIs(1));
    EXPECT_THAT(reading.messages[0], HasSubstr(" 5."));
}

TEST(DrawingWalk, TellsTheLineAndKeepsWhatWasReadWhenCutShort)
{
    RecordingReader reader;
    Reading const reading =
        ReadDrawing(reader, Groups("0|SECTION; 2|ENTITIES; " + kPoint + "; 0|LINE; 10|5"));
    EXPECT_EQ(reading.status, 2);
    ASSERT_THAT(reading.messages, SizeIs(1));
    EXPECT_THAT(reading.messages[0], HasSubstr(" 18."));  // 9 whole groups
    EXPECT_THAT(reader.calls, ElementsAre(kPointCall));
}

TEST(DrawingWalk, WithoutEndOfFileEndsWithTheStream)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|ENTITIES; " + kPoint + "; 0|ENDSEC")).status, 2);
    EXPECT_THAT(reader.calls, ElementsAre(kPointCall));
}

TEST(DrawingWalk, PassesOverTheSectionsNobodyReads)
{
    for (std::string name : {"HEADER", "CLASSES", "OBJECTS"}) {
        RecordingReader reader;
        // The odd number of lines shows that these sections aren't read in pairs.
        std::string const bytes = Groups("0|SECTION; 2|" + name + "; 0|SECTION; 2|ENTITIES; " + kPoint) +
                                  "9\n$X\n\nEOF\nENDSEC\n" + Groups("0|EOF");
        EXPECT_EQ(ReadDrawing(reader, bytes).status, 0) << name;
        EXPECT_THAT(reader.calls, IsEmpty()) << name;
    }
}

TEST(DrawingWalk, OfASectionThatNeverEndsMeetsTheStreamsEnd)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|HEADER; 9|$X")).status, 2);
    EXPECT_EQ(reader.Lines(), 6);
}

TEST(DrawingWalk, GoesThroughAnUnknownSectionGroupByGroup)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|THUMBNAIL; 90|4; 0|ENDSEC; 0|SECTION; 2|ENTITIES; " +
                                         kPoint + "; 0|ENDSEC; 0|EOF"))
                  .status,
              0);
    EXPECT_THAT(reader.calls, ElementsAre(kPointCall));
}

TEST(DrawingWalk, EndsAtAnEndOfFileValueInAnUnknownSection)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|OWN; 1|EOF; 0|ENDSEC")).status, 0);
    EXPECT_EQ(reader.Lines(), 6);
}

TEST(DrawingWalk, GoesOnAfterASectionWithoutAName)
{
    RecordingReader reader;
    // The group behind the start is used up, even where it says the end.
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 0|EOF; 0|SECTION; 2|ENTITIES; 0|ENDSEC; 0|EOF")).status,
              0);
    EXPECT_EQ(reader.Lines(), 12);
}

TEST(DrawingWalk, ComparesWholeLinesWithCase)
{
    for (std::string name : {"entities", "ENTITIES ", " ENTITIES"}) {
        RecordingReader reader;
        ReadDrawing(reader, Groups("0|SECTION; 2|" + name + "; " + kPoint + "; 0|ENDSEC; 0|EOF"));
        EXPECT_THAT(reader.calls, IsEmpty()) << name;
    }
}

TEST(DrawingWalk, TakesCodesWithBlanksInFront)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, Groups("  0|SECTION;  \t2|ENTITIES;   0|ENDSEC;   0|EOF")).status, 0);
}

TEST(DrawingWalk, KeepsTheCodeWhenALineIsNoNumber)
{
    RecordingReader reader;
    // "x" leaves the code 0 of the group before, so the second group counts as a group 0 too.
    EXPECT_EQ(ReadDrawing(reader, Groups("0|SECTION; 2|ENTITIES; 0|NOTHING; x|ENDSEC; 0|EOF")).status, 0);
    EXPECT_EQ(reader.Section(), 0);
    EXPECT_EQ(reader.Lines(), 10);
}

TEST(DrawingWalk, PassesOverOtherEntitiesGroupByGroup)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf("0|ELLIPSE; 8|A; 10|1; 0|SPLINE; 2|ENDSEC; " + kPoint)).status,
              0);
    EXPECT_THAT(reader.calls, ElementsAre(kPointCall));
}

TEST(DrawingWalk, EndsWithAHooksStatus)
{
    RecordingReader reader;
    reader.statusOf["VERTEX"] = 77;
    Reading const reading = ReadDrawing(reader, EntitiesOf(kPoint + "; " + kPoint));
    EXPECT_EQ(reading.status, 77);
    EXPECT_THAT(reader.calls, SizeIs(1));
    ASSERT_THAT(reading.messages, SizeIs(1));
    EXPECT_THAT(reading.messages[0], HasSubstr(" 14."));
}

TEST(DrawingWalk, GoesOnAfterAHooksStatusFour)
{
    RecordingReader reader;
    reader.statusOf["VERTEX"] = 4;
    EXPECT_EQ(ReadDrawing(reader, EntitiesOf(kPoint + "; " + kPoint)).status, 0);
    EXPECT_THAT(reader.calls, SizeIs(2));
}

TEST(DrawingWalk, EndsABinaryFileAtOnce)
{
    std::string bytes("AutoCAD Binary DXF\r\n\x1A\0", 22);
    for (int i = 0; i < 200000; ++i)
        bytes += static_cast<char>(i * 7919 >> 3);
    RecordingReader reader;
    Reading const reading = ReadDrawing(reader, bytes);
    EXPECT_THAT(reading.status, testing::AnyOf(2, 3));
    EXPECT_THAT(reading.messages, SizeIs(1));
    EXPECT_THAT(reader.calls, IsEmpty());
}

std::vector<int> g_waiting;

TEST(DrawingWalk, ShowsTheWaitCursorMeanwhile)
{
    g_waiting.clear();
    WaitCursorHandler const before = SetWaitCursorHandler([](int waiting) { g_waiting.push_back(waiting); });
    RecordingReader reader;
    ReadDrawing(reader, "");
    SetWaitCursorHandler(before);
    EXPECT_THAT(g_waiting, ElementsAre(1, 0));
}

TEST(DrawingOpening, RefusesNullStreams)
{
    RecordingReader reader;
    EXPECT_EQ(reader.Create(static_cast<CArchive *>(nullptr)), 1);
    EXPECT_EQ(reader.Create(static_cast<CFile *>(nullptr)), 1);
}

TEST(DrawingOpening, RefusesAMissingFile)
{
    RecordingReader reader;
    EXPECT_EQ(reader.Create(CString("no such file.dxf")), 1);
}

TEST(DrawingOpening, WithoutSuccessReadsNothing)
{
    RecordingReader reader;
    EXPECT_EQ(reader.ReadDXFLine(), 2);
}

TEST(DrawingOpening, StartsTheCounterAndTheLayersAnewButKeepsTheFilter)
{
    LayerChoiceHandler const before = SetLayerChoiceHandler(nullptr);  // nobody is asked
    RecordingReader reader;
    reader.SetUseLayersFilter(1);
    ReadDrawing(reader, Groups("0|SECTION; 2|TABLES; 0|LAYER; 2|A; 0|ENDSEC; 0|EOF"));
    SetLayerChoiceHandler(before);
    CString layer("A");
    reader.SetLayerOn(layer, 0);
    EXPECT_EQ(reader.IsLayerOn(layer), 0);
    EXPECT_EQ(reader.Create(reader.file.get()), 0);
    EXPECT_EQ(reader.Lines(), 0);
    EXPECT_EQ(reader.IsLayerOn(layer), 1);
    EXPECT_EQ(reader.SetUseLayersFilter(0), 1);
}

TEST(DrawingOpening, LeavesAHostsArchiveBehindTheDrawing)
{
    std::string const bytes = Groups("0|EOF") + "rest of the archive\n";
    CMemFile file(bytes.data(), bytes.size());
    CArchive archive(&file, CArchive::load);
    {
        RecordingReader reader;
        EXPECT_EQ(reader.Create(&archive), 0);
        EXPECT_EQ(reader.ReadDXF(), 0);
    }
    CString line;
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, "rest of the archive");
}

TEST(DrawingOpening, LeavesAHostsFileBehindTheDrawing)
{
    std::string const bytes = Groups("0|EOF") + "rest";
    CMemFile file(bytes.data(), bytes.size());
    {
        RecordingReader reader;
        EXPECT_EQ(reader.Create(&file), 0);
        EXPECT_EQ(reader.ReadDXF(), 0);
    }
    EXPECT_EQ(file.GetPosition(), bytes.size() - 4);
}

// A drawing of a given length that is made while it is read.
class EndlessDrawing : public CMemFile
{
  public:
    explicit EndlessDrawing(std::size_t lines) : m_linesLeft(lines)
    {
        m_pending = Groups("0|SECTION; 2|ENTITIES");
    }

    UINT largestRead = 0;

    UINT Read(void * buffer, UINT count) override
    {
        largestRead = std::max(largestRead, count);
        std::string const line = Groups("0|LINE; 8|Walls; 10|1.25; 31|6.5");
        for (; m_pending.size() < count && m_linesLeft > 0; --m_linesLeft)
            m_pending += line;
        auto const piece = static_cast<UINT>(m_pending.copy(static_cast<char *>(buffer), count));
        m_pending.erase(0, piece);
        return piece;
    }

  private:
    std::size_t m_linesLeft;
    std::string m_pending;
};

TEST(DrawingOpening, ReadsAnyLengthThroughOneSmallBuffer)
{
    EndlessDrawing file(200000);
    CDXFInBasic reader;
    Reading const reading = ReadDrawing(reader, file);
    EXPECT_EQ(reading.status, 2);
    EXPECT_EQ(file.largestRead, 4096U);
    EXPECT_THAT(reading.messages, ElementsAre(HasSubstr(" 1600004.")));  // 4 groups a line and 2 in front
}

DWORD g_flags = 0;

TEST(DrawingOpening, AsksForTheFile)
{
    FileChoiceHandler const before = SetFileChoiceHandler([](TSFileChoice const & choice, CString & path) {
        g_flags = choice.flags;
        EXPECT_FALSE(choice.save);
        EXPECT_EQ(choice.title, "Open");
        EXPECT_EQ(choice.fileName, "name");
        EXPECT_EQ(choice.extension, "dxf");
        EXPECT_EQ(choice.filter, "Drawings|*.dxf||");
        path = "no such file.dxf";
        return 1;
    });
    RecordingReader reader;
    EXPECT_EQ(reader.Create("Open", "name", "dxf", "Drawings|*.dxf||"), 1);
    EXPECT_EQ(g_flags, OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST);
    SetFileChoiceHandler(before);
}

TEST(DrawingOpening, FailsWhenTheUserCancels)
{
    FileChoiceHandler const before = SetFileChoiceHandler([](TSFileChoice const &, CString &) { return 0; });
    RecordingReader reader;
    EXPECT_EQ(reader.Create("Open", "name", "dxf", ""), 1);
    SetFileChoiceHandler(before);
}
}  // namespace
