#include "app/PumpMessages.h"
#include "app/WaitCursor.h"
#include "support/window/TestApp.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>

#include <atomic>
#include <chrono>
#include <semaphore>

using namespace skeldon;
using namespace Qt::StringLiterals;

namespace {

/// A window that counts what reaches it.
class CCountingWindow : public QWidget
{
public:
    CCountingWindow()
    {
        resize(200, 100);
        setFocusPolicy(Qt::StrongFocus);
    }

    int m_paints = 0;
    int m_keys = 0;
    int m_clicks = 0;
    int m_closes = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++m_paints; }
    void keyPressEvent(QKeyEvent* /*event*/) override { ++m_keys; }
    void mousePressEvent(QMouseEvent* /*event*/) override { ++m_clicks; }
    void closeEvent(QCloseEvent* event) override
    {
        ++m_closes;
        event->accept();
    }
};

using WindowSystem = QWindowSystemInterface;
using Queued = WindowSystem::AsynchronousDelivery;

/// What the user does, as it comes from the window system: into the event queue.
void PressKey(QWidget& window)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        WindowSystem::handleKeyEvent<Queued>(window.windowHandle(), type, Qt::Key_A, Qt::NoModifier,
                                             u"a"_s);
}

void Click(QWidget& window)
{
    const QPoint inside(20, 20);
    const QPoint global = window.mapToGlobal(inside);
    WindowSystem::handleMouseEvent<Queued>(window.windowHandle(), inside, global, Qt::LeftButton,
                                           Qt::LeftButton, QEvent::MouseButtonPress);
    WindowSystem::handleMouseEvent<Queued>(window.windowHandle(), inside, global, Qt::NoButton,
                                           Qt::LeftButton, QEvent::MouseButtonRelease);
}

void CloseByFrame(QWidget& window)
{
    WindowSystem::handleCloseEvent<Queued>(window.windowHandle());
}

/// Closes the window from within the program when events are next handled.
void CloseSoon(QWidget& window)
{
    QMetaObject::invokeMethod(
        &window, [&window] { window.close(); }, Qt::QueuedConnection);
}

void Soon(QObject* owner, const std::function<void()>& work)
{
    QMetaObject::invokeMethod(owner, work, Qt::QueuedConnection);
}

/// Something that work waits for and the user interface's thread brings about. Work that waits in
/// vain goes on, and `m_wasInVain` tells.
class CSign
{
public:
    void Give() { m_semaphore.release(); }
    void Await()
    {
        if (!m_semaphore.try_acquire_for(std::chrono::seconds(20)))
            m_wasInVain = true;
    }
    std::atomic<bool> m_wasInVain = false;

private:
    std::counting_semaphore<> m_semaphore{0};
};

} // namespace

class CLongWorkTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<test::CTestApp> m_app;
    std::unique_ptr<CCountingWindow> m_window;

    CConversation& Conversation() { return m_app->m_app->Conversation(); }

