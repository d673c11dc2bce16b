#include "ViewApp.h"
#include "chart/view/ChartWnd.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr int RowHeight = 16;

QPoint MiddleOf(CViewApp& app, int row)
{
    return {100, app.List().rowViewportPosition(row) + RowHeight / 2};
}

void ClickRow(CViewApp& app, int row, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = {})
{
    QTest::mouseClick(app.List().viewport(), button, modifiers, MiddleOf(app, row));
}

QList<int> SelectedRows(CViewApp& app)
{
    QList<int> rows;
    for (const QModelIndex& index : app.List().selectionModel()->selectedRows())
        rows << index.row();
    std::sort(rows.begin(), rows.end());
    return rows;
}

QList<int> WidthsOf(CViewApp& app)
{
    QList<int> widths;
    for (int i = 0; i < ListColumnCount; ++i)
        widths << app.List().columnWidth(i);
    return widths;
}

const QList<int> UsualWidths{55, 85, 85, 65, 65, 65, 65, 65, 65};

/// What the list announces, in its order.
class CAnnouncements
{
public:
    explicit CAnnouncements(CMeasuredList& list)
        : m_spy(&list, &CMeasuredList::MeasureGraph)
    {}
    [[nodiscard]] QList<int> Rows()
    {
        QList<int> rows;
        for (const QVariantList& arguments : m_spy)
            rows << arguments[1].toInt();
        m_spy.clear();
        return rows;
    }

private:
    QSignalSpy m_spy;
};

} // namespace

/// The rows of the measured list, their focus and selection.
class ListTest : public QObject
{
    Q_OBJECT

private slots:
    void EmptyDataIsAnEmptyListWithoutACurrentRow()
    {
        CViewApp app;
        app.Show();
        QCOMPARE(app.List().model()->rowCount(), 0);
        QCOMPARE(app.List().CurrentRow(), -1);
        QCOMPARE(app.List().model()->columnCount(), 9);
    }

