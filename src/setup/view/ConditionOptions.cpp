#include "setup/view/ConditionOptions.h"

#include "resources/StringTable.h"
#include "resources/TextFormat.h"
#include "setup/conditions/ConditionText.h"
#include "setup/conditions/ProfileStore.h"
#include "setup/tables/GScale.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

namespace skeldon {

QString SamplingWords(int row)
{
    constexpr double SecondsPerCount = 0.0001; // of the table's period
    const double seconds = SamplingTable::Period(row) * SecondsPerCount;
    QString words = FormatText(QStringLiteral("%.4f"), {seconds}) + Text(StringId::SamplingSeconds);
    if (SamplingTable::IsTrace(row))
        words += Text(StringId::SamplingTraceMode);
    return words;
}

QString IntervalWords(int row)
{
    return QString::number(IntervalTable::Length(row)) + Text(IntervalTable::InSeconds(row)
                                                                  ? StringId::IntervalSeconds
                                                                  : StringId::IntervalMinutes);
}

QStringList SamplingOptions()
{
    QStringList options;
    for (int row = 0; row < SamplingTable::Count; ++row)
        options << SamplingWords(row);
    return options;
}

QStringList IntervalOptions()
{
    QStringList options;
    for (int row = 0; row < IntervalTable::Count; ++row)
        options << IntervalWords(row);
    return options;
}

QStringList LevelOptions(int highest)
{
    QStringList options;
    for (int level = 0; level <= highest; level = StepGUp(level))
        options << QString::fromStdString(LevelText(level));
    return options;
}

QStringList FreeHostNumbers(const CProfileStore& store)
{
    QStringList options;
    for (int id = 1; id <= CMeasureCondition::HighestHostNumber; ++id) {
        if (store.FindByHostId(id) < 0)
            options << QString::number(id);
    }
    return options;
}

QStringList StartOptions()
{
    QStringList options;
    for (int option = 0; option <= CMeasureCondition::HighestStartOption; ++option)
        options << QString::number(option);
    return options;
}

int OptionRow(int row, int count, int fallback)
{
    return row >= 0 && row < count ? row : fallback;
}

int TenthsOf(double g)
{
    constexpr double TenthsPerG = 10.0;
    return static_cast<int>(g * TenthsPerG);
}

} // namespace skeldon
