// CVARDSectionList against a simple model: a new section is painted over the old ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <random>

#include "foundation/vard_section_list.h"
#include "tests/foundation/section_list_fixture.h"

namespace {
class OpenSectionList : public CVARDSectionList
{
  public:
    using CVARDSectionList::CheckSections;
};

struct Piece
{
    CVARDSectionObj const * section;
    double begin;
    double end;

    bool operator==(Piece const &) const = default;
};

class Model
{
  public:
    std::vector<Piece> pieces;
    double total = 0;

    /// The piece in which a place lies; the last one for the end of the length.
    std::size_t PieceAt(double x) const
    {
        auto const found = std::find_if(pieces.begin(), pieces.end(), [x](Piece const & piece) {
            return piece.begin <= x && x < piece.end;
        });
        return std::min(static_cast<std::size_t>(found - pieces.begin()), pieces.size() - 1);
    }

    /// Whether a section is covered whole by one from `begin` to `end`, apart from the one in which that
    /// ends.
    bool Asks(double begin, double end) const
    {
        for (std::size_t i = 0; i < pieces.size(); ++i)
            if (i != PieceAt(end) && pieces[i].begin >= begin && pieces[i].end <= end)
                return true;
        return false;
    }

    /// Paints a section over the others. Inside a single one it takes all up to the next section's begin
    /// (which is where a check of the list cuts it off).
    void Paint(Piece piece)
    {
        if (pieces.empty())
            piece = {piece.section, 0, total};
        else if (std::size_t const at = PieceAt(piece.begin);
                 at == PieceAt(piece.end) && pieces[at].begin != piece.begin)
            piece.end = pieces[at].end;
        std::vector<Piece> painted;
        for (Piece const & old : pieces) {
            if (old.begin < piece.begin)
                painted.push_back({old.section, old.begin, std::min(old.end, piece.begin)});
            if (old.end > piece.end)
                painted.push_back({old.section, std::max(old.begin, piece.end), old.end});
        }
        painted.push_back(piece);
        std::sort(painted.begin(), painted.end(),
                  [](Piece const & a, Piece const & b) { return a.begin < b.begin; });
        pieces = painted;
    }

    void Delete(std::size_t index)
    {
        pieces.erase(pieces.begin() + static_cast<long>(index));
        CloseGaps();
    }

    void SetTotal(double length)
    {
        total = length;
        while (!pieces.empty() && pieces.back().begin >= total)
            pieces.pop_back();
        CloseGaps();
    }

  private:
    void CloseGaps()
    {
        for (std::size_t i = 0; i < pieces.size(); ++i)
            pieces[i].end = i + 1 < pieces.size() ? pieces[i + 1].begin : total;
        if (!pieces.empty())
            pieces.front().begin = 0;
    }
};

std::vector<Piece> PiecesOf(CVARDSectionList const & list)
{
    std::vector<Piece> pieces;
    for (POSITION position = list.GetHeadPosition(); position; list.GetNext(position)) {
        CVARDSectionObj const * const section = list.GetSection(position);
        pieces.push_back({section, section->GetBeginSection(), section->GetEndSection()});
    }
    return pieces;
}

class RandomOperations
{
  public:
    RandomOperations(unsigned seed, int answer) : m_random(seed), m_answer(answer)
    {
        m_list.SetLengthAll(10);
        m_model.SetTotal(10);
    }

    void Step()
    {
        switch (Draw(8)) {
            case 0:
                Delete();
                break;
            case 1:
                SetLength();
                break;
            case 2:
                Edit();
                break;
            default:
                Add();
                break;
        }
        ASSERT_EQ(PiecesOf(m_list), m_model.pieces);
        ExpectGapless();
    }

    int m_asked = 0;

