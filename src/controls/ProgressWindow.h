#pragma once

#include "controls/AccessibleFace.h"
#include "controls/ProgressGauge.h"
#include "controls/Surface.h"

#include <QBasicTimer>
#include <QDialog>

#include <span>

namespace skeldon {

/// A modal strip with a gauge and a line of text over it. It does no work and has no buttons: 100
/// ms after it has appeared it asks its owner to do the work, by `ProgressMessage`, and closes
/// itself when the owner comes back. Nobody else can close it. `exec` always gives
/// `QDialog::Rejected`.
///
/// The owner moves the gauge and lets the windows breathe while it works.
class CProgressWindow : public QDialog, public CAccessibleFace
{
    Q_OBJECT

public:
    /// What the message asks for.
    static constexpr int StartWork = 1;

    /// A strip of `width` logical pixels, at least 36, in the middle of its owner.
    explicit CProgressWindow(QWidget* owner, int width = 400);

    /// The value of a full gauge; a negative one counts as its absolute value.
    void SetRange(int range);
    /// The present value; its absolute value, at most the range. Costs next to nothing where the
    /// picture stays as it is.
    void SetPosition(int position);
    void SetTextColor(ColourRef colour, bool repaint);
    void SetText(const QString& text, bool repaint = true);
    [[nodiscard]] QString GetText() const { return m_text; }
    /// Copies the text, cut to the buffer and closed by a zero. Gives the number of characters
    /// before the zero.
    std::size_t GetText(std::span<char16_t> buffer) const;

    [[nodiscard]] int Range() const { return m_gauge.range; }
    [[nodiscard]] int Position() const { return m_gauge.position; }

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    [[nodiscard]] QString AccessibleValue() const override;
    bool GaugeNumbers(int& present, int& smallest, int& largest) const override;

    void reject() override;

signals:
    /// Sent, not posted: the whole work lies within this call. `code` is `StartWork`.
    void ProgressMessage(int code, skeldon::CProgressWindow* window);

protected:
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private slots:
    /// Does the work and closes the strip.
    void OnStart();

private:
    /// All that the picture depends on.
    struct Face
    {
        int filled = 0; ///< device columns
        QString text;
        ColourRef colour = 0;
        QSize size;
        double ratio = 0;
        QFont font;

        friend bool operator==(const Face&, const Face&) = default;
    };

    [[nodiscard]] Face PresentFace() const;
    /// Puts the present state on the screen if it looks different.
    void Recompose();
    void Compose(const Face& face);
    void DrawText(const Face& face);

    CSurface m_picture; ///< the composed strip
    Face m_drawn;
    QString m_text;
    ColourRef m_textColor = 0x800000;
    ProgressGauge m_gauge;
    QBasicTimer m_timer;
    bool m_isDone = false;
};

} // namespace skeldon
