#include "platform/base/time.h"

std::tm * CTime::GetLocalTm(std::tm * local) const
{
    // The reentrant forms differ by system; the plain one shares one record for the process.
    std::tm const * shared = std::localtime(&m_time);
    if (!shared)
        return nullptr;
    *local = *shared;
    return local;
}
