#pragma once

#include "controls/AccessibleFace.h"

#include <QWidget>

namespace skeldon {

/// A number, or its unit, on the glass of the online recording window.
class COnlineCounter : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    COnlineCounter(Qt::Alignment alignment, QWidget* parent);

    void SetText(const QString& text);
    [[nodiscard]] QString GetText() const { return m_text; }

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    [[nodiscard]] QString AccessibleValue() const override { return m_text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Alignment m_alignment;
    QString m_text;
};

} // namespace skeldon
