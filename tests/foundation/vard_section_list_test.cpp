// CVARDSectionList: the division of a length into sections.
#include "foundation/vard_section_list.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <string>

#include "tests/foundation/object_fixture.h"
#include "tests/foundation/section_list_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Gives the tests a way to the checks.
class OpenSectionList : public CVARDSectionList
{
  public:
    using CVARDSectionList::CheckLength;
    using CVARDSectionList::CheckSections;
    using CVARDSectionList::operator=;
};

/// Adds a section; the test fails if it is refused.
POSITION Add(CVARDSectionList & list, double begin, double end)
{
    int cancelled = 7;
    std::unique_ptr<CVARDSectionObj> section(NewSection(begin, end));
    POSITION const position = list.AddSection(section.get(), cancelled);
    EXPECT_EQ(cancelled, 0);
    EXPECT_NE(position, nullptr);
    if (position)
        section.release();
    return position;
}

/// Adds a section that must be refused; what `cancelled` became.
int Refused(CVARDSectionList & list, double begin, double end)
{
    int cancelled = 7;
    std::unique_ptr<CVARDSectionObj> section(NewSection(begin, end));
    POSITION const position = list.AddSection(section.get(), cancelled);
    EXPECT_EQ(position, nullptr);
    if (position)
        section.release();
    return cancelled;
}

/// Makes the sections 0 to 4, 4 to 7 and 7 to 10.
void FillWithThree(CVARDSectionList & list)
{
    list.SetLengthAll(10);
    Add(list, 0, 10);
    Add(list, 4, 10);
    Add(list, 7, 10);
}

}  // namespace

TEST(SectionList, FirstSectionCoversTheWholeLength)
{
    CVARDSectionList list;
    list.SetLengthAll(10);
    POSITION const position = Add(list, 3, 5);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 10)));
    EXPECT_EQ(list.GetActPos(), position);
}

TEST(SectionList, LengthOfZeroOrLessIsIgnored)
{
    CVARDSectionList list;
    EXPECT_EQ(list.GetLengthAll(), 0.0);
    list.SetLengthAll(10);
    for (double length : {0.0, -1.0, kNaN, -kInfinity})
        list.SetLengthAll(length);
    EXPECT_EQ(list.GetLengthAll(), 10.0);
}

TEST(SectionListFromX, EndBelongsToTheNextSection)
{
    CVARDSectionList list;
    FillWithThree(list);
    EXPECT_EQ(list.GetSectionFromX(3.999)->GetBeginSection(), 0.0);
    EXPECT_EQ(list.GetSectionFromX(4)->GetBeginSection(), 4.0);
    EXPECT_EQ(list.GetSectionFromX(0)->GetBeginSection(), 0.0);
}

TEST(SectionListFromX, AnyOtherPlaceFindsTheLast)
{
    CVARDSectionList list;
    FillWithThree(list);
    for (double x : {10.0, 11.0, -1.0, kNaN, kInfinity, -kInfinity})
        EXPECT_EQ(list.GetPosSectionFromX(x), list.GetTailPosition()) << x;
}

TEST(SectionListFromX, EmptyListHasNone)
{
    CVARDSectionList const list;
    EXPECT_EQ(list.GetPosSectionFromX(1), nullptr);
    EXPECT_EQ(list.GetSectionFromX(1), nullptr);
    EXPECT_EQ(list.GetSection(nullptr), nullptr);
}

TEST(SectionListAdd, BadSectionsAreRefused)
{
    CVARDSectionList empty;
    CVARDSectionList list;
    FillWithThree(list);
    for (CVARDSectionList * const which : {&empty, &list}) {
        std::vector<Span> const before = SpansOf(*which);
        int cancelled = 7;
        EXPECT_EQ(which->AddSection(nullptr, cancelled), nullptr);
        EXPECT_EQ(cancelled, 0);
        EXPECT_EQ(Refused(*which, 5, 5), 0);
        EXPECT_EQ(Refused(*which, 5, 4), 0);
        EXPECT_EQ(Refused(*which, kNaN, 4), 0);
        EXPECT_EQ(Refused(*which, 2, kNaN), 0);
        EXPECT_EQ(SpansOf(*which), before);
    }
}

