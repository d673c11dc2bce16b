#include "files/CsvText.h"

#include "base/AccelerationUnits.h"
#include "base/NumberFormat.h"
#include "files/TimeText.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace skeldon {

namespace {

constexpr double RavelinUnitsPerG = 10.0;

/// Moves the text from `begin` to `end` to the right until it is `width` characters long.
char* AlignRight(char* begin, char* end, int width)
{
    const auto length = static_cast<int>(end - begin);
    if (length >= width)
        return end;
    const auto missing = static_cast<std::size_t>(width - length);
    std::memmove(begin + missing, begin, static_cast<std::size_t>(length));
    std::memset(begin, ' ', missing);
    return end + missing;
}

/// A comma, "%<width>.<Decimals>f" and a blank.
template <int Decimals>
char* WriteCell(char* out, double value, int width)
{
    *out++ = ',';
    out = AlignRight(out, WriteFixed<Decimals>(out, value), width);
    *out++ = ' ';
    return out;
}

/// A comma and "%<width>d" of the value cut toward zero, within what an int holds.
char* WriteWhole(char* out, double value, int width)
{
    using Limits = std::numeric_limits<int>;
    *out++ = ',';
    int whole = 0;
    if (value >= static_cast<double>(Limits::max()))
        whole = Limits::max();
    else if (value <= static_cast<double>(Limits::min()))
        whole = Limits::min();
    else if (!std::isnan(value))
        whole = static_cast<int>(value);
    return AlignRight(out, WriteInt(out, whole), width);
}

std::string_view UnitText(CsvUnit unit)
{
    switch (unit) {
    case CsvUnit::MetresPerSecondSquared:
        return "(m/s^2)";
    case CsvUnit::Gal:
        return "(Gal)";
    case CsvUnit::G:
        break;
    }
    return "(G)";
}

} // namespace

CsvUnit CsvUnitOf(int number)
{
    if (number == 1)
        return CsvUnit::MetresPerSecondSquared;
    return number == 2 ? CsvUnit::Gal : CsvUnit::G;
}

CCsvText::CCsvText(const CsvOptions& options, bool hasHumidity)
    : m_options(options)
    , m_withHumidity(options.humidity && hasHumidity)
{}

std::string CCsvText::Header(const CsvNames& names) const
{
    if (m_options.ravelin)
        return "date time,x(G),y(G),z(G),temperature(C)";
    const std::string unit(UnitText(m_options.unit));
    std::string text = m_options.dateTime ? names.dateTime : names.date + ',' + names.time;
    for (const std::string& name : {names.x, names.y, names.z})
        text.append(",").append(name).append(unit);
    if (m_options.accel)
        text += ',' + names.resultant + unit;
    if (m_options.temperature)
        text += ',' + names.temperature + "(C)";
    if (m_withHumidity)
        text += ',' + names.humidity + "(%)";
    return text;
}

std::string CCsvText::Row(const CMeasureRecord& record)
{
    char buffer[RowLimit];
    return {buffer, WriteRow(buffer, record)};
}

char* CCsvText::WriteRow(char* out, const CMeasureRecord& record)
{
    return m_options.ravelin ? WriteRavelin(out, record) : WriteNormal(out, record);
}

/// Date, one character, and time with its milliseconds. The normal form parts hours, minutes and
/// seconds with points, the older form with colons.
char* CCsvText::WriteTime(char* out, const CMeasureRecord& record, char behindDate)
{
    const CalendarFields fields = m_calendar.ToFields(record.m_time);
    out = WriteDate(out, fields);
    *out++ = behindDate;
    out = WriteTimeOfDay(out, fields, m_options.ravelin ? ':' : '.');
    *out++ = '.';
    return WriteMsec(out, record.m_msec);
}

template <int Decimals>
char* CCsvText::WriteAxes(char* out, const CMeasureRecord& record, double factor, int width) const
{
    out = WriteCell<Decimals>(out, record.m_x * factor, width);
    out = WriteCell<Decimals>(out, record.m_y * factor, width);
    out = WriteCell<Decimals>(out, record.m_z * factor, width);
    return m_options.accel ? WriteCell<Decimals>(out, record.m_resultant * factor, width) : out;
}

char* CCsvText::WriteNormal(char* out, const CMeasureRecord& record)
{
    out = WriteTime(out, record, m_options.dateTime ? ' ' : ',');
    switch (m_options.unit) {
    case CsvUnit::G:
        out = WriteAxes<3>(out, record, 1.0, 3);
        break;
    case CsvUnit::MetresPerSecondSquared:
        out = WriteAxes<4>(out, record, MetresPerSecond2PerG, 4);
        break;
    case CsvUnit::Gal:
        out = WriteAxes<2>(out, record, GalPerG, 6);
        break;
    }
    if (m_options.temperature)
        out = WriteCell<1>(out, record.m_temperature, 3);
    if (m_withHumidity)
        out = WriteCell<1>(out, record.m_humidity, 3);
    return out;
}

char* CCsvText::WriteRavelin(char* out, const CMeasureRecord& record)
{
    out = WriteTime(out, record, ' ');
    for (const double axis : {record.m_x, record.m_y, record.m_z})
        out = WriteWhole(out, axis * RavelinUnitsPerG, 6);
    return WriteWhole(out, record.m_temperature, 4);
}

std::string CsvRow(const CMeasureData& data, std::size_t index, const CsvOptions& options)
{
    if (index >= data.GetSize())
        return {};
    return CCsvText(options, data.m_hasHumidity).Row(data.Records()[index]);
}

} // namespace skeldon
