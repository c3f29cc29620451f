#include "platform/base/collections.h"

#include <algorithm>
#include <limits>

#include "platform/base/archive.h"

IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_DYNAMIC(CPtrList, CObject)

namespace {
// Bytes are read in pieces of this size, so that a forged count can't drive the allocation.
constexpr int kBytePiece = 65536;

// Count of a collection, which can't be above what its size type holds.
int ReadSize(CArchive & archive)
{
    DWORD const count = archive.ReadCount();
    if (count > static_cast<DWORD>(std::numeric_limits<int>::max()))
        AfxThrowArchiveException(CArchiveException::badIndex);
    return static_cast<int>(count);
}
}  // namespace

void CObArray::Serialize(CArchive & archive)
{
    CObject::Serialize(archive);
    if (archive.IsStoring()) {
        archive.WriteCount(static_cast<DWORD>(GetSize()));
        for (CObject const * object : *this)
            archive << object;
        return;
    }
    RemoveAll();
    for (int left = ReadSize(archive); left > 0; --left)
        Add(archive.ReadObject(nullptr));
}

void CStringArray::Serialize(CArchive & archive)
{
    CObject::Serialize(archive);
    if (archive.IsStoring()) {
        archive.WriteCount(static_cast<DWORD>(GetSize()));
        for (CString const & text : *this)
            archive << text;
        return;
    }
    RemoveAll();
    for (int left = ReadSize(archive); left > 0; --left) {
        CString text;
        archive >> text;
        Add(text);
    }
}

void CByteArray::Serialize(CArchive & archive)
{
    CObject::Serialize(archive);
    if (archive.IsStoring()) {
        archive.WriteCount(static_cast<DWORD>(GetSize()));
        archive.Write(GetData(), static_cast<UINT>(GetSize()));
        return;
    }
    RemoveAll();
    for (int left = ReadSize(archive); left > 0;) {
        int const have = GetSize();
        int const piece = std::min(left, kBytePiece);
        SetSize(have + piece);
        if (archive.Read(GetData() + have, static_cast<UINT>(piece)) < static_cast<UINT>(piece))
            AfxThrowArchiveException(CArchiveException::endOfFile);
        left -= piece;
    }
}

void CObList::Serialize(CArchive & archive)
{
    CObject::Serialize(archive);
    if (archive.IsStoring()) {
        archive.WriteCount(static_cast<DWORD>(GetCount()));
        for (POSITION position = GetHeadPosition(); position;)
            archive << GetNext(position);
        return;
    }
    for (int left = ReadSize(archive); left > 0; --left)
        AddTail(archive.ReadObject(nullptr));
}