private slots:
    void init()
    {
        m_app = std::make_unique<test::CTestApp>();
        m_window = std::make_unique<CCountingWindow>();
        m_app->m_frame.m_window = m_window.get();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        QVERIFY(QApplication::overrideCursor() == nullptr);
        m_window.reset();
        m_app.reset();
    }

    // --- handling events in the middle of long work ---

    void PumpingWithNothingToDoIsNoWishToEnd()
    {
        PumpMessages();
        QVERIFY(!PumpMessages());
    }

    void PumpingHandlesAllThatWaits()
    {
        QStringList log;
        Soon(m_window.get(), [&] {
            log << u"first"_s;
            Soon(m_window.get(), [&log] { log << u"called by the first"_s; });
        });
        Soon(m_window.get(), [&log] { log << u"second"_s; });
        m_window->m_paints = 0;
        m_window->update();
        PressKey(*m_window);
        Click(*m_window);
        QVERIFY(!PumpMessages());
        QCOMPARE(log, QStringList({u"first"_s, u"second"_s, u"called by the first"_s}));
        QVERIFY(m_window->m_paints > 0);
        QCOMPARE(m_window->m_keys, 1);
        QCOMPARE(m_window->m_clicks, 1);
    }

    void ACloseMeanwhileIsToldAndComesAfterwards_data()
    {
        QTest::addColumn<bool>("byUser");
        QTest::newRow("by the user") << true;
        QTest::newRow("by the program") << false;
    }

    void ACloseMeanwhileIsToldAndComesAfterwards()
    {
        QFETCH(const bool, byUser);
        if (byUser)
            CloseByFrame(*m_window);
        else
            CloseSoon(*m_window);
        QVERIFY(PumpMessages());
        QCOMPARE(m_window->m_closes, 0);
        QVERIFY(m_window->isVisible());
        QTRY_COMPARE(m_window->m_closes, 1);
        QVERIFY(!m_window->isVisible());
        QVERIFY(!PumpMessages());
        QCOMPARE(m_window->m_closes, 1);
    }

    void ACloseIsToldAgainByEachPumpUntilTheWorkIsOver()
    {
        CloseByFrame(*m_window);
        QVERIFY(PumpMessages());
        QVERIFY(PumpMessages());
        QVERIFY(PumpMessages());
        QCOMPARE(m_window->m_closes, 0);
        QTRY_COMPARE(m_window->m_closes, 1);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->m_closes, 1);
    }

    void ACloseMeanwhileWaitsUntilTheWindowMayBeClosed()
    {
        m_app->m_frame.EnableSystemClose(false);
        CloseByFrame(*m_window);
        QVERIFY(PumpMessages());
        bool isEarly = true;
        QTimer::singleShot(120, m_window.get(), [this, &isEarly] {
            isEarly = m_window->m_closes > 0;
            m_app->m_frame.EnableSystemClose(true);
        });
        QTRY_COMPARE(m_window->m_closes, 1);
        QVERIFY(!isEarly);
    }

    void OutsideOfPumpsAWindowClosesAtOnce()
    {
        PumpMessages();
        m_window->close();
        QCOMPARE(m_window->m_closes, 1);
    }

    void NestedPumpsComeToTheirEnd()
    {
        QVERIFY(!IsPumping());
        bool wasPumpingInside = false;
        bool wasPumpingBehind = false;
        bool inner = true;
        Soon(m_window.get(), [&] {
            inner = PumpMessages();
            wasPumpingBehind = IsPumping();
        });
        Soon(m_window.get(), [&] { wasPumpingInside = IsPumping(); });
        QVERIFY(!PumpMessages());
        QVERIFY(!inner);
        QVERIFY(wasPumpingInside);
        QVERIFY(wasPumpingBehind);
        QVERIFY(!IsPumping());
    }

    void ACloseInANestedPumpWaitsForTheOuterOneToo()
    {
        bool inner = false;
        Soon(m_window.get(), [&] {
            CloseByFrame(*m_window);
            inner = PumpMessages();
        });
        PumpMessages();
        QVERIFY(inner);
        QCOMPARE(m_window->m_closes, 0);
        QTRY_COMPARE(m_window->m_closes, 1);
    }

    void ADialogThatTheProgramClosesIsClosed()
    {
        QDialog dialog(m_window.get());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        Soon(&dialog, [&dialog] { dialog.accept(); });
        QVERIFY(!PumpMessages());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int{QDialog::Accepted});
        QVERIFY(m_window->isVisible());
    }

    void ABoxThatIsAnsweredInAPumpIsClosed()
    {
        QMessageBox::StandardButton answer = QMessageBox::NoButton;
        Soon(m_window.get(), [&] {
            QMessageBox box(QMessageBox::Question, {}, u"?"_s, QMessageBox::Yes | QMessageBox::No,
                            m_window.get());
            QTimer::singleShot(0, &box, [&box] {
                QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
            });
            answer = static_cast<QMessageBox::StandardButton>(box.exec());
        });
        QVERIFY(!PumpMessages());
        QCOMPARE(answer, QMessageBox::No);
    }

    void ABoxCanBeLeftByItsFrameInAPump()
    {
        QMessageBox::StandardButton answer = QMessageBox::NoButton;
        Soon(m_window.get(), [&] {
            QMessageBox box(QMessageBox::Question, {}, u"?"_s,
                            QMessageBox::Yes | QMessageBox::Cancel, m_window.get());
            QTimer::singleShot(0, &box, [&box] { CloseByFrame(box); });
            answer = static_cast<QMessageBox::StandardButton>(box.exec());
        });
        QVERIFY(!PumpMessages());
        QCOMPARE(answer, QMessageBox::Cancel);
        QCOMPARE(m_window->m_closes, 0);
    }

    void ClosingAnotherWindowMeanwhileClosesTheMainWindow()
    {
        CCountingWindow other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        CloseByFrame(other);
        QVERIFY(PumpMessages());
        QCOMPARE(other.m_closes, 0);
        QVERIFY(other.isVisible());
        QTRY_COMPARE(m_window->m_closes, 1);
        QCOMPARE(other.m_closes, 0);
    }

    void ATimerWithoutPauseDoesNotHoldThePump()
    {
        QTimer timer;
        int ticks = 0;
        timer.callOnTimeout([&ticks] { ++ticks; });
        timer.start(0);
        QVERIFY(!PumpMessages());
        QVERIFY(ticks > 0);
    }

    void WithoutAMainWindowOthersCloseAsUsual()
    {
        m_app->m_frame.m_window = nullptr;
        CloseSoon(*m_window);
        QVERIFY(!PumpMessages());
        QCOMPARE(m_window->m_closes, 1);
    }

    // --- conversations beside the window ---

    void WorkBesideRunsInAnotherThreadAndIsToldInThisOne()
    {
        QThread* worker = nullptr;
        QThread* told = nullptr;
        CSign mayEnd;
        QVERIFY(Conversation().RunBeside(
            [&] {
                worker = QThread::currentThread();
                mayEnd.Await();
            },
            [&] { told = QThread::currentThread(); }));
        QVERIFY(Conversation().IsUnderWay());
        QCoreApplication::processEvents();
        QVERIFY(told == nullptr);
        mayEnd.Give();
        QTRY_VERIFY(told != nullptr);
        QVERIFY(!mayEnd.m_wasInVain);
        QCOMPARE(told, QThread::currentThread());
        QVERIFY(worker != told);
        QVERIFY(!Conversation().IsUnderWay());
    }

    void WorkThatEndsAtOnceIsToldByTheEventLoop()
    {
        CSign hasRun;
        int told = 0;
        QVERIFY(Conversation().RunBeside([&] { hasRun.Give(); }, [&] { ++told; }));
        hasRun.Await();
        QCOMPARE(told, 0);
        QVERIFY(Conversation().IsUnderWay());
        QTRY_COMPARE(told, 1);
        QCoreApplication::processEvents();
        QCOMPARE(told, 1);
        QVERIFY(!hasRun.m_wasInVain);
    }

    void TheWindowLivesWhileWorkRunsBeside()
    {
        CSign mayEnd;
        bool told = false;
        QVERIFY(Conversation().RunBeside([&] { mayEnd.Await(); }, [&] { told = true; }));
        QVERIFY(QApplication::overrideCursor() == nullptr);
        PressKey(*m_window);
        QTRY_COMPARE(m_window->m_keys, 1);
        mayEnd.Give();
        QTRY_VERIFY(told);
        QVERIFY(!mayEnd.m_wasInVain);
    }

    void ASecondConversationBesideIsRefused()
    {
        CSign mayEnd;
        std::atomic<bool> second = false;
        int told = 0;
        QVERIFY(Conversation().RunBeside([&] { mayEnd.Await(); }, [&] { told += 1; }));
        QVERIFY(!Conversation().RunBeside([&] { second = true; }, [&] { told += 100; }));
        mayEnd.Give();
        QTRY_COMPARE(told, 1);
        QVERIFY(!second);
        QVERIFY(Conversation().RunBeside([&] { second = true; }, [&] { told += 100; }));
        QTRY_COMPARE(told, 101);
        QVERIFY(second);
    }

    void TheEndOfOneMayBeginTheNext()
    {
        QStringList log;
        QVERIFY(Conversation().RunBeside([] {},
                                         [&] {
                                             log << u"first"_s;
                                             log << (Conversation().RunBeside(
                                                         [] {}, [&log] { log << u"second"_s; })
                                                         ? u"begun"_s
                                                         : u"refused"_s);
                                         }));
        QTRY_COMPARE(log, QStringList({u"first"_s, u"begun"_s, u"second"_s}));
    }

    void AConversationThatIsDroppedIsWaitedForAndNotTold()
    {
        std::atomic<bool> hasEnded = false;
        bool told = false;
        CSign isRunning;
        {
            CConversation own;
            QVERIFY(own.RunBeside(
                [&] {
                    isRunning.Give();
                    QThread::msleep(30);
                    hasEnded = true;
                },
                [&] { told = true; }));
            isRunning.Await();
        }
        QVERIFY(hasEnded);
        QCoreApplication::processEvents();
        QVERIFY(!told);
    }

    // --- conversations that the window waits for ---

    void RunGivesBackWhenTheWorkIsDone()
    {
        QThread* worker = nullptr;
        Conversation().Run([&] { worker = QThread::currentThread(); });
        QVERIFY(worker != nullptr);
        QVERIFY(worker != QThread::currentThread());
        QVERIFY(!Conversation().IsUnderWay());
    }

    void WindowsPaintWhileRunWaits()
    {
        CSign painted;
        QTimer timer;
        timer.callOnTimeout([&] {
            m_window->update();
            if (m_window->m_paints >= 3)
                painted.Give();
        });
        timer.start(1);
        m_window->m_paints = 0;
        // The work ends only when the window was painted while it ran.
        Conversation().Run([&] { painted.Await(); });
        QVERIFY(!painted.m_wasInVain);
    }

    void KeysAndTheMouseWaitForTheEndOfRun()
    {
        CSign mayEnd;
        int rounds = 0;
        QTimer timer;
        timer.callOnTimeout([&] {
            ++rounds;
            if (rounds == 1) {
                PressKey(*m_window);
                Click(*m_window);
                CloseByFrame(*m_window);
            }
            if (rounds == 10)
                mayEnd.Give();
        });
        timer.start(1);
        Conversation().Run([&] { mayEnd.Await(); });
        timer.stop();
        QVERIFY(!mayEnd.m_wasInVain);
        QCOMPARE(m_window->m_keys, 0);
        QCOMPARE(m_window->m_clicks, 0);
        QCOMPARE(m_window->m_closes, 0);
        QTRY_COMPARE(m_window->m_keys, 1);
        QTRY_COMPARE(m_window->m_clicks, 1);
        QTRY_COMPARE(m_window->m_closes, 1);
    }

    void RunShowsTheWaitCursor()
    {
        CSign seen;
        Qt::CursorShape shape = Qt::ArrowCursor;
        QTimer::singleShot(0, m_window.get(), [&] {
            if (QApplication::overrideCursor() != nullptr)
                shape = QApplication::overrideCursor()->shape();
            seen.Give();
        });
        Conversation().Run([&] { seen.Await(); });
        QCOMPARE(shape, Qt::WaitCursor);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void RunWaitsForWhatRunsBeside()
    {
        CSign mayEnd;
        std::atomic<bool> first = false;
        QStringList log;
        QVERIFY(Conversation().RunBeside(
            [&] {
                mayEnd.Await();
                first = true;
            },
            [&] { log << u"told"_s; }));
        QTimer::singleShot(5, m_window.get(), [&] { mayEnd.Give(); });
        bool firstHadEnded = false;
        Conversation().Run([&] { firstHadEnded = first; });
        log << u"done"_s;
        QVERIFY(firstHadEnded);
        QCOMPARE(log, QStringList({u"told"_s, u"done"_s}));
    }

    void TheLinkIsGivenOutWhenNobodyTalks()
    {
        CSign mayEnd;
        bool told = false;
        QVERIFY(Conversation().RunBeside([&] { mayEnd.Await(); }, [&] { told = true; }));
        QTimer::singleShot(5, m_window.get(), [&] { mayEnd.Give(); });
        QCOMPARE(&m_app->m_app->Link(), &m_app->m_app->m_link);
        QVERIFY(told);
        QVERIFY(!Conversation().IsUnderWay());
    }

    void SettlingWaitsForWhatTheEndBegins()
    {
        bool second = false;
        QVERIFY(Conversation().RunBeside(
            [] {},
            [&] { Conversation().RunBeside([] { QThread::msleep(5); }, [&] { second = true; }); }));
        Conversation().Settle();
        QVERIFY(second);
        QVERIFY(!Conversation().IsUnderWay());
    }

    void SettlingWithNothingUnderWayIsAtOnce()
    {
        bool handled = false;
        Soon(m_window.get(), [&] { handled = true; });
        Conversation().Settle();
        QVERIFY(!handled);
        QTRY_VERIFY(handled);
    }

    void ARunFromWithinARunIsBehindItAndBothEnd()
    {
        std::atomic<int> atWork = 0;
        std::atomic<int> most = 0;
        const auto work = [&] {
            const int now = ++atWork;
            most = std::max(most.load(), now);
            QThread::msleep(10);
            --atWork;
        };
        CSign begun;
        QStringList log;
        QTimer::singleShot(0, m_window.get(), [&] {
            begun.Give();
            Conversation().Run(work);
            log << u"inner"_s;
        });
        Conversation().Run([&] {
            begun.Await();
            work();
        });
        log << u"outer"_s;
        QVERIFY(!begun.m_wasInVain);
        QCOMPARE(log, QStringList({u"inner"_s, u"outer"_s}));
        QCOMPARE(most, 1);
        QVERIFY(!Conversation().IsUnderWay());
    }

    void ATickDuringRunIsRefused()
    {
        CSign ticked;
        bool wasBegun = true;
        QTimer::singleShot(0, m_window.get(), [&] {
            wasBegun = Conversation().RunBeside([] {}, [] {});
            ticked.Give();
        });
        Conversation().Run([&] { ticked.Await(); });
        QVERIFY(!ticked.m_wasInVain);
        QVERIFY(!wasBegun);
    }

    void WaitCursorsNest()
    {
        {
            const CWaitCursor outer;
            {
                const CWaitCursor inner;
            }
            QVERIFY(QApplication::overrideCursor() != nullptr);
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        }
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }
};

QTEST_MAIN(CLongWorkTest)
#include "LongWorkTest.moc"
