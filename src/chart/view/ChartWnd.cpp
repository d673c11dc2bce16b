#include "chart/view/ChartWnd.h"

#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "chart/view/ChartWords.h"
#include "chart/view/ScaleGauge.h"
#include "resources/StringTable.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace skeldon {

namespace {

constexpr int LetterSize = 11;
/// Scroll bars are at least so thick: the corner buttons are as high and need it for their glyphs.
constexpr int ThinnestScrollBar = 16;
/// Layers grow by so many device pixels, so that dragging the window's edge makes few new ones.
constexpr int LayerStep = 256;

int GrownTo(int pixels)
{
    return (pixels + LayerStep - 1) / LayerStep * LayerStep;
}

/// Makes the layer at least so large; its contents are lost where it grows. False if memory does
/// not allow it.
bool Fit(QImage& layer, int width, int height)
{
    constexpr std::int64_t LargestLayer = std::int64_t{1} << 29; // pixels; no screen needs more
    if (layer.width() >= width && layer.height() >= height)
        return true;
    const int wide = GrownTo(std::max(width, layer.width()));
    const int high = GrownTo(std::max(height, layer.height()));
    layer = {};
    if (std::int64_t{wide} * high <= LargestLayer)
        layer = QImage(wide, high, QImage::Format_RGB32);
    if (layer.isNull())
        return false;
    layer.fill(Qt::white);
    return true;
}

/// Only what changes: a scroll bar paints itself anew at every setting.
void Show(QScrollBar& bar, const ScrollBarState& state)
{
    bar.setEnabled(state.isEnabled);
    bar.setRange(0, std::max(0, state.maximum - state.page));
    if (const int page = std::max(state.page, 1); bar.pageStep() != page)
        bar.setPageStep(page);
    bar.setValue(state.position);
}

} // namespace

CChartWnd::CChartWnd(QWidget* parent)
    : QWidget(parent)
    , m_gauge(new CChartScaleGauge(m_model.m_gauge, this))
    , m_vertScroll(new QScrollBar(Qt::Vertical, this))
    , m_horzScroll(new QScrollBar(Qt::Horizontal, this))
{
    QFont small = font();
    small.setPixelSize(LetterSize);
    setFont(small);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAccessibleName(Text(StringId::NameChart));
    // Spelled so on purpose: names that are old are kept.
    m_vertScroll->setObjectName(QStringLiteral("IDC_VERT_SCROOL"));
    m_horzScroll->setObjectName(QStringLiteral("IDC_HORZ_SCROOL"));
    for (QScrollBar* const bar : {m_vertScroll, m_horzScroll}) {
        bar->setFocusPolicy(Qt::NoFocus);
        bar->setSingleStep(ScrollStep(false));
        connect(bar, &QScrollBar::actionTriggered, this,
                [this, bar](int action) { OnScroll(*bar, action); });
    }
    connect(m_gauge, &CChartScaleGauge::MeasureGraph, this, &CChartWnd::OnMeasureGraph,
            Qt::QueuedConnection);
    m_painter = std::make_unique<CChartPainter>(m_model, m_colours, font());
}

CChartWnd::~CChartWnd() = default;

void CChartWnd::Create(const CMeasureData& measured)
{
    m_model.Create(measured, [metrics = QFontMetrics(font())](const std::string& text) {
        return metrics.horizontalAdvance(QString::fromStdString(text));
    });
    m_model.m_unit = static_cast<DisplayUnit>(App().GetDispUnit());
    m_model.Resize(Metrics());
    m_model.RescaleAndRepaint();
    CarryOut();
}

ChartMetrics CChartWnd::Metrics() const
{
    const QFontMetrics metrics(font());
    ChartMetrics sizes;
    sizes.clientWidth = width();
    sizes.clientHeight = height();
    sizes.vertScrollWidth = std::max(ThinnestScrollBar, m_vertScroll->sizeHint().width());
    sizes.horzScrollHeight = std::max(ThinnestScrollBar, m_horzScroll->sizeHint().height());
    sizes.labelWidth = metrics.horizontalAdvance(QStringLiteral("-99.9"));
    sizes.labelHeight = metrics.height();
    return sizes;
}

