#include "setup/view/OnlineOptions.h"

#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr int SecondsPerMinute = 60;
/// The list goes up to these in steps of ten seconds, one minute and ten minutes.
constexpr int LastPlain = 60;
constexpr int LastMinute = 600;
constexpr int Last = 4800;

} // namespace

QStringList OnlineSecondsOptions()
{
    QStringList options;
    for (int seconds = 10; seconds <= LastPlain; seconds += 10)
        options << QString::number(seconds);
    const QString pattern = Text(StringId::OnlineListMinutes);
    for (int seconds = 2 * LastPlain; seconds <= Last;
         seconds += seconds < LastMinute ? LastPlain : LastMinute)
        options << FormatText(pattern, {seconds, seconds / SecondsPerMinute});
    return options;
}

int OnlineSecondsOf(const QString& option)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const auto end = std::ranges::find_if_not(option, isDigit);
    return option.left(end - option.begin()).toInt();
}

int OnlineOptionOf(int seconds)
{
    const QStringList options = OnlineSecondsOptions();
    const auto found = std::ranges::find(options, seconds, OnlineSecondsOf);
    return found != options.end() ? static_cast<int>(found - options.begin()) : -1;
}

} // namespace skeldon