TEST(SectionListAdd, AtTheBeginOfASectionStandsInFrontOfItsRest)
{
    CVARDSectionList list;
    FillWithThree(list);
    POSITION const position = Add(list, 4, 5);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 5), Span(5, 7), Span(7, 10)));
    EXPECT_EQ(list.GetActPos(), position);
    EXPECT_EQ(list.GetSection(position)->GetBeginSection(), 4.0);
}

TEST(SectionListAdd, LastSectionIsReplacedWithoutAQuestion)
{
    Answering const answering(IDNO);
    CVARDSectionList list;
    FillWithThree(list);
    CVARDSectionObj const * const old = list.GetSection(list.GetTailPosition());
    POSITION const position = Add(list, 7, 10);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 10)));
    EXPECT_NE(list.GetSection(position), old);
    EXPECT_EQ(Answering::g_questions, 0);
}

TEST(SectionListAdd, OverTwoSectionsCutsBoth)
{
    Answering const answering(IDNO);
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 3, 5);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 3), Span(3, 5), Span(5, 7), Span(7, 10)));
    EXPECT_EQ(Answering::g_questions, 0);
}

TEST(SectionListAdd, UpToTheLengthsEndDeletesTheLast)
{
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 5, 10);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 5), Span(5, 10)));
}

TEST(SectionListAdd, InsideTheLastSectionReachesToTheEnd)
{
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 8, 9);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 8), Span(8, 10)));
}

// The one exception from the gapless division: what stands behind isn't touched.
TEST(SectionListAdd, InsideAnEarlierSectionReachesOverAllBehind)
{
    OpenSectionList list;
    FillWithThree(list);
    POSITION const position = Add(list, 1, 2);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 1), Span(1, 10), Span(4, 7), Span(7, 10)));
    EXPECT_EQ(list.GetActPos(), position);
    EXPECT_EQ(list.CheckSections(), 1);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 1), Span(1, 4), Span(4, 7), Span(7, 10)));
}

TEST(SectionListAdd, CoveredSectionsGoAfterYes)
{
    Answering const answering(IDYES);
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 2, 8);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 2), Span(2, 8), Span(8, 10)));
    EXPECT_EQ(Answering::g_questions, 1);
}

TEST(SectionListAdd, CoveredFirstSectionGoesAfterYes)
{
    Answering const answering(IDYES);
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 0, 4);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 10)));
    EXPECT_EQ(Answering::g_questions, 1);
}

TEST(SectionListAdd, WholeLengthReplacesAll)
{
    Answering const answering(IDYES);
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 0, 10);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 10)));
    EXPECT_EQ(Answering::g_questions, 1);
}

TEST(SectionListAdd, NoCancelsAndChangesNothing)
{
    Answering const answering(IDNO);
    CVARDSectionList list;
    FillWithThree(list);
    POSITION const active = list.GetActPos();
    EXPECT_EQ(Refused(list, 2, 8), 1);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 10)));
    EXPECT_EQ(list.GetActPos(), active);
}

TEST(SectionListAdd, AnyAnswerButYesCancels)
{
    for (int answer : {IDCANCEL, 0, -1}) {
        Answering const answering(answer);
        CVARDSectionList list;
        FillWithThree(list);
        EXPECT_EQ(Refused(list, 2, 8), 1);
    }
}

