#include "foundation/vard_section_object.h"

#include <charconv>

#include "platform/base/collections.h"

IMPLEMENT_SERIAL(CVARDSectionObj, CVARDObject, 1)

namespace {
/// A number as printf's "%.3g" shows it with a decimal point.
CString ThreeDigits(double value)
{
    constexpr int kSignificantDigits = 3;
    char text[16];  // "-1.23e+308" is the longest
    auto const [end, error] = std::to_chars(std::begin(text), std::end(text), value,
                                            std::chars_format::general, kSignificantDigits);
    return CString(text, static_cast<int>(end - text));
}
}  // namespace

void CVARDSectionObj::Serialize(CArchive & archive)
{
    CVARDObject::Serialize(archive);
    if (archive.IsStoring())
        archive << m_version << m_begin << m_length;
    else
        archive >> m_version >> m_begin >> m_length;
}

int CVARDSectionObj::CopyObject(CVARDObject * from)
{
    auto const * const section = dynamic_cast<CVARDSectionObj *>(from);
    if (!section)
        return 0;
    *this = *section;
    return 1;
}

void CVARDSectionObj::SetSection(double const & begin, double const & length)
{
    m_begin = begin;
    m_length = length;
}

int CVARDSectionObj::GetStrToCtrlList(CStringArray * list) const
{
    if (!list)
        return 0;
    list->RemoveAll();
    for (double const value : {GetBeginSection(), GetEndSection(), GetLengthSection()})
        list->Add(ThreeDigits(value));
    return 1;
}
