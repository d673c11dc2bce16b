// The data view's ways of getting lines from a recorder.
#include "dataview/DisplayView.h"

#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "controls/ProgressWindow.h"
#include "dataview/DisplayViewBusy.h"
#include "online/OnlineDialog.h"
#include "recorder/ReadBack.h"
#include "resources/StringTable.h"

#include <functional>
#include <utility>

namespace skeldon {

namespace {

constexpr int ProgressWidth = 400;
constexpr ColourRef Red = 0x0000FF;
constexpr ColourRef White = 0xFFFFFF;

/// Shows a read-back on the progress strip.
class CReadBackProgress final : public CReadBackObserver
{
public:
    CReadBackProgress(CProgressWindow& window, std::function<void()> pump)
        : m_window(window)
        , m_pump(std::move(pump))
    {}

    void ShowWarning(bool red) override
    {
        m_window.SetTextColor(red ? Red : White, false);
        m_window.SetText(Text(StringId::DoNotSeparate), true);
    }

    void ShowPosition(int line) override
    {
        m_window.SetPosition(line);
        m_pump();
    }

private:
    CProgressWindow& m_window;
    std::function<void()> m_pump;
};

} // namespace

bool CDisplayView::MakeRoomForTransfer()
{
    if (!CanGetData() || !QuerySave())
        return false;
    if (!App().Frame()->IsConnected()) {
        Warn(StringId::CannotConnect);
        return false;
    }
    ClearData();
    return true;
}

void CDisplayView::GetData()
{
    if (!MakeRoomForTransfer())
        return;
    CRecorderLink& link = App().Link();
    int expected = 0;
    {
        const CDisplayViewBusy busy(m_bBusy);
        App().Conversation().Run([&] { expected = link.StartDownload(); });
    }
    if (expected < 0) {
        Warn(StringId::FailedToGetData);
        RefreshControls();
        return;
    }
    TakeHeader(link.Status(), m_data);
    ConditionSummary summary = SummaryOf(m_data);
    summary.records = link.m_count;
    ShowSummary(summary);
    if (expected < 1) {
        Warn(StringId::NoMeasuredData);
        RefreshControls();
        return;
    }
    RunReadBack(expected);
}

void CDisplayView::RunReadBack(int expected)
{
    CProgressWindow window(this, ProgressWidth);
    connect(&window, &CProgressWindow::ProgressMessage, this,
            [this, expected](int code, CProgressWindow* strip) {
                if (code == CProgressWindow::StartWork)
                    ReadBackLoop(*strip, expected);
            });
    window.exec();
    if (static_cast<std::size_t>(expected) > m_data.GetSize()) {
        Warn(m_data.IsEmpty() ? StringId::NoMeasuredData : StringId::FailedToGetData);
        ShowSummary(SummaryOf(m_data));
    }
    Pump();
    AnalyseAndReport(true);
}

void CDisplayView::ReadBackLoop(CProgressWindow& window, int expected)
{
    const CDisplayViewBusy busy(m_bBusy);
    const CWaitCursor wait;
    CRecorderLink& link = App().Link();
    const auto pump = [this] { Pump(); };
    window.setFont(font());
    window.SetRange(expected);
    CReadBackProgress progress(window, pump);
    link.SetWhileWaiting(pump);
    ReadLines(link, expected, m_data, &progress);
    link.SetWhileWaiting({});
    App().Conversation().Run([&] { link.FinishDownload(m_data); });
    m_strDataPath = m_strUnsaved;
}

void CDisplayView::RecordOnline()
{
    if (!MakeRoomForTransfer())
        return;
    CRecorderLink& link = App().Link();
    m_data.m_typeNumber = link.m_type;
    m_data.m_modelName = link.GetModelName();
    m_data.m_release = link.m_release;
    ShowSummary({});
    {
        const CDisplayViewBusy busy(m_bBusy);
        COnlineDialog(m_data, this).exec();
    }
    // Boxes may follow, and with them the link's next conversation.
    const bool isFailed = link.m_timedOut;
    m_strDataPath = m_strUnsaved;
    AnalyseAndReport(false);
    if (isFailed)
        Warn(StringId::OnlineRecordingError);
}

} // namespace skeldon
