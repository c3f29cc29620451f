// CNameArr against a simple model: names in a vector, handles as pointers to their names.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <random>

#include "tests/foundation/name_array_fixture.h"

namespace {
struct ModelName
{
    std::string text;
    int number;

    bool operator==(ModelName const & other) const { return text == other.text && number == other.number; }
    bool operator<(ModelName const & other) const
    {
        return text != other.text ? text < other.text : number < other.number;
    }
    std::string Whole() const { return number < 0 ? text : text + std::to_string(number); }
};

/// Each handle points at its own name record, so that nothing has to be moved.
class Model
{
  public:
    struct Handle
    {
        std::shared_ptr<ModelName> name;  // null once it is dead
        bool isDeleted = false;
    };

    std::vector<std::shared_ptr<ModelName>> table;
    std::vector<Handle> handles;

    /// What AddName must enter; none if it must refuse.
    std::optional<ModelName> NameToEnter(ModelName wanted, int count) const
    {
        int last = -2;
        bool isTaken = false;
        bool isInTheWay = false;
        for (auto const & name : table) {
            if (name->text != wanted.text)
                continue;
            last = std::max(last, name->number);
            isTaken = isTaken || *name == wanted;
            isInTheWay =
                isInTheWay || (name->number > wanted.number && name->number <= wanted.number + count - 1);
        }
        if (isTaken)
            return ModelName{wanted.text, last == -1 ? 2 : last + 1};
        if (isInTheWay)
            return std::nullopt;
        return wanted;
    }

    void Enter(ModelName const & name)
    {
        auto const entry = std::make_shared<ModelName>(name);
        table.insert(std::upper_bound(table.begin(), table.end(), entry,
                                      [](auto const & a, auto const & b) { return *a < *b; }),
                     entry);
        handles.push_back({entry, false});
    }

    bool IsLive(std::size_t handle) const { return handles[handle].name && !handles[handle].isDeleted; }

    bool HasDeleted() const
    {
        return std::any_of(handles.begin(), handles.end(),
                           [](Handle const & h) { return h.name && h.isDeleted; });
    }

    void Compress()
    {
        for (Handle & handle : handles)
            if (handle.name && handle.isDeleted) {
                table.erase(std::find(table.begin(), table.end(), handle.name));
                handle.name.reset();
            }
    }
};

class RandomOperations
{
  public:
    explicit RandomOperations(unsigned seed) : m_random(seed) {}

    void Step()
    {
        switch (Draw(10)) {
            case 0:
            case 1:
            case 2:
                Add();
                break;
            case 3:
                AddRun();
                break;
            case 4:
            case 5:
                Delete();
                break;
            case 6:
                Undelete();
                break;
            case 7:
                SaveAndLoad();
                break;
            case 8:
                m_names->NameArrayCompress(), m_model.Compress();
                break;
            default:
                Find();
                break;
        }
        Compare();
    }

  private:
    int Draw(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    ModelName DrawName()
    {
        static char const * const kTexts[] = {"a", "b", "ab", "LC", "x y", "\xC8"};
        return {kTexts[Draw(6)], Draw(12) - 1};
    }

    // Marks don't move with additions, so a table with marks is compressed before it grows.
    void CompressBeforeGrowing()
    {
        if (!m_model.HasDeleted())
            return;
        m_names->NameArrayCompress();
        m_model.Compress();
    }

    void Add()
    {
        CompressBeforeGrowing();
        ModelName const wanted = DrawName();
        int const count = Draw(5);
        auto const entered = m_model.NameToEnter(wanted, count);
        CString text(wanted.Whole().c_str());
        int const handle = m_names->AddName(text, count);
        ASSERT_EQ(handle, entered ? static_cast<int>(m_model.handles.size()) : -1);
        if (!entered)
            return;
        ASSERT_EQ(std::string(text), entered->Whole());
        m_model.Enter(*entered);
    }

    void AddRun()
    {
        CompressBeforeGrowing();
        ModelName name = DrawName();
        int const count = 1 + Draw(4);
        auto const entered = m_model.NameToEnter(name, count + 3);
        bool const isFree = m_names->IsFeeName(NameRecord(name.text.c_str(), name.number), count + 3) >= 0;
        ASSERT_EQ(isFree, entered && *entered == name);
        for (int i = 0; isFree && i < count; ++i) {
            ASSERT_EQ(m_names->AddNameDirect(), static_cast<int>(m_model.handles.size()));
            m_model.Enter(name);
            name.number = name.number < 0 ? 2 : name.number + 1;
        }
    }

    int DrawHandle() { return m_model.handles.empty() ? 0 : Draw(static_cast<int>(m_model.handles.size())); }

    void Delete()
    {
        if (m_model.handles.empty())
            return;
        auto const handle = static_cast<std::size_t>(DrawHandle());
        bool const isLive = m_model.IsLive(handle);
        ASSERT_EQ(m_names->DeleteNameBySort(static_cast<int>(handle)), isLive);
        m_model.handles[handle].isDeleted |= isLive;
    }

    void Undelete()
    {
        if (m_model.handles.empty())
            return;
        auto const handle = static_cast<std::size_t>(DrawHandle());
        Model::Handle & entry = m_model.handles[handle];
        bool const canBe = entry.name && entry.isDeleted;
        ASSERT_EQ(m_names->UnDeleteNameBySort(static_cast<int>(handle)), canBe);
        entry.isDeleted &= !canBe;
    }

    void SaveAndLoad()
    {
        auto loaded = std::make_unique<CNameArr>();
        ASSERT_EQ(ReadInto(*loaded, Written(*m_names)), 1);
        ASSERT_EQ(Written(*loaded), Written(*m_names));
        // The block of an empty table doesn't hold the handles that were given out.
        if (!m_model.table.empty())
            m_names = std::move(loaded);
    }

    void Find()
    {
        ModelName const name = DrawName();
        auto const found = std::find_if(m_model.table.begin(), m_model.table.end(),
                                        [&](auto const & entry) { return *entry == name; });
        int const expected =
            found == m_model.table.end() ? -1 : static_cast<int>(found - m_model.table.begin());
        ASSERT_EQ(m_names->FindName(NameRecord(name.text.c_str(), name.number)), expected);
    }

    void Compare()
    {
        std::vector<std::string> expected;
        for (auto const & name : m_model.table)
            expected.push_back(name->Whole());
        ASSERT_EQ(Texts(*m_names), expected);
        for (std::size_t handle = 0; handle < m_model.handles.size(); ++handle) {
            std::string const text = m_model.IsLive(handle) ? m_model.handles[handle].name->Whole() : "";
            ASSERT_EQ(std::string(m_names->GetNameStrBySort(static_cast<int>(handle))), text) << handle;
        }
    }

    std::mt19937 m_random;
    Model m_model;
    std::unique_ptr<CNameArr> m_names = std::make_unique<CNameArr>();
};
}  // namespace

TEST(NameArrayProperty, ThousandsOfOperationsAsTheModel)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        RandomOperations run(seed);
        for (int step = 0; step < 150; ++step) {
            run.Step();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << " step " << step;
        }
    }
}
