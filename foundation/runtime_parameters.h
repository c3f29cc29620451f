#ifndef KX7_FOUNDATION_RUNTIME_PARAMETERS_H
#define KX7_FOUNDATION_RUNTIME_PARAMETERS_H

#include "platform/base/object.h"
#include "platform/base/system_information.h"

/// What the program runs on.
struct tagRUNTIMEPARAMETERS
{
    OSVERSIONINFOA osVersion;  ///< From GetVersionExA.
    SYSTEM_INFO systemInfo;    ///< From GetSystemInfo.
    int screenWidth;           ///< In pixels.
    int screenHeight;          ///< In pixels.
};

/// Reads the system's version, its processors and the size of the screen.
class KX7_API CRuntimeParameters : public CObject
{
    DECLARE_DYNAMIC(CRuntimeParameters)

  public:
    CRuntimeParameters() = default;

    /// The record inside this object, all zeroes until Load.
    tagRUNTIMEPARAMETERS * GetData() { return &m_data; }

    /// Fills the record. The version needs its size word (`osVersion.dwOSVersionInfoSize`) set through
    /// GetData before; without it the version stays empty.
    void Load();

  private:
    tagRUNTIMEPARAMETERS m_data{};
};

#endif
