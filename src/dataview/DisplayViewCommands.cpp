// Which commands the data view gives, and when.
#include "dataview/DisplayView.h"

#include "app/SkeldonApp.h"
#include "chart/view/ChartPropertyDialog.h"
#include "chart/view/ChartWnd.h"
#include "controls/SkinButton.h"
#include "dataview/ButtonForms.h"
#include "dataview/MeasuredList.h"
#include "setup/view/OnlineConfigDialog.h"

#include <algorithm>

namespace skeldon {

namespace {

/// The series that a command shows or hides; null for any other command.
const ButtonForm* SeriesOf(CommandId command)
{
    const auto forms = ButtonForms();
    const auto form = std::ranges::find_if(forms, [command](const ButtonForm& candidate) {
        return candidate.IsSeries() && candidate.command == command;
    });
    return form != forms.end() ? &*form : nullptr;
}

} // namespace

CommandState CDisplayView::StateOf(CommandId command) const
{
    CommandState state = StateAtRest(command);
    // In the middle of an operation, and while an area is dragged out, nothing at all can be done.
    if (m_bBusy || !m_chart->IsFree())
        state.isEnabled = false;
    return state;
}

CommandState CDisplayView::StateAtRest(CommandId command) const
{
    if (const ButtonForm* const series = SeriesOf(command))
        return {CanOperate(), Button(series->button).IsPressed()};
    const DispUnit unit = App().GetDispUnit();
    switch (command) {
    case CommandId::Open:
    case CommandId::OnlineConfiguration:
    case CommandId::ChartProperties:
    case CommandId::ViewSetup:
    case CommandId::Configuration:
    case CommandId::Exit:
    case CommandId::ConfigureReal:
        return {CanOperate()};
    case CommandId::Save:
        return {CanSave()};
    case CommandId::SaveAs:
    case CommandId::ExportCsv:
    case CommandId::Print:
        return {HasData()};
    case CommandId::CopyCsv:
        return {!m_data.IsEmpty()};
    case CommandId::GetData:
    case CommandId::OnlineRecording:
        return {CanGetData()};
    case CommandId::SelectArea:
    case CommandId::HorizontalInflate:
        return {CanZoomIn()};
    case CommandId::HorizontalDeflate:
        return {CanZoomOut()};
    case CommandId::BarChart:
        return {CanOperate() && m_chart->CanRedraw(), m_chart->Model().m_barChart};
    case CommandId::VerticalInflate:
        return {CanScaleUp()};
    case CommandId::VerticalDeflate:
        return {CanScaleDown()};
    case CommandId::DisplayAllArea:
        return {m_chart->Model().CanDisplayAllArea()};
    case CommandId::DisplayInCenter:
        return {m_chart->Model().CanDisplayInCenter()};
    case CommandId::CopyChart:
        return {m_chart->Model().Count() >= 1};
    case CommandId::UnitG:
        return {CanOperate(), unit == DispUnit::G};
    case CommandId::UnitMs2:
        return {CanOperate(), unit == DispUnit::MetresPerSecondSquared};
    case CommandId::UnitGal:
        return {CanOperate(), unit == DispUnit::Gal};
    default:
        return DormantState(command);
    }
}

CommandState CDisplayView::DormantState(CommandId command) const
{
    const int row = m_list->CurrentRow();
    const auto index = static_cast<std::size_t>(std::max(row, 0));
    const bool isMarked = row >= 0 && m_data.IsMarked(index);
    const int clicked = m_chart->PopupLine();
    const bool isClickedMarked = clicked >= 0 && m_data.IsMarked(static_cast<std::size_t>(clicked));
    switch (command) {
    case CommandId::AddMark:
        return {row >= 0 && !isMarked};
    case CommandId::RemoveMark:
        return {isMarked};
    case CommandId::MarkExtracted:
        return {m_data.m_extractCount > 0};
    case CommandId::RemoveAllMarks:
    case CommandId::DeleteMarked:
    case CommandId::DeleteUnmarked:
        return {!m_data.m_marks.empty()};
    case CommandId::DeleteLine:
        return {row >= 0};
    case CommandId::DeleteSelected:
        return {m_list->selectionModel()->hasSelection()};
    case CommandId::DeleteIllegal:
        return {m_data.m_badTemperature || m_data.m_badHumidity || m_data.m_badMsec ||
                m_data.m_badTime};
    case CommandId::DisplayExtract:
        return {!m_data.m_extract.empty()};
    case CommandId::AddMarkAtClick:
        return {clicked >= 0 && !isClickedMarked};
    case CommandId::RemoveMarkAtClick:
        return {isClickedMarked};
    case CommandId::PreviousMark:
        return {CanOperate() && row >= 0 && m_data.PreviousMark(index) >= 0};
    case CommandId::NextMark:
        return {CanOperate() && row >= 0 && m_data.NextMark(index) >= 0};
    default:
        return {};
    }
}

void CDisplayView::OnCommand(CommandId command)
{
    // A pressed ZmIn takes everything else out, but can itself be released.
    const bool isRelease =
        command == CommandId::SelectArea && Button(DataViewButton::ZoomIn).IsPressed();
    if (!isRelease && !StateOf(command).isEnabled)
        return;
    if (const ButtonForm* const series = SeriesOf(command)) {
        ToggleSeries(*series);
        return;
    }
    if (OnChartCommand(command))
        return;
    switch (command) {
    case CommandId::Open:
        return Open();
    case CommandId::Save:
        return Save();
    case CommandId::SaveAs:
        SaveAs();
        return;
    case CommandId::ExportCsv:
        return ExportCsvFile();
    case CommandId::Print:
        return OnFilePrint();
    case CommandId::CopyCsv:
        return CopyCsv();
    case CommandId::GetData:
        return GetData();
    case CommandId::OnlineRecording:
        return RecordOnline();
    case CommandId::OnlineConfiguration:
        return RunOnlineConfig(this);
    case CommandId::SelectArea:
        return ToggleZoomIn();
    case CommandId::CopyChart:
        return CopyChart();
    case CommandId::ChartProperties:
        return ChangeChartProperties();
    case CommandId::UnitG:
        return SetDispUnit(DispUnit::G);
    case CommandId::UnitMs2:
        return SetDispUnit(DispUnit::MetresPerSecondSquared);
    case CommandId::UnitGal:
        return SetDispUnit(DispUnit::Gal);
    case CommandId::ViewSetup:
        return LeaveForSetup();
    case CommandId::Exit:
        return Exit();
    default:
        return;
    }
}

bool CDisplayView::OnChartCommand(CommandId command)
{
    const int step = m_chart->Model().Step();
    switch (command) {
    case CommandId::BarChart:
        m_chart->SetBarChart(!m_chart->Model().m_barChart);
        return true;
    case CommandId::VerticalInflate:
        m_chart->ChangeScaleStep(step + 1);
        return true;
    case CommandId::VerticalDeflate:
        m_chart->ChangeScaleStep(step - 1);
        return true;
    case CommandId::HorizontalInflate:
        if (m_chart->ZoomInTime())
            RefreshControls();
        return true;
    case CommandId::HorizontalDeflate:
        if (m_chart->ZoomBack())
            RefreshControls();
        return true;
    case CommandId::DisplayAllArea:
        m_chart->DisplayAllArea();
        RefreshControls();
        return true;
    case CommandId::DisplayInCenter:
        m_chart->DisplayInCenter();
        RefreshControls();
        return true;
    default:
        return false;
    }
}

void CDisplayView::ToggleSeries(const ButtonForm& series)
{
    CSkinButton& button = Button(series.button);
    button.SetPressed(!button.IsPressed());
    m_chart->SetSeriesShown(series.series, button.IsPressed());
}

void CDisplayView::ToggleZoomIn()
{
    CSkinButton& button = Button(DataViewButton::ZoomIn);
    button.SetPressed(!button.IsPressed());
    if (button.IsPressed())
        m_chart->BeginAreaSelection();
    else
        m_chart->CancelAreaSelection();
    RefreshControls();
}

void CDisplayView::SetDispUnit(DispUnit unit)
{
    App().m_dispUnit = static_cast<int>(unit);
    m_chart->SetDisplayUnit(static_cast<DisplayUnit>(unit));
    m_list->OnUnitChanged();
}

void CDisplayView::ChangeChartProperties()
{
    if (!RunChartProperties(this))
        return;
    Pump();
    ReadChartSettings();
    RefreshControls(); // what the pump let through saw the view busy
}

void CDisplayView::LeaveForSetup()
{
    if (!QuerySave())
        return;
    CSkinButton& zoomIn = Button(DataViewButton::ZoomIn);
    if (zoomIn.IsPressed()) {
        zoomIn.SetPressed(false);
        m_chart->CancelAreaSelection();
    }
    WriteSettings();
    App().Frame()->SwitchView(ViewIndex::Setup);
}

void CDisplayView::Exit()
{
    if (!QuerySave())
        return;
    WriteSettings();
    App().Frame()->CloseFrame();
}

} // namespace skeldon
