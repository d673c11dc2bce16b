#include "dataview/RecorderPoll.h"

#include "app/DataText.h"
#include "app/PumpMessages.h"
#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <memory>

namespace skeldon {

RecorderPanes PanesOf(const RecorderStatus& status)
{
    const StringId pattern =
        status.m_alphaFirmware ? StringId::PaneModelAlpha : StringId::PaneModel;
    const std::string& release = status.m_release.empty() ? status.m_version : status.m_release;
    return {FormatText(Text(pattern), {FromDataText(status.GetModelName()), status.GetMaxG()}),
            QLatin1Char(' ') + Text(StringId::PaneRelease) + FromDataText(release)};
}

CRecorderPoll::CRecorderPoll(QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(IntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &CRecorderPoll::Tick);
}

void CRecorderPoll::Start()
{
    m_timer.start();
}

void CRecorderPoll::Stop()
{
    m_timer.stop();
}

void CRecorderPoll::Tick()
{
    // Never over another look, a conversation of the user's, or the middle of an operation.
    if (App().Conversation().IsUnderWay() || IsPumping() || App().m_link.m_busy)
        return;
    // The other program of the family asks to be alone with the recorder, or is just about to say.
    if (App().m_sharedBlock.GetHoldFlag() != 0U)
        return;
    CRecorderLink& link = App().m_link;
    // A cable that was pulled and is back already is missed for one look: what is plugged in now
    // may be another recorder, or the same in another state.
    const bool wasCut = link.TakeCut();
    const bool present = link.FindRecorderPort() && !wasCut;
    const bool isForced = link.m_rangeChanged;
    if (present == m_bConnected && !isForced)
        return;
    emit CableSeen(present);
    if (!present) {
        Announce(false, isForced);
        return;
    }
    const auto isAnswered = std::make_shared<bool>(false);
    App().Conversation().RunBeside(
        [&link, isAnswered] { *isAnswered = link.OpenPort() && link.ReadStatus(); },
        [this, isAnswered, isForced] { OnAnswer(*isAnswered, isForced); });
}

void CRecorderPoll::OnAnswer(bool isAnswered, bool isForced)
{
    if (isAnswered)
        Announce(true, isForced);
}

void CRecorderPoll::Announce(bool connected, bool isForced)
{
    m_bConnected = connected;
    emit Changed(connected, isForced);
}

} // namespace skeldon
