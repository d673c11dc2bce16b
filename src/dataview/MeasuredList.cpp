#include "dataview/MeasuredList.h"

#include "app/PumpMessages.h"
#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "controls/PixelLine.h"
#include "controls/Theme.h"
#include "dataview/ListPage.h"
#include "dataview/MeasuredListModel.h"
#include "resources/StringTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionHeader>

#include <algorithm>
#include <limits>

namespace skeldon {

namespace {

/// Height of a line of text; its letters are one smaller.
constexpr int FontHeight = 12;
constexpr int LetterSize = 11;
constexpr int RowHeight = FontHeight + 4;
constexpr int PrintWidthInFontHeights = 53;
constexpr int HeaderRows = 3;

constexpr ColourRef FlaggedBack = 0xA0A0B0;
constexpr ColourRef SelectedBack = 0x800000;
constexpr ColourRef NumberGrid = 0x808080;
constexpr ColourRef Grid = 0xC0C0C0;

QString WidthKey(int column)
{
    return QStringLiteral("ClmnWidth%1").arg(column);
}

/// Titles that are cut show so: the toolkit's header measures them against its own whole width. Its
/// height is that of one line, so that no title is measured for it.
class CListHeader final : public QHeaderView
{
public:
    explicit CListHeader(QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent)
    {}

    [[nodiscard]] QSize sizeHint() const override
    {
        const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
        return {length(), fontMetrics().height() + 2 * margin};
    }

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override
    {
        QHeaderView::initStyleOptionForIndex(option, logicalIndex);
        const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
        option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                      sectionSize(logicalIndex) - 2 * margin);
    }
};

} // namespace

CMeasuredList::CMeasuredList(QWidget* parent)
    : QTableView(parent)
    , m_model(new CMeasuredListModel(this))
{
    QFont summary = font();
    summary.setPixelSize(LetterSize);
    setFont(summary);
    SinkIntoForm(*this);
    setAccessibleName(Text(StringId::NameMeasuredList));
    m_model->SetTextSource([this](std::size_t row, ListColumn column) {
        return m_pData != nullptr && row < m_pData->GetSize()
                   ? m_text.CellText(*m_pData, row, column)
                   : QString();
    });
    setHorizontalHeader(new CListHeader(this));
    setModel(m_model);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setContextMenuPolicy(Qt::NoContextMenu);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(RowHeight);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    // A million cells must not be asked for their texts to find the width of one.
    horizontalHeader()->setResizeContentsPrecision(0);
}

void CMeasuredList::Setup(const CMeasureData& measured)
{
    m_pData = &measured;
    ReadColumnWidths();
    m_bCreated = true;
}

void CMeasuredList::ReadColumnWidths()
{
    for (int i = 0; i < ListColumnCount; ++i) {
        const auto column = static_cast<ListColumn>(i);
        const int usual = DefaultColumnWidth(column);
        const int stored = App().m_ctrlAtStart
                               ? usual
                               : App().Settings().GetInt(SystemSection, WidthKey(i), usual);
        setColumnWidth(i, UsableColumnWidth(column, stored));
    }
}

void CMeasuredList::SaveColumnWidths()
{
    if (!m_bCreated)
        return;
    for (int i = 0; i < ListColumnCount; ++i)
        App().Settings().WriteInt(SystemSection, WidthKey(i), columnWidth(i));
}

ListPrintMetrics CMeasuredList::GetPrintMetrics() const
{
    return {PrintWidthInFontHeights * FontHeight, RowHeight, HeaderRows * RowHeight};
}

void CMeasuredList::PrintPage(QPainter& device, const ListPage& page)
{
    if (m_pData != nullptr)
        PaintListPage(device, page, *m_pData, m_text, font(), RowHeight);
}

int CMeasuredList::CountRows() const
{
    const auto isShown = [](const CMeasureRecord& record) {
        return !record.HasFlag(RecordFlag::Deleted);
    };
    const auto count = std::ranges::count_if(m_pData->Records(), isShown);
    return static_cast<int>(
        std::min<std::ptrdiff_t>(count, std::numeric_limits<int>::max() / RowHeight));
}

void CMeasuredList::Rebuild()
{
    m_bFilling = true;
    SetStatusText(Text(StringId::MakingLists));
    m_text = CListText(App().GetDispUnit());
    m_model->SetRowCount(m_pData != nullptr ? CountRows() : 0);
    scrollToTop();
    PumpMessages();
    SetCurrentRow(-1);
    ResetStatus();
    m_bFilling = false;
}

void CMeasuredList::OnUnitChanged()
{
    const CWaitCursor wait;
    m_text = CListText(App().GetDispUnit());
    viewport()->update();
}

void CMeasuredList::SetCurrentRow(int row)
{
    m_nCurrentRow = row;
    emit MeasureGraph(MeasureGraphCode::CurrentLine, row);
}

