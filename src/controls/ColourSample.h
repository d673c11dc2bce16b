#pragma once

#include "app/Colour.h"
#include "controls/AccessibleFace.h"

#include <QWidget>

namespace skeldon {

/// Shows a colour as a bar on white, as high as a line of text. Nothing while disabled.
class CColourSample : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    explicit CColourSample(QWidget* parent = nullptr);

    void SetColour(ColourRef colour);
    [[nodiscard]] ColourRef Colour() const { return m_colour; }

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    /// The colour as "#RRGGBB".
    [[nodiscard]] QString AccessibleValue() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ColourRef m_colour = 0;
};

} // namespace skeldon
