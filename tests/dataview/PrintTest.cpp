#include "PrintApp.h"
#include "app/Colour.h"
#include "chart/view/ChartWnd.h"

#include <QFile>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

using namespace skeldon;
using namespace skeldon::test;

namespace {

constexpr int Dpi = 150;
const QRgb TemperatureColour = ToColour(0x0202C1).rgb();
const QRgb GridColour = ToColour(0xC0C0C0).rgb();
const QString TooSmall = QStringLiteral("The size of print is too small.\nSelect smaller margins.");

/// The smallest rectangle with all pixels of a colour.
QRect AreaOf(const QImage& picture, QRgb colour)
{
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == colour)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

/// The longest run of a colour down a column.
int LongestRun(const QImage& picture, int column, QRgb colour)
{
    int longest = 0;
    int run = 0;
    for (int y = 0; y < picture.height(); ++y) {
        run = picture.pixel(column, y) == colour ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}

/// Shows the temperature alone: 23.5 degrees, in every line.
void ShowTemperatureAlone(CPrintApp& app)
{
    app.View().Chart().SetSeriesShown(0x0FFF, false);
    app.View().Chart().SetSeriesShown(0x0080, true);
}

/// Pixels of the printer that the level curve of the temperature is high.
int CurveWidth(const CPrintApp& app)
{
    const std::vector<QImage> pictures = PicturesOf(app.Pdf());
    return pictures.size() == 1
               ? LongestRun(pictures[0], pictures[0].width() / 2, TemperatureColour)
               : -1;
}

bool Holds(const QString& text, const QString& words)
{
    return text.simplified().contains(words);
}

} // namespace

class PrintTest : public QObject
{
    Q_OBJECT

private slots:
    // --- the page ---

    void TheChartFillsOneLandscapePage()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print();
        QCOMPARE(app.Prompts().Boxes(), QStringList());
        QCOMPARE(PageCount(app.Pdf()), 1);
        const QImage page = Page(app.Pdf(), Dpi);
        QVERIFY(qAbs(page.width() - 1754) <= 1);
        QVERIFY(qAbs(page.height() - 1240) <= 1);
        // The margins stay white, and all that they leave is used.
        QRect used;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (page.pixel(x, y) != qRgb(255, 255, 255))
                    used |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(page.rect().adjusted(25, 25, -25, -25).contains(used));
        QVERIFY(used.width() > page.width() * 9 / 10);
        QVERIFY(used.height() > page.height() * 8 / 10);
    }

