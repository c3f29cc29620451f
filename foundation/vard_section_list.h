#ifndef KX7_FOUNDATION_VARD_SECTION_LIST_H
#define KX7_FOUNDATION_VARD_SECTION_LIST_H

#include "foundation/vard_ob_list.h"
#include "foundation/vard_section_object.h"

/// A length divided into consecutive sections, from 0 to the total length without gap or overlap. Inserting a
/// section cuts its neighbours and, after a question, removes those that it covers. Positions along the
/// length that differ by less than 0.001 count as one where sections are inserted. In archives, behind the
/// objects: version (32 bits) and total length.
///
/// The one exception: a section put into the middle of a single one reaches to the total length, whatever
/// stands behind; see AddSection.
class KX7_API CVARDSectionList : public CVARDObList
{
    DECLARE_SERIAL(CVARDSectionList)

  public:
    ~CVARDSectionList() override;

    /// CopyList.
    CVARDSectionList & operator=(CVARDSectionList const & from);

    void Serialize(CArchive & archive) override;

    double GetLengthAll() const { return m_lengthAll; }

    /// Sets the total length, deletes the sections behind it and fits the last one to it. A length that isn't
    /// above 0 is ignored.
    void SetLengthAll(double length);

    /// Inserts a section, which the list owns on success, makes it active and returns its position.
    /// - Into an empty list it comes as the whole length.
    /// - Sections that it covers are deleted, if the user agrees (message 55018). If not, `cancelled` becomes
    /// 1,
    ///   the result is null and nothing has changed.
    /// - If it begins with an old one it stands in front of what is left of that.
    /// - Otherwise the one in which it begins is cut there. If it ends in the same one, it reaches to the
    /// total
    ///   length: what was left of the old one isn't kept.
    /// Null with `cancelled` 0, and nothing changed, for a null section, for one whose begin isn't below its
    /// end, and for one whose end lies in front of the section in which it begins (a begin outside of the
    /// length counts as one in the last section).
    POSITION AddSection(CVARDSectionObj * section, int & cancelled);

    /// Deletes the section at a position and adds another one in its place as AddSection does; if that
    /// refuses, the old one is gone all the same. If `section` is the object at that position, a copy of it
    /// is added. A null position gives null with `cancelled` 1.
    POSITION EditSection(POSITION const position, CVARDSectionObj * section, int & cancelled);

    /// Deletes the section at a position and closes the gap. 0 if there is none, and if the list is empty
    /// then.
    int DeleteSection(POSITION position);

    /// The section at a position; null for null.
    CVARDSectionObj * GetSection(POSITION const position) const;

    /// The first section with begin <= x < end; the last one for any other x. Null for an empty list.
    POSITION GetPosSectionFromX(double x) const;
    CVARDSectionObj * GetSectionFromX(double x) const { return GetSection(GetPosSectionFromX(x)); }

    /// As CVARDObList, and the version and total length. 0 if `from` is no section list; then its objects
    /// have been copied all the same.
    int CopyList(CVARDObList * from) override;

  protected:
    /// Fits the sections to the total length; always 1.
    int CheckLength();

    /// Closes gaps and overlaps by moving the end of the section in front; the first begins at 0 and the last
    /// ends at the total length. 1; 0 for an empty list.
    int CheckSections();

  private:
    enum class Clearing
    {
        Done,
        Impossible,
        Refused
    };

    Clearing ClearCoveredSections(CVARDSectionObj const & section);
    POSITION AddAsWholeLength(CVARDSectionObj & section);
    POSITION InsertAndCut(CVARDSectionObj & section);
    void CutFront(POSITION position, double newBegin, double newLength);

    std::int32_t m_version = 1;
    double m_lengthAll = 0.0;
};

#endif
