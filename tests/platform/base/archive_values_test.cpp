#include <gtest/gtest.h>

#include <limits>

#include "archive_test_classes.h"

TEST(ArchiveNumbers, StandLowestByteFirstInFixedWidths)
{
    std::string const bytes = Stored([](CArchive & archive) {
        archive << static_cast<BYTE>(0xAB) << static_cast<WORD>(0x1234) << static_cast<short>(-2)
                << 0x12345678 << -1L << static_cast<DWORD>(0x89ABCDEF) << static_cast<LONG>(5) << 1.0f << -2.5
                << 'x';
    });
    EXPECT_EQ(bytes, Bytes("\xAB"
                           "\x34\x12"
                           "\xFE\xFF"
                           "\x78\x56\x34\x12"
                           "\xFF\xFF\xFF\xFF"
                           "\xEF\xCD\xAB\x89"
                           "\x05\0\0\0"
                           "\0\0\x80\x3F"          // 1.0f = 0x3F800000
                           "\0\0\0\0\0\0\x04\xC0"  // -2.5 = 0xC004000000000000
                           "x"));
}

TEST(ArchiveNumbers, ComeBackAsTheyWere)
{
    std::string const bytes = Stored([](CArchive & archive) {
        archive << std::numeric_limits<int>::min() << -7L << 3000000000UL << 0.1 << static_cast<BYTE>(255);
    });
    EXPECT_EQ(CauseOfLoading(bytes,
                             [](CArchive & archive) {
                                 int a = 0;
                                 long b = 0;
                                 unsigned long c = 0;
                                 double d = 0.0;
                                 BYTE e = 0;
                                 archive >> a >> b >> c >> d >> e;
                                 EXPECT_EQ(a, std::numeric_limits<int>::min());
                                 EXPECT_EQ(b, -7L);
                                 EXPECT_EQ(c, 3000000000UL);
                                 EXPECT_EQ(d, 0.1);
                                 EXPECT_EQ(e, 255);
                             }),
              CArchiveException::none);
}

TEST(ArchiveNumbers, PastTheEndTheVariableStays)
{
    int value = 42;
    EXPECT_EQ(CauseOfLoading("abc", [&](CArchive & archive) { archive >> value; }),
              CArchiveException::endOfFile);
    EXPECT_EQ(value, 42);
}

TEST(ArchiveTexts, HaveTheShortestLengthForm)
{
    auto const stored = [](int length) {
        return Stored([=](CArchive & archive) { archive << CString('a', length); });
    };
    auto const followed = [](std::string head, std::size_t length) { return head.append(length, 'a'); };
    EXPECT_EQ(stored(0), Bytes("\0"));
    EXPECT_EQ(stored(2), followed("\x02", 2));
    EXPECT_EQ(stored(254), followed("\xFE", 254));
    EXPECT_EQ(stored(255), followed(Bytes("\xFF\xFF\0"), 255));
    EXPECT_EQ(stored(0xFFFD), followed("\xFF\xFD\xFF", 0xFFFD));
    EXPECT_EQ(stored(0xFFFE), followed(Bytes("\xFF\xFF\xFF\xFE\xFF\0\0"), 0xFFFE));
    EXPECT_EQ(stored(0x10000), followed(Bytes("\xFF\xFF\xFF\0\0\x01\0"), 0x10000));
}

TEST(ArchiveTexts, ComeBackInEveryLengthForm)
{
    for (int const length : {0, 1, 254, 255, 256, 4096, 0xFFFD, 0xFFFE, 0xFFFF, 200000}) {
        CString const text('b', length);
        std::string const bytes = Stored([&](CArchive & archive) { archive << text; });
        EXPECT_EQ(CauseOfLoading(bytes,
                                 [&](CArchive & archive) {
                                     CString back = "old";
                                     archive >> back;
                                     EXPECT_EQ(back, text);
                                 }),
                  CArchiveException::none);
    }
}

TEST(ArchiveTexts, ForgedLengthEndsAtTheFilesEnd)
{
    CString text = "old";
    auto const read = [&](CArchive & archive) { archive >> text; };
    EXPECT_EQ(CauseOfLoading("\x05"
                             "abcd",
                             read),
              CArchiveException::endOfFile);
    EXPECT_EQ(CauseOfLoading("\xFF\xFF\xFF\xFF\xFF\xFF\xFF"
                             "abcd",
                             read),
              CArchiveException::endOfFile);
    EXPECT_EQ(CauseOfLoading("\xFF\xFE\xFF\x01"
                             "a",
                             read),
              CArchiveException::badSchema);  // 16-bit characters
    EXPECT_EQ(text, "old");
}