    void TitleAndLegendNameWhatIsShown()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print();
        const QString text = PageText(app.Pdf());
        QVERIFY2(Holds(text, QStringLiteral("KORVA measured result chart : crate.skd")),
                 qPrintable(text));
        for (const char* name :
             {"X axis", "Y axis", "Z axis", "Rsltnt", "Temperature (C)", "Humidity (%)", "Time"})
            QVERIFY2(Holds(text, QLatin1String(name)), name);
        // The title ends at the right edge of the picture, in the first of its rows.
        const QImage page = Page(app.Pdf(), Dpi);
        QVERIFY(AreaOf(page.copy(0, 0, page.width(), 100), qRgb(0, 0, 0)).right() >
                page.width() - 50);
    }

    void TheTitleIsTheUsersAndDataWithoutAFileAddNoName()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.View().Data().m_fileName.clear();
        app.Settings().WriteText(SystemSection, QStringLiteral("GraphTitle"),
                                 QStringLiteral("Drop of crate 7"));
        app.Print();
        const QString text = PageText(app.Pdf());
        QVERIFY(Holds(text, QStringLiteral("Drop of crate 7")));
        QVERIFY(!text.contains(QStringLiteral(" : ")));
        QVERIFY(!text.contains(QStringLiteral("KORVA")));
    }

    void JapanesePagesAreJapanese()
    {
        CPrintApp app(QStringLiteral("Japanese"));
        app.OpenLines(20);
        app.Print();
        const QString text = PageText(app.Pdf());
        for (const StringId words :
             {StringId::ChartTitleDefault, StringId::ColumnTemperature, StringId::ChartTime})
            QVERIFY2(text.contains(Text(words)), qPrintable(Text(words)));
        QVERIFY(!text.contains(QStringLiteral("axis")));
    }

    void CurvesLieWhereTheWindowShowsThem()
    {
        CPrintApp app;
        app.OpenLines(20);
        ShowTemperatureAlone(app);
        app.Print();
        // The page is the natural size spread over the paper less a millimetre.
        CChartWnd& chart = app.View().Chart();
        const QSize natural = chart.GetNaturalSize();
        constexpr double Margin = CTestPrinters::Margin;
        const QRect paper = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                        {Margin, Margin, Margin, Margin}, QPageLayout::Point)
                                .paintRectPixels(Dpi);
        const double scaleX = (paper.width() - 5) / static_cast<double>(natural.width());
        const double scaleY = (paper.height() - 5) / static_cast<double>(natural.height());
        const ChartSizes sizes = chart.Model().Sizes();
        const QImage page = Page(app.Pdf(), Dpi);
        const QRect curve =
            AreaOf(page.copy(0, 0, page.width() * 3 / 4, page.height()), TemperatureColour);

        const int row = chart.Model().m_scale.Row(23.5 * 0.5) - sizes.scrollY;
        const double expected = paper.top() + (2 * sizes.labelHeight + row) * scaleY;
        QVERIFY2(AreaOf(page, TemperatureColour).isValid(), "no curve");
        int nearest = page.height();
        const int middle = paper.left() + qRound((sizes.plot.left + sizes.plot.right) / 2 * scaleX);
        for (int y = 0; y < page.height(); ++y) {
            if (page.pixel(middle, y) == TemperatureColour)
                nearest = std::min(nearest, static_cast<int>(qAbs(y - expected)));
        }
        QVERIFY2(nearest <= 2, qPrintable(QString::number(nearest)));
        // It begins at the first line, right of the plot's edge.
        QVERIFY(curve.left() >= paper.left() + static_cast<int>(sizes.plot.left * scaleX));
    }

    void ThePageShowsWhatIsScrolledTo()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.Print();
        const QString before = PageText(app.Pdf());
        QVERIFY(!Holds(before, QStringLiteral("-45.0")));
        auto* const bar = app.View().Chart().findChildren<QScrollBar*>().constFirst();
        bar->triggerAction(QAbstractSlider::SliderToMaximum);
        app.Settle();
        app.Print();
        QVERIFY(Holds(PageText(app.Pdf()), QStringLiteral("-45.0")));
    }

    void TheLineWeightIsThatOfPaper_data()
    {
        QTest::addColumn<int>("weight");
        QTest::addColumn<int>("dpi");
        QTest::addColumn<int>("pixels");
        QTest::newRow("thin") << 1 << 150 << 1;
        QTest::newRow("usual") << 2 << 150 << 2;
        QTest::newRow("heaviest") << 4 << 150 << 4;
        QTest::newRow("too heavy") << 900 << 150 << 4;
        QTest::newRow("too light") << 0 << 150 << 1;
        QTest::newRow("fine printer") << 2 << 600 << 4;
    }

    void TheLineWeightIsThatOfPaper()
    {
        QFETCH(int, weight);
        QFETCH(int, dpi);
        QFETCH(int, pixels);
        CPrintApp app;
        app.OpenLines(20);
        ShowTemperatureAlone(app);
        app.View().Chart().SetLineWeight(3);
        app.Settings().WriteInt(SystemSection, QStringLiteral("PrintGraphPic"), weight);
        app.m_printers->m_dpi = dpi;
        app.m_printers->m_paper = QPageSize(QPageSize::A6);
        app.Print();
        QCOMPARE(CurveWidth(app), pixels);
        QCOMPARE(app.View().Chart().Model().m_lineWeight, 3);
    }

    void WithoutASettingTheLineWeightIsTwo()
    {
        CPrintApp app;
        app.OpenLines(20);
        ShowTemperatureAlone(app);
        app.Print();
        QCOMPARE(CurveWidth(app), 2);
    }

    void BarsArePrintedAsBars()
    {
        CPrintApp app;
        app.OpenLines(20);
        ShowTemperatureAlone(app);
        app.View().OnCommand(CommandId::BarChart);
        app.Print();
        const QImage page = Page(app.Pdf(), Dpi);
        int longest = 0;
        for (int x = page.width() / 4; x < page.width() / 2; ++x)
            longest = std::max(longest, LongestRun(page, x, TemperatureColour));
        QVERIFY2(longest > page.height() / 5, qPrintable(QString::number(longest)));
    }

    void NothingSelectedPrintsAxesAndTitle()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.View().Chart().SetSeriesShown(0x0FFF, false);
        app.Print();
        QCOMPARE(PageCount(app.Pdf()), 1);
        const QString text = PageText(app.Pdf());
        QVERIFY(Holds(text, QStringLiteral("KORVA measured result chart : crate.skd")));
        QVERIFY(AreaOf(Page(app.Pdf(), Dpi), GridColour).isValid());
    }

    void ThePaperMayBeTooSmall()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.m_printers->m_paper =
            QPageSize(QSizeF(15, 15), QPageSize::Millimeter, {}, QPageSize::ExactMatch);
        app.Print();
        QCOMPARE(app.Prompts().Boxes(), QStringList{TooSmall});
        QVERIFY(!QFile::exists(app.Pdf()));
        QVERIFY(app.Frame().m_closeEnabled);
    }

    void AVerySmallPageIsPrinted()
    {
        CPrintApp app;
        app.OpenLines(20);
        app.m_printers->m_paper =
            QPageSize(QSizeF(20, 20), QPageSize::Millimeter, {}, QPageSize::ExactMatch);
        app.Print();
        QCOMPARE(app.Prompts().Boxes(), QStringList());
        QCOMPARE(PageCount(app.Pdf()), 1);
    }

    void AChartZoomedAwayEndsInSilence()
    {
        CPrintApp app;
        app.OpenLines(20);
        PrintSettings settings;
        settings.chart.zoom = 0;
        app.PrintWith(settings);
        QCOMPARE(app.Prompts().Boxes(), QStringList());
        QVERIFY(app.Frame().m_closeEnabled);
    }

    // --- the list, which no dialog leads to ---

    void TheListIsPrintedWhereItsKeyStays()
    {
        CPrintApp app;
        app.OpenLines(60);
        PrintSettings settings = PrintDialogSettings;
        settings.graph = 0;
        app.PrintWith(settings);
        QCOMPARE(app.Prompts().Boxes(), QStringList());
        const int pages = PageCount(app.Pdf());
        QVERIFY(pages >= 2);
        int lines = 0;
        for (int page = 1; page <= pages; ++page) {
            const QString text = PageText(app.Pdf(), page);
            QVERIFY2(Holds(text, QStringLiteral("SKELDON : crate.skd %1/%2").arg(page).arg(pages)),
                     qPrintable(text));
            for (const char* title : {"Date", "Time", "X axis", "Y axis", "Z axis", "Rsltnt",
                                      "Temperature (C)", "Humidity (%)"})
                QVERIFY2(Holds(text, QLatin1String(title)), title);
            lines += static_cast<int>(text.count(QStringLiteral("2009/05/01")));
        }
        QCOMPARE(lines, 60);
        QVERIFY(Holds(PageText(app.Pdf(), pages),
                      QStringLiteral("60 2009/05/01 12:31:14.250 1.234 0.500 -0.250")));
    }

    void ThePaperDecidesHowTheListStands()
    {
        CPrintApp app;
        app.OpenLines(3);
        PrintSettings settings = PrintDialogSettings;
        settings.graph = 0;
        settings.list.horz = 0;
        app.PrintWith(settings);
        const QImage page = Page(app.Pdf(), 50);
        QVERIFY(page.height() > page.width());
    }

    void MarkedAndExtractedCellsOfTheListAreTinted()
    {
        const QRgb marked = ToColour(0xC0C0F8).rgb();
        const QRgb extracted = ToColour(0xF8D2CC).rgb();
        CPrintApp app;
        CMeasureData measured = MeasuredLines(3);
        CMeasureRecord line = measured.GetRecord(1);
        line.SetFlags(RecordFlag::Marked | RecordFlag::HitX | RecordFlag::HitHumidity);
        measured.SetRecord(1, line);
        app.Open(app.FileOf(measured, QStringLiteral("crate.skd")));
        line = app.View().Data().GetRecord(1);
        line.SetFlags(RecordFlag::Marked | RecordFlag::HitX | RecordFlag::HitHumidity);
        app.View().Data().SetRecord(1, line);
        PrintSettings settings;
        settings.graph = 0;
        settings.list.match = 1;
        app.PrintWith(settings);
        const QImage page = Page(app.Pdf(), Dpi);
        const QRect number = AreaOf(page, marked);
        const QRect cells = AreaOf(page, extracted);
        // The first column's cell and, in the same row, those of X and humidity.
        QVERIFY(number.isValid());
        QVERIFY(number.right() < page.width() / 8);
        QVERIFY(qAbs(number.top() - cells.top()) <= 2);
        QVERIFY(qAbs(number.bottom() - cells.bottom()) <= 2);
        QVERIFY(cells.left() > page.width() / 3);
        QVERIFY(cells.right() > page.width() * 9 / 10);

        settings.mark = 0;
        settings.extract = 0;
        app.PrintWith(settings);
        const QImage plain = Page(app.Pdf(), Dpi);
        QVERIFY(!AreaOf(plain, marked).isValid());
        QVERIFY(!AreaOf(plain, extracted).isValid());
    }

    void AListWithoutRoomForALineIsTooSmall()
    {
        CPrintApp app;
        app.OpenLines(3);
        app.m_printers->m_paper =
            QPageSize(QSizeF(40, 40), QPageSize::Millimeter, {}, QPageSize::ExactMatch);
        PrintSettings settings = PrintDialogSettings;
        settings.graph = 0;
        app.PrintWith(settings);
        QCOMPARE(app.Prompts().Boxes(), QStringList{TooSmall});
        QVERIFY(!QFile::exists(app.Pdf()));
    }
};

QTEST_MAIN(PrintTest)
#include "PrintTest.moc"
