#include "tests/foundation/object_fixture.h"

IMPLEMENT_SERIAL(Load, CVARDNamedObject, 1)
IMPLEMENT_DYNAMIC(Unmakeable, CVARDNamedObject)
IMPLEMENT_SERIAL(Foreign, CObject, 1)

int Load::g_alive = 0;

void Load::Serialize(CArchive & archive)
{
    CVARDNamedObject::Serialize(archive);
    if (archive.IsStoring())
        archive << m_value;
    else
        archive >> m_value;
}

int Load::CopyObject(CVARDObject * from)
{
    auto const * const load = dynamic_cast<Load *>(from);
    if (!load)
        return 0;
    *this = *load;
    return 1;
}

int Load::IsLess(CVARDSortObject * other)
{
    auto const * const load = dynamic_cast<Load *>(other);
    return load && m_value < load->m_value;
}

Bytes Stored(CObject & object)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        object.Serialize(archive);
    }
    Bytes bytes(static_cast<std::size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void LoadFrom(CObject & object, Bytes bytes)
{
    CMemFile file;
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    object.Serialize(archive);
}

int CauseOfLoading(CObject & object, Bytes bytes)
{
    try {
        LoadFrom(object, std::move(bytes));
    } catch (CArchiveException * exception) {
        int const cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CArchiveException::none;
}

std::vector<std::string> NamesOf(CObList const & list)
{
    std::vector<std::string> names;
    for (POSITION position = list.GetHeadPosition(); position;) {
        CObject * const item = list.GetNext(position);
        auto const * const named = dynamic_cast<CVARDNamedObject *>(item);
        names.push_back(!item ? "-" : named ? std::string(named->GetName()) : "?");
    }
    return names;
}
