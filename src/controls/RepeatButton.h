#pragma once

#include "controls/RepeatSteps.h"
#include "resources/Pictures.h"

#include <QAbstractButton>
#include <QTimer>

namespace skeldon {

/// A small button that goes on giving steps while it is held down by the mouse or Space: the first
/// after 500 ms, then ten a second. A short click, or Enter, is one step.
class CRepeatButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// Shows one picture when at rest and another one when held down.
    CRepeatButton(PictureId picture, PictureId pushedPicture, QWidget* parent = nullptr);

    void SetRepeat(bool repeats) { m_steps.m_repeats = repeats; }
    /// After ten steps at the usual pace a step comes every 10 ms, until the button is let go.
    void SetSpeedUp(bool speedsUp) { m_steps.m_speedsUp = speedsUp; }
    /// Accessible name and tool tip.
    void SetName(const QString& name);

    [[nodiscard]] QSize sizeHint() const override { return PictureSize(m_picture); }

    QTimer m_timer; ///< runs while the button is held down

signals:
    /// One step. Those of the timer are posted, that of a click is sent.
    void Stepped();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Hold();
    void LetGo();
    void OnTick();
    void OnClicked();

    PictureId m_picture;
    PictureId m_pushedPicture;
    CRepeatSteps m_steps;
};

} // namespace skeldon
