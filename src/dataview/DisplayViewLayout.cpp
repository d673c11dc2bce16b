// How the data view stands in its window.
#include "dataview/DisplayView.h"

#include "app/SkeldonApp.h"
#include "chart/view/ChartSettings.h"
#include "chart/view/ChartWnd.h"
#include "chart/view/PrintSettingsStore.h"
#include "controls/ConnectionIcon.h"
#include "controls/PictureCursor.h"
#include "controls/PixelLine.h"
#include "controls/SkinButton.h"
#include "dataview/ButtonForms.h"
#include "dataview/ListSplitter.h"
#include "dataview/MeasuredList.h"
#include "dataview/SummaryStrip.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace skeldon {

namespace {

constexpr ColourRef Grey = 0x808080;
constexpr const char* ListBorderKey = "ListBorder";

QString KeyOf(const char* key)
{
    return QString::fromLatin1(key);
}

} // namespace

void CDisplayView::MakeButtons()
{
    for (const ButtonForm& form : ButtonForms()) {
        auto* const button = new CSkinButton(this);
        m_buttons[static_cast<std::size_t>(form.button)] = button;
        connect(button, &CSkinButton::clicked, this, [this, &form] { OnCommand(form.command); });
    }
}

void CDisplayView::SetUpButtons()
{
    const bool isJapanese = App().IsJapanese();
    CSettings& settings = App().Settings();
    for (const ButtonForm& form : ButtonForms()) {
        CSkinButton& button = Button(form.button);
        if (form.IsSeries())
            button.SetUpSwatch(form.picture, form.IsAxis() && !isJapanese);
        else
            button.SetUpPicture(form.picture);
        button.SetTint(TintOf(App().m_viewBaseColour));
        // Captions are short; screen readers and tool tips have the whole name.
        if (!form.IsAxis())
            button.SetCaption(Text(form.caption));
        button.SetName(Text(form.name));
        if (!form.IsSeries())
            continue;
        const bool isShown = settings.GetInt(SystemSection, KeyOf(form.shownKey), 1) != 0;
        button.SetPressed(isShown);
        m_chart->SetSeriesShown(form.series, isShown);
    }
}

void CDisplayView::ReadChartSettings()
{
    const ChartProperties properties = ReadChartProperties(App().Settings());
    ChartColours colours;
    colours.item = properties.colours[ItemColourIndex];
    for (const Series series : AllSeries) {
        const ColourRef colour = properties.colours[Index(series)];
        colours.series[Index(series)] = colour;
        for (const ButtonForm& form : ButtonForms()) {
            if (form.series == Info(series).mask)
                Button(form.button).SetSwatchColour(colour);
        }
    }
    m_chart->SetColors(colours);
    m_chart->SetLineWeight(properties.screenWeight);
    m_chart->SetElapsedAxis(properties.isElapsed);
}

void CDisplayView::ReadGeneralSettings()
{
    m_bSaveInfo = App().Settings().GetInt(SystemSection, QStringLiteral("SaveInfo"), 1) != 0;
}

void CDisplayView::ReadSettings()
{
    // Numbers that no window has room for can not be counted with.
    m_listBorder = std::clamp(App().Settings().GetInt(SystemSection, KeyOf(ListBorderKey),
                                                      CDataViewLayout::DefaultListBorder),
                              CDataViewLayout::HighestListBorder, QWIDGETSIZE_MAX);
    m_isBorderRead = true;
    m_list->Setup(m_data);
    m_chart->Create(m_data);
    SetUpButtons();
    ReadChartSettings();
    m_printSettings = ReadPrintSettings(App().Settings());
}

void CDisplayView::WriteSettings()
{
    CSettings& settings = App().Settings();
    for (const ButtonForm& form : ButtonForms()) {
        if (form.IsSeries())
            settings.WriteInt(SystemSection, KeyOf(form.shownKey),
                              Button(form.button).IsPressed() ? 1 : 0);
    }
    // Chart and list are always shown, and always were.
    settings.WriteInt(SystemSection, QStringLiteral("ChkGraphView"), 1);
    settings.WriteInt(SystemSection, QStringLiteral("ChkListView"), 1);
    settings.WriteInt(SystemSection, KeyOf(ListBorderKey), m_listBorder);
    WritePrintSettings(settings, m_printSettings);
}

