#include "archive_test_classes.h"

IMPLEMENT_SERIAL(Leaf, CObject, 1)
IMPLEMENT_SERIAL(BigLeaf, Leaf, 7)
IMPLEMENT_SERIAL(Branch, CObject, 1)
IMPLEMENT_SERIAL(Reference, CObject, 1)

void Leaf::Serialize(CArchive & archive)
{
    if (archive.IsStoring())
        archive << m_value;
    else
        archive >> m_value;
}

Branch::~Branch()
{
    for (CObject const * item : m_items)
        delete item;
}

void Branch::Serialize(CArchive & archive)
{
    CArchive::OwnedReading const owned(archive, RUNTIME_CLASS(CObject));
    m_items.Serialize(archive);
}

void Reference::Serialize(CArchive & archive)
{
    if (archive.IsStoring())
        archive << m_target;
    else
        archive >> m_target;
}