    void OneLineIsOneRow()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(1);
        QCOMPARE(app.List().model()->rowCount(), 1);
        QCOMPARE(app.List().rowHeight(0), RowHeight);
        ClickRow(app, 0);
        QCOMPARE(app.List().CurrentRow(), 0);
    }

    void TitlesAreThoseOfTheTable()
    {
        CViewApp app;
        app.Show();
        QStringList titles;
        for (int i = 0; i < ListColumnCount; ++i)
            titles << app.List().model()->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
        QCOMPARE(titles, (QStringList{"", "Date", "Time", "X axis", "Y axis", "Z axis", "Rsltnt",
                                      "Temperature (C)", "Humidity (%)"}));
        QCOMPARE(app.List().accessibleName(), QStringLiteral("Measured list"));
    }

    void RowsHoldNoText()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(2);
        QVERIFY(!app.List().model()->index(0, 1).data().isValid());
        QCOMPARE(app.Cell(0, ListColumn::Date), QStringLiteral("2009/05/01 "));
        QCOMPARE(app.Cell(1, ListColumn::Time), QStringLiteral("12:30:16.250 "));
    }

    void MillionLinesAppearAtOnce()
    {
        CViewApp app;
        app.Show();
        constexpr int Lines = 1000000;
        const CMeasureRecord line = LineAfter(0);
        for (CMeasureRecord& record : app.View().Data().NewLines(Lines))
            record = line;
        app.List().Rebuild();
        QCOMPARE(app.List().model()->rowCount(), Lines);
        app.List().setFocus();
        QTest::keyClick(&app.List(), Qt::Key_End);
        QCOMPARE(app.List().CurrentRow(), Lines - 1);
        QCOMPARE(app.List().rowAt(app.List().viewport()->height() - 8), Lines - 1);
    }

    void RebuildingSaysSoAndKeepsCommandsOut()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        ClickRow(app, 1);
        bool seen = false;
        QMetaObject::invokeMethod(
            &app.View(),
            [&] {
                seen = true;
                QVERIFY(app.List().IsFilling());
                QVERIFY(!app.View().CanOperate());
                QCOMPARE(app.Frame().m_status, QStringLiteral("Making lists..."));
            },
            Qt::QueuedConnection);
        CAnnouncements announced(app.List());
        app.List().Rebuild();
        QVERIFY(seen);
        QVERIFY(!app.List().IsFilling());
        QVERIFY(app.View().CanOperate());
        QCOMPARE(app.Frame().m_status, QStringLiteral("(reset)"));
        QCOMPARE(announced.Rows(), QList<int>{-1});
        QCOMPARE(app.List().CurrentRow(), -1);
    }

    void FocusIsAnnouncedWithNoneBeforeEachRow()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(6);
        CAnnouncements announced(app.List());
        ClickRow(app, 3);
        QCOMPARE(announced.Rows(), (QList<int>{3}));
        ClickRow(app, 1);
        QCOMPARE(announced.Rows(), (QList<int>{-1, 1}));
        ClickRow(app, 1);
        QCOMPARE(announced.Rows(), QList<int>());
        QTest::keyClick(&app.List(), Qt::Key_Down);
        QTest::keyClick(&app.List(), Qt::Key_Down);
        QCOMPARE(announced.Rows(), (QList<int>{-1, 2, -1, 3}));
        QCOMPARE(app.List().CurrentRow(), 3);
    }

    void RowsBehindABreakInTimeCanHaveTheFocus()
    {
        CMeasureData measured = MeasuredLines(5);
        measured.SetRecord(3, LineAfter(-60));
        CViewApp app;
        app.Show();
        app.Open(app.FileOf(measured, QStringLiteral("broken.skd")));
        QCOMPARE(app.View().Data().m_firstBreak, std::ptrdiff_t{3});
        CAnnouncements announced(app.List());
        ClickRow(app, 1);
        ClickRow(app, 4);
        QCOMPARE(announced.Rows(), (QList<int>{1, -1, 4}));
        QCOMPARE(app.List().CurrentRow(), 4);
        // The chart does not show it and stays where it was.
        QCOMPARE(app.View().Chart().Model().m_currentLine, 1);
    }

    void ChartHearsAtOnceAndTheViewLater()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(6);
        app.Frame().m_caption = QStringLiteral("(not refreshed)");
        app.List().SetCurrentRow(4);
        QCOMPARE(app.View().Chart().Model().m_currentLine, 4);
        QCOMPARE(app.Frame().m_caption, QStringLiteral("(not refreshed)"));
        app.Settle();
        QCOMPARE(app.Frame().m_caption, QStringLiteral("crate.skd"));
    }

    void ChartMovesTheFocusAndScrollsToIt()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(200);
        CAnnouncements announced(app.List());
        emit app.View().Chart().MeasureGraph(MeasureGraphCode::CurrentLine, 150);
        QCOMPARE(announced.Rows(), QList<int>()); // posted, not sent
        app.Settle();
        QCOMPARE(announced.Rows(), QList<int>{150});
        QCOMPARE(app.List().CurrentRow(), 150);
        QCOMPARE(SelectedRows(app), QList<int>());
        const int y = app.List().rowViewportPosition(150);
        QVERIFY(y >= 0 && y + RowHeight <= app.List().viewport()->height());
    }

    void ChartScrollsToMarksWithoutTheFocus()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(200);
        for (const auto code : {MeasureGraphCode::Marks, MeasureGraphCode::MarksToo}) {
            app.List().scrollToTop();
            app.List().OnMeasureGraph(code, 120);
            const int y = app.List().rowViewportPosition(120);
            QVERIFY(y >= 0 && y < app.List().viewport()->height());
            QCOMPARE(app.List().CurrentRow(), -1);
        }
    }

    void LinesThatAreNotThereMoveNothing()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        ClickRow(app, 1);
        for (const int line : {-1, 3, 1000000})
            app.List().OnMeasureGraph(MeasureGraphCode::CurrentLine, line);
        QCOMPARE(app.List().CurrentRow(), 1);
    }

    void RightClickMovesTheFocusAndNothingElse()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(6);
        ClickRow(app, 1);
        ClickRow(app, 2, Qt::LeftButton, Qt::ControlModifier);
        CAnnouncements announced(app.List());
        ClickRow(app, 4, Qt::RightButton);
        QCOMPARE(announced.Rows(), (QList<int>{-1, 4}));
        QCOMPARE(app.View().Chart().Model().m_currentLine, 4);
        QCOMPARE(SelectedRows(app), (QList<int>{1, 2}));
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(app.Prompts().m_shown.size() == 1); // the dialog that opened the file
    }

    void RightClickBelowTheLastRowIsNothing()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        ClickRow(app, 1);
        QTest::mouseClick(app.List().viewport(), Qt::RightButton, {}, {100, 100});
        QCOMPARE(app.List().CurrentRow(), 1);
        QCOMPARE(SelectedRows(app), QList<int>{1});
    }

    void EnteringTheListTakesNoRow()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        CAnnouncements announced(app.List());
        app.List().setFocus();
        QVERIFY(app.List().hasFocus());
        QCOMPARE(announced.Rows(), QList<int>());
        QTest::keyClick(&app.List(), Qt::Key_Down);
        QCOMPARE(announced.Rows(), QList<int>{0});
    }

    void SeveralRowsCanBeSelected()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(6);
        ClickRow(app, 1);
        ClickRow(app, 3, Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(SelectedRows(app), (QList<int>{1, 3}));
        ClickRow(app, 3);
        ClickRow(app, 5, Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(SelectedRows(app), (QList<int>{3, 4, 5}));
        QTest::keyClick(&app.List(), Qt::Key_Up);
        QCOMPARE(SelectedRows(app), QList<int>{4});
    }

    void KeysGoFromRowToRow()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(100);
        app.List().setFocus();
        QTest::keyClick(&app.List(), Qt::Key_End);
        QCOMPARE(app.List().CurrentRow(), 99);
        QTest::keyClick(&app.List(), Qt::Key_Home);
        QCOMPARE(app.List().CurrentRow(), 0);
        QTest::keyClick(&app.List(), Qt::Key_PageDown);
        QVERIFY(app.List().CurrentRow() > 3);
        CAnnouncements announced(app.List());
        QTest::keyClick(&app.List(), Qt::Key_Right);
        QTest::keyClick(&app.List(), Qt::Key_X);
        QCOMPARE(announced.Rows(), QList<int>());
    }

    void RowsAreNeverBroughtIntoViewSideways()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(100);
        app.List().setColumnWidth(1, 600);
        app.Settle();
        app.List().setFocus();
        QScrollBar* const sideways = app.List().horizontalScrollBar();
        QTest::keyClick(&app.List(), Qt::Key_Right);
        QVERIFY(sideways->value() > 0);
        sideways->setValue(150);
        QTest::keyClick(&app.List(), Qt::Key_End);
        emit app.View().Chart().MeasureGraph(MeasureGraphCode::CurrentLine, 50);
        app.Settle();
        QCOMPARE(app.List().CurrentRow(), 50);
        QCOMPARE(sideways->value(), 150);
        QTest::keyClick(&app.List(), Qt::Key_Left);
        QVERIFY(sideways->value() < 150);
    }

    void CopyKeyLeavesTheClipboardAlone()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
        ClickRow(app, 1);
        QTest::keyClick(&app.List(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    }

    void UnitChangesTextsWithoutARebuild()
    {
        CViewApp app;
        app.Show();
        app.OpenLines(3);
        ClickRow(app, 1);
        QCOMPARE(app.Cell(0, ListColumn::X), QStringLiteral("1.234 "));
        const QSignalSpy rebuilt(app.List().model(), &QAbstractItemModel::modelReset);
        app.View().OnCommand(CommandId::UnitGal);
        QCOMPARE(app.Cell(0, ListColumn::X), QStringLiteral("1209.32 "));
        app.View().OnCommand(CommandId::UnitMs2);
        QCOMPARE(app.Cell(0, ListColumn::X), QStringLiteral("12.0932 "));
        QCOMPARE(rebuilt.size(), 0);
        QCOMPARE(app.List().CurrentRow(), 1);
    }

    void DeletedLineHasNoRowAndShiftsTheRowsBehindIt()
    {
        CViewApp app;
        app.Show();
        for (int i = 0; i < 5; ++i)
            app.View().Data().AddRecord(LineAfter(i, i == 1 ? RecordFlag::Deleted : 0));
        app.List().Rebuild();
        QCOMPARE(app.List().model()->rowCount(), 4);
        QCOMPARE(app.Cell(1, ListColumn::Time), QStringLiteral("12:30:16.250 "));
        QCOMPARE(app.Cell(3, ListColumn::Time), QStringLiteral("12:30:18.250 "));
    }

    void OnlyDeletedLinesAreAnEmptyList()
    {
        CViewApp app;
        app.Show();
        app.View().Data().AddRecord(LineAfter(0, RecordFlag::Deleted));
        app.List().Rebuild();
        QCOMPARE(app.List().model()->rowCount(), 0);
        QVERIFY(!app.List().grab().isNull());
    }

    void WidthsSurviveARestart()
    {
        const QTemporaryDir folder;
        const QString settings = folder.filePath(QStringLiteral("settings.ini"));
        {
            CViewApp app(QStringLiteral("English"), settings);
            app.Show();
            QCOMPARE(WidthsOf(app), UsualWidths);
            app.List().setColumnWidth(0, 70);
            app.List().setColumnWidth(8, 120);
            app.View().OnUpdate(DocumentHint::Closing, 0);
        }
        CViewApp app(QStringLiteral("English"), settings);
        app.Show();
        QCOMPARE(WidthsOf(app), (QList<int>{70, 85, 85, 65, 65, 65, 65, 65, 120}));
    }

    void CtrlAtStartBringsTheUsualWidthsAndTheyAreKept()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("ClmnWidth3"), 300);
        app.m_test.m_app->m_ctrlAtStart = true;
        app.Show();
        QCOMPARE(WidthsOf(app), UsualWidths);
        app.View().OnUpdate(DocumentHint::Closing, 0);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("ClmnWidth3"), -1), 65);
    }

    void WidthsThatNobodyCanUseAreTheUsualOnes()
    {
        CViewApp app;
        app.Settings().WriteInt(SystemSection, QStringLiteral("ClmnWidth0"), 0);
        app.Settings().WriteInt(SystemSection, QStringLiteral("ClmnWidth1"), 1000000);
        app.Settings().WriteInt(SystemSection, QStringLiteral("ClmnWidth2"), -85);
        app.Settings().WriteText(SystemSection, QStringLiteral("ClmnWidth3"),
                                 QStringLiteral("wide"));
        app.Settings().WriteInt(SystemSection, QStringLiteral("ClmnWidth4"), 90);
        app.Show();
        QCOMPARE(WidthsOf(app), (QList<int>{55, 85, 85, 65, 90, 65, 65, 65, 65}));
    }

    void WidthsAreWrittenOnlyOnceThereAreColumns()
    {
        CViewApp app;
        app.View().OnUpdate(DocumentHint::Closing, 0);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("ClmnWidth0"), -1), -1);
        app.Show();
        app.View().OnUpdate(DocumentHint::Closing, 0);
        QCOMPARE(app.Settings().GetInt(SystemSection, QStringLiteral("ClmnWidth0"), -1), 55);
    }

    void PrintMetricsFollowTheFont()
    {
        CViewApp app;
        const ListPrintMetrics metrics = app.List().GetPrintMetrics();
        QCOMPARE(metrics.rowWidth, 636);
        QCOMPARE(metrics.rowHeight, 16);
        QCOMPARE(metrics.headerHeight, 48);
    }
};

QTEST_MAIN(ListTest)
#include "ListTest.moc"
