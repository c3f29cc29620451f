#include "platform/base/file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>

namespace {
// A folder of the test's own, with Czech letters in its name.
class Files : public testing::Test
{
  protected:
    Files()
        : m_folder(std::filesystem::temp_directory_path() / std::filesystem::path(u8"kx7_soubory_žluť") /
                   testing::UnitTest::GetInstance()->current_test_info()->name())
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
    }
    ~Files() override { std::filesystem::remove_all(m_folder); }

    CString Path(char const * name) const { return TextOfSystemPath(m_folder / name); }

    void Put(char const * name, std::string_view bytes) const
    {
        std::ofstream(m_folder / name, std::ios::binary) << bytes;
    }

    std::string Get(char const * name) const
    {
        std::ifstream file(m_folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    std::filesystem::path m_folder;
};

template <class Action>
int CauseOf(Action action)
{
    try {
        action();
        return CFileException::none;
    } catch (CFileException * exception) {
        int const cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
}
}  // namespace

TEST_F(Files, PathsAreTextOfTheCodePage)
{
    EXPECT_NE(Path("a").Find("\x9Elu\x9D"), -1);  // "žluť" in code page 1250
    EXPECT_EQ(SystemPath(Path("a")), m_folder / "a");
}

TEST_F(Files, BackslashSeparatesDirectories)
{
    Put("a", "x");
    EXPECT_TRUE(std::filesystem::exists(SystemPath(TextOfSystemPath(m_folder) + "\\a")));
}

TEST_F(Files, ReadingGivesWhatIsThere)
{
    Put("a", "abcdef");
    CFile file(Path("a"), CFile::modeRead);
    char bytes[10];
    EXPECT_EQ(file.GetLength(), 6u);
    EXPECT_EQ(file.Read(bytes, 4), 4u);
    EXPECT_EQ(file.GetPosition(), 4u);
    EXPECT_EQ(file.Read(bytes, 10), 2u);
    EXPECT_EQ(std::string_view(bytes, 2), "ef");
    EXPECT_EQ(file.Read(bytes, 10), 0u);
    EXPECT_EQ(file.Seek(-5, CFile::end), 1u);
    EXPECT_EQ(file.Seek(1, CFile::current), 2u);
    file.Read(bytes, 1);
    EXPECT_EQ(bytes[0], 'c');
    EXPECT_EQ(file.GetFilePath(), Path("a"));
}

TEST_F(Files, WritingAloneKeepsTheOldTail)
{
    Put("a", "abcdef");
    CFile file(Path("a"), CFile::modeWrite);
    file.Write("XY", 2);
    file.Close();
    EXPECT_EQ(Get("a"), "XYcdef");
}

TEST_F(Files, CreatingCutsUnlessTold)
{
    Put("a", "abcdef");
    CFile(Path("a"), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Write("X", 1);
    EXPECT_EQ(Get("a"), "Xbcdef");
    CFile(Path("a"), CFile::modeCreate | CFile::modeWrite).Write("Y", 1);
    EXPECT_EQ(Get("a"), "Y");
    CFile(Path("new"), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Write("Z", 1);
    EXPECT_EQ(Get("new"), "Z");
}

TEST_F(Files, ReadingAndWritingMayAlternate)
{
    Put("a", "abcdef");
    CFile file(Path("a"), CFile::modeReadWrite);
    char byte = 0;
    file.Read(&byte, 1);
    file.Write("X", 1);
    file.Read(&byte, 1);
    EXPECT_EQ(byte, 'c');
    file.Flush();
    file.Write("Y", 1);
    file.Close();
    EXPECT_EQ(Get("a"), "aXcYef");
}

TEST_F(Files, FailureToOpenTellsItsCause)
{
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(Path("none"), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_lOsError, ENOENT);
    EXPECT_EQ(error.m_strFileName, Path("none"));
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_FALSE(file.Open(Path("none"), CFile::modeWrite));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "none"));
    EXPECT_EQ(CauseOf([&] { CFile(Path("none"), CFile::modeRead); }), CFileException::fileNotFound);
    EXPECT_EQ(CauseOf([&] { CFile(Path("."), CFile::modeRead); }), CFileException::accessDenied);
    EXPECT_EQ(CauseOf([&] { CFile(nullptr, CFile::modeRead); }), CFileException::fileNotFound);
    EXPECT_EQ(CauseOf([&] { CStdioFile(Path("none"), CFile::modeRead); }), CFileException::fileNotFound);
}

TEST_F(Files, ClosedOnesFailAsInvalid)
{
    Put("a", "abc");
    CFile file(Path("a"), CFile::modeRead);
    file.Close();
    file.Close();
    char byte = 0;
    EXPECT_EQ(CauseOf([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Write(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.SeekToEnd(); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.GetLength(); }), CFileException::invalidFile);
}

TEST_F(Files, MisuseIsThrown)
{
    Put("a", "abc");
    CFile file(Path("a"), CFile::modeRead);
    EXPECT_NE(CauseOf([&] { file.Write("x", 1); }), CFileException::none);
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
}

TEST_F(Files, TextModeWritesLineFeedsAsPairs)
{
    CStdioFile file(Path("a"), CFile::modeCreate | CFile::modeWrite | CFile::typeText);
    file.WriteString("1 2\r\n");
    file.WriteString("x\ny");
    file.Close();
    EXPECT_EQ(Get("a"), "1 2\r\r\nx\r\ny");
}

TEST_F(Files, TextModeReadsPairsAsLineFeeds)
{
    Put("a", "1 2\r\r\nx\ny\r\n\r\rlast\x1Anever");
    CStdioFile file(Path("a"), CFile::modeRead);
    CString line;
    for (char const * expected : {"1 2\r", "x", "y", "\r\rlast"}) {
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(line, expected);
    }
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
}

TEST_F(Files, TextModeGoesForRawReadsToo)
{
    Put("a", "a\r\nb");
    CStdioFile file(Path("a"), CFile::modeRead);
    char bytes[10];
    EXPECT_EQ(file.Read(bytes, 10), 3u);
    EXPECT_EQ(std::string_view(bytes, 3), "a\nb");
}

TEST_F(Files, BinaryModeOfTextFilesChangesNothing)
{
    CStdioFile file(Path("a"), CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.WriteString(
        "a\nb\r\n\x1A"
        "c");
    file.SeekToBegin();
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, "b\r");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line,
              "\x1A"
              "c");
    EXPECT_FALSE(file.ReadString(line));
    file.Close();
    EXPECT_EQ(Get("a"),
              "a\nb\r\n\x1A"
              "c");
}

TEST(MemoryFile, ReadsAndWritesAtItsPosition)
{
    CMemFile file("abc", 3);
    char bytes[4];
    EXPECT_EQ(file.Read(bytes, 2), 2u);
    file.Write("XYZ", 3);
    EXPECT_EQ(file.GetLength(), 5u);
    EXPECT_EQ(file.Read(bytes, 1), 0u);
    file.SeekToBegin();
    EXPECT_EQ(file.Read(bytes, 4), 4u);
    EXPECT_EQ(std::string_view(bytes, 4), "abXY");
    EXPECT_FALSE(file.Open("a", CFile::modeRead));
}

TEST(MemoryFile, FillsTheGapBehindItsEndWithZeroes)
{
    CMemFile file("a", 1);
    file.Seek(3, CFile::begin);
    char byte = 0;
    EXPECT_EQ(file.Read(&byte, 1), 0u);
    file.Write("b", 1);
    auto const bytes = file.View();
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), std::string("a\0\0b", 4));
}

