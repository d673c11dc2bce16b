#include "app/OnlineSeconds.h"

#include "app/Settings.h"
#include "recorder/OnlineTime.h"

#include <algorithm>

namespace skeldon {

namespace {

const QString OnlineSecond = QStringLiteral("OnlineSecond");

} // namespace

int ReadOnlineSeconds(const CSettings& settings)
{
    return std::clamp(settings.GetInt(SystemSection, OnlineSecond, StandardOnlineSeconds),
                      LeastOnlineSeconds, MostOnlineSeconds);
}

void WriteOnlineSeconds(CSettings& settings, int seconds)
{
    settings.WriteInt(SystemSection, OnlineSecond, seconds);
}

} // namespace skeldon