TEST(SectionListAdd, QuestionHasItsTextAndYesAndNo)
{
    static std::string text;
    static unsigned int type;
    MessageBoxHandler const before = SetMessageBoxHandler([](char const * shown, unsigned int buttons) {
        text = shown;
        type = buttons;
        return IDNO;
    });
    CVARDSectionList list;
    FillWithThree(list);
    Refused(list, 2, 8);
    SetMessageBoxHandler(before);
    // Code page 1250: 9A s caron, 9E z caron, E8 c caron, EC e caron, F8 r caron, F9 u ring, ED, FA, FD
    // acute.
    EXPECT_EQ(text,
              "Vlo\x9E"
              "en\xEDm \xFAseku se zru\x9A\xED n\xECkolik d\xF8\xEDve zadan\xFD"
              "ch \xFAsek\xF9.\n"
              "Chcete pokra\xE8ovat?");
    EXPECT_EQ(type, static_cast<unsigned int>(MB_YESNO));
}

#if !defined(_WIN32)
// The default button of a yes and no question is yes.
TEST(SectionListAdd, WithoutAHandlerTheAnswerIsYes)
{
    CVARDSectionList list;
    FillWithThree(list);
    testing::internal::CaptureStderr();
    Add(list, 2, 8);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 2), Span(2, 8), Span(8, 10)));
}
#endif

TEST(SectionListAdd, BeginWithinToleranceCountsAsTheOldBegin)
{
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 4.0005, 5);
    std::vector<Span> const spans = SpansOf(list);
    ASSERT_EQ(spans.size(), 4U);
    EXPECT_EQ(spans[0], Span(0, 4));
    EXPECT_EQ(spans[1].first, 4.0005);
    EXPECT_EQ(spans[2], Span(5, 7));
}

TEST(SectionListAdd, EndWithinToleranceDeletesTheRest)
{
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 5, 6.9995);
    // The section 4 to 7 ends in the same section as it begins: the new one reaches to the end.
    EXPECT_EQ(SpansOf(list)[2], Span(5, 10));
    CVARDSectionList other;
    FillWithThree(other);
    Add(other, 8, 10);
    Add(other, 7.5, 9.9995);
    EXPECT_EQ(other.GetCount(), 4);
    EXPECT_NEAR(SpansOf(other)[3].second, 9.9995, 1e-12);
}

TEST(SectionListAdd, SectionThatSticksOutByLessThanTheToleranceIsCovered)
{
    Answering const answering(IDYES);
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 4.0005, 8);
    EXPECT_EQ(Answering::g_questions, 1);
    EXPECT_EQ(list.GetCount(), 3);
}

TEST(SectionListAdd, BeginInFrontOfTheLengthAndEndInsideIsRefused)
{
    CVARDSectionList list;
    FillWithThree(list);
    EXPECT_EQ(Refused(list, -2, 3), 0);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 10)));
}

TEST(SectionListAdd, EndBehindTheLengthStaysThere)
{
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 5, 15);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 5), Span(5, 15)));
}

// The last section is ended at the new begin, and the new one at the total length.
TEST(SectionListAdd, BeginBehindTheLengthGivesANegativeLength)
{
    CVARDSectionList list;
    FillWithThree(list);
    Add(list, 12, 15);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 12), Span(12, 10)));
}

TEST(SectionListAdd, ItemsThatAreNoSectionsArePassedOver)
{
    CVARDSectionList list;
    list.SetLengthAll(10);
    list.AddTail(nullptr);
    EXPECT_EQ(Refused(list, 1, 2), 0);
    list.AddTail(new CVARDObject);
    EXPECT_EQ(Refused(list, 1, 2), 0);
    EXPECT_EQ(list.GetCount(), 2);
}

TEST(SectionListEdit, OldSectionGoesAndNewOneComes)
{
    CVARDSectionList list;
    FillWithThree(list);
    int cancelled = 7;
    POSITION const position = list.EditSection(list.GetPosSectionFromX(4), NewSection(4, 6), cancelled);
    // Without the middle section the first one reaches from 0 to 7; the new one inside it takes the rest.
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(list.GetActPos(), position);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 10), Span(7, 10)));
}

