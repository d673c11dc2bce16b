#include "app/PumpMessages.h"

#include "app/Frame.h"
#include "app/SkeldonApp.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace skeldon {

namespace {

/// Property of the main window: it is to be closed when the work is over.
constexpr const char* CloseWish = "closeWish";

/// Keeps back the events that would close a window.
class CCloseCatcher : public QObject
{
public:
    CCloseCatcher() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Close || !watched->isWidgetType())
            return false;
        // A dialog that the program itself closes, or that waits for its answer inside of the pump,
        // is no wish to end the program.
        const bool isInside = QThread::currentThread()->loopLevel() > m_level;
        if ((!event->spontaneous() || isInside) && watched != App().MainWindow())
            return false;
        event->ignore();
        m_caught = true;
        return true;
    }

    bool m_caught = false;

private:
    const int m_level = QThread::currentThread()->loopLevel();
};

int pumpDepth = 0;

/// Whether the work may still be under way that was so at a depth of `level` event loops.
bool IsAtWork(int level)
{
    const CFrame* const frame = App().Frame();
    return IsPumping() || QThread::currentThread()->loopLevel() > level ||
           QApplication::activeModalWidget() != nullptr ||
           (frame != nullptr && !frame->IsSystemCloseEnabled());
}

/// Closes the main window once the work is over in the middle of which that was wanted, with all
/// that it waits for and asks. `level` is the depth of event loops at which it was wanted.
void CloseBehindTheWork(QWidget* window, int level)
{
    constexpr int RetryMs = 50;
    if (IsAtWork(level)) {
        QTimer::singleShot(RetryMs, window, [window, level] { CloseBehindTheWork(window, level); });
        return;
    }
    window->setProperty(CloseWish, false);
    window->close();
}

/// One wish is as good as many.
void WantClose(QWidget* window)
{
    if (window->property(CloseWish).toBool())
        return;
    window->setProperty(CloseWish, true);
    const int level = QThread::currentThread()->loopLevel();
    QMetaObject::invokeMethod(
        window, [window, level] { CloseBehindTheWork(window, level); }, Qt::QueuedConnection);
}

} // namespace

bool PumpMessages()
{
    // A timer without a pause would never leave the queue empty.
    constexpr qint64 LongestMs = 100;
    CCloseCatcher catcher;
    QElapsedTimer pumping;
    pumping.start();
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    ++pumpDepth;
    while (dispatcher->processEvents(QEventLoop::AllEvents) && !catcher.m_caught &&
           !pumping.hasExpired(LongestMs)) {
    }
    --pumpDepth;
    QWidget* const window = App().MainWindow();
    if (window == nullptr)
        return catcher.m_caught;
    if (catcher.m_caught)
        WantClose(window);
    // Told again by each pump until it is carried out.
    return window->property(CloseWish).toBool();
}

bool IsPumping()
{
    return pumpDepth > 0;
}

} // namespace skeldon
