#include "foundation/vard_section_list.h"

#include <cmath>
#include <memory>
#include <vector>

#include "foundation/detail_copy_of_item.h"
#include "platform/base/message_box.h"

IMPLEMENT_SERIAL(CVARDSectionList, CVARDObList, 1)

namespace {
constexpr double kTolerance = 0.001;            // positions closer than this are one, in model units
constexpr UINT kDeleteCoveredQuestion = 55018;  // question: sections will be deleted, go on?

bool IsCovered(CVARDSectionObj const & old, CVARDSectionObj const & section)
{
    return old.GetBeginSection() + kTolerance > section.GetBeginSection() &&
           old.GetEndSection() - kTolerance < section.GetEndSection();
}
}  // namespace

CVARDSectionList::~CVARDSectionList() = default;

CVARDSectionList & CVARDSectionList::operator=(CVARDSectionList const & from)
{
    CopyList(const_cast<CVARDSectionList *>(&from));  // only reads it
    return *this;
}

void CVARDSectionList::Serialize(CArchive & archive)
{
    CVARDObList::Serialize(archive);
    if (archive.IsStoring())
        archive << m_version << m_lengthAll;
    else
        archive >> m_version >> m_lengthAll;
}

int CVARDSectionList::CopyList(CVARDObList * from)
{
    if (!CVARDObList::CopyList(from))
        return 0;
    auto const * const sections = dynamic_cast<CVARDSectionList *>(from);
    if (!sections)
        return 0;
    m_version = sections->m_version;
    m_lengthAll = sections->m_lengthAll;
    return 1;
}

void CVARDSectionList::SetLengthAll(double length)
{
    if (!(length > 0.0))
        return;
    m_lengthAll = length;
    CheckLength();
}

CVARDSectionObj * CVARDSectionList::GetSection(POSITION const position) const
{
    return position ? dynamic_cast<CVARDSectionObj *>(GetAt(position)) : nullptr;
}

POSITION CVARDSectionList::GetPosSectionFromX(double x) const
{
    for (POSITION position = GetHeadPosition(); position;) {
        POSITION const current = position;
        auto const * const section = dynamic_cast<CVARDSectionObj *>(GetNext(position));
        if (section && section->GetBeginSection() <= x && x < section->GetEndSection())
            return current;
    }
    return GetTailPosition();
}

POSITION CVARDSectionList::AddSection(CVARDSectionObj * section, int & cancelled)
{
    cancelled = 0;
    if (!section || !(section->GetBeginSection() < section->GetEndSection()))
        return nullptr;
    if (IsEmpty())
        return AddAsWholeLength(*section);
    Clearing const clearing = ClearCoveredSections(*section);
    if (clearing == Clearing::Refused)
        cancelled = 1;
    if (clearing != Clearing::Done)
        return nullptr;
    POSITION const position = InsertAndCut(*section);
    if (position)
        SetActPos(position);
    return position;
}

POSITION CVARDSectionList::AddAsWholeLength(CVARDSectionObj & section)
{
    section.SetSection(0.0, m_lengthAll);
    return AddObject(&section);
}

/// Deletes what the new section covers, if the user agrees. The section in which the new one ends isn't
/// looked at: it is cut later.
CVARDSectionList::Clearing CVARDSectionList::ClearCoveredSections(CVARDSectionObj const & section)
{
    POSITION const last = GetPosSectionFromX(section.GetEndSection());
    std::vector<POSITION> covered;
    POSITION position = GetPosSectionFromX(section.GetBeginSection());
    while (position && position != last) {
        POSITION const current = position;
        auto const * const old = dynamic_cast<CVARDSectionObj *>(GetNext(position));
        if (old && IsCovered(*old, section))
            covered.push_back(current);
    }
    if (!position)
        return Clearing::Impossible;
    if (covered.empty())
        return Clearing::Done;
    if (AfxMessageBox(kDeleteCoveredQuestion, MB_YESNO) != IDYES)
        return Clearing::Refused;
    for (POSITION const old : covered)
        DeleteObject(old);
    CheckSections();
    return Clearing::Done;
}

/// Takes the front off a section, or the whole section if nothing of it is left.
void CVARDSectionList::CutFront(POSITION position, double newBegin, double newLength)
{
    if (newLength < kTolerance)
        DeleteObject(position);
    else
        GetSection(position)->SetSection(newBegin, newLength);
}

POSITION CVARDSectionList::InsertAndCut(CVARDSectionObj & section)
{
    double const newBegin = section.GetBeginSection();
    double const newEnd = section.GetEndSection();
    POSITION const first = GetPosSectionFromX(newBegin);
    POSITION const last = GetPosSectionFromX(newEnd);
    CVARDSectionObj * const firstSection = GetSection(first);
    CVARDSectionObj const * const lastSection = GetSection(last);
    if (!firstSection || !lastSection)
        return nullptr;
    double const tail = lastSection->GetEndSection() - newEnd;
    if (std::fabs(newBegin - firstSection->GetBeginSection()) < kTolerance) {
        POSITION const position = InsertBefore(first, &section);
        CutFront(first, newEnd, tail);
        return position;
    }
    firstSection->SetEndSection(newBegin);
    POSITION const position = InsertAfter(first, &section);
    // Deliberate: inside a single old section the new one takes everything up to the end of the length.
    if (first == last)
        section.SetEndSection(m_lengthAll);
    else
        CutFront(last, newEnd, tail);
    return position;
}

POSITION CVARDSectionList::EditSection(POSITION const position, CVARDSectionObj * section, int & cancelled)
{
    if (!position) {
        cancelled = 1;
        return nullptr;
    }
    std::unique_ptr<CVARDObject> copy;
    if (section && section == GetAt(position)) {
        copy = detail::CopyOfItem(section);
        section = dynamic_cast<CVARDSectionObj *>(copy.get());
        if (!section) {
            cancelled = 0;
            return nullptr;
        }
    }
    DeleteSection(position);
    POSITION const added = AddSection(section, cancelled);
    if (added)
        static_cast<void>(copy.release());
    return added;
}

int CVARDSectionList::DeleteSection(POSITION position)
{
    return DeleteObject(position) ? CheckSections() : 0;
}

int CVARDSectionList::CheckLength()
{
    for (POSITION position = GetHeadPosition(); position;) {
        POSITION const current = position;
        auto * const section = dynamic_cast<CVARDSectionObj *>(GetNext(position));
        if (!section)
            continue;
        if (section->GetBeginSection() >= m_lengthAll)
            DeleteObject(current);
        else if (section->GetEndSection() > m_lengthAll || !position)
            section->SetEndSection(m_lengthAll);
    }
    return 1;
}

int CVARDSectionList::CheckSections()
{
    CVARDSectionObj * previous = nullptr;
    for (POSITION position = GetHeadPosition(); position;) {
        auto * const section = dynamic_cast<CVARDSectionObj *>(GetNext(position));
        if (!section)
            continue;
        if (!previous) {
            double const end = section->GetEndSection();
            section->SetSection(0.0, end);
        } else if (previous->GetEndSection() != section->GetBeginSection())
            previous->SetEndSection(section->GetBeginSection());
        previous = section;
    }
    if (!previous)
        return 0;
    previous->SetEndSection(m_lengthAll);
    return 1;
}
