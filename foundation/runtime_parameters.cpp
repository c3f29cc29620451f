#include "foundation/runtime_parameters.h"

IMPLEMENT_DYNAMIC(CRuntimeParameters, CObject)

void CRuntimeParameters::Load()
{
    // The size word isn't set here: whoever wants the version asks for it by setting that word.
    GetVersionExA(&m_data.osVersion);
    GetSystemInfo(&m_data.systemInfo);
    m_data.screenWidth = GetSystemMetrics(SM_CXSCREEN);
    m_data.screenHeight = GetSystemMetrics(SM_CYSCREEN);
}
