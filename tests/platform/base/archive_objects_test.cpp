#include <gtest/gtest.h>

#include "archive_test_classes.h"

namespace {
std::string const kNewLeaf = Bytes("\xFF\xFF\x01\0\x04\0Leaf");
std::string const kNewBranch = Bytes("\xFF\xFF\x01\0\x06\0Branch");

int CauseOfReadingObject(std::string_view bytes, CRuntimeClass const * wanted = nullptr)
{
    return CauseOfLoading(bytes, [=](CArchive & archive) {
        std::unique_ptr<CObject> const object(archive.ReadObject(wanted));
    });
}

// Bytes of Branch objects inside each other, the innermost without items.
std::string NestedBranches(int depth)
{
    std::string bytes = kNewBranch;
    for (int i = 1; i < depth; ++i)
        bytes += Bytes("\x01\0\x01\x80");  // one item; it is of class 1
    return bytes + Bytes("\0\0");
}
}  // namespace

TEST(ArchiveObjects, NewClassAndKnownClassAndKnownObject)
{
    Leaf first(0x11);
    Leaf second(0x22);
    std::string const bytes =
        Stored([&](CArchive & archive) { archive << &first << &second << &first << nullptr; });
    EXPECT_EQ(bytes, kNewLeaf + Bytes("\x11\0\0\0"  // class 1, object 2
                                      "\x01\x80"    // class 1, object 3
                                      "\x22\0\0\0"
                                      "\x02\0"   // object 2
                                      "\0\0"));  // null
}

TEST(ArchiveObjects, ClassesAndObjectsShareOneNumbering)
{
    Leaf leaf(1);
    BigLeaf big;
    std::string const bytes = Stored([&](CArchive & archive) { archive << &leaf << &big << &big << &leaf; });
    EXPECT_EQ(bytes, kNewLeaf + Bytes("\x01\0\0\0"  // class 1, object 2
                                      "\xFF\xFF\x07\0\x07\0"
                                      "BigLeaf"  // class 3, object 4
                                      "\0\0\0\0"
                                      "\x04\0"
                                      "\x02\0"));
}

TEST(ArchiveObjects, ComeBackWithTheirClassAndIdentity)
{
    Leaf first(5);
    BigLeaf big;
    std::string const bytes = Stored(
        [&](CArchive & archive) { archive << &first << &big << &first << static_cast<CObject *>(nullptr); });
    CauseOfLoading(bytes, [&](CArchive & archive) {
        Leaf * leaf = nullptr;
        CObject * other = nullptr;
        CObject * again = nullptr;
        CObject * none = &first;
        archive >> leaf >> other >> again >> none;
        ASSERT_TRUE(leaf && other);
        EXPECT_EQ(leaf->m_value, 5);
        EXPECT_EQ(other->GetRuntimeClass(), RUNTIME_CLASS(BigLeaf));
        EXPECT_TRUE(other->IsKindOf(RUNTIME_CLASS(Leaf)));
        EXPECT_EQ(again, leaf);
        EXPECT_EQ(none, nullptr);
        delete leaf;
        delete other;
    });
}

TEST(ArchiveObjects, MayReferToTheOneThatIsBeingRead)
{
    Reference self;
    self.m_target = &self;
    std::string const bytes = Stored([&](CArchive & archive) { archive << &self; });
    EXPECT_EQ(bytes, Bytes("\xFF\xFF\x01\0\x09\0Reference\x02\0"));
    CauseOfLoading(bytes, [](CArchive & archive) {
        Reference * back = nullptr;
        archive >> back;
        ASSERT_NE(back, nullptr);
        EXPECT_EQ(back->m_target, back);
        delete back;
    });
}

