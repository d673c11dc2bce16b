#include "OnlineApp.h"

#include "online/MonitorList.h"
#include "online/MonitorModel.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QScrollBar>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr bool Closed = true;

/// So many lines that hold their numbers.
MonitorPart Numbers(int first, int count)
{
    MonitorPart part{{}, Closed};
    for (int i = first; i < first + count; ++i)
        part.lines.Add(std::to_string(i));
    return part;
}

/// Whether anything is drawn on the row at `y`.
bool IsDrawn(const QImage& picture, const QRect& row)
{
    for (int y = row.top(); y <= row.bottom(); ++y) {
        for (int x = row.left(); x <= row.right(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(picture.width() - 1, picture.height() - 1))
                return true;
        }
    }
    return false;
}

struct Shown
{
    explicit Shown(const MonitorPart& part)
    {
        m_lines.Add(part);
        m_list.SetLines(m_lines);
        m_list.resize(200, 150);
        m_list.show();
    }

    [[nodiscard]] QRect RectOf(int row) { return m_list.visualRect(m_lines.index(row)); }

    COnlineApp m_app;
    CMonitorModel m_lines;
    CMonitorList m_list;
};

} // namespace

/// The list of the monitor's lines.
class MonitorListTest : public QObject
{
    Q_OBJECT

private slots:
    void ModelKeepsTheRules()
    {
        const COnlineApp app;
        CMonitorModel model;
        const QAbstractItemModelTester tester(&model);
        model.Add(Numbers(0, 5));
        model.Add({{"open"}, !Closed});
        model.Add({{"opened", "closed"}, Closed});
        QCOMPARE(model.rowCount(), 7);
        model.SetMaxLines(3);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.index(1).data().toString(), QStringLiteral("opened"));
        model.Clear();
        QCOMPARE(model.rowCount(), 0);
    }

    void NewLinesAreShownAtTheEnd()
    {
        Shown shown(Numbers(0, 500));
        shown.m_list.ScrollToEnd();
        const int bottom = shown.RectOf(499).bottom();
        QVERIFY(bottom < shown.m_list.viewport()->height());
        QVERIFY(bottom > shown.m_list.viewport()->height() - 2 * shown.RectOf(499).height());
        shown.m_lines.Add(Numbers(500, 3));
        shown.m_list.ScrollToEnd();
        QCOMPARE(shown.RectOf(502).bottom(), bottom);
    }

    void LastLineStaysInSightWhateverTheRoom()
    {
        Shown shown(Numbers(0, 500));
        const auto isLastInSight = [&](int row) {
            const QRect last = shown.RectOf(row);
            const int height = shown.m_list.viewport()->height();
            return last.bottom() < height && last.bottom() >= height - 2 * last.height();
        };
        shown.m_list.ScrollToEnd();
        QVERIFY(isLastInSight(499));
        // A long line brings the horizontal bar, which takes room from the lines.
        const int height = shown.m_list.viewport()->height();
        shown.m_lines.Add({{std::string(500, '7')}, Closed});
        shown.m_list.ScrollToEnd();
        QTRY_VERIFY(shown.m_list.viewport()->height() < height);
        QVERIFY(isLastInSight(500));
        for (const int tall : {60, 400, 150}) {
            shown.m_list.resize(200, tall);
            QCoreApplication::processEvents();
            QVERIFY(isLastInSight(500));
        }
        // Who has scrolled up stays there.
        shown.m_list.verticalScrollBar()->setValue(20);
        shown.m_list.resize(200, 90);
        QCoreApplication::processEvents();
        QCOMPARE(shown.m_list.verticalScrollBar()->value(), 20);
    }

    void FewLinesStandAtTheTop()
    {
        Shown shown(Numbers(0, 3));
        shown.m_list.ScrollToEnd();
        QCOMPARE(shown.RectOf(0).top(), 0);
        QCOMPARE(shown.m_list.verticalScrollBar()->maximum(), 0);
        const QImage picture = shown.m_list.viewport()->grab().toImage();
        QVERIFY(IsDrawn(picture, shown.RectOf(2) & picture.rect()));
        QVERIFY(!IsDrawn(picture,
                         shown.RectOf(2).translated(0, shown.RectOf(2).height()) & picture.rect()));
    }

    void LinesFillTheWindowOnceTheyCan()
    {
        Shown shown(Numbers(0, 0));
        shown.m_lines.Add(Numbers(0, shown.m_list.VisibleLines() + 1));
        shown.m_list.ScrollToEnd();
        QCOMPARE(shown.m_list.verticalScrollBar()->value(), 1);
        QCOMPARE(shown.RectOf(1).top(), 0);
    }

    void KeysScroll()
    {
        Shown shown(Numbers(0, 500));
        shown.m_lines.Add({{std::string(200, '7')}, Closed});
        const QScrollBar& down = *shown.m_list.verticalScrollBar();
        const QScrollBar& right = *shown.m_list.horizontalScrollBar();
        shown.m_list.ScrollToEnd();
        QTest::keyClick(&shown.m_list, Qt::Key_Home);
        QCOMPARE(down.value(), 0);
        QTest::keyClick(&shown.m_list, Qt::Key_Down);
        QCOMPARE(down.value(), 1);
        QTest::keyClick(&shown.m_list, Qt::Key_PageDown);
        QCOMPARE(down.value(), 1 + shown.m_list.VisibleLines());
        QTest::keyClick(&shown.m_list, Qt::Key_PageUp);
        QTest::keyClick(&shown.m_list, Qt::Key_Up);
        QCOMPARE(down.value(), 0);
        QTest::keyClick(&shown.m_list, Qt::Key_End);
        QCOMPARE(down.value(), down.maximum());
        QTest::keyClick(&shown.m_list, Qt::Key_Right);
        QVERIFY(right.value() > 0);
        QTest::keyClick(&shown.m_list, Qt::Key_Left);
        QCOMPARE(right.value(), 0);
    }

    void LongLineCanBeReadToItsEnd()
    {
        Shown shown({{std::string(3000, ' ') + "end"}, Closed});
        shown.m_list.ScrollToEnd();
        QScrollBar& right = *shown.m_list.horizontalScrollBar();
        QVERIFY(right.maximum() > 0);
        const QRect row = shown.RectOf(0) & shown.m_list.viewport()->rect();
        QVERIFY(!IsDrawn(shown.m_list.viewport()->grab().toImage(), row));
        right.setValue(right.maximum());
        QVERIFY(IsDrawn(shown.m_list.viewport()->grab().toImage(), row));
        // The first line of an emptied list is at its left again.
        shown.m_lines.Clear();
        shown.m_list.ScrollToEnd();
        QCOMPARE(right.maximum(), 0);
    }

    void NothingCanBeSelected()
    {
        Shown shown(Numbers(0, 20));
        QTest::mouseClick(shown.m_list.viewport(), Qt::LeftButton, {}, shown.RectOf(1).center());
        QTest::keyClick(&shown.m_list, Qt::Key_A, Qt::ControlModifier);
        QVERIFY(!shown.m_list.selectionModel()->hasSelection());
    }

    void ManyLinesCostNoMoreThanThoseInSight()
    {
        // A million lines, each tick with a few more: what is linear in them would not come back.
        Shown shown(Numbers(0, 0));
        shown.m_lines.SetMaxLines(9'999'999);
        shown.m_lines.Add(Numbers(0, 1'000'000));
        for (int i = 0; i < 2000; ++i) {
            shown.m_lines.Add(Numbers(i, 3));
            shown.m_list.ScrollToEnd();
            shown.m_list.viewport()->repaint();
        }
        QCOMPARE(shown.m_lines.rowCount(), 1'006'000);
        QVERIFY(shown.RectOf(1'005'999).bottom() < shown.m_list.viewport()->height());
    }

    void LinesAreReadOut()
    {
        COnlineApp app;
        CMonitorDialog& monitor = app.MakeMonitor();
        monitor.ReportCommand("p");
        monitor.Tick();
        QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(monitor.m_list);
        QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Traffic with the recorder"));
        QCOMPARE(face->role(), QAccessible::List);
        QCOMPARE(face->childCount(), 1);
        QCOMPARE(face->child(0)->text(QAccessible::Name), QStringLiteral("p"));
    }
};

QTEST_MAIN(MonitorListTest)
#include "MonitorListTest.moc"