TEST(SectionListEdit, NullPositionCancels)
{
    CVARDSectionList list;
    FillWithThree(list);
    int cancelled = 0;
    std::unique_ptr<CVARDSectionObj> const section(NewSection(1, 2));
    EXPECT_EQ(list.EditSection(nullptr, section.get(), cancelled), nullptr);
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(list.GetCount(), 3);
}

TEST(SectionListEdit, SectionInTheListIsCopied)
{
    CVARDSectionList list;
    FillWithThree(list);
    POSITION const old = list.GetPosSectionFromX(7);
    CVARDSectionObj * const section = list.GetSection(old);
    section->SetBeginSection(8);
    section->SetEndSection(10);
    int cancelled = 7;
    POSITION const position = list.EditSection(old, section, cancelled);
    ASSERT_NE(position, nullptr);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 8), Span(8, 10)));
}

TEST(SectionListEdit, OnlySectionIsReplacedByTheWholeLength)
{
    CVARDSectionList list;
    list.SetLengthAll(10);
    POSITION const old = Add(list, 0, 10);
    int cancelled = 7;
    EXPECT_NE(list.EditSection(old, NewSection(2, 3), cancelled), nullptr);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 10)));
}

TEST(SectionListEdit, RefusedSectionLeavesTheOldOneDeleted)
{
    CVARDSectionList list;
    FillWithThree(list);
    int cancelled = 7;
    EXPECT_EQ(list.EditSection(list.GetPosSectionFromX(4), nullptr, cancelled), nullptr);
    EXPECT_EQ(cancelled, 0);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 7), Span(7, 10)));
}

TEST(SectionListEdit, RefusedCopyIsntLeaked)
{
    CVARDSectionList list;
    FillWithThree(list);
    POSITION const old = list.GetPosSectionFromX(4);
    CVARDSectionObj * const section = list.GetSection(old);
    section->SetLengthSection(0);
    int cancelled = 7;
    EXPECT_EQ(list.EditSection(old, section, cancelled), nullptr);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 7), Span(7, 10)));
}

TEST(SectionListDelete, FirstLetsTheNextBeginAtZero)
{
    CVARDSectionList list;
    FillWithThree(list);
    EXPECT_EQ(list.DeleteSection(list.GetHeadPosition()), 1);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 7), Span(7, 10)));
}

TEST(SectionListDelete, MiddleStretchesTheOneBefore)
{
    CVARDSectionList list;
    FillWithThree(list);
    EXPECT_EQ(list.DeleteSection(list.GetPosSectionFromX(4)), 1);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 7), Span(7, 10)));
}

TEST(SectionListDelete, LastStretchesTheOneBeforeToTheEnd)
{
    CVARDSectionList list;
    FillWithThree(list);
    EXPECT_EQ(list.DeleteSection(list.GetTailPosition()), 1);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 10)));
}

TEST(SectionListDelete, OnlySectionLeavesNothingToCheck)
{
    CVARDSectionList list;
    list.SetLengthAll(10);
    POSITION const position = Add(list, 0, 10);
    EXPECT_EQ(list.DeleteSection(position), 0);
    EXPECT_THAT(SpansOf(list), IsEmpty());
}

TEST(SectionListDelete, NullPositionIsRefused)
{
    CVARDSectionList list;
    FillWithThree(list);
    EXPECT_EQ(list.DeleteSection(nullptr), 0);
    EXPECT_EQ(list.GetCount(), 3);
}

TEST(SectionListLength, ShorterDeletesBehindAndCutsTheLast)
{
    CVARDSectionList list;
    FillWithThree(list);
    list.SetLengthAll(5);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 5)));
}

TEST(SectionListLength, AtABoundaryDeletesTheSectionThatBeginsThere)
{
    CVARDSectionList list;
    FillWithThree(list);
    list.SetLengthAll(7);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7)));
}

