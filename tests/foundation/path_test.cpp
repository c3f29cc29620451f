#include "foundation/path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "foundation/vard_string.h"
#include "platform/base/exception.h"
#include "platform/base/file.h"
#include "test_paths.h"

namespace {
namespace fs = std::filesystem;

struct PartsRow
{
    char const * path;
    char const * drive;
    char const * directory;
    char const * name;
    char const * extension;
};

TEST(PathParts, AreSplitOffTheText)
{
    PartsRow const rows[] = {{"C:\\folder\\sub\\name.ext", "C", "\\folder\\sub", "name", "ext"},
                             {"C:\\name.tar.gz", "C", "\\", "name.tar", "gz"},
                             {"C:\\", "C", "\\", "", ""},
                             {"C:name", "C", "", "name", ""},
                             {"folder\\name", "", "folder", "name", ""},
                             {"folder\\", "", "folder", "", ""},
                             {"name", "", "", "name", ""},
                             {"name.", "", "", "name", ""},
                             {".ext", "", "", "", "ext"},
                             {"fol.der\\name", "", "fol.der", "name", ""},
                             {"\\\\server\\share\\name", "", "\\\\server\\share", "name", ""},
                             {"", "", "", "", ""}};
    for (PartsRow const & row : rows) {
        CString drive, directory, name, extension;
        CPath(row.path).GetComponents(&drive, &directory, &name, &extension);
        EXPECT_EQ(drive, row.drive) << row.path;
        EXPECT_EQ(directory, row.directory) << row.path;
        EXPECT_EQ(name, row.name) << row.path;
        EXPECT_EQ(extension, row.extension) << row.path;
    }
    CPath("C:\\a\\b.c").GetComponents(nullptr, nullptr, nullptr, nullptr);
}

TEST(PathParts, ComeSinglyAndInPairs)
{
    CPath const path("C:\\folder\\name.ext");
    CString part;
    path.GetDrive(part);
    EXPECT_EQ(part, "C");
    path.GetDriveDirectory(part);
    EXPECT_EQ(part, "C:\\folder");
    path.GetDirectory(part);
    EXPECT_EQ(part, "\\folder");
    path.GetName(part);
    EXPECT_EQ(part, "name");
    path.GetExtension(part);
    EXPECT_EQ(part, "ext");
    path.GetNameExtension(part);
    EXPECT_EQ(part, "name.ext");
    CPath("C:\\").GetDirectory(part);
    EXPECT_EQ(part, "\\");
}

TEST(PathParts, AreReplacedOneByOne)
{
    CPath path("C:\\folder\\name.ext");
    path.SetDrive('D');
    EXPECT_STREQ(path, "D:\\folder\\name.ext");
    path.SetDirectory("other\\deep", 1);
    EXPECT_STREQ(path, "D:\\other\\deep\\name.ext");
    path.SetDirectory("relative", 0);
    EXPECT_STREQ(path, "D:relative\\name.ext");
    path.SetDriveDirectory("E:\\new");
    EXPECT_STREQ(path, "E:\\new\\name.ext");
    path.SetName("file");
    EXPECT_STREQ(path, "E:\\new\\file.ext");
    path.SetExtension(".txt");
    EXPECT_STREQ(path, "E:\\new\\file.txt");
    path.SetExtension("");
    EXPECT_STREQ(path, "E:\\new\\file");
    path.SetNameExtension("a.b.c");
    EXPECT_STREQ(path, "E:\\new\\a.b.c");
    path.MakeRoot();
    EXPECT_STREQ(path, "E:\\");
    path.SetComponents("F:", "\\x", "y", "z");
    EXPECT_STREQ(path, "F:\\x\\y.z");
    path.SetComponents(nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(path.IsEmpty());
}

TEST(PathLevels, AreAddedAndRemoved)
{
    CPath path("C:\\a\\name.ext");
    path.AppendDirectory("b");
    EXPECT_STREQ(path, "C:\\a\\b\\name.ext");
    path.AppendDirectory("\\c\\d");
    EXPECT_STREQ(path, "C:\\a\\b\\c\\d\\name.ext");
    path.AppendDirectory("");
    EXPECT_STREQ(path, "C:\\a\\b\\c\\d\\name.ext");
    CString last;
    path.UpDirectory(&last);
    EXPECT_EQ(last, "d");
    EXPECT_STREQ(path, "C:\\a\\b\\c\\name.ext");
    path.UpDirectory(nullptr);
    path.UpDirectory(nullptr);
    path.UpDirectory(&last);
    EXPECT_EQ(last, "a");
    EXPECT_STREQ(path, "C:\\name.ext");
    path.UpDirectory(&last);
    EXPECT_STREQ(path, "C:\\name.ext");
}

TEST(PathText, IsComparedWithoutCase)
{
    EXPECT_TRUE(CPath("C:\\A") == CPath("c:\\a"));
    EXPECT_TRUE(CPath("C:\\A") != CPath("c:\\b"));
    CPath path("x");
    EXPECT_FALSE(path.IsEmpty());
    path.Empty();
    EXPECT_TRUE(path.IsEmpty());
    EXPECT_TRUE(CPath(static_cast<char const *>(nullptr)).IsEmpty());
    EXPECT_EQ(CPath("a*").IsWild(), 1);
    EXPECT_EQ(CPath("a?").IsWild(), 1);
    EXPECT_EQ(CPath("a").IsWild(), 0);
    static_cast<CString &>(path) = "y";
    EXPECT_STREQ(path, "y");
}

TEST(PathQualified, StartsAtTheCurrentDirectoryAndHasNoDots)
{
    CString full, current;
    CPath("C:\\a\\.\\b\\..\\c.txt").GetFullyQualified(full);
    EXPECT_EQ(full, "C:\\a\\c.txt");
    CPath("C:\\..\\..\\x").GetFullyQualified(full);
    EXPECT_EQ(full, "C:\\x");
    CPath("name.txt").GetFullyQualified(full);
    CPath(CPath::CURRENT_DIRECTORY).GetDriveDirectory(current);
    EXPECT_EQ(full, current + "\\name.txt");
}

TEST(PathPlaces, AreDirectories)
{
    for (auto place : {CPath::CURRENT_DIRECTORY, CPath::SYSTEM_DIRECTORY, CPath::MODULE_DIRECTORY,
                       CPath::TEMP_DIRECTORY}) {
        CPath const path(place);
        EXPECT_EQ(path.DirectoryExists(), 1) << path;
        CString name;
        path.GetNameExtension(name);
        EXPECT_EQ(name, "") << path;
    }
    EXPECT_FALSE(CPath(CPath::WINDOWS_DIRECTORY).IsEmpty());
    EXPECT_TRUE(CPath(static_cast<CPath::SpecialDirectoryEnum>(5)).IsEmpty());
}

TEST(PathPlaces, ProfilesLieBesideTheProgramOrInTheWindowsDirectory)
{
    CPath path, module;
    module.ModulePath();
    EXPECT_EQ(module.Exists(), 1);
    CString directory, profileDirectory, name, moduleName;
    module.GetDriveDirectory(directory);
    module.GetName(moduleName);
    path.LocalProfile("x", nullptr);
    EXPECT_STREQ(path, directory + "\\x.ini");
    path.LocalProfile("x", "cfg");
    EXPECT_STREQ(path, directory + "\\x.cfg");
    path.LocalProfile(55005, 0);  // the text of this id is "txt"
    EXPECT_STREQ(path, directory + "\\txt.ini");
    path.LocalProfile(55005, 55007);
    EXPECT_STREQ(path, directory + "\\txt.grf");
    path.LocalProfile(1, 0);
    EXPECT_STREQ(path, directory + "\\txt.grf");
    path.PrivateProfile();
    path.GetName(name);
    EXPECT_EQ(name, moduleName);
    path.GetExtension(name);
    EXPECT_EQ(name, "ini");
}

// A folder of its own, in the form with drive and backslashes.
class PathFiles : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_before = fs::current_path();
        m_folder =
            fs::path(kBuildDir) / "path_test" / testing::UnitTest::GetInstance()->current_test_info()->name();
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }

