#pragma once

#include "app/Colour.h"
#include "controls/AccessibleFace.h"

#include <QWidget>

namespace skeldon {

/// Shows a colour as a bar on white, as a line of the chart would look. Nothing while disabled.
class CColourSample : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    explicit CColourSample(QWidget* parent = nullptr);

    void SetColour(ColourRef colour);
    [[nodiscard]] ColourRef Colour() const { return m_colour; }
    /// Height of the bar in logical pixels, at least 1.
    void SetLineHeight(int height);

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    /// The colour as "#RRGGBB".
    [[nodiscard]] QString AccessibleValue() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ColourRef m_colour = 0;
    int m_lineHeight = 4;
};

} // namespace skeldon