void CChartWnd::PlaceChildren()
{
    const ChartMetrics sizes = Metrics();
    const int bar = sizes.horzScrollHeight;
    m_gauge->setGeometry(0, 0, sizes.gaugeWidth, std::max(0, height() - 2 * bar));
    m_vertScroll->setGeometry(width() - sizes.vertScrollWidth, 0, sizes.vertScrollWidth,
                              std::max(0, height() - bar));
    m_horzScroll->setGeometry(sizes.gaugeWidth, height() - bar,
                              std::max(0, width() - sizes.gaugeWidth - sizes.vertScrollWidth), bar);
}

void CChartWnd::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceChildren();
    m_model.Resize(Metrics());
    CarryOut();
}

void CChartWnd::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::StyleChange || !m_model.IsCreated())
        return;
    PlaceChildren();
    m_model.Resize(Metrics());
    CarryOut();
}

bool CChartWnd::FitLayers()
{
    const double ratio = devicePixelRatioF();
    const auto device = [ratio](int pixels) { return static_cast<int>(std::ceil(pixels * ratio)); };
    const int wide = device(std::max(width(), 1));
    return Fit(m_chartBitmap, wide, device(std::max(height(), 1))) &&
           Fit(m_timeBitmap, wide,
               device(std::max(TimeStripHeight, m_model.m_strip.m_timeStripHeight)));
}

/// A chart that can not be drawn is not there at all; the rest of the data view goes on.
void CChartWnd::GiveUp()
{
    m_model.Close();
    m_isPainted = false;
    m_isGivenUp = true;
    m_chartBitmap = {};
    m_timeBitmap = {};
    update();
    App().Prompts().ShowBox(this, BoxKind::Warning, Text(StringId::ChartNoMemory));
}

void CChartWnd::CarryOut()
{
    ChartWork work = std::exchange(m_model.m_work, ChartWork::None);
    if (work == ChartWork::None || !m_model.IsCreated() || width() < 1 || height() < 1)
        return;
    Show(*m_vertScroll, m_model.VertScroll());
    Show(*m_horzScroll, m_model.HorzScroll());
    if (!FitLayers()) {
        GiveUp();
        return;
    }
    if (m_layerRatio != devicePixelRatioF())
        work = ChartWork::Chart;
    TellWork(work);
    m_gauge->ShowStep();
    update(PaintedRegion());
}

/// Paints the layers and says so where that may take its time.
void CChartWnd::TellWork(ChartWork work)
{
    if (work != ChartWork::Chart || m_model.Count() < 1) {
        PaintLayers(work);
        return;
    }
    const CWaitCursor wait;
    SetStatusText(Text(StringId::MakingChart));
    PaintLayers(work);
    ResetStatus();
}

void CChartWnd::PaintLayers(ChartWork work)
{
    m_layerRatio = devicePixelRatioF();
    m_painter->SetRatio(m_layerRatio);
    if (work == ChartWork::Chart) {
        m_painter->PaintChart(m_chartBitmap);
        m_painter->DrawTimeStrip(m_timeBitmap, 0);
    } else if (work == ChartWork::EqualRun) {
        m_painter->PaintEqualRun(m_chartBitmap);
    }
    m_isPainted = true;
}

/// All but gauge and scroll bars, which know themselves when to paint.
QRegion CChartWnd::PaintedRegion() const
{
    return QRegion(rect()) - m_gauge->geometry() - m_vertScroll->geometry() -
           m_horzScroll->geometry();
}

