#ifndef KX7_PLATFORM_BASE_TIME_H
#define KX7_PLATFORM_BASE_TIME_H

#include <compare>
#include <ctime>

#include "platform/base/export.h"

/// A moment, in whole seconds since 1 January 1970, 0:00 UTC.
class KX7_API CTime
{
  public:
    CTime() = default;
    CTime(std::time_t time) : m_time(time) {}

    std::time_t GetTime() const { return m_time; }

    /// Puts the local date and time into the record. The result is the record, null for a time that has no
    /// date (the record then stays).
    std::tm * GetLocalTm(std::tm * local) const;

    friend auto operator<=>(CTime, CTime) = default;

  private:
    std::time_t m_time = 0;
};

#endif
