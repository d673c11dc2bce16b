#include "online/MonitorList.h"

#include "online/MonitorModel.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <limits>

namespace skeldon {

namespace {

/// Free space left of the lines.
constexpr int TextX = 2;

} // namespace

CMonitorList::CMonitorList(QWidget* parent)
    : QListView(parent)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
}

void CMonitorList::SetLines(CMonitorModel& lines)
{
    m_lines = &lines;
    setModel(&lines);
}

int CMonitorList::RowHeight() const
{
    return std::max(fontMetrics().height(), 1);
}

int CMonitorList::ColumnWidth() const
{
    return std::max(fontMetrics().averageCharWidth(), 1);
}

int CMonitorList::VisibleLines() const
{
    return viewport()->height() / RowHeight();
}

void CMonitorList::ScrollToEnd()
{
    updateGeometries();
    if (m_lines->rowCount() >= VisibleLines())
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void CMonitorList::doItemsLayout()
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the base class would lay out every line.
    QAbstractItemView::doItemsLayout();
}

void CMonitorList::updateGeometries()
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): likewise.
    QAbstractItemView::updateGeometries();
    if (m_lines == nullptr)
        return;
    const int rows = m_lines->rowCount();
    QScrollBar& down = *verticalScrollBar();
    const bool isAtEnd = down.value() == down.maximum();
    down.setPageStep(std::max(VisibleLines(), 1));
    down.setRange(0, std::max(rows - VisibleLines(), 0));
    // Where the horizontal bar takes the room of a line, the last one stays in sight.
    if (isAtEnd)
        down.setValue(down.maximum());
    constexpr std::size_t Widest = std::numeric_limits<int>::max() / 256;
    const auto columns = static_cast<int>(std::min(m_lines->Lines().LongestLine(), Widest));
    const int width = TextX + columns * ColumnWidth();
    horizontalScrollBar()->setSingleStep(ColumnWidth());
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(width - viewport()->width(), 0));
}

void CMonitorList::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
}

void CMonitorList::resizeEvent(QResizeEvent* event)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): likewise.
    QAbstractItemView::resizeEvent(event);
    updateGeometries();
}

void CMonitorList::changeEvent(QEvent* event)
{
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometries();
}

void CMonitorList::paintEvent(QPaintEvent* event)
{
    if (m_lines == nullptr)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const int height = RowHeight();
    const int first = verticalOffset();
    const int top = event->rect().top() / height;
    const int bottom = std::min(event->rect().bottom() / height, m_lines->rowCount() - 1 - first);
    // Of a line without end only the part in sight is laid out.
    const int column = horizontalOffset() / ColumnWidth();
    const int columns = viewport()->width() / ColumnWidth() + 2;
    const int x = TextX + column * ColumnWidth() - horizontalOffset();
    for (int row = top; row <= bottom; ++row) {
        const QString text = m_lines->TextOf(first + row, static_cast<std::size_t>(column),
                                             static_cast<std::size_t>(columns));
        painter.drawText(QRect(x, row * height, viewport()->width() + ColumnWidth(), height),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                         text);
    }
}

void CMonitorList::keyPressEvent(QKeyEvent* event)
{
    const auto scroll = [event](QScrollBar* bar, QAbstractSlider::SliderAction action) {
        bar->triggerAction(action);
        event->accept();
    };
    switch (event->key()) {
    case Qt::Key_Up:
        return scroll(verticalScrollBar(), QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
        return scroll(verticalScrollBar(), QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_PageUp:
        return scroll(verticalScrollBar(), QAbstractSlider::SliderPageStepSub);
    case Qt::Key_PageDown:
        return scroll(verticalScrollBar(), QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_Home:
        return scroll(verticalScrollBar(), QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
        return scroll(verticalScrollBar(), QAbstractSlider::SliderToMaximum);
    case Qt::Key_Left:
        return scroll(horizontalScrollBar(), QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Right:
        return scroll(horizontalScrollBar(), QAbstractSlider::SliderSingleStepAdd);
    default:
        event->ignore();
    }
}

QRect CMonitorList::visualRect(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    return {-horizontalOffset(), (index.row() - verticalOffset()) * RowHeight(),
            viewport()->width() + horizontalOffset(), RowHeight()};
}

void CMonitorList::scrollTo(const QModelIndex& index, ScrollHint /*hint*/)
{
    const int row = index.row();
    if (row < verticalOffset())
        verticalScrollBar()->setValue(row);
    else if (row >= verticalOffset() + VisibleLines())
        verticalScrollBar()->setValue(row - VisibleLines() + 1);
}

QModelIndex CMonitorList::indexAt(const QPoint& point) const
{
    const int row = verticalOffset() + point.y() / RowHeight();
    return m_lines != nullptr && point.y() >= 0 ? m_lines->index(row) : QModelIndex();
}

QModelIndex CMonitorList::moveCursor(CursorAction /*action*/, Qt::KeyboardModifiers /*modifiers*/)
{
    return {};
}

int CMonitorList::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int CMonitorList::verticalOffset() const
{
    return verticalScrollBar()->value();
}

void CMonitorList::setSelection(const QRect& /*rect*/,
                                QItemSelectionModel::SelectionFlags /*command*/)
{}

QRegion CMonitorList::visualRegionForSelection(const QItemSelection& /*selection*/) const
{
    return {};
}

} // namespace skeldon
