#include "app/PumpMessages.h"

#include "app/SkeldonApp.h"

#include <QApplication>
#include <QCloseEvent>
#include <QWidget>

namespace skeldon {

namespace {

/// Keeps back the events that would close a window.
class CCloseCatcher : public QObject
{
public:
    CCloseCatcher() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Close || !watched->isWidgetType())
            return false;
        // A dialog that the program itself closes is none of the user's wishes.
        if (!event->spontaneous() && watched != App().MainWindow())
            return false;
        event->ignore();
        m_caught = true;
        return true;
    }

    bool m_caught = false;
};

int pumpDepth = 0;

} // namespace

bool PumpMessages()
{
    CCloseCatcher catcher;
    ++pumpDepth;
    QCoreApplication::processEvents();
    --pumpDepth;
    QWidget* const window = App().MainWindow();
    if (catcher.m_caught && window != nullptr)
        QMetaObject::invokeMethod(window, &QWidget::close, Qt::QueuedConnection);
    return catcher.m_caught;
}

bool IsPumping()
{
    return pumpDepth > 0;
}

} // namespace skeldon