TEST(ArchiveObjects, NumbersFrom0x7FFFOnAreWide)
{
    // Class 1, objects 2 to 0x7FFF, a new class 0x8000 with its object 0x8001, then both once more.
    std::vector<Leaf> leaves(0x7FFE);
    BigLeaf big;
    BigLeaf another;
    std::string const bytes = Stored([&](CArchive & archive) {
        for (Leaf const & leaf : leaves)
            archive << &leaf;
        archive << &big << &leaves[0x7FFC] << &leaves[0x7FFD] << &big << &another;
    });
    std::string const tail = Bytes(
        "\xFF\xFF\x07\0\x07\0"
        "BigLeaf"
        "\0\0\0\0"
        "\xFE\x7F"              // object 0x7FFE
        "\xFF\x7F\xFF\x7F\0\0"  // object 0x7FFF
        "\xFF\x7F\x01\x80\0\0"  // object 0x8001
        "\xFF\x7F\0\x80\0\x80"
        "\0\0\0\0");  // class 0x8000
    ASSERT_GT(bytes.size(), tail.size());
    EXPECT_EQ(bytes.substr(bytes.size() - tail.size()), tail);

    CauseOfLoading(bytes, [&](CArchive & archive) {
        std::vector<std::unique_ptr<CObject>> objects;
        for (int i = 0; i < 0x7FFE; ++i)
            objects.emplace_back(archive.ReadObject(RUNTIME_CLASS(Leaf)));
        objects.emplace_back(archive.ReadObject(RUNTIME_CLASS(BigLeaf)));
        EXPECT_EQ(archive.ReadObject(nullptr), objects[0x7FFC].get());
        EXPECT_EQ(archive.ReadObject(nullptr), objects[0x7FFD].get());
        EXPECT_EQ(archive.ReadObject(nullptr), objects[0x7FFE].get());
        objects.emplace_back(archive.ReadObject(RUNTIME_CLASS(BigLeaf)));
    });
    leaves.clear();
}

TEST(ArchiveObjects, WithoutArchiveFormAreRefused)
{
    CPtrList list;
    EXPECT_THROW(Stored([&](CArchive & archive) {
                     try {
                         archive << &list;
                     } catch (CArchiveException * exception) {
                         EXPECT_EQ(exception->m_cause, CArchiveException::badClass);
                         exception->Delete();
                         throw 0;
                     }
                 }),
                 int);
}

TEST(ArchiveForged, UnknownClassesAreRefused)
{
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\xFF\x01\0\x07\0NoClass\0\0\0\0")),
              CArchiveException::badClass);
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\xFF\x01\0\0\0\0\0\0\0")), CArchiveException::badClass);
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\xFF\x01\0\x40\0") + std::string(64, 'L')),
              CArchiveException::badClass);
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\xFF\x01\0\xFF\xFF")), CArchiveException::badClass);
    // Known to the process, but without archive form.
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\xFF\xFF\xFF\x08\0CPtrList")), CArchiveException::badClass);
}

TEST(ArchiveForged, OtherSchemaIsRefused)
{
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\xFF\x02\0\x04\0Leaf\0\0\0\0")), CArchiveException::badSchema);
}

TEST(ArchiveForged, ObjectOfAnotherClassIsRefused)
{
    std::string const leaf = kNewLeaf + Bytes("\0\0\0\0");
    EXPECT_EQ(CauseOfReadingObject(leaf, RUNTIME_CLASS(Leaf)), CArchiveException::none);
    EXPECT_EQ(CauseOfReadingObject(leaf, RUNTIME_CLASS(BigLeaf)), CArchiveException::badClass);
    CauseOfLoading(leaf + Bytes("\x02\0"), [](CArchive & archive) {
        std::unique_ptr<CObject> const first(archive.ReadObject(nullptr));
        BigLeaf * again = nullptr;
        try {
            archive >> again;
            ADD_FAILURE() << "a reference of another class was read";
        } catch (CArchiveException * exception) {
            EXPECT_EQ(exception->m_cause, CArchiveException::badClass);
            exception->Delete();
        }
    });
}

TEST(ArchiveForged, NumbersThatStandForNothingAreRefused)
{
    EXPECT_EQ(CauseOfReadingObject(Bytes("\x01\0")), CArchiveException::badIndex);    // object 1
    EXPECT_EQ(CauseOfReadingObject(Bytes("\x01\x80")), CArchiveException::badIndex);  // class 1
    EXPECT_EQ(CauseOfReadingObject(Bytes("\0\x80")), CArchiveException::badIndex);    // class 0
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\x7F\xFF\xFF\xFF\x7F")), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfReadingObject(Bytes("\xFF\x7F\xFF\xFF\xFF\xFF")), CArchiveException::badIndex);
    std::string const branch = kNewBranch + Bytes("\x01\0");
    EXPECT_EQ(CauseOfReadingObject(branch + Bytes("\x01\0")),
              CArchiveException::badIndex);  // a class as object
    EXPECT_EQ(CauseOfReadingObject(branch + Bytes("\x02\x80")),
              CArchiveException::badIndex);  // an object as class
}

TEST(ArchiveForged, ASecondOwnerOfAnObjectIsRefused)
{
    int const before = Leaf::g_living;
    std::string const branch = kNewBranch + Bytes("\x02\0") + kNewLeaf + Bytes("\x07\0\0\0");
    EXPECT_EQ(CauseOfReadingObject(branch + Bytes("\x04\0")), CArchiveException::badIndex);  // the leaf again
    EXPECT_EQ(CauseOfReadingObject(branch + Bytes("\x02\0")),
              CArchiveException::badIndex);                                            // the branch itself
    EXPECT_EQ(CauseOfReadingObject(branch + Bytes("\0\0")), CArchiveException::none);  // null is no object
    EXPECT_EQ(Leaf::g_living, before);
}