void CChartWnd::paintEvent(QPaintEvent* /*event*/)
{
    // The window may have come to a screen of another pixel ratio.
    if (m_isPainted && m_layerRatio != devicePixelRatioF() && FitLayers())
        PaintLayers(ChartWork::Chart);
    QPainter painter(this);
    Present(painter);
}

void CChartWnd::Present(QPainter& painter)
{
    if (m_isPainted)
        PaintPicture(painter);
    else
        painter.fillRect(rect(), Qt::white);
    PaintCorners(painter);
}

void CChartWnd::PaintPicture(QPainter& painter)
{
    const ChartSizes sizes = m_model.Sizes();
    const double ratio = devicePixelRatioF();
    painter.save();
    painter.setClipRect(sizes.gaugeWidth, 0, sizes.PlotBitmapWidth(),
                        height() - sizes.horzScrollHeight);
    painter.translate(sizes.gaugeWidth, 0);
    painter.scale(1.0 / ratio, 1.0 / ratio);
    ComposeView(painter);
    painter.restore();
}

void CChartWnd::ComposeView(QPainter& painter)
{
    std::optional<std::pair<int, int>> selection;
    if (m_mouseState == MouseState::Dragging)
        selection = {m_dragStartX, m_dragX};
    m_painter->Compose(painter, m_chartBitmap, m_timeBitmap, selection);
}

void CChartWnd::PaintCorners(QPainter& painter) const
{
    const ChartSizes sizes = m_model.Sizes();
    const ColourRef face = App().m_viewBaseColour;
    const auto paint = [&painter](const std::vector<ColouredRect>& fills) {
        for (const auto& [area, colour] : fills)
            painter.fillRect(area.left, area.top, area.right - area.left, area.bottom - area.top,
                             ToColour(colour));
    };
    paint(CenterButtonFills(CenterButtonRect(sizes), m_model.CanDisplayInCenter(), face));
    paint(AllAreaButtonFills(AllAreaButtonRect(sizes), m_model.CanDisplayAllArea(), face));
    paint(BarButtonFills(BarButtonRect(sizes), m_model.m_barChart, face));
}

QAccessible::Role CChartWnd::AccessibleRole() const
{
    return QAccessible::Chart;
}

QString CChartWnd::AccessibleValue() const
{
    return CurrentLineWords(m_model);
}

void CChartWnd::ResetData()
{
    m_model.ResetData();
    CarryOut();
    AnnounceValue(this);
}

void CChartWnd::DisplayAllArea()
{
    m_model.DisplayAllArea();
    CarryOut();
}

void CChartWnd::DisplayInCenter()
{
    m_model.DisplayInCenter();
    CarryOut();
}

void CChartWnd::ChangeScaleStep(int step)
{
    m_model.ChangeScaleStep(step);
    CarryOut();
}

bool CChartWnd::ZoomInTime()
{
    const bool isDone = m_model.ZoomInTime();
    CarryOut();
    return isDone;
}

bool CChartWnd::ZoomBack()
{
    const bool isDone = m_model.ZoomBack();
    CarryOut();
    return isDone;
}

void CChartWnd::SetSeriesShown(std::uint16_t mask, bool shown)
{
    m_model.SetSeriesShown(mask, shown);
    CarryOut();
}

void CChartWnd::SetColors(const ChartColours& colours)
{
    m_colours = colours;
    m_model.Repaint();
    CarryOut();
}

void CChartWnd::SetLineWeight(int weight)
{
    m_model.SetLineWeight(weight);
    CarryOut();
}

void CChartWnd::SetElapsedAxis(bool elapsed)
{
    m_model.SetElapsedAxis(elapsed);
    CarryOut();
}

void CChartWnd::SetBarChart(bool barChart)
{
    m_model.SetBarChart(barChart);
    CarryOut();
}

void CChartWnd::SetDisplayUnit(DisplayUnit unit)
{
    m_model.SetDisplayUnit(unit);
    CarryOut();
}

} // namespace skeldon