TEST(SectionListLength, LongerStretchesTheLast)
{
    CVARDSectionList list;
    FillWithThree(list);
    list.SetLengthAll(20);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 7), Span(7, 20)));
}

TEST(SectionListChecks, EmptyList)
{
    OpenSectionList list;
    EXPECT_EQ(list.CheckSections(), 0);
    EXPECT_EQ(list.CheckLength(), 1);
}

TEST(SectionListChecks, GapsAndOverlapsAreClosedByTheEarlierEnd)
{
    OpenSectionList list;
    list.SetLengthAll(10);
    list.AddObject(NewSection(1, 3));   // the begin moves to 0
    list.AddObject(NewSection(4, 6));   // gap in front
    list.AddObject(NewSection(5, 20));  // overlap; the end comes to 10
    EXPECT_EQ(list.CheckSections(), 1);
    EXPECT_THAT(SpansOf(list), ElementsAre(Span(0, 4), Span(4, 5), Span(5, 10)));
}

TEST(SectionListCopy, TakesSectionsAndLength)
{
    CVARDSectionList from;
    FillWithThree(from);
    CVARDSectionList to;
    EXPECT_EQ(to.CopyList(&from), 1);
    EXPECT_EQ(SpansOf(to), SpansOf(from));
    EXPECT_EQ(to.GetLengthAll(), 10.0);
    EXPECT_NE(to.GetHead(), from.GetHead());
    CVARDSectionList assigned;
    assigned = from;
    EXPECT_EQ(SpansOf(assigned), SpansOf(from));
    EXPECT_EQ(assigned.GetLengthAll(), 10.0);
}

TEST(SectionListCopy, OfAPlainListCopiesItsObjectsAndFails)
{
    CVARDObList from;
    from.AddObject(NewSection(1, 2));
    CVARDSectionList to;
    to.SetLengthAll(5);
    EXPECT_EQ(to.CopyList(&from), 0);
    EXPECT_THAT(SpansOf(to), ElementsAre(Span(1, 2)));
    EXPECT_EQ(to.GetLengthAll(), 5.0);
    EXPECT_EQ(to.CopyList(nullptr), 0);
    EXPECT_EQ(to.GetCount(), 1);
}

// Behind the objects and the active index: version 1 in 32 bits, total length 2.0 in 64 bits.
TEST(SectionListFile, StoredFormToTheByte)
{
    CVARDSectionList list;
    list.SetLengthAll(2);
    EXPECT_EQ(Stored(list), (Bytes{0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x40}));
}

TEST(SectionListFile, IsReadBack)
{
    CVARDSectionList from;
    FillWithThree(from);
    CVARDSectionList to;
    LoadFrom(to, Stored(from));
    EXPECT_EQ(SpansOf(to), SpansOf(from));
    EXPECT_EQ(to.GetLengthAll(), 10.0);
    EXPECT_EQ(to.GetActPos(), to.GetTailPosition());
}

TEST(SectionListFile, CutAtEveryByteThrows)
{
    CVARDSectionList from;
    FillWithThree(from);
    Bytes const whole = Stored(from);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        CVARDSectionList to;
        EXPECT_EQ(CauseOfLoading(to, Bytes(whole.begin(), whole.begin() + static_cast<long>(length))),
                  CArchiveException::endOfFile)
            << length;
    }
}

TEST(SectionList, ClassRecordsHaveSchemaOne)
{
    EXPECT_EQ(RUNTIME_CLASS(CVARDSectionObj)->m_wSchema, 1U);
    EXPECT_EQ(RUNTIME_CLASS(CVARDSectionList)->m_wSchema, 1U);
    EXPECT_EQ(RUNTIME_CLASS(CVARDSectionObj)->m_pBaseClass, RUNTIME_CLASS(CVARDObject));
    EXPECT_EQ(RUNTIME_CLASS(CVARDSectionList)->m_pBaseClass, RUNTIME_CLASS(CVARDObList));
}