    void TearDown() override
    {
        fs::current_path(m_before);
        fs::remove_all(m_folder);
    }

    CString In(char const * name) const
    {
        return DriveForm(fs::path(m_folder).make_preferred()) + "\\" + name;
    }

    void Make(char const * name, std::string const & text = "x") const
    {
        std::ofstream(SystemPath(In(name)), std::ios::binary) << text;
    }

    fs::path m_before;
    fs::path m_folder;
};

TEST_F(PathFiles, AreFoundMeasuredRenamedAndDeleted)
{
    Make("a.txt", "12345");
    CPath const path(In("a.txt"));
    EXPECT_EQ(path.Exists(), 1);
    EXPECT_EQ(path.IsValid(), 1);
    EXPECT_EQ(path.GetSize(), 5);
    EXPECT_GT(path.GetTime().GetTime(), 1500000000);
    CPath first(path);
    EXPECT_EQ(first.Rename(In("b.txt")), 1);
    EXPECT_EQ(path.Exists(), 0);
    EXPECT_EQ(first.Rename(In("c.txt")), 0);
    EXPECT_EQ(CPath(In("b.txt")).Delete(0), 1);
    EXPECT_EQ(CPath(In("b.txt")).Delete(0), 0);
}

TEST_F(PathFiles, MissingOnesAnswerPlainly)
{
    CPath path(In("none.txt"));
    EXPECT_EQ(path.Exists(), 0);
    EXPECT_EQ(path.IsValid(), 0);
    EXPECT_EQ(path.GetSize(), -1);
    EXPECT_EQ(path.GetTime().GetTime(), 0);
    EXPECT_EQ(CPath().Exists(), 0);
    EXPECT_EQ(CPath(In("")).IsValid(), 0);
}

