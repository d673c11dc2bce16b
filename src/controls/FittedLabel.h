#pragma once

#include <QLabel>

namespace skeldon {

/// One line of plain text that shows as much as there is room for: in slightly smaller letters
/// first, then with an ellipsis and the whole text in a tool tip.
class CFittedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CFittedLabel(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace skeldon