TEST(ArchiveCounts, AreShortBelow0xFFFF)
{
    auto const stored = [](DWORD count) {
        return Stored([=](CArchive & archive) { archive.WriteCount(count); });
    };
    EXPECT_EQ(stored(0), Bytes("\0\0"));
    EXPECT_EQ(stored(0xFFFE), "\xFE\xFF");
    EXPECT_EQ(stored(0xFFFF), Bytes("\xFF\xFF\xFF\xFF\0\0"));
    EXPECT_EQ(stored(0x12345678), "\xFF\xFF\x78\x56\x34\x12");
    for (DWORD const count : {0u, 0xFFFEu, 0xFFFFu, 0xFFFFFFFFu})
        CauseOfLoading(stored(count), [=](CArchive & archive) { EXPECT_EQ(archive.ReadCount(), count); });
}

TEST(ArchiveBytes, CrossTheBufferInPieces)
{
    std::string text(10000, '\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char>(i * 7);
    CMemFile file;
    CArchive storing(&file, CArchive::store, 1);  // gets the smallest buffer
    storing << static_cast<BYTE>(1);
    storing.Write(text.data(), 9000);
    storing.Write(text.data() + 9000, 1000);
    storing.Close();
    EXPECT_EQ(BytesOf(file), "\x01" + text);

    file.SeekToBegin();
    CArchive loading(&file, CArchive::load, 1000);
    std::string back(10005, '?');
    BYTE first = 0;
    loading >> first;
    EXPECT_EQ(loading.Read(back.data(), 10005), 10000u);
    EXPECT_EQ(back, text + "?????");
    EXPECT_EQ(loading.Read(back.data(), 1), 0u);
}

TEST(ArchiveFlush, LoadingLeavesTheFileAtTheNextUnreadByte)
{
    CMemFile file("abcdef", 6);
    CArchive archive(&file, CArchive::load);
    char two[2];
    archive.Read(two, 2);
    EXPECT_EQ(file.GetPosition(), 6u);
    archive.Flush();
    EXPECT_EQ(file.GetPosition(), 2u);
    EXPECT_EQ(archive.Read(two, 2), 2u);
    EXPECT_EQ(two[0], 'c');
    archive.Close();
    EXPECT_EQ(file.GetPosition(), 4u);
}

TEST(ArchiveDirection, WrongOneIsRefused)
{
    int value = 3;
    EXPECT_EQ(CauseOfLoading("abcdefgh", [&](CArchive & archive) { archive << value; }),
              CArchiveException::readOnly);
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    try {
        archive >> value;
        FAIL() << "a storing archive was read";
    } catch (CArchiveException * exception) {
        EXPECT_EQ(exception->m_cause, CArchiveException::writeOnly);
        exception->Delete();
    }
    EXPECT_EQ(value, 3);
}

TEST(ArchiveDirection, ClosedArchiveIsRefused)
{
    EXPECT_EQ(CauseOfLoading("abcd",
                             [](CArchive & archive) {
                                 archive.Close();
                                 BYTE byte = 0;
                                 archive >> byte;
                             }),
              CArchiveException::genericException);
}

TEST(ArchiveLines, EndAtLineFeedsOrTheFilesEnd)
{
    CauseOfLoading("  0\r\nSECTION\n\r\nx\ry\r\nlast", [](CArchive & archive) {
        CString line;
        std::vector<std::string> lines;
        while (archive.ReadString(line))
            lines.emplace_back(line);
        EXPECT_EQ(lines, (std::vector<std::string>{"  0", "SECTION", "", "x\ry", "last"}));
        EXPECT_TRUE(line.IsEmpty());
    });
}

TEST(ArchiveLines, CrossTheBuffer)
{
    // The carriage return is the last byte of the first buffer, the line feed the first of the second.
    std::string const longLine(127, 'a');
    std::string const bytes = longLine + "\r\nb\n";
    CMemFile file(bytes.data(), bytes.size());
    CArchive archive(&file, CArchive::load, 128);
    CString line;
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, longLine.c_str());
    EXPECT_TRUE(archive.ReadString(line));
    EXPECT_EQ(line, "b");
    EXPECT_FALSE(archive.ReadString(line));
}

TEST(ArchiveLines, LeaveACopyOfTheLineBefore)
{
    CauseOfLoading("first\nsecond\n", [](CArchive & archive) {
        CString line;
        archive.ReadString(line);
        CString const kept = line;
        archive.ReadString(line);
        EXPECT_EQ(kept, "first");
        EXPECT_EQ(line, "second");
    });
}

TEST(ArchiveLines, AreWrittenAsTheyStand)
{
    EXPECT_EQ(Stored([](CArchive & archive) {
                  archive.WriteString("  0\r\n");
                  archive.WriteString(nullptr);
                  archive.WriteString("LINE");
              }),
              "  0\r\nLINE");
}

TEST(ArchiveFailure, OfTheFileComesThrough)
{
    CFile closed;
    CArchive archive(&closed, CArchive::load);
    BYTE byte = 0;
    try {
        archive >> byte;
        FAIL() << "a closed file was read";
    } catch (CFileException * exception) {
        EXPECT_EQ(exception->m_cause, CFileException::invalidFile);
        exception->Delete();
    }
}