TEST_F(PathFiles, ProtectedOneIsDeletedByForce)
{
    Make("a.txt");
    fs::permissions(SystemPath(In("a.txt")), fs::perms::owner_write, fs::perm_options::remove);
    EXPECT_EQ(CPath(In("a.txt")).Delete(1), 1);
}

TEST_F(PathFiles, CzechNamesWork)
{
    CString const name(
        "\x9E"
        "lu\x9D"
        "ou\xE8k\xFD.txt");
    std::ofstream(SystemPath(In(name))) << "x";
    CPath path(In("*.txt"));
    ASSERT_EQ(path.FindFirst(0), 1);
    EXPECT_STREQ(path, In(name));
}

TEST_F(PathFiles, SearchWalksOverFilesAlone)
{
    Make("a.txt");
    Make("b.txt");
    Make("c.dat");
    fs::create_directory(SystemPath(In("d.txt")));
    CPath path(In("*.txt"));
    std::set<std::string> found;
    for (int more = path.FindFirst(0); more; more = path.FindNext())
        found.insert(static_cast<char const *>(path));
    EXPECT_EQ(found, (std::set<std::string>{static_cast<char const *>(In("a.txt")),
                                            static_cast<char const *>(In("b.txt"))}));
    EXPECT_EQ(path.FindNext(), 0);
    CPath one(In("?.dat"));
    EXPECT_EQ(one.FindFirst(0), 1);
    EXPECT_STREQ(one, In("c.dat"));
}

TEST_F(PathFiles, SearchForDirectoriesStaysInItsPlace)
{
    fs::create_directory(SystemPath(In("one")));
    fs::create_directory(SystemPath(In("two")));
    fs::create_directory(SystemPath(In(".hidden")));
    Make("file");
    CPath path(In("*.*"));
    std::set<std::string> found;
    for (int more = path.FindFirst(FILE_ATTRIBUTE_DIRECTORY); more; more = path.FindNext()) {
        CString directory;
        path.GetDriveDirectory(directory);
        found.insert(static_cast<char const *>(directory));
    }
    EXPECT_EQ(found, (std::set<std::string>{static_cast<char const *>(In("one")),
                                            static_cast<char const *>(In("two"))}));
}

