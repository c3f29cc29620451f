#ifndef KX7_FOUNDATION_VARD_SECTION_OBJECT_H
#define KX7_FOUNDATION_VARD_SECTION_OBJECT_H

#include <cstdint>

#include "foundation/vard_object.h"

class CStringArray;

/// A section of a length: where it begins and how long it is, in the host's model units. A host derives its
/// own class and adds its data. In archives: version (32 bits), begin and length.
class KX7_API CVARDSectionObj : public CVARDObject
{
    DECLARE_SERIAL(CVARDSectionObj)

  public:
    void Serialize(CArchive & archive) override;

    /// Copies version, begin and length of a section and returns 1; 0 for null and for other objects.
    int CopyObject(CVARDObject * from) override;

    double GetBeginSection() const { return m_begin; }
    double GetLengthSection() const { return m_length; }
    double GetEndSection() const { return m_begin + m_length; }

    /// Sets one field, with the other untouched: setting the begin moves the end.
    void SetBeginSection(double const & begin) { m_begin = begin; }
    void SetLengthSection(double const & length) { m_length = length; }

    /// Sets the length so that the section ends there.
    void SetEndSection(double const & end) { m_length = end - m_begin; }

    void SetSection(double const & begin, double const & length);

    /// Empties the list and puts in the columns of a list control: begin, end and length with three
    /// significant digits. Always 1; 0 for null.
    virtual int GetStrToCtrlList(CStringArray * list) const;

  private:
    std::int32_t m_version = 1;
    double m_begin = 0.0;
    double m_length = 0.0;
};

#endif
