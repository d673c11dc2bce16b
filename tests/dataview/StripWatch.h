#pragma once

#include "controls/ProgressWindow.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

namespace skeldon::test {

/// Looks at the progress strip when the windows are let breathe behind a change of its picture, and
/// now and then while it stands.
class CStripWatch : public QObject
{
public:
    CStripWatch()
    {
        constexpr int PauseMs = 10;
        m_timer.callOnTimeout(this, [this] { Look(); });
        m_timer.start(PauseMs);
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A look may paint the strip itself.
        if (event->type() == QEvent::Paint && !m_isLooking &&
            qobject_cast<CProgressWindow*>(watched) != nullptr)
            QMetaObject::invokeMethod(
                this, [this] { Look(); }, Qt::QueuedConnection);
        return false;
    }

    std::function<void(CProgressWindow&)> m_look; ///< called at every look
    std::vector<int> m_positions;                 ///< of the gauge, each once
    int m_looks = 0;

private:
    void Look()
    {
        auto* const strip = qobject_cast<CProgressWindow*>(QApplication::activeModalWidget());
        if (strip == nullptr || std::exchange(m_isLooking, true))
            return;
        ++m_looks;
        if (m_positions.empty() || m_positions.back() != strip->Position())
            m_positions.push_back(strip->Position());
        if (m_look)
            m_look(*strip);
        m_isLooking = false;
    }

    QTimer m_timer;
    bool m_isLooking = false;
};

} // namespace skeldon::test
