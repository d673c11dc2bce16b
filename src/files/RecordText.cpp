#include "files/RecordText.h"

#include "base/DecimalScan.h"
#include "base/NumberFormat.h"
#include "files/AxisUnit.h"
#include "files/TimeText.h"

#include <cstring>

namespace skeldon {

namespace {

// The fixed text between the values of a group, in their order.
constexpr char BeforeDate[] = "\t\t<record>\r\n\t\t\t<date_time>";
constexpr char BeforeMsec[] = "</date_time>\r\n\t\t\t<msec>";
constexpr char BeforeX[] = "</msec>\r\n\t\t\t<x>";
constexpr char BeforeY[] = "</x>\r\n\t\t\t<y>";
constexpr char BeforeZ[] = "</y>\r\n\t\t\t<z>";
constexpr char BeforeTemperature[] = "</z>\r\n\t\t\t<t>";
constexpr char BehindTemperature[] = "</t>\r\n\t\t\t<";
constexpr char BeforeHumidity[] = "h>";
constexpr char BehindHumidity[] = "</h>\r\n\t\t\t<";
constexpr char BeforeFlag[] = "flag>";
constexpr char BehindGroup[] = "</flag>\r\n\t\t</record>\r\n";

/// A group without long numbers is shorter than this; a text that is not need not be tested for
/// its end at each step.
constexpr std::ptrdiff_t ShortGroup = 512;
constexpr std::ptrdiff_t LongestNumber = 18;

template <std::size_t Size>
char* Put(char* out, const char (&text)[Size])
{
    std::memcpy(out, text, Size - 1);
    return out + Size - 1;
}

/// Steps over a fixed text; false where something else stands.
template <std::size_t Size>
bool Take(const char*& text, const char (&expected)[Size])
{
    const bool same = std::memcmp(text, expected, Size - 1) == 0;
    text += Size - 1;
    return same;
}

bool TakeDecimal(const char*& text, double& value)
{
    text = ScanPlainDecimal(text, text + LongestNumber, value);
    return text != nullptr;
}

/// One to nine digits.
bool TakeNumber(const char*& text, std::uint32_t& value)
{
    const char* const begin = text;
    value = 0;
    while (*text >= '0' && *text <= '9' && text - begin < 10)
        value = value * 10 + static_cast<unsigned>(*text++ - '0');
    return text != begin && text - begin < 10;
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

int TwoDigits(const char* text)
{
    return (text[0] - '0') * 10 + (text[1] - '0');
}

/// Nineteen characters, all numbers plain digits; what stands between them does not count.
bool TakeDate(const char*& text, CalendarFields& fields)
{
    bool digits = true;
    for (const int at : {0, 1, 2, 3, 5, 6, 8, 9, 11, 12, 14, 15, 17, 18})
        digits &= IsDigit(text[at]);
    fields = {TwoDigits(text) * 100 + TwoDigits(text + 2),
              TwoDigits(text + 5),
              TwoDigits(text + 8),
              TwoDigits(text + 11),
              TwoDigits(text + 14),
              TwoDigits(text + 17)};
    // A line end between the numbers would end the line.
    for (const int at : {4, 7, 10, 13, 16})
        digits &= text[at] != '\n';
    text += 19;
    return digits;
}

} // namespace

char* CRecordWriter::Write(char* out, const CMeasureRecord& record)
{
    out = Put(out, BeforeDate);
    const CalendarFields fields = m_calendar.ToFields(record.m_time);
    out = WriteDate(out, fields);
    *out++ = ' ';
    out = WriteTimeOfDay(out, fields, ':');
    out = Put(out, BeforeMsec);
    out = WriteMsec(out, record.m_msec);
    out = Put(out, BeforeX);
    out = WriteFixed<3>(out, record.m_x * FileUnitsPerG);
    out = Put(out, BeforeY);
    out = WriteFixed<3>(out, record.m_y * FileUnitsPerG);
    out = Put(out, BeforeZ);
    out = WriteFixed<3>(out, record.m_z * FileUnitsPerG);
    out = Put(out, BeforeTemperature);
    out = WriteFixed<1>(out, record.m_temperature);
    out = Put(out, BehindTemperature);
    if (m_withHumidity) {
        out = Put(out, BeforeHumidity);
        out = WriteFixed<1>(out, record.m_humidity);
        out = Put(out, BehindHumidity);
    }
    out = Put(out, BeforeFlag);
    out = WriteUnsigned(out, record.m_flags);
    return Put(out, BehindGroup);
}

const char* CRecordReader::Read(const char* text, const char* end, CMeasureRecord& record,
                                bool& hasHumidity)
{
    if (end - text < ShortGroup)
        return nullptr;
    CalendarFields date;
    std::uint32_t msec = 0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double temperature = 0.0;
    double humidity = 0.0;
    std::uint32_t flags = 0;
    if (!Take(text, BeforeDate) || !TakeDate(text, date))
        return nullptr;
    if (!Take(text, BeforeMsec) || !TakeNumber(text, msec))
        return nullptr;
    if (!Take(text, BeforeX) || !TakeDecimal(text, x))
        return nullptr;
    if (!Take(text, BeforeY) || !TakeDecimal(text, y))
        return nullptr;
    if (!Take(text, BeforeZ) || !TakeDecimal(text, z))
        return nullptr;
    if (!Take(text, BeforeTemperature) || !TakeDecimal(text, temperature))
        return nullptr;
    if (!Take(text, BehindTemperature))
        return nullptr;
    const bool withHumidity = *text == 'h';
    if (withHumidity) {
        if (!Take(text, BeforeHumidity) || !TakeDecimal(text, humidity) ||
            !Take(text, BehindHumidity))
            return nullptr;
    }
    if (!Take(text, BeforeFlag) || !TakeNumber(text, flags) || !Take(text, BehindGroup))
        return nullptr;
    record.SetValues(m_calendar.ToSeconds(date), msec, x * GPerFileUnit, y * GPerFileUnit,
                     z * GPerFileUnit, temperature, humidity);
    record.SetFlags(m_withFlags ? static_cast<std::uint16_t>(flags) : std::uint16_t{0});
    hasHumidity = withHumidity;
    return text;
}

} // namespace skeldon