CDataViewLayout CDisplayView::Layout() const
{
    return {size(), App().IsJapanese()};
}

void CDisplayView::resizeEvent(QResizeEvent* event)
{
    CView::resizeEvent(event);
    if (!m_bViewReady)
        return;
    if (!m_bLayoutDone) {
        m_bLayoutDone = true;
        ReadSettings();
        LayOut();
        RefreshControls();
        if (!m_strStartFile.isEmpty())
            QMetaObject::invokeMethod(this, &CDisplayView::OpenStartFile, Qt::QueuedConnection);
        return;
    }
    LayOut();
}

void CDisplayView::HoldBorder()
{
    // A border of a large window would be lost in the sizes on the way to it.
    const CFrame& frame = *App().Frame();
    if (frame.IsPlacing())
        return;
    // Whatever the store holds, list, chart and splitter can be reached.
    if (std::exchange(m_isBorderRead, false) || frame.IsPlacementRestored())
        m_listBorder = Layout().ClampListBorder(m_listBorder);
}

void CDisplayView::LayOut()
{
    if (!m_bLayoutDone)
        return;
    const CDataViewLayout layout = Layout();
    HoldBorder();
    m_list->setGeometry(layout.List(m_listBorder));
    m_chart->setGeometry(layout.Chart(m_listBorder));
    m_splitter->setGeometry(layout.Splitter(m_listBorder));
    m_splitter->SetBorder(m_listBorder, layout.ClampListBorder(0),
                          layout.ClampListBorder(std::numeric_limits<int>::max()));
    m_summary->setGeometry(layout.Strip());
    m_list->show();
    m_chart->show();
    for (const ButtonForm& form : ButtonForms()) {
        const QRect place = layout.Button(form.button);
        Button(form.button).Move(place.x(), place.y(), place.width());
    }
    m_connection->setGeometry(layout.ConnectionIcon());
    update();
}

void CDisplayView::ShowSummary(const ConditionSummary& summary)
{
    m_summary->SetText(SummaryText(summary));
}

QString CDisplayView::Summary() const
{
    return m_summary->Shown();
}

void CDisplayView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintBands(painter);
}

void CDisplayView::PaintBands(QPainter& painter) const
{
    constexpr int TopBand = 33;
    constexpr int BottomBand = 53;
    constexpr int StripBand = 19;
    const int width = this->width();
    const int height = this->height();
    const QColor grey = ToColour(Grey);
    painter.fillRect(rect(), ToColour(App().m_viewBaseColour));
    for (const int y : {0, TopBand + 1, height - BottomBand + 1})
        FillLine(painter, {0, y, width, 1}, Qt::white);
    FillLine(painter, {0, 0, 1, height}, Qt::white);
    for (const int y : {TopBand, height - BottomBand, height - StripBand})
        FillLine(painter, {0, y, width, 1}, grey);
    FillLine(painter, {width - 1, 0, 1, height}, grey);
}

void CDisplayView::mousePressEvent(QMouseEvent* event)
{
    const bool isOnBar = Layout().Splitter(m_listBorder).contains(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !isOnBar || !m_bLayoutDone)
        return;
    m_bDragging = true;
    m_nDragOffset = m_listBorder - static_cast<int>(event->position().y());
}

void CDisplayView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (!m_bDragging) {
        ShowPointer(Layout().Splitter(m_listBorder).contains(point));
        return;
    }
    // The sign makes the bar jump by as much as it was grabbed below its top.
    MoveSplitter(point.y() - m_nDragOffset);
}

void CDisplayView::MoveSplitter(int border)
{
    m_listBorder = Layout().ClampListBorder(border);
    LayOut();
}

void CDisplayView::ShowPointer(bool isOnBar)
{
    if (isOnBar == m_isPointerOnBar)
        return;
    m_isPointerOnBar = isOnBar;
    setCursor(isOnBar ? PictureCursor(PictureId::CursorSplitter, devicePixelRatioF())
                      : QCursor(Qt::ArrowCursor));
}

void CDisplayView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_bDragging = false;
}

} // namespace skeldon
