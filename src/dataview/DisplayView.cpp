#include "dataview/DisplayView.h"

#include "app/PumpMessages.h"
#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "chart/view/ChartWnd.h"
#include "controls/ConnectionIcon.h"
#include "controls/SkinButton.h"
#include "controls/Theme.h"
#include "dataview/DisplayViewBusy.h"
#include "dataview/ListSplitter.h"
#include "dataview/MeasuredList.h"
#include "dataview/PrintJob.h"
#include "dataview/SummaryStrip.h"
#include "resources/StringTable.h"

#include <QFileInfo>

namespace skeldon {

namespace {

/// Height of the letters of buttons.
constexpr int LetterSize = 12;

/// What an analysis of `data` must know. Lines of a file need nothing of the recorder, which may
/// just be asked and not answer.
AnalysisSetting SettingFor(const CMeasureData& data)
{
    AnalysisSetting setting;
    setting.now = Now();
    if (!data.m_fromFile) {
        const CRecorderLink& link = App().Link();
        setting.startMonth = link.m_month;
        setting.startDay = link.m_day;
    }
    return setting;
}

} // namespace

CDisplayView::CDisplayView(QWidget* parent)
    : CView(parent)
    , m_strUnsaved(Text(StringId::Unsaved))
    , m_connection(new CConnectionIcon(this))
    , m_list(new CMeasuredList(this))
    , m_splitter(new CListSplitter(this))
    , m_chart(new CChartWnd(this))
    , m_summary(new CSummaryStrip(this))
{
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
    setPalette(FormPalette(App().m_viewBaseColour));
    // The buttons' places do not grow with the letters of the desktop.
    QFont small = font();
    small.setPixelSize(LetterSize);
    setFont(small);
    MakeButtons();
    m_list->hide();
    m_chart->hide();
    // The splitter's pointer must not last on what the mouse enters from the splitter.
    for (QWidget* const child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        child->setCursor(Qt::ArrowCursor);
    // The chart hears of the current line at once, the view later.
    connect(m_list, &CMeasuredList::MeasureGraph, m_chart, &CChartWnd::OnMeasureGraph);
    connect(m_list, &CMeasuredList::MeasureGraph, this, &CDisplayView::OnMeasureGraph,
            Qt::QueuedConnection);
    connect(m_chart, &CChartWnd::MeasureGraph, m_list, &CMeasuredList::OnMeasureGraph,
            Qt::QueuedConnection);
    connect(m_chart, &CChartWnd::MeasureGraph, this, &CDisplayView::OnMeasureGraph,
            Qt::QueuedConnection);
    connect(m_chart, &CChartWnd::CommandChosen, this, &CDisplayView::OnCommand);
    connect(m_splitter, &CListSplitter::Moved, this, &CDisplayView::MoveSplitter);
}

CDisplayView::~CDisplayView() = default;

void CDisplayView::OnInitialUpdate()
{
    m_strStartFile = App().m_commandLine.m_fileName;
    ReadGeneralSettings();
    m_bViewReady = true;
}

QSize CDisplayView::SmallestSize() const
{
    return CDataViewLayout::FormSize(App().IsJapanese());
}

CSkinButton& CDisplayView::Button(DataViewButton button) const
{
    return *m_buttons[static_cast<std::size_t>(button)];
}

bool CDisplayView::CanOperate() const
{
    return !Button(DataViewButton::ZoomIn).IsPressed() && !m_bBusy && !m_list->IsFilling() &&
           m_chart->IsFree();
}

bool CDisplayView::HasData() const
{
    return CanOperate() && !m_strDataPath.isEmpty() && !m_data.IsEmpty();
}

bool CDisplayView::CanSave() const
{
    return CanOperate() && !m_strDataPath.isEmpty() && m_strDataPath != m_strUnsaved &&
           !m_data.IsEmpty() &&
           QFileInfo(m_strDataPath).suffix().compare(QLatin1String("sks"), Qt::CaseInsensitive) !=
               0 &&
           !m_data.SignatureUnchanged();
}

bool CDisplayView::CanGetData() const
{
    return CanOperate() && App().Frame()->IsConnected();
}

bool CDisplayView::CanZoomIn() const
{
    return CanOperate() && m_chart->Model().HasRisingTime() &&
           !m_chart->Model().m_window.m_atMaxZoom;
}

bool CDisplayView::CanZoomOut() const
{
    return CanOperate() && !m_chart->Model().m_history.IsEmpty();
}

bool CDisplayView::CanScaleUp() const
{
    return CanOperate() && m_chart->CanRedraw() &&
           m_chart->Model().Step() < CValueScale::StepCount - 1;
}

bool CDisplayView::CanScaleDown() const
{
    return CanOperate() && m_chart->CanRedraw() && m_chart->Model().Step() > 0;
}

void CDisplayView::RefreshControls()
{
    App().Frame()->SetCaption(m_strDataPath == m_strUnsaved ? m_strUnsaved
                                                            : QFileInfo(m_strDataPath).fileName());
    const bool canOperate = CanOperate();
    const bool hasData = HasData();
    const bool canGetData = CanGetData();
    Button(DataViewButton::Open).setEnabled(canOperate);
    Button(DataViewButton::Save).setEnabled(hasData);
    Button(DataViewButton::Print).setEnabled(hasData);
    Button(DataViewButton::GetData).setEnabled(canGetData);
    Button(DataViewButton::OnlineRecording).setEnabled(canGetData);
    for (const DataViewButton series :
         {DataViewButton::X, DataViewButton::Y, DataViewButton::Z, DataViewButton::Temperature,
          DataViewButton::Resultant, DataViewButton::Humidity})
        Button(series).setEnabled(canOperate);
    Button(DataViewButton::ZoomIn).setEnabled(CanZoomIn());
    Button(DataViewButton::ZoomOut).setEnabled(CanZoomOut());
    Button(DataViewButton::Properties).setEnabled(canOperate);
    Button(DataViewButton::Setup).setEnabled(canOperate);
    if (App().Frame()->CurrentView() == ViewIndex::Display)
        App().Frame()->EnableSystemClose(canOperate);
}

void CDisplayView::OnUpdate(DocumentHint hint, int argument)
{
    switch (hint) {
    case DocumentHint::ActiveView:
        if (argument == static_cast<int>(ViewIndex::Display)) {
            LayOut();
            RefreshControls();
            ResetStatus();
        }
        break;
    case DocumentHint::Connection:
        m_connection->SetConnected(argument != 0);
        m_summary->update();
        RefreshControls();
        break;
    case DocumentHint::Closing:
        m_list->SaveColumnWidths();
        break;
    case DocumentHint::SettingsChanged:
        ReadGeneralSettings();
        update();
        break;
    }
}

void CDisplayView::OnMeasureGraph(MeasureGraphCode code, int argument)
{
    switch (code) {
    case MeasureGraphCode::AreaEnded:
        EndAreaSelection(argument);
        break;
    case MeasureGraphCode::Refresh:
    case MeasureGraphCode::CurrentLine:
    case MeasureGraphCode::Marks:
    case MeasureGraphCode::MarksToo:
    case MeasureGraphCode::CornerUsed:
        RefreshControls();
        break;
    case MeasureGraphCode::ScaleStep:
    case MeasureGraphCode::LineTaken:
        break;
    }
}

void CDisplayView::EndAreaSelection(int argument)
{
    CSkinButton& zoomIn = Button(DataViewButton::ZoomIn);
    zoomIn.setEnabled(true);
    zoomIn.SetPressed(false);
    RefreshControls();
    if (argument == 0) {
        SetStatusText(Text(StringId::ZoomedToMaximum));
        App().Prompts().Beep();
    }
}

bool CDisplayView::QuerySave()
{
    if (!m_bSaveInfo || m_data.SignatureUnchanged())
        return true;
    switch (App().Prompts().ShowBox(this, BoxKind::YesNoCancel, Text(StringId::AskSaveData))) {
    case Answer::Yes:
        return SaveAs() != SaveOutcome::Failed;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

void CDisplayView::ClearData()
{
    m_strDataPath.clear();
    m_data.m_signature = 0;
    m_data.Clear();
    ShowSummary({});
    m_chart->ResetData();
    m_list->Rebuild();
    Pump();
}

void CDisplayView::AnalyseAndReport(bool repairYear)
{
    const CWaitCursor wait;
    m_data.Analyse(SettingFor(m_data));
    if (repairYear)
        m_data.RepairYear();
    ShowSummary(SummaryOf(m_data));
    m_chart->ResetData();
    m_list->Rebuild();
    RefreshControls();
    QString errors;
    if (m_data.m_badMsec || m_data.m_badTime)
        errors += Text(StringId::ErrorInDateTime);
    if (m_data.m_badTemperature)
        errors += Text(StringId::ErrorInTemperature);
    if (m_data.m_badHumidity)
        errors += Text(StringId::ErrorInHumidity);
    if (!errors.isEmpty())
        App().Prompts().ShowBox(this, BoxKind::Warning, errors);
}

void CDisplayView::Pump()
{
    const CDisplayViewBusy busy(m_bBusy);
    PumpMessages();
}

void CDisplayView::Warn(StringId text)
{
    App().Prompts().ShowBox(this, BoxKind::Warning, Text(text));
}

} // namespace skeldon
