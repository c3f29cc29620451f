#include <gmock/gmock.h>

#include "recording_reader.h"

using testing::ElementsAre;

namespace {
std::string BlocksOf(std::string const & groups)
{
    return Groups("0|SECTION; 2|BLOCKS; " + groups + "; 0|ENDSEC; 0|EOF");
}

std::vector<std::string> CallsOf(std::string const & groups)
{
    RecordingReader reader;
    EXPECT_EQ(ReadDrawing(reader, BlocksOf(groups)).status, 0);
    EXPECT_EQ(reader.Section(), 0);
    return reader.calls;
}

std::string const kLine = "0|LINE; 31|1";
std::string const kLineCall = "LINE (0 0 0) (0 0 1) 0 0 '' '' (0 0 1)";

TEST(Block, BeginsAtItsSecondName)
{
    EXPECT_THAT(CallsOf("0|BLOCK; 8|A b; 2|BOLT m; 70|2; 10|1; 20|2; 30|3; 3|Second n; 1|path; " + kLine +
                        "; 0|ENDBLK; 8|A"),
                ElementsAre("BLOCK 'A' (1 2 3) 'BOLT' 'Second' 2", kLineCall, "ENDBLK"));
}

TEST(Block, BeginsAtItsPath)
{
    EXPECT_THAT(CallsOf("0|BLOCK; 2|BOLT; 1|path; 3|lost; " + kLine + "; 0|ENDBLK"),
                ElementsAre("BLOCK '' (0 0 0) 'BOLT' '' 0", kLineCall, "ENDBLK"));
}

TEST(Block, BeginsAtItsFirstEntityWhichIsRead)
{
    EXPECT_THAT(CallsOf("0|BLOCK; 2|BOLT; " + kLine + "; 0|ENDBLK; 0|BLOCK; 2|NUT; 0|ENDBLK"),
                ElementsAre("BLOCK '' (0 0 0) 'BOLT' '' 0", kLineCall, "ENDBLK",
                            "BLOCK '' (0 0 0) 'NUT' '' 0", "ENDBLK"));
}

TEST(Block, PassesOverInsertionsInIt)
{
    EXPECT_THAT(CallsOf("0|BLOCK; 2|B; 3|B; 0|INSERT; 2|OTHER; " + kLine + "; 0|ENDBLK"),
                ElementsAre("BLOCK '' (0 0 0) 'B' 'B' 0", kLineCall, "ENDBLK"));
}

TEST(Block, ReadsAllOtherEntities)
{
    RecordingReader reader;
    ReadDrawing(reader,
                BlocksOf("0|BLOCK; 2|B; 3|B; 0|LINE; 31|0; 0|3DLINE; 31|0; 0|ARC; 51|1; 0|LWPOLYLINE; "
                         "0|VERTEX; 0|POLYLINE; 0|SEQEND; 0|TEXT; 0|MTEXT; 0|SOLID; 0|CIRCLE; 0|3DFACE; "
                         "0|ENDBLK"));
    EXPECT_EQ(reader.counts["LINE"], 2);
    for (auto hook :
         {"ARC", "LWPOLYLINE", "VERTEX", "POLYLINE", "TEXT", "MTEXT", "SOLID", "CIRCLE", "3DFACE"})
        EXPECT_EQ(reader.counts[hook], 1) << hook;
}

TEST(Block, IsEndedByItsEndAlone)
{
    RecordingReader reader;
    // The section's end inside of a block passes by, and the stream ends in it.
    EXPECT_EQ(ReadDrawing(reader, BlocksOf("0|BLOCK; 2|B; 3|B")).status, 2);
    EXPECT_THAT(reader.calls, ElementsAre("BLOCK '' (0 0 0) 'B' 'B' 0"));
}

TEST(Block, EndsTheReadingWithTheStatusOfItsBegin)
{
    RecordingReader reader;
    reader.statusOf["BLOCK"] = 70;
    EXPECT_EQ(ReadDrawing(reader, BlocksOf("0|BLOCK; 2|B; 3|B; 0|ENDBLK")).status, 70);
    EXPECT_EQ(ReadDrawing(reader, BlocksOf("0|BLOCK; 2|B; 0|ENDBLK")).status, 70);
    EXPECT_EQ(reader.counts["ENDBLK"], 0);
    reader.statusOf["BLOCK"] = 4;
    EXPECT_EQ(ReadDrawing(reader, BlocksOf("0|BLOCK; 2|B; 3|B; 0|ENDBLK")).status, 0);
}

TEST(Block, EndsTheReadingWithTheStatusOfItsEnd)
{
    RecordingReader reader;
    reader.statusOf["ENDBLK"] = 70;
    EXPECT_EQ(ReadDrawing(reader, BlocksOf("0|BLOCK; 2|B; 3|B; 0|ENDBLK")).status, 70);
    reader.statusOf["ENDBLK"] = 4;
    EXPECT_EQ(ReadDrawing(reader, BlocksOf("0|BLOCK; 2|B; 3|B; 0|ENDBLK; 0|BLOCK; 2|C; 0|ENDBLK")).status, 0);
    EXPECT_EQ(reader.counts["BLOCK"], 3);
}

TEST(Block, KeepsItsTextsWithinABlockHeadersRoom)
{
    std::string const word(300, 'x');
    std::string const cut = " '" + std::string(80, 'x') + "' ";
    EXPECT_THAT(CallsOf("0|BLOCK; 8|" + word + "; 2|" + word + "; 3|" + word + "; 0|ENDBLK"),
                ElementsAre("BLOCK" + cut + "(0 0 0)" + cut.substr(0, 82) + "'" + cut + "0", "ENDBLK"));
}

// Remembers in which section each block begins and its entities stand.
class SectionWatcher : public RecordingReader
{
  public:
    std::vector<int> sections;
    int SetBeginBlock(char *, TUVect3D &, char *, char *, int) override
    {
        sections.push_back(m_section);
        return 0;
    }
    int SetEntCIRCLE(TUVect3D &, double &, int &, double &, char *, char *, TUVect3D &) override
    {
        sections.push_back(m_section);
        return 0;
    }
};

TEST(Block, LeavesTheSectionFieldEmptyBehindIt)
{
    SectionWatcher reader;
    ReadDrawing(reader, BlocksOf("0|BLOCK; 3|A; 0|CIRCLE; 0|ENDBLK; 0|BLOCK; 3|B; 0|CIRCLE; 0|ENDBLK"));
    EXPECT_THAT(reader.sections, ElementsAre(4, 4, 0, 4));
}
}  // namespace
