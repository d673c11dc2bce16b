#pragma once

#include "base/CalendarTime.h"
#include "data/MeasureData.h"

#include <cstddef>
#include <string>

namespace skeldon {

/// Unit in which CSV files hold the axes and the resultant.
enum class CsvUnit
{
    G,
    MetresPerSecondSquared,
    Gal,
};

/// What a CSV file holds.
struct CsvOptions
{
    bool accel = true;       ///< column of the resultant
    bool temperature = true; ///< column of the temperature, whether the data has one or not
    bool humidity = true;    ///< column of the humidity, where the data has one
    bool dateTime = true;    ///< date and time in one field
    bool ravelin = false;    ///< the form of the older tools; all else is then ignored
    CsvUnit unit = CsvUnit::G;
};

/// The unit that the number of a settings store stands for; any but 1 and 2 is G.
[[nodiscard]] CsvUnit CsvUnitOf(int number);

/// Column names of the normal form, in the language of the user.
struct CsvNames
{
    std::string dateTime = "Date/Time";
    std::string date = "Date";
    std::string time = "Time";
    std::string x = "X axis";
    std::string y = "Y axis";
    std::string z = "Z axis";
    std::string resultant = "Rsltnt";
    std::string temperature = "Temperature";
    std::string humidity = "Humidity";
};

/// Makes the text of CSV files. There is no quoting, and every number of the normal form has a
/// blank behind it. Not for use by two threads at once.
class CCsvText
{
public:
    /// Room that one row may need, with the longest numbers in it.
    static constexpr std::size_t RowLimit = 3072;

    /// `hasHumidity`: whether the data set carries humidity.
    CCsvText(const CsvOptions& options, bool hasHumidity);

    /// The header line without a line end.
    [[nodiscard]] std::string Header(const CsvNames& names = {}) const;
    /// One row without a line end.
    [[nodiscard]] std::string Row(const CMeasureRecord& record);
    /// The same at `out`, with room for `RowLimit`; gives its end.
    char* WriteRow(char* out, const CMeasureRecord& record);

private:
    char* WriteTime(char* out, const CMeasureRecord& record, char behindDate);
    char* WriteNormal(char* out, const CMeasureRecord& record);
    char* WriteRavelin(char* out, const CMeasureRecord& record);
    template <int Decimals>
    char* WriteAxes(char* out, const CMeasureRecord& record, double factor, int width) const;

    CsvOptions m_options;
    bool m_withHumidity;
    CLocalCalendar m_calendar;
};

/// The row of the line at `index`; empty for an index outside the data set.
[[nodiscard]] std::string CsvRow(const CMeasureData& data, std::size_t index,
                                 const CsvOptions& options);

} // namespace skeldon
