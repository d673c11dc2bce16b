#include "ViewApp.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr int RowHeight = 16;
constexpr int ColumnsEnd = 615;
const QColor Face(0xEC, 0xE9, 0xD8);
const QColor Flagged(0xB0, 0xA0, 0xA0);
const QColor Chosen(0x00, 0x00, 0x80);
const QColor NumberGrid(0x80, 0x80, 0x80);
const QColor Grid(0xC0, 0xC0, 0xC0);
const QColor White(Qt::white);

QColor Inverted(const QColor& colour)
{
    return {255 - colour.red(), 255 - colour.green(), 255 - colour.blue()};
}

/// The rows as they are painted, in a list wide enough for all columns.
QImage RowsOf(CViewApp& app)
{
    return app.List().viewport()->grab().toImage();
}

/// Whether a pixel of exactly this colour lies in the rectangle.
bool Holds(const QImage& picture, const QRect& rect, const QColor& colour)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (picture.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

/// The number of a row that is not selected.
QImage NumberOfAPlainRow(CViewApp& app, int row)
{
    app.List().clearSelection();
    return RowsOf(app).copy(0, row * RowHeight, 55, RowHeight);
}

void ShowLines(CViewApp& app, int count)
{
    app.Show({760, 488});
    app.OpenLines(count);
}

} // namespace

/// The measured list's picture.
class ListPaintTest : public QObject
{
    Q_OBJECT

private slots:
    void CellsHaveTheirColoursAndLines()
    {
        CViewApp app;
        ShowLines(app, 3);
        const QImage rows = RowsOf(app);
        const int top = RowHeight; // of the second row
        QCOMPARE(rows.pixelColor(1, top + 1), Face);
        QCOMPARE(rows.pixelColor(1, top + 13), Face);
        QCOMPARE(rows.pixelColor(1, top + 14), NumberGrid);
        QCOMPARE(rows.pixelColor(1, top + 15), Face);
        QCOMPARE(rows.pixelColor(52, top + 1), Face);
        QCOMPARE(rows.pixelColor(53, top + 1), NumberGrid);
        QCOMPARE(rows.pixelColor(54, top + 1), Face);
        int right = 55;
        for (const int width : {85, 85, 65, 65, 65, 65, 65, 65}) {
            const int left = right;
            right += width;
            QCOMPARE(rows.pixelColor(left, top + 1), White);
            QCOMPARE(rows.pixelColor(left, top + 14), Grid);
            QCOMPARE(rows.pixelColor(left, top + 15), White);
            QCOMPARE(rows.pixelColor(right - 3, top + 1), White);
            QCOMPARE(rows.pixelColor(right - 2, top + 1), Grid);
            QCOMPARE(rows.pixelColor(right - 1, top + 1), White);
        }
        QCOMPARE(right, ColumnsEnd);
    }

