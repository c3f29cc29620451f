#include "foundation/basic_dll_storage.h"

IMPLEMENT_DYNAMIC(CBasicDLLStorage, CObject)

CBasicDLLStorage::~CBasicDLLStorage()
{
    m_third = nullptr;
}

int CBasicDLLStorage::Create(CLALanguageConnects *)
{
    return -1;
}