TEST(ArchiveForged, ItemsOfAnotherClassThanTheOwnersAreRefused)
{
    std::string const bytes = kNewBranch + Bytes("\0\0");
    auto const read = [](CArchive & archive) {
        CArchive::OwnedReading const owned(archive, RUNTIME_CLASS(Leaf));
        delete archive.ReadObject(nullptr);
    };
    EXPECT_EQ(CauseOfLoading(bytes, read), CArchiveException::badClass);
    EXPECT_EQ(CauseOfLoading(kNewLeaf + Bytes("\0\0\0\0"), read), CArchiveException::none);
}

TEST(ArchiveForged, OwnedItemsMayReferToOthersInside)
{
    // A branch owns a leaf (object 4) and a reference (class 5, object 6) to that leaf.
    std::string const bytes =
        kNewBranch + Bytes("\x02\0") + kNewLeaf + Bytes("\x07\0\0\0\xFF\xFF\x01\0\x09\0Reference\x04\0");
    CauseOfLoading(bytes, [](CArchive & archive) {
        std::unique_ptr<CObject> const object(archive.ReadObject(RUNTIME_CLASS(Branch)));
        auto const & branch = static_cast<Branch const &>(*object);
        EXPECT_EQ(static_cast<Reference const &>(*branch.m_items[1]).m_target, branch.m_items[0]);
    });
}

TEST(ArchiveForged, ForgottenObjectsCannotBeReferredTo)
{
    // The branch breaks off at an unknown class, and is deleted with its leaf; then the leaf is asked for.
    std::string const bytes =
        kNewBranch + Bytes("\x02\0") + kNewLeaf + Bytes("\x07\0\0\0\xFF\xFF\x01\0\x01\0X\x04\0");
    CauseOfLoading(bytes, [](CArchive & archive) {
        for (int const cause : {CArchiveException::badClass, CArchiveException::badIndex}) {
            try {
                delete archive.ReadObject(nullptr);
                ADD_FAILURE() << "an object was read";
            } catch (CArchiveException * exception) {
                EXPECT_EQ(exception->m_cause, cause);
                exception->Delete();
            }
        }
    });
}

TEST(ArchiveForged, CountsBeyondTheFileEndAtItsEnd)
{
    EXPECT_EQ(CauseOfReadingObject(kNewBranch + Bytes("\xFF\xFF\xFF\xFF\xFF\x7F")),
              CArchiveException::endOfFile);
    EXPECT_EQ(CauseOfReadingObject(kNewBranch + Bytes("\xFF\xFF\xFF\xFF\xFF\xFF")),
              CArchiveException::badIndex);
    for (char const * name : {"CByteArray", "CStringArray", "CObList"}) {
        std::string const head =
            Bytes("\xFF\xFF\0\0") + static_cast<char>(std::strlen(name)) + Bytes("\0") + name;
        EXPECT_EQ(CauseOfReadingObject(head + Bytes("\xFF\xFF\xFF\xFF\xFF\x7F\0")),
                  CArchiveException::endOfFile);
    }
}

TEST(ArchiveForged, NestingHasALimit)
{
    EXPECT_EQ(CauseOfReadingObject(NestedBranches(1000)), CArchiveException::none);
    EXPECT_EQ(CauseOfReadingObject(NestedBranches(1001)), CArchiveException::genericException);
    EXPECT_EQ(CauseOfReadingObject(NestedBranches(500000)), CArchiveException::genericException);
}

TEST(ArchiveForged, TruncatedAtEveryByteFailsWithoutALeak)
{
    int const before = Leaf::g_living;
    Branch root;
    for (int i = 0; i < 3; ++i)
        root.m_items.Add(new Leaf(i));
    auto * inner = new Branch;
    inner->m_items.Add(new BigLeaf);
    root.m_items.Add(inner);
    std::string const bytes = Stored([&](CArchive & archive) { archive << &root; });
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        int const living = Leaf::g_living;
        EXPECT_EQ(CauseOfReadingObject(bytes.substr(0, length)), CArchiveException::endOfFile) << length;
        EXPECT_EQ(Leaf::g_living, living);
    }
    EXPECT_EQ(CauseOfReadingObject(bytes), CArchiveException::none);
    EXPECT_EQ(Leaf::g_living, before + 4);
}
