#pragma once

#include "app/MeasureGraph.h"
#include "data/MeasureData.h"
#include "dataview/ListText.h"

#include <QTableView>

#include <cstddef>

namespace skeldon {

class CMeasuredListModel;
struct ListPage;

/// Sizes of a printed list in the units of its font.
struct ListPrintMetrics
{
    int rowWidth = 0;
    int rowHeight = 0;
    int headerHeight = 0;
};

/// Shows every record of a data set as one row above the chart. The focused row and the chart's
/// cursor are the same thing. A record that is flagged as deleted has no row, while rows are
/// painted from the record of their own number: behind such a record rows show their neighbours,
/// as users of these recorders know it.
class CMeasuredList : public QTableView
{
    Q_OBJECT

public:
    explicit CMeasuredList(QWidget* parent = nullptr);

    /// Ties the list to the data set, which must outlive it, and gives the columns their widths:
    /// those of the last time, unless Ctrl was held when the program started.
    void Setup(const CMeasureData& measured);
    /// Fills the list from the data set.
    void Rebuild();
    /// Shows the accelerations in the unit that now holds.
    void OnUnitChanged();
    /// Takes `row`, -1 for none, as the current one and announces it.
    void SetCurrentRow(int row);
    void SaveColumnWidths();
    [[nodiscard]] ListPrintMetrics GetPrintMetrics() const;
    /// Draws a page of the list from the device's left top on.
    void PrintPage(QPainter& device, const ListPage& page);
    /// What the chart has to say.
    void OnMeasureGraph(MeasureGraphCode code, int argument);

    [[nodiscard]] bool IsFilling() const { return m_bFilling; }
    [[nodiscard]] int CurrentRow() const { return m_nCurrentRow; }

    /// Up or down only: a row is never brought into view sideways.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    /// Rows hold no text that typed letters could find.
    void keyboardSearch(const QString& /*search*/) override {}

signals:
    /// `code` is always `CurrentLine`.
    void MeasureGraph(skeldon::MeasureGraphCode code, int argument);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    [[nodiscard]] QModelIndex moveCursor(CursorAction action,
                                         Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void ReadColumnWidths();
    void StepSideways(QAbstractSlider::SliderAction step);
    [[nodiscard]] int CountRows() const;
    void PaintRow(QPainter& painter, int row, const QRect& rect);
    void PaintCell(QPainter& painter, const QRect& rect, std::size_t record, ListColumn column,
                   bool isSelected);
    static void PaintFocus(QPainter& painter, const QRect& row);

    bool m_bCreated = false;
    const CMeasureData* m_pData = nullptr;
    CMeasuredListModel* m_model;
    int m_nCurrentRow = -1;
    bool m_bFilling = false;
    CListText m_text;
};

} // namespace skeldon
