#pragma once

#include "controls/ButtonFace.h"
#include "controls/Surface.h"

#include <QAbstractButton>

#include <array>
#include <optional>

namespace skeldon {

/// A push button drawn from a strip of six faces. Its owner decides when it is engaged: a click
/// changes nothing by itself. Works with the mouse, Space and Enter; has no mnemonic.
class CSkinButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit CSkinButton(QWidget* parent = nullptr);

    /// A button with a picture, 16 x 16, left of its caption; `height` is that of a face.
    void SetUpPicture(PictureId overlay, int height = ButtonFaceHeight);
    /// A button with a shape in the colour of a channel.
    void SetUpSwatch(PictureId overlay, bool isCentred, int height = ButtonFaceHeight);
    /// A button with nothing but its caption.
    void SetUpPlain(int height = ButtonFaceHeight);

    /// The text on the button; it is also its accessible name. A button without one should be given
    /// a name.
    void SetCaption(const QString& caption);
    /// What a button is called that shows only a picture: accessible name and tool tip.
    void SetName(const QString& name);

    /// Engages or releases the button.
    void SetPressed(bool isPressed);
    [[nodiscard]] bool IsPressed() const { return isChecked(); }
    void SetOverlay(PictureId overlay);
    void SetSwatchColour(ColourRef colour);
    void SetTint(const Tint& tint);
    /// Moves the button; `width` in logical pixels, at least 40.
    void Move(int x, int y, int width);

    /// The face that would be drawn now.
    [[nodiscard]] ButtonFace Face() const;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void nextCheckState() override {}
    bool focusNextPrevChild(bool next) override;

private:
    void SetUp(std::optional<PictureId> overlay, bool isSwatch, bool isCentred, int height);
    void DropStrip();
    void BuildStrip(double ratio);
    void DrawOverlay(CSurface& face, ButtonFace which);
    void DrawCaption(QPainter& painter, ButtonFace which) const;
    [[nodiscard]] OverlayPlace Place() const;

    std::array<CSurface, ButtonFaceCount> m_strip; ///< empty until it is needed
    std::array<QColor, ButtonFaceCount> m_inks;
    std::optional<PictureId> m_overlay;
    int m_height = ButtonFaceHeight;
    bool m_isSwatch = false;
    ColourRef m_swatchColour = 255;
    Tint m_tint;
    bool m_isCentred = false;
    int m_overlayX = 10;
};

} // namespace skeldon
