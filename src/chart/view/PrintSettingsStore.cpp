#include "chart/view/PrintSettingsStore.h"

#include "app/Settings.h"

namespace skeldon {

namespace {

/// The keys of one of the two kinds of page end in its letter.
constexpr QLatin1Char ListLetter('L');
constexpr QLatin1Char ChartLetter('G');

PageForm ReadForm(const CSettings& settings, QLatin1Char letter)
{
    const PageForm usual;
    const auto number = [&](const char* key, int fallback) {
        return settings.GetInt(SystemSection, QLatin1String(key) + letter, fallback);
    };
    const QRect blank =
        settings.GetProfileRect(SystemSection, QStringLiteral("PrintBlank") + letter, {});
    return {number("PrintMatch", usual.match),
            number("PrintHorz", usual.horz),
            {blank.x(), blank.y(), blank.x() + blank.width(), blank.y() + blank.height()},
            number("PrintZoom", usual.zoom)};
}

void WriteForm(CSettings& settings, QLatin1Char letter, const PageForm& form)
{
    const auto write = [&](const char* key, int value) {
        settings.WriteInt(SystemSection, QLatin1String(key) + letter, value);
    };
    write("PrintMatch", form.match);
    write("PrintHorz", form.horz);
    const PrintMargins& blank = form.blank;
    settings.WriteProfileRect(
        SystemSection, QStringLiteral("PrintBlank") + letter,
        {blank.left, blank.top, blank.right - blank.left, blank.bottom - blank.top});
    write("PrintZoom", form.zoom);
}

} // namespace

PrintSettings ReadPrintSettings(const CSettings& settings)
{
    const PrintSettings usual;
    const auto number = [&settings](const char* key, int fallback) {
        return settings.GetInt(SystemSection, QLatin1String(key), fallback);
    };
    return {number("PrintGraph", usual.graph), ReadForm(settings, ListLetter),
            ReadForm(settings, ChartLetter), number("PrintMark", usual.mark),
            number("PrintExtract", usual.extract)};
}

void WritePrintSettings(CSettings& settings, const PrintSettings& print)
{
    settings.WriteInt(SystemSection, QStringLiteral("PrintGraph"), print.graph);
    WriteForm(settings, ListLetter, print.list);
    WriteForm(settings, ChartLetter, print.chart);
    settings.WriteInt(SystemSection, QStringLiteral("PrintMark"), print.mark);
    settings.WriteInt(SystemSection, QStringLiteral("PrintExtract"), print.extract);
}

} // namespace skeldon
