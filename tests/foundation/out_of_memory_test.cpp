// What the owning lists do when no memory is left for a new node. The library allocates through this
// program's operator new on Linux only; a Windows library has its own.
#if !defined(_WIN32)

#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <string>

#include "foundation/vard_ob_list.h"
#include "platform/base/message_box.h"
#include "tests/foundation/object_fixture.h"

namespace {
constexpr std::size_t kBlockSize =
    200;  // bytes: more than an object of these tests has, less than a block of ten nodes

bool g_largeRequestsFail = false;
std::string g_shown;

int Remember(char const * text, unsigned int)
{
    g_largeRequestsFail = false;
    g_shown = text;
    return IDOK;
}

/// Lets the next block of nodes fail; the message that follows ends that.
class OutOfMemory
{
  public:
    OutOfMemory() : m_before(SetMessageBoxHandler(&Remember))
    {
        g_shown.clear();
        g_largeRequestsFail = true;
    }
    ~OutOfMemory()
    {
        g_largeRequestsFail = false;
        SetMessageBoxHandler(m_before);
    }
    OutOfMemory(OutOfMemory const &) = delete;
    OutOfMemory & operator=(OutOfMemory const &) = delete;

  private:
    MessageBoxHandler m_before;
};

void * Allocate(std::size_t size)
{
    void * const memory = g_largeRequestsFail && size >= kBlockSize ? nullptr : std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

// Code page 1250.
constexpr char const * kMessage =
    "Chyba p\xF8i prov\xE1"
    "d\xECn\xED p\xF8\xEDkazu\nObjekt se nepoda\xF8ilo vlo\x9Eit do seznamu.";
}  // namespace

void * operator new(std::size_t size)
{
    return Allocate(size);
}
void * operator new[](std::size_t size)
{
    return Allocate(size);
}
void operator delete(void * memory) noexcept
{
    std::free(memory);
}
void operator delete[](void * memory) noexcept
{
    std::free(memory);
}
void operator delete(void * memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void * memory, std::size_t) noexcept
{
    std::free(memory);
}

TEST(ObListOutOfMemory, AddingSaysSoAndLeavesTheObjectWithTheCaller)
{
    int const before = Load::g_alive;
    CVARDObList list;
    auto object = std::make_unique<Load>("a", 1);
    POSITION position = nullptr;
    {
        OutOfMemory const failing;
        position = list.AddObject(object.get());
    }
    EXPECT_EQ(position, nullptr);
    EXPECT_EQ(g_shown, kMessage);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetActPos(), nullptr);
    EXPECT_EQ(Load::g_alive, before + 1);
    EXPECT_NE(list.AddObject(object.release()), nullptr);
}

TEST(ObListOutOfMemory, CopyingLeavesTheObjectOut)
{
    int const before = Load::g_alive;
    {
        CVARDObList from;
        from.AddObject(new Load("a", 1));
        from.AddObject(new Load("b", 2));
        CVARDObList to;
        {
            OutOfMemory const failing;
            EXPECT_EQ(to.CopyList(&from), 1);
        }
        EXPECT_EQ(g_shown, kMessage);
        EXPECT_THAT(NamesOf(to), testing::ElementsAre("b"));
        EXPECT_EQ(Load::g_alive, before + 3);
    }
    EXPECT_EQ(Load::g_alive, before);
}

#endif
