#include "skeldonctl/Wording.h"

#include "base/CodePage.h"
#include "setup/conditions/ConditionText.h"

namespace skeldon {

namespace {

constexpr const char* Unknown = "-";

} // namespace

std::string LevelWords(int tenths)
{
    return tenths < 0 ? Unknown : LevelText(tenths) + " G";
}

std::string SamplingWords(int row)
{
    return row < 0 ? Unknown : SamplingListText(row);
}

std::string IntervalWords(int row)
{
    return row < 0 ? Unknown : IntervalListText(row);
}

std::string RecorderWords(const std::string& model, int type, const std::string& release)
{
    std::string words = model.empty() ? "unknown model" : ToUtf8(model, DataCodePage());
    words += ", type " + std::to_string(type);
    if (!release.empty())
        words += ", release " + ToUtf8(release, DataCodePage());
    return words;
}

std::string YesNo(bool value)
{
    return value ? "yes" : "no";
}

} // namespace skeldon