  private:
    int Draw(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    /// Quarters, so that all sums are exact.
    CVARDSectionObj * DrawSection()
    {
        int const quarters = static_cast<int>(m_model.total * 4);
        int const begin = Draw(quarters);
        return NewSection(begin / 4.0, (begin + 1 + Draw(quarters - begin)) / 4.0);
    }

    void Insert(CVARDSectionObj * section, POSITION added, int cancelled, Piece const & wanted, bool asks)
    {
        m_asked += asks;
        bool const isRefused = asks && m_answer == IDNO;
        ASSERT_EQ(cancelled, isRefused);
        ASSERT_EQ(added == nullptr, isRefused);
        if (isRefused) {
            delete section;
            return;
        }
        ASSERT_EQ(m_list.GetSection(added), section);
        ASSERT_EQ(m_list.GetActPos(), added);
        m_model.Paint(wanted);
        m_list.CheckSections();  // cuts off what reaches over later sections
    }

    void Add()
    {
        CVARDSectionObj * const section = DrawSection();
        Piece const wanted{section, section->GetBeginSection(), section->GetEndSection()};
        bool const asks = m_model.Asks(wanted.begin, wanted.end);
        Answering const answering(m_answer);
        int cancelled = 7;
        POSITION const added = m_list.AddSection(section, cancelled);
        ASSERT_EQ(Answering::g_questions, asks ? 1 : 0);
        Insert(section, added, cancelled, wanted, asks);
    }

    void Edit()
    {
        if (m_model.pieces.empty())
            return;
        CVARDSectionObj * const section = DrawSection();
        Piece const wanted{section, section->GetBeginSection(), section->GetEndSection()};
        int const index = Draw(m_list.GetCount());
        m_model.Delete(static_cast<std::size_t>(index));
        bool const asks = m_model.Asks(wanted.begin, wanted.end);
        Answering const answering(m_answer);
        int cancelled = 7;
        POSITION const added = m_list.EditSection(m_list.FindIndex(index), section, cancelled);
        Insert(section, added, cancelled, wanted, asks);
    }

    void Delete()
    {
        if (m_model.pieces.empty())
            return;
        int const index = Draw(m_list.GetCount());
        m_model.Delete(static_cast<std::size_t>(index));
        ASSERT_EQ(m_list.DeleteSection(m_list.FindIndex(index)), m_model.pieces.empty() ? 0 : 1);
    }

    void SetLength()
    {
        double const length = (4 + Draw(60)) / 4.0;
        m_list.SetLengthAll(length);
        m_model.SetTotal(length);
    }

    void ExpectGapless()
    {
        double end = 0;
        for (Piece const & piece : PiecesOf(m_list)) {
            ASSERT_EQ(piece.begin, end);
            ASSERT_LT(piece.begin, piece.end);
            end = piece.end;
        }
        ASSERT_TRUE(m_list.IsEmpty() || end == m_list.GetLengthAll()) << end;
    }

    std::mt19937 m_random;
    int m_answer;
    OpenSectionList m_list;
    Model m_model;
};
}  // namespace

TEST(SectionListProperty, StaysGaplessAndAsPainted)
{
    for (int answer : {IDYES, IDNO})
        for (unsigned seed = 1; seed <= 100; ++seed) {
            RandomOperations run(seed, answer);
            for (int step = 0; step < 100; ++step) {
                run.Step();
                ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << " step " << step;
            }
            EXPECT_GT(run.m_asked, 0);
        }
}

// Whatever the numbers are, nothing is lost or deleted twice; the sanitizers watch over that.
TEST(SectionListProperty, AnyNumbersKeepTheListWhole)
{
    Answering const answering(IDYES);
    std::mt19937_64 random(9);
    for (int run = 0; run < 200; ++run) {
        CVARDSectionList list;
        for (int step = 0; step < 50; ++step) {
            double const begin =
                random() % 2 ? std::bit_cast<double>(random()) : static_cast<double>(random() % 20) - 5;
            double const length =
                random() % 2 ? std::bit_cast<double>(random()) : static_cast<double>(random() % 9) - 1;
            auto * const section = new CVARDSectionObj;
            section->SetSection(begin, length);
            int cancelled = 7;
            POSITION const position = list.AddSection(section, cancelled);
            ASSERT_EQ(cancelled, 0);
            ASSERT_EQ(list.GetSection(position), position ? section : nullptr);
            if (!position)
                delete section;
            if (random() % 4 == 0)
                list.SetLengthAll(begin);
        }
    }
}