void CMeasuredList::OnMeasureGraph(MeasureGraphCode code, int argument)
{
    const QModelIndex index = m_model->index(argument, 0);
    if (!index.isValid())
        return;
    if (code == MeasureGraphCode::CurrentLine)
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    if (code == MeasureGraphCode::CurrentLine || code == MeasureGraphCode::Marks ||
        code == MeasureGraphCode::MarksToo) {
        viewport()->update(0, rowViewportPosition(argument), viewport()->width(), RowHeight);
        scrollTo(index);
    }
}

void CMeasuredList::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const int sideways = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(sideways);
}

void CMeasuredList::StepSideways(QAbstractSlider::SliderAction step)
{
    horizontalScrollBar()->triggerAction(step);
}

QModelIndex CMeasuredList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // The keys go from row to row, never from cell to cell.
    switch (action) {
    case MoveHome:
        return m_model->index(0, 0);
    case MoveEnd:
        return m_model->index(m_model->rowCount() - 1, 0);
    case MoveLeft:
        StepSideways(QAbstractSlider::SliderSingleStepSub);
        return currentIndex();
    case MoveRight:
        StepSideways(QAbstractSlider::SliderSingleStepAdd);
        return currentIndex();
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void CMeasuredList::focusInEvent(QFocusEvent* event)
{
    if (currentIndex().isValid()) {
        QTableView::focusInEvent(event);
        return;
    }
    // No row becomes the current one just because the list is entered.
    event->accept();
    viewport()->update();
}

void CMeasuredList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QTableView::mousePressEvent(event);
        return;
    }
    // The right button moves the focus alone: what is selected stays.
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid())
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void CMeasuredList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    viewport()->update(); // the lines round the row with the focus span all its cells
    if (current.row() == previous.row())
        return;
    if (previous.isValid())
        SetCurrentRow(-1);
    if (current.isValid())
        SetCurrentRow(current.row());
}

void CMeasuredList::keyPressEvent(QKeyEvent* event)
{
    // Cells hold no text that could be copied: what is on the clipboard stays there.
    if (event->matches(QKeySequence::Copy)) {
        event->ignore();
        return;
    }
    QTableView::keyPressEvent(event);
}

void CMeasuredList::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Qt::white);
    if (m_pData == nullptr || m_pData->IsEmpty() || m_model->rowCount() == 0)
        return;
    painter.setFont(font());
    const int top = rowAt(event->rect().top());
    const int bottom = rowAt(event->rect().bottom());
    const int last = bottom >= 0 ? bottom : m_model->rowCount() - 1;
    for (int row = std::max(top, 0); row <= last; ++row)
        PaintRow(painter, row, {0, rowViewportPosition(row), viewport()->width(), RowHeight});
}

void CMeasuredList::PaintRow(QPainter& painter, int row, const QRect& rect)
{
    const auto record = static_cast<std::size_t>(row);
    if (record >= m_pData->GetSize())
        return;
    const bool isSelected = selectionModel()->isRowSelected(row);
    for (int i = 0; i < ListColumnCount; ++i) {
        const QRect cell(columnViewportPosition(i), rect.top(), columnWidth(i), rect.height());
        PaintCell(painter, cell, record, static_cast<ListColumn>(i), isSelected);
    }
    if (currentIndex().row() == row) {
        const int last = ListColumnCount - 1;
        const int left = columnViewportPosition(0);
        const int right = columnViewportPosition(last) + columnWidth(last);
        PaintFocus(painter, {left, rect.top(), right - left, rect.height()});
    }
}

void CMeasuredList::PaintCell(QPainter& painter, const QRect& rect, std::size_t record,
                              ListColumn column, bool isSelected)
{
    constexpr int TextInset = 2;
    constexpr std::uint16_t Flagged = RecordFlag::Abnormal | RecordFlag::Deleted;
    const bool isNumber = column == ListColumn::Number;
    const bool isDark = isSelected && !isNumber;
    QColor back = isDark ? ToColour(SelectedBack) : QColor(Qt::white);
    if (isNumber)
        back = ToColour(m_pData->Records()[record].HasFlag(Flagged) ? FlaggedBack
                                                                    : App().m_viewBaseColour);
    painter.fillRect(rect, back);
    const QColor grid = ToColour(isNumber ? NumberGrid : Grid);
    FillLine(painter, {rect.left(), rect.bottom() - 1, rect.width(), 1}, grid);
    FillLine(painter, {rect.right() - 1, rect.top(), 1, rect.height()}, grid);
    painter.setPen(isDark ? Qt::white : Qt::black);
    painter.drawText(rect.adjusted(TextInset, 0, 0, 0),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                     m_text.CellText(*m_pData, record, column));
}

void CMeasuredList::PaintFocus(QPainter& painter, const QRect& row)
{
    // Inverted lines on three sides, whatever lies under them.
    const int width = row.width();
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    FillLine(painter, {row.left(), row.top(), width - 2, 1}, Qt::white);
    FillLine(painter, {row.left(), row.top() + row.height() - 3, width - 2, 1}, Qt::white);
    FillLine(painter, {row.left() + width - 3, row.top() + 1, 1, row.height() - 4}, Qt::white);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace skeldon
