#pragma once

#include <QEvent>
#include <QWidget>

namespace skeldon::test {

/// Counts the paint events of a widget.
class CPaintCounter : public QObject
{
public:
    explicit CPaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_count;
        return false;
    }

    int m_count = 0;
};

} // namespace skeldon::test
