#pragma once

#include "controls/AccessibleFace.h"

#include <QWidget>

namespace skeldon {

/// The keyboard's and the screen reader's way to the bar between list and chart, over which it
/// lies: arrow keys and Page Up and Down move it, Home and End take it to its limits. The mouse
/// goes through to the view.
class CListSplitter : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    explicit CListSplitter(QWidget* parent = nullptr);

    /// Where the bar stands, and how far up and down it can go, in rows of the view.
    void SetBorder(int border, int highest, int lowest);

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    /// The row that the bar stands at.
    [[nodiscard]] QString AccessibleValue() const override;
    bool GaugeNumbers(int& present, int& smallest, int& largest) const override;

signals:
    /// The user wants the bar at this row, which may lie beyond the limits.
    void Moved(int border);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_border = 0;
    int m_highest = 0;
    int m_lowest = 0;
};

} // namespace skeldon