TEST(MemoryFile, RefusesImpossiblePlaces)
{
    CMemFile file("a", 1);
    EXPECT_EQ(CauseOf([&] { file.Seek(-2, CFile::end); }), CFileException::badSeek);
    file.SeekToEnd();
    EXPECT_EQ(CauseOf([&] { file.Seek(std::numeric_limits<LONGLONG>::max(), CFile::current); }),
              CFileException::badSeek);
    file.Seek(std::numeric_limits<LONGLONG>::max(), CFile::begin);
    try {
        file.Write("b", 1);
        FAIL() << "more than all memory was written";
    } catch (CMemoryException * exception) {
        exception->Delete();
    }
    EXPECT_EQ(file.GetLength(), 1u);
}

TEST(ExceptionClasses, HaveCommonRootAndClassRecords)
{
    try {
        AfxThrowFileException(CFileException::diskFull, ENOSPC, "name");
    } catch (CException * exception) {
        ASSERT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CFileException)));
        EXPECT_FALSE(exception->IsKindOf(RUNTIME_CLASS(CArchiveException)));
        EXPECT_EQ(static_cast<CFileException *>(exception)->m_lOsError, ENOSPC);
        exception->Delete();
    }
}

TEST(ExceptionClasses, SystemErrorsHaveCauses)
{
    EXPECT_EQ(CFileException::ErrnoToException(0), CFileException::none);
    EXPECT_EQ(CFileException::ErrnoToException(ENOENT), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::ErrnoToException(EACCES), CFileException::accessDenied);
    EXPECT_EQ(CFileException::ErrnoToException(EEXIST), CFileException::accessDenied);
    EXPECT_EQ(CFileException::ErrnoToException(ENOSPC), CFileException::diskFull);
    EXPECT_EQ(CFileException::ErrnoToException(EMFILE), CFileException::tooManyOpenFiles);
    EXPECT_EQ(CFileException::ErrnoToException(12345), CFileException::genericException);
}
