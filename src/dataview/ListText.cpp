#include "dataview/ListText.h"

#include "base/AccelerationUnits.h"
#include "base/NumberFormat.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace skeldon {

namespace {

constexpr std::size_t CellRoom = FixedTextLimit + 8;
using CellBuffer = std::array<char, CellRoom>;

QString WithBlank(const CellBuffer& buffer, char* end)
{
    *end++ = ' ';
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}

/// A number filled up with blanks before it to `Width` places.
template <int Width, int Decimals>
QString Fixed(double value)
{
    CellBuffer buffer;
    char* const end = WriteFixed<Decimals>(buffer.data(), value);
    return QString::fromLatin1(buffer.data(), end - buffer.data()).rightJustified(Width) +
           QLatin1Char(' ');
}

/// A number of several digits with zeros before it; negative ones, which no date has, stand plain.
char* WritePadded(char* out, int value, int width)
{
    return value < 0 ? WriteInt(out, value)
                     : WriteZeroPadded(out, static_cast<std::uint64_t>(value), width);
}

QString Date(const CalendarFields& fields)
{
    CellBuffer buffer;
    char* out = WriteInt(buffer.data(), fields.year);
    *out++ = '/';
    out = WritePadded(out, fields.month, 2);
    *out++ = '/';
    return WithBlank(buffer, WritePadded(out, fields.day, 2));
}

QString Time(const CalendarFields& fields, std::uint32_t msec)
{
    CellBuffer buffer;
    char* out = WritePadded(buffer.data(), fields.hour, 2);
    *out++ = ':';
    out = WritePadded(out, fields.minute, 2);
    *out++ = ':';
    out = WritePadded(out, fields.second, 2);
    *out++ = '.';
    return WithBlank(buffer, WritePadded(out, static_cast<int>(msec), 3));
}

QString Number(std::size_t row)
{
    constexpr int Width = 5;
    return QString::number(row + 1).rightJustified(Width) + QLatin1Char(' ');
}

/// A double cut to a whole number, as far as an int holds it.
QString Whole(double value)
{
    constexpr double Largest = 2147483647.0;
    CellBuffer buffer;
    const double cut = std::isfinite(value) ? std::trunc(value) : 0.0;
    const double kept = std::fmin(std::fmax(cut, -Largest - 1.0), Largest);
    return WithBlank(buffer, WriteInt(buffer.data(), static_cast<std::int64_t>(kept)));
}

} // namespace

int DefaultColumnWidth(ListColumn column)
{
    switch (column) {
    case ListColumn::Number:
        return 55;
    case ListColumn::Date:
    case ListColumn::Time:
        return 85;
    default:
        return 65;
    }
}

int UsableColumnWidth(ListColumn column, int stored)
{
    constexpr int Narrowest = 8;
    constexpr int Widest = 2000;
    return stored >= Narrowest && stored <= Widest ? stored : DefaultColumnWidth(column);
}

CListText::CListText(DispUnit unit)
    : m_unit(unit)
{}

QString CListText::CellText(const CMeasureData& data, std::size_t row, ListColumn column)
{
    const CMeasureRecord& record = data.Records()[row];
    switch (column) {
    case ListColumn::Number:
        return Number(row);
    case ListColumn::Date:
        return Date(m_calendar.ToFields(record.m_time));
    case ListColumn::Time:
        return Time(m_calendar.ToFields(record.m_time), record.m_msec);
    case ListColumn::X:
        return Acceleration(record.m_x);
    case ListColumn::Y:
        return Acceleration(record.m_y);
    case ListColumn::Z:
        return Acceleration(record.m_z);
    case ListColumn::Resultant:
        return Acceleration(record.m_resultant);
    case ListColumn::Temperature:
        return data.m_hasTemperature ? Fixed<3, 1>(record.m_temperature) : QString();
    case ListColumn::Humidity:
        return data.m_hasHumidity ? Whole(record.m_humidity) : QString();
    case ListColumn::Count:
        break;
    }
    return {};
}

QString CListText::Acceleration(double value) const
{
    switch (m_unit) {
    case DispUnit::MetresPerSecondSquared:
        return Fixed<4, 4>(value * MetresPerSecond2PerG);
    case DispUnit::Gal:
        return Fixed<6, 2>(value * GalPerG);
    case DispUnit::G:
        break;
    }
    return Fixed<3, 3>(value);
}

} // namespace skeldon
