#include "support/window/TestApp.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include <future>

using namespace skeldon;
using namespace skeldon::test;

/// Conversations with the recorder beside the window's thread.
class ConversationTest : public QObject
{
    Q_OBJECT

private slots:
    void WorkRunsToItsEndWhileEventsAreHandled()
    {
        const CTestApp app;
        std::promise<void> go;
        QTimer::singleShot(0, this, [&go] { go.set_value(); });
        bool isDone = false;
        App().Conversation().Run([&] {
            go.get_future().wait();
            isDone = true;
        });
        QVERIFY(isDone);
        QVERIFY(!App().Conversation().IsUnderWay());
    }

    void OneFollowsTheOther()
    {
        const CTestApp app;
        QStringList order;
        std::promise<void> go;
        const auto first = [&] {
            go.get_future().wait();
            order << QStringLiteral("first");
        };
        QVERIFY(App().Conversation().RunBeside(first, [&] { order << QStringLiteral("done"); }));
        QVERIFY(!App().Conversation().RunBeside([] {}, {}));
        QTimer::singleShot(0, this, [&go] { go.set_value(); });
        App().Conversation().Run([&] { order << QStringLiteral("second"); });
        QCOMPARE(order.join(' '), QStringLiteral("first done second"));
    }

    void ProgramToldToEndInTheMiddleWaitsForTheWork()
    {
        const CTestApp app;
        constexpr int Status = 7;
        bool isDone = false;
        QTimer::singleShot(0, this, [&isDone] {
            std::promise<void> go;
            QTimer::singleShot(0, [&go] {
                QCoreApplication::exit(Status);
                QTimer::singleShot(0, [&go] { go.set_value(); });
            });
            App().Conversation().Run([&] {
                go.get_future().wait();
                isDone = true;
            });
            QVERIFY(!App().Conversation().IsUnderWay());
        });
        QCOMPARE(QCoreApplication::exec(), Status);
        QVERIFY(isDone);
    }
};

QTEST_MAIN(ConversationTest)
#include "ConversationTest.moc"
