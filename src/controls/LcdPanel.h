#pragma once

#include "controls/AccessibleFace.h"
#include "controls/LcdDigits.h"
#include "controls/LcdLayout.h"
#include "controls/Surface.h"

#include <QWidget>

#include <vector>

namespace skeldon {

/// Colours of the digits of a read-out.
enum class DigitColour
{
    Green = 0,
    Yellow = 1,
    Red = 2,
};

[[nodiscard]] QColor ToColour(DigitColour colour);

/// A small liquid crystal panel that shows one value, with its caption above. Blank at the start.
class CLcdPanel : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    explicit CLcdPanel(LcdPanelKind kind, QWidget* parent = nullptr);

    /// The words above the display; also the accessible name.
    void SetCaption(const QString& caption);
    [[nodiscard]] QString Caption() const { return m_caption; }

    /// Shows a value; a blank panel is lit again. Lamps are off for 0 and on for anything else.
    void SetValue(int value);
    [[nodiscard]] int Value() const { return m_value; }
    /// Puts the display out. The value is kept.
    void SetBlank(bool redraw = true);
    [[nodiscard]] bool IsBlank() const { return m_isBlank; }
    void SetDigitColour(DigitColour colour, bool redraw = true);
    /// What stands behind the digits: units, points, words.
    void SetDisplay(PictureId display, bool redraw = true);
    void SetTint(const Tint& tint);

    /// Colour of the background in the middle of the caption's rectangle, with the tint; known once
    /// the panel was drawn.
    [[nodiscard]] QColor CaptionBackground() const { return m_captionBackground; }

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    [[nodiscard]] QString AccessibleValue() const override;
    [[nodiscard]] QSize sizeHint() const override { return m_layout.size; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Changed(bool redraw);
    void Compose(double ratio);
    void DrawCaption();
    [[nodiscard]] std::vector<DigitCell> Cells() const;

    const LcdLayout m_layout;
    CSurface m_surface; ///< empty until it is needed
    QString m_caption;
    PictureId m_display;
    std::vector<int> m_digits;
    DigitColour m_digitColour = DigitColour::Green;
    Tint m_tint;
    QColor m_captionBackground;
    int m_value = 0;
    bool m_isBlank = true;
};

} // namespace skeldon
