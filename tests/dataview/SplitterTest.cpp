#include "ViewApp.h"

#include "chart/view/ChartWnd.h"
#include "dataview/ListSplitter.h"

#include <QAccessible>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr int Width = 670;
constexpr int Height = 700;
constexpr int Highest = 96;
constexpr int Lowest = Height - 234;

/// The data view with the keyboard on its splitter.
class CSplitterApp : public CViewApp
{
public:
    CSplitterApp()
    {
        Show({Width, Height});
        Bar().setFocus();
    }
    [[nodiscard]] CListSplitter& Bar() { return *View().findChild<CListSplitter*>(); }
    [[nodiscard]] int Border() { return List().geometry().bottom() + 1; }
    /// Where the bar stands after a key.
    [[nodiscard]] int After(Qt::Key key)
    {
        QTest::keyClick(&Bar(), key);
        return Border();
    }
};

} // namespace

/// The splitter without a mouse.
class SplitterTest : public QObject
{
    Q_OBJECT

private slots:
    void TabGoesFromTheListToTheBar()
    {
        CViewApp app;
        app.Show();
        app.List().setFocus();
        QTest::keyClick(&app.List(), Qt::Key_Tab);
        QCOMPARE(app.View().focusWidget(), app.View().findChild<CListSplitter*>());
        QTest::keyClick(app.View().focusWidget(), Qt::Key_Backtab);
        QCOMPARE(app.View().focusWidget(), &app.List());
    }

    void KeysMoveTheBar()
    {
        CSplitterApp app;
        QCOMPARE(app.Border(), 182);
        QCOMPARE(app.After(Qt::Key_Down), 198);
        QCOMPARE(app.After(Qt::Key_PageDown), 262);
        QCOMPARE(app.After(Qt::Key_Up), 246);
        QCOMPARE(app.After(Qt::Key_PageUp), 182);
        QCOMPARE(app.After(Qt::Key_End), Lowest);
        QCOMPARE(app.After(Qt::Key_Home), Highest);
        QCOMPARE(app.View().Chart().y(), Highest + 4);
        QCOMPARE(app.View().Chart().height(), Height - 54 - Highest - 4);
        QCOMPARE(app.Bar().geometry(), QRect(2, Highest, Width - 4, 4));
    }

    void KeysStopAtTheLimits()
    {
        CSplitterApp app;
        for (int i = 0; i < 40; ++i)
            QTest::keyClick(&app.Bar(), Qt::Key_Up);
        QCOMPARE(app.Border(), Highest);
        QCOMPARE(app.After(Qt::Key_PageUp), Highest);
        for (int i = 0; i < 40; ++i)
            QTest::keyClick(&app.Bar(), Qt::Key_Down);
        QCOMPARE(app.Border(), Lowest);
        QCOMPARE(app.After(Qt::Key_PageDown), Lowest);
    }

    void OtherKeysLeaveItWhereItIs()
    {
        CSplitterApp app;
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Space, Qt::Key_Return})
            QCOMPARE(app.After(key), 182);
    }

    void WhereTheKeysLeftItIsRemembered()
    {
        CSplitterApp app;
        QCOMPARE(app.After(Qt::Key_Down), 198);
        app.View().OnCommand(CommandId::Exit);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("ListBorder"), 0), 198);
    }

    void FocusShowsOnTheBar()
    {
        CSplitterApp app;
        const QPoint point(300, 183);
        QCOMPARE(app.Picture().pixelColor(point), QColor(0x00, 0x00, 0x80));
        app.List().setFocus();
        QCOMPARE(app.Picture().pixelColor(point), QColor(0xEC, 0xE9, 0xD8));
    }

    void TheMouseStillDragsTheBar()
    {
        CSplitterApp app;
        // The window system gives the press to what lies under the pointer.
        QVERIFY(app.View().childAt(300, 183) == nullptr);
        QTest::mousePress(&app.View(), Qt::LeftButton, {}, {300, 182});
        QTest::mouseMove(&app.View(), {300, 240});
        QTest::mouseRelease(&app.View(), Qt::LeftButton, {}, {300, 240});
        QCOMPARE(app.Border(), 240);
        QCOMPARE(app.Bar().y(), 240);
    }

    void ScreenReadersKnowTheBar()
    {
        CSplitterApp app;
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&app.Bar());
        QCOMPARE(face->role(), QAccessible::Splitter);
        QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Border between list and chart"));
        QCOMPARE(face->text(QAccessible::Value), QStringLiteral("182"));
        QVERIFY(face->state().focusable);
        QAccessibleValueInterface* const value = face->valueInterface();
        QVERIFY(value != nullptr);
        QCOMPARE(value->currentValue().toInt(), 182);
        QCOMPARE(value->minimumValue().toInt(), Highest);
        QCOMPARE(value->maximumValue().toInt(), Lowest);
        QCOMPARE(app.After(Qt::Key_Down), 198);
        QCOMPARE(value->currentValue().toInt(), 198);
        QCOMPARE(face->text(QAccessible::Value), QStringLiteral("198"));
    }
};

QTEST_MAIN(SplitterTest)
#include "SplitterTest.moc"
