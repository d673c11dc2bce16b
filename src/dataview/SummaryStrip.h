#pragma once

#include "controls/AccessibleFace.h"

#include <QWidget>

namespace skeldon {

/// The strip along the bottom that tells under what conditions the shown data was measured.
class CSummaryStrip : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    explicit CSummaryStrip(QWidget* parent = nullptr);

    /// Shows a text at once.
    void SetText(const QString& text);
    [[nodiscard]] QString Shown() const { return m_text; }

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    /// The text without the blanks round it.
    [[nodiscard]] QString AccessibleValue() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};

} // namespace skeldon
