#pragma once

#include <cstdlib>
#include <ctime>
#include <string>

namespace skeldon {

/// Sets the time zone of this process and puts the earlier one back at its end.
class CZoneScope
{
public:
    explicit CZoneScope(const char* zone)
    {
        if (const char* const before = std::getenv("TZ"))
            m_before = before;
        Set(zone);
    }
    ~CZoneScope() { Set(m_before.c_str()); }
    CZoneScope(const CZoneScope&) = delete;
    CZoneScope& operator=(const CZoneScope&) = delete;

private:
    static void Set(const char* zone)
    {
        ::setenv("TZ", zone, 1);
        ::tzset();
    }

    std::string m_before;
};

// Rules in the short form, so that no zone files are needed.
namespace Zone {
inline constexpr const char* Berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
/// The clock is changed at midnight: one day begins at 1:00, another has 23:00 to 24:00 twice.
inline constexpr const char* Brazil = "<-03>3<-02>,M10.3.0/0,M2.3.0/0";
/// The hour after midnight comes twice.
inline constexpr const char* Havana = "CST5CDT,M3.2.0/0,M11.1.0/1";
/// Half an hour of daylight saving.
inline constexpr const char* LordHowe = "LHST-10:30LHDT-11,M10.1.0,M4.1.0";
inline constexpr const char* Tokyo = "JST-9";
inline constexpr const char* Utc = "UTC0";
inline constexpr const char* All[] = {Berlin, Brazil, Havana, LordHowe, Tokyo, Utc};
} // namespace Zone

} // namespace skeldon
