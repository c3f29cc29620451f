#include "foundation/vard_list_with_named_object.h"

#include <cstdint>
#include <string>

#include "foundation/vard_string.h"
#include "platform/base/combo_box.h"

IMPLEMENT_DYNCREATE(CVARDListWithNamedObject, CVARDObList)

namespace {
CVARDNamedObject * AsNamed(CObject * object)
{
    return dynamic_cast<CVARDNamedObject *>(object);
}

/// Splits a name and puts it together again with its number raised.
CString WithRaisedNumber(CString const & name, int step)
{
    CString prefix;
    std::int64_t const number = CVARDString(name).GetNumInString(prefix);
    return prefix + std::to_string(number + step).c_str();
}

void SelectItemWithData(CItemBox & box, std::uintptr_t data)
{
    int const count = box.GetCount();
    int index = 0;
    while (index < count && box.GetItemData(index) != data)
        ++index;
    box.SetCurSel(index < count ? index : CItemBox::kError);
}
}  // namespace

CVARDListWithNamedObject::~CVARDListWithNamedObject() = default;

POSITION CVARDListWithNamedObject::FindName(CString const & name, POSITION skip) const
{
    for (POSITION position = GetHeadPosition(); position;) {
        POSITION const current = position;
        auto const * const object = AsNamed(GetNext(position));
        if (object && current != skip && object->GetName().CompareNoCase(name) == 0)
            return current;
    }
    return nullptr;
}

bool CVARDListWithNamedObject::HasName(CString const & name) const
{
    for (POSITION position = GetHeadPosition(); position;) {
        auto const * const object = AsNamed(GetNext(position));
        if (object && object->GetName() == name)
            return true;
    }
    return false;
}

CString CVARDListWithNamedObject::GetNewName(CString const & base, int step) const
{
    CString candidate = WithRaisedNumber(base, step);
    // Case counts here, unlike in FindName.
    while (HasName(candidate))
        candidate = WithRaisedNumber(candidate, 1);
    return candidate;
}

int CVARDListWithNamedObject::NameToComboBox(CComboBox & box, POSITION selected) const
{
    box.ResetContent();
    for (POSITION position = GetHeadPosition(); position;) {
        auto const data = reinterpret_cast<std::uintptr_t>(position);
        auto const * const object = AsNamed(GetNext(position));
        if (!object)
            continue;
        int const index = box.AddString(object->GetName());
        if (index < 0) {
            box.ResetContent();
            return 0;
        }
        box.SetItemData(index, data);
    }
    SelectItemWithData(box, reinterpret_cast<std::uintptr_t>(selected));
    return 1;
}

int CVARDListWithNamedObject::NameToComboBox(CComboBox & box, CString const & name) const
{
    return NameToComboBox(box, FindName(name, nullptr));
}

CVARDNamedObject * CVARDListWithNamedObject::GetObjectFromComboBox(CComboBox & box) const
{
    int const index = box.GetCurSel();
    if (index < 0)
        return nullptr;
    std::uintptr_t const data = box.GetItemData(index);
    for (POSITION position = GetHeadPosition(); position;) {
        bool const isWanted = reinterpret_cast<std::uintptr_t>(position) == data;
        CObject * const object = GetNext(position);
        if (isWanted)
            return AsNamed(object);
    }
    return nullptr;
}