TEST_F(PathFiles, SearchByAnAttributeThatNothingHasFindsNothing)
{
    Make("a.txt");
    CPath path(In("*.*"));
    EXPECT_EQ(path.FindFirst(4), 0);  // the system bit
    EXPECT_STREQ(path, In("*.*"));
}

TEST_F(PathFiles, DirectoryWithOnlySubdirectoriesCountsAsEmpty)
{
    EXPECT_EQ(CPath(In("")).IsDirectoryEmpty(), 1);
    fs::create_directory(SystemPath(In("sub")));
    EXPECT_EQ(CPath(In("")).IsDirectoryEmpty(), 1);
    Make("a.txt");
    EXPECT_EQ(CPath(In("")).IsDirectoryEmpty(), 0);
}

TEST_F(PathFiles, DirectoriesAreMadeWithTheirParents)
{
    CPath deep(In("a\\b\\c"));
    EXPECT_EQ(deep.CreateDirectoryA(0), 0);
    EXPECT_EQ(deep.CreateDirectoryA(1), 1);
    EXPECT_EQ(CPath(In("a\\b\\c\\")).DirectoryExists(), 1);
    EXPECT_EQ(CPath(In("a\\x\\")).CreateDirectoryA(0), 1);
    EXPECT_EQ(CPath(In("a\\b\\c")).RemoveDirectoryA(), 1);
    EXPECT_EQ(CPath(In("a\\b\\c")).RemoveDirectoryA(), 0);
    EXPECT_EQ(CPath(In("a")).RemoveDirectoryA(), 0);
}

TEST_F(PathFiles, MakingAnExistingDirectoryMakesItTheCurrentOne)
{
    CPath existing(In("here"));
    ASSERT_EQ(existing.CreateDirectoryA(0), 1);
    EXPECT_EQ(existing.CreateDirectoryA(1), 1);
    EXPECT_EQ(fs::weakly_canonical(fs::current_path()), fs::weakly_canonical(SystemPath(In("here"))));
    fs::current_path(m_before);
    EXPECT_EQ(CPath(In("none")).ChangeDirectory(), 0);
}

TEST_F(PathFiles, ImpossibleDirectoryThrowsWhereAsked)
{
    Make("file");
    CPath path(In("file\\sub"));
    EXPECT_EQ(path.CreateDirectoryA(0), 0);
    bool isThrown = false;
    try {
        path.CreateDirectoryExcept(0);
    } catch (CFileException * exception) {
        isThrown = true;
        exception->Delete();
    }
    EXPECT_TRUE(isThrown);
    EXPECT_NO_THROW(CPath(In("fine")).CreateDirectoryExcept(0));
}

TEST_F(PathFiles, RandomNameIsFree)
{
    CPath path(In("x.tmp"));
    ASSERT_EQ(path.CreateRandomName(1, 10), 1);
    CString name, extension;
    path.GetName(name);
    path.GetExtension(extension);
    EXPECT_EQ(name.GetLength(), 8);
    EXPECT_EQ(extension, "tmp");
    EXPECT_EQ(path.Exists(), 0);
    EXPECT_EQ(path.CreateRandomName(1, 0), 0);
}

TEST_F(PathFiles, SimilarNameIsFilledUpToEightBytes)
{
    CPath path(In("abc.tmp"));
    ASSERT_EQ(path.CreateSimilarName(1, 10), 1);
    CString name;
    path.GetName(name);
    EXPECT_EQ(name.GetLength(), 8);
    EXPECT_EQ(name.Left(3), "abc");
    // A full name has no room for change: free or not is all that counts.
    Make("12345678.tmp");
    CPath full(In("12345678.tmp"));
    EXPECT_EQ(full.CreateSimilarName(1, 5), 0);
    EXPECT_EQ(full.CreateSimilarName(0, 5), 1);
}

