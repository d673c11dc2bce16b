#pragma once

#include "controls/AboutFade.h"

#include <QDialog>
#include <QTimer>

#include <functional>

namespace skeldon {

/// What tells the program's version: a picture over which a panel with two lines fades in and, at a
/// press of the mouse, Space or Enter, out again. Escape closes it at once.
class CAboutBox : public QDialog
{
    Q_OBJECT

public:
    /// How long to wait really where `DelayMs` milliseconds are stated.
    using Pace = std::function<int(int delayMs)>;

    explicit CAboutBox(QWidget* parent = nullptr, Pace pace = {});

    [[nodiscard]] const CAboutFade& Fade() const { return m_fade; }
    /// The two lines on the panel.
    [[nodiscard]] QStringList Lines() const;
    /// Where the panel stands, in logical pixels.
    [[nodiscard]] QRect PanelArea() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OnTick();
    void OnPress(bool isDoubleClick);
    /// Waits for the next tick, or closes the box.
    void GoOn();
    [[nodiscard]] QImage PanelImage(double ratio) const;

    CAboutFade m_fade;
    Pace m_pace;
    QTimer m_timer;
};

} // namespace skeldon