    void TextStandsAtTheRightWhateverTheTitle()
    {
        CViewApp app;
        ShowLines(app, 1);
        const QImage rows = RowsOf(app);
        const QRect date(55, 1, 85, 12);
        const auto inkIn = [&](const QRect& rect) {
            for (int y = rect.top(); y <= rect.bottom(); ++y) {
                for (int x = rect.left(); x <= rect.right(); ++x) {
                    if (rows.pixelColor(x, y).lightness() < 128)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(!inkIn(date.adjusted(0, 0, -75, 0))); // left tenth
        QVERIFY(inkIn(date.adjusted(70, 0, -3, 0)));
        QVERIFY(inkIn({30, 1, 23, 12}));
        // Of a text that is half as long as its cell is wide nothing stands in the left third.
        const QRect x(225, 1, 65, 12);
        QVERIFY(inkIn(x.adjusted(45, 0, -3, 0)));
        QVERIFY(!inkIn(x.adjusted(0, 0, -45, 0)));
    }

    void ColumnsWithoutAQuantityStayEmpty()
    {
        CViewApp app;
        app.Show({760, 488});
        CMeasureData measured = MeasuredLines(1);
        measured.m_hasTemperature = false;
        app.Open(app.FileOf(measured, QStringLiteral("plain.skd")));
        app.View().Data().m_hasTemperature = false;
        app.List().viewport()->update();
        const QImage rows = RowsOf(app);
        for (const int left : {485, 550}) {
            for (int x = left; x < left + 63; ++x) {
                for (int y = 0; y < 14; ++y)
                    QCOMPARE(rows.pixelColor(x, y), White);
            }
        }
    }

    void FlaggedLinesHaveAColourInTheNumberColumnOnly_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<bool>("isTinted");
        QTest::newRow("plain") << 0 << false;
        QTest::newRow("abnormal") << 0x4000 << true;
        QTest::newRow("behind a break") << 0x6000 << true;
        QTest::newRow("marked") << 0x0001 << false;
        QTest::newRow("extracted") << 0x09F0 << false;
        QTest::newRow("behind a break, but not abnormal") << 0x2000 << false;
    }
    void FlaggedLinesHaveAColourInTheNumberColumnOnly()
    {
        QFETCH(int, flags);
        QFETCH(bool, isTinted);
        CViewApp app;
        app.Show({760, 488});
        app.View().Data().AddRecord(LineAfter(0, static_cast<std::uint16_t>(flags)));
        app.List().Rebuild();
        const QImage rows = RowsOf(app);
        QCOMPARE(rows.pixelColor(1, 1), isTinted ? Flagged : Face);
        QCOMPARE(rows.pixelColor(1, 14), NumberGrid);
        QCOMPARE(rows.pixelColor(56, 1), White);
    }

    void DeletedLineIsTintedWhereItsNeighbourShouldBe()
    {
        CViewApp app;
        app.Show({760, 488});
        for (int i = 0; i < 3; ++i)
            app.View().Data().AddRecord(LineAfter(i, i == 1 ? RecordFlag::Deleted : 0));
        app.List().Rebuild();
        const QImage rows = RowsOf(app);
        QCOMPARE(rows.pixelColor(1, 1), Face);
        QCOMPARE(rows.pixelColor(1, RowHeight + 1), Flagged);
        QCOMPARE(rows.pixelColor(1, 2 * RowHeight + 1), White); // two rows for three lines
    }

    void SelectedRowIsBlueBesideItsNumber()
    {
        CViewApp app;
        ShowLines(app, 3);
        app.List().selectRow(1);
        app.List().selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
        const QImage rows = RowsOf(app);
        const int top = RowHeight;
        QCOMPARE(rows.pixelColor(1, top + 1), Face);
        // The number stays as it is in any row.
        QCOMPARE(rows.copy(0, top, 55, RowHeight), NumberOfAPlainRow(app, 1));
        QCOMPARE(rows.pixelColor(56, top + 1), Chosen);
        QCOMPARE(rows.pixelColor(56, top + 14), Grid);
        QCOMPARE(rows.pixelColor(138, top + 1), Grid);
        QVERIFY(Holds(rows, {56, top, 82, 14}, White));
        QVERIFY(!Holds(rows, {56, top, 82, 14}, Qt::black));
        QCOMPARE(rows.pixelColor(56, 1), White);
        QCOMPARE(rows.pixelColor(ColumnsEnd + 1, top + 1), White);
    }

    void FocusIsInvertedOnThreeSides()
    {
        CViewApp app;
        ShowLines(app, 3);
        app.List().OnMeasureGraph(MeasureGraphCode::CurrentLine, 1);
        const QImage rows = RowsOf(app);
        const int top = RowHeight;
        // Along the top, up to two pixels before the end of the last column.
        QCOMPARE(rows.pixelColor(0, top), Inverted(Face));
        QCOMPARE(rows.pixelColor(53, top), Inverted(NumberGrid));
        QCOMPARE(rows.pixelColor(60, top), Inverted(White));
        QCOMPARE(rows.pixelColor(ColumnsEnd - 3, top), Inverted(White));
        QCOMPARE(rows.pixelColor(ColumnsEnd - 2, top), Grid);
        // Along the bottom.
        QCOMPARE(rows.pixelColor(0, top + 13), Inverted(Face));
        QCOMPARE(rows.pixelColor(60, top + 13), Inverted(White));
        QCOMPARE(rows.pixelColor(60, top + 14), Grid);
        QCOMPARE(rows.pixelColor(ColumnsEnd - 2, top + 13), Grid);
        // Down the right.
        for (int y = 1; y <= 12; ++y)
            QCOMPARE(rows.pixelColor(ColumnsEnd - 3, top + y), Inverted(White));
        // None at the left.
        for (int y = 1; y <= 12; ++y)
            QCOMPARE(rows.pixelColor(0, top + y), Face);
        QCOMPARE(rows.pixelColor(60, 0), White);
        QCOMPARE(rows.pixelColor(60, 2 * RowHeight), White);
    }

    void FocusOnASelectedRowIsInvertedToo()
    {
        CViewApp app;
        ShowLines(app, 3);
        QTest::mouseClick(app.List().viewport(), Qt::LeftButton, {}, {100, RowHeight + 8});
        const QImage rows = RowsOf(app);
        QCOMPARE(rows.pixelColor(60, RowHeight), Inverted(Chosen));
        QCOMPARE(rows.pixelColor(60, RowHeight + 1), Chosen);
    }

    void FocusThatMovedLeavesNothingBehind()
    {
        CViewApp app;
        ShowLines(app, 3);
        app.List().OnMeasureGraph(MeasureGraphCode::CurrentLine, 0);
        app.List().OnMeasureGraph(MeasureGraphCode::CurrentLine, 2);
        const QImage rows = RowsOf(app);
        QCOMPARE(rows.pixelColor(60, 0), White);
        QCOMPARE(rows.pixelColor(60, 2 * RowHeight), Inverted(White));
    }

    void BesideAndBelowTheRowsIsWhite()
    {
        CViewApp app;
        ShowLines(app, 2);
        const QImage rows = RowsOf(app);
        for (int x = ColumnsEnd; x < rows.width(); ++x) {
            for (int y = 0; y < 2 * RowHeight; ++y)
                QCOMPARE(rows.pixelColor(x, y), White);
        }
        for (int y = 2 * RowHeight; y < rows.height(); ++y)
            QCOMPARE(rows.pixelColor(1, y), White);
    }

    void TitlesThatAreTooLongAreCutAtTheirEnd()
    {
        CViewApp app;
        ShowLines(app, 1);
        QHeaderView& header = *app.List().horizontalHeader();
        const auto title = [&](int width) {
            app.List().setColumnWidth(7, width);
            app.Settle();
            return header.grab().toImage().copy(485, 0, width, header.height());
        };
        const int whole = header.fontMetrics().horizontalAdvance(QStringLiteral("Temperature (C)"));
        QVERIFY(whole > 65);
        // The margins stay free of letters on both sides.
        const QImage cut = title(65);
        const QColor back = cut.pixelColor(3, 2);
        for (int y = 3; y < cut.height() - 3; ++y) {
            QVERIFY(qAbs(cut.pixelColor(1, y).lightness() - back.lightness()) < 40);
            QVERIFY(qAbs(cut.pixelColor(62, y).lightness() - back.lightness()) < 40);
        }
    }

    void EmptyListIsWhite()
    {
        CViewApp app;
        app.Show();
        const QImage rows = RowsOf(app);
        QImage white = rows;
        white.fill(Qt::white);
        QCOMPARE(rows, white);
    }

    void ScrolledRowsMoveWhole()
    {
        CViewApp app;
        ShowLines(app, 100);
        app.List().setColumnWidth(1, 500);
        app.List().OnMeasureGraph(MeasureGraphCode::CurrentLine, 1);
        const QImage before = RowsOf(app);
        app.List().horizontalScrollBar()->setValue(60);
        const QImage after = RowsOf(app);
        const int width = before.width() - 60;
        QCOMPARE(after.copy(0, 0, width, 64), before.copy(60, 0, width, 64));
    }

    void DarkDesktopKeepsTheRows()
    {
        CViewApp app;
        ShowLines(app, 3);
        const QImage usual = RowsOf(app);
        const QPalette palette = QApplication::palette();
        QPalette dark(QColor(0x20, 0x20, 0x20));
        QApplication::setPalette(dark);
        const QImage rows = RowsOf(app);
        QApplication::setPalette(palette);
        QCOMPARE(rows, usual);
    }

    void DarkDesktopKeepsTitlesAndScrollBars()
    {
        const QPalette palette = QApplication::palette();
        QImage lists[2];
        for (const bool isDark : {false, true}) {
            QApplication::setPalette(isDark ? QPalette(QColor(0x20, 0x20, 0x20)) : palette);
            CViewApp app;
            ShowLines(app, 30);
            lists[isDark ? 1 : 0] = app.List().grab().toImage();
        }
        QApplication::setPalette(palette);
        QCOMPARE(lists[1], lists[0]);
    }
};

QTEST_MAIN(ListPaintTest)
#include "ListPaintTest.moc"