TEST_F(PathFiles, DriveHasSpace)
{
    CPath const path(In("a"));
    EXPECT_GT(path.DriveTotalSpaceBytes(), 0);
    EXPECT_GE(path.DriveFreeSpaceBytes(), 0);
    EXPECT_GT(path.GetDriveClusterSize(), 0);
    unsigned long sectors = 0, bytes = 0, freeClusters = 0, clusters = 0;
    EXPECT_EQ(path.GetDiskFreeSpaceA(&sectors, &bytes, &freeClusters, &clusters), 1);
    EXPECT_EQ(static_cast<long>(sectors * bytes), path.GetDriveClusterSize());
    unsigned int const type = path.GetDriveTypeA();
    EXPECT_NE(type, 1U);
    EXPECT_EQ(path.IsRemovableDrive(), type == 2);
    EXPECT_EQ(path.IsNetworkDrive(), type == 4);
    EXPECT_EQ(path.IsCDRomDrive(), type == 5);
    EXPECT_EQ(path.IsRAMDrive(), type == 6);
}

TEST_F(PathFiles, CopyOfASearchingPathIsAPathAlone)
{
    Make("a.txt");
    Make("b.txt");
    CPath path(In("*.txt"));
    ASSERT_EQ(path.FindFirst(0), 1);
    CPath copy(path);
    EXPECT_EQ(copy.FindNext(), 0);
    EXPECT_STREQ(copy, In("a.txt"));
    EXPECT_EQ(path.FindNext(), 1);
}

TEST_F(PathFiles, CloneNameIsTheFirstFreeOne)
{
    CVARDString text;
    CString const folder = In("");
    EXPECT_EQ(text.GetCloneFileName(folder, "copy12.txt"), "copy.txt");
    Make("copy.txt");
    EXPECT_EQ(text.GetCloneFileName(folder, "copy12.txt"), "copy001.txt");
    EXPECT_EQ(text.GetCloneFileName(folder.Left(folder.GetLength() - 1), "copy.txt"), "copy001.txt");
    Make("copy001.txt");
    EXPECT_EQ(text.GetCloneFileName(folder, "copy001.txt"), "copy002.txt");
    EXPECT_EQ(text.GetCloneFileName(folder, "new"), "new");
    EXPECT_EQ(text.GetCloneFileName(folder, "1.txt"), ".txt");
}

#if !defined(_WIN32)
TEST_F(PathFiles, DriveLetterStandsForItsFolder)
{
    Make("a.txt");
    SetDriveFolder('q', m_folder.string());
    EXPECT_EQ(CPath("Q:\\a.txt").Exists(), 1);
    EXPECT_EQ(DriveForm(m_folder / "a.txt"), "Q:\\a.txt");
    SetDriveFolder('Q', "");
    EXPECT_EQ(CPath("Q:\\a.txt").Exists(), 0);
}
#endif

struct CutRow
{
    char const * text;
    int length;
    char const * expected;
};

TEST(VardStringCutDirectory, KeepsTheDriveAndTheLastLevels)
{
    CutRow const rows[] = {
        {"C:\\short.txt", 40, "C:\\short.txt"},
        {"C:\\one\\two\\three.txt", 15, "C:\\... \\three.txt"},
        {"C:\\one\\two\\three.txt", 18, "C:\\... \\two\\three.txt"},
        {"C:\\averylongfilename.txt", 10, "C:\\...ame.txt"},
        // A text of exactly the length isn't shorter: it gets its dots without losing anything.
        {"C:\\a.txt", 8, "C:\\... \\a.txt"},
        {"C:\\abc", 2, "C:\\..."},
        {"", 0, "..."}};
    for (CutRow const & row : rows)
        EXPECT_EQ(CVARDString(row.text).CutDirectory(row.length, 0), row.expected)
            << row.text << " " << row.length;
}

TEST(VardStringCutDirectory, AnyFlagButZeroChangesTheObject)
{
    CVARDString text("C:\\one\\two.txt");
    text.CutDirectory(10, 0);
    EXPECT_EQ(text.GetCS(), "C:\\one\\two.txt");
    text.CutDirectory(10, 5);
    EXPECT_EQ(text.GetCS(), "C:\\... \\two.txt");
    EXPECT_EQ(CVARDString("C:\\abcdef").CutDirectory(-2147483647 - 1, 0), "C:\\...");
}
}  // namespace
