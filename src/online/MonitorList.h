#pragma once

#include <QListView>

namespace skeldon {

class CMonitorModel;

/// Shows lines of text, only that: there is nothing to select. A list to screen readers; all layout
/// is its own, so that whatever it does takes time for the rows in sight alone.
class CMonitorList : public QListView
{
    Q_OBJECT

public:
    explicit CMonitorList(QWidget* parent = nullptr);

    /// The lines to show, which must outlive the list.
    void SetLines(CMonitorModel& lines);
    /// Whole rows that fit into the window.
    [[nodiscard]] int VisibleLines() const;
    /// Brings the last line to the bottom where there are enough to fill the window.
    void ScrollToEnd();

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;

    [[nodiscard]] QModelIndex moveCursor(CursorAction action,
                                         Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    [[nodiscard]] int RowHeight() const;
    [[nodiscard]] int ColumnWidth() const;

    CMonitorModel* m_lines = nullptr;
};

} // namespace skeldon
