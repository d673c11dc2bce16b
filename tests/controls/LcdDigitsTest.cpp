#include "controls/LcdDigits.h"
#include "controls/LcdLayout.h"

#include <QTest>

#include <climits>

using namespace skeldon;

namespace {

using Codes = std::vector<int>;

std::vector<int> OffsetsOf(const std::vector<DigitCell>& cells)
{
    std::vector<int> offsets;
    for (const DigitCell& cell : cells)
        offsets.push_back(cell.x);
    return offsets;
}

std::vector<int> AsVector(std::span<const int> offsets)
{
    return {offsets.begin(), offsets.end()};
}

} // namespace

Q_DECLARE_METATYPE(skeldon::LcdPanelKind)

/// From the value of a read-out to the cells that are lit.
class LcdDigitsTest : public QObject
{
    Q_OBJECT

private slots:
    void ValueIsSplitFromTheRight_data();
    void ValueIsSplitFromTheRight();
    void LowestDigitGoesIntoLastCell();
    void DigitsWithoutCellAreDropped();
    void PanelWithoutCellsShowsNoDigit();
    void LayoutFollowsTable_data();
    void LayoutFollowsTable();
    void PicturesFitTheirPlaces();
};

void LcdDigitsTest::ValueIsSplitFromTheRight_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("least");
    QTest::addColumn<Codes>("codes");

    QTest::newRow("zero shows 0") << 0 << 1 << Codes{0};
    QTest::newRow("zero of two digits") << 0 << 2 << Codes{0, 0};
    QTest::newRow("padded") << 5 << 2 << Codes{5, 0};
    QTest::newRow("exactly long enough") << 105 << 3 << Codes{5, 0, 1};
    QTest::newRow("longer than least") << 1250 << 1 << Codes{0, 5, 2, 1};
    QTest::newRow("sampling") << 1250 << 5 << Codes{0, 5, 2, 1, 0};
    QTest::newRow("minus is the leftmost") << -12 << 1 << Codes{2, 1, 10};
    QTest::newRow("minus before padding") << -5 << 2 << Codes{5, 0, 10};
    QTest::newRow("lowest number there is")
        << INT_MIN << 1 << Codes{8, 4, 6, 3, 8, 4, 7, 4, 1, 2, 10};
    QTest::newRow("no least digits") << 0 << 0 << Codes{};
}

void LcdDigitsTest::ValueIsSplitFromTheRight()
{
    QFETCH(int, value);
    QFETCH(int, least);
    QFETCH(Codes, codes);
    QCOMPARE(DigitCodes(value, least), codes);
}

void LcdDigitsTest::LowestDigitGoesIntoLastCell()
{
    const int offsets[] = {19, 29, 43};
    const std::vector<DigitCell> cells = PlaceDigits({5, 0}, offsets);
    QCOMPARE(cells, (std::vector<DigitCell>{{29, 0}, {43, 5}}));
    QCOMPARE(DigitText(cells), std::string("05"));
}

void LcdDigitsTest::DigitsWithoutCellAreDropped()
{
    const int offsets[] = {31, 41};
    QCOMPARE(DigitText(PlaceDigits(DigitCodes(12345, 1), offsets)), std::string("45"));
    QCOMPARE(DigitText(PlaceDigits(DigitCodes(-7, 1), offsets)), std::string("-7"));
    QCOMPARE(DigitText(PlaceDigits(DigitCodes(-78, 1), offsets)), std::string("78"));
}

void LcdDigitsTest::PanelWithoutCellsShowsNoDigit()
{
    QVERIFY(PlaceDigits(DigitCodes(1, 1), {}).empty());
}

void LcdDigitsTest::LayoutFollowsTable_data()
{
    QTest::addColumn<LcdPanelKind>("kind");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<Codes>("offsets");
    QTest::addColumn<int>("least");

    const QSize usual(96, 42);
    QTest::newRow("records") << LcdPanelKind::Records << usual << 38
                             << Codes{11, 21, 31, 41, 51, 61} << 1;
    QTest::newRow("sampling") << LcdPanelKind::Sampling << QSize(96, 54) << 50
                              << Codes{6, 20, 30, 40, 50} << 5;
    QTest::newRow("interval") << LcdPanelKind::Interval << usual << 38 << Codes{25, 35} << 1;
    QTest::newRow("threshold") << LcdPanelKind::Threshold << usual << 38 << Codes{19, 29, 43} << 2;
    QTest::newRow("id") << LcdPanelKind::Id << usual << 38 << Codes{31, 41} << 1;
    QTest::newRow("hazard") << LcdPanelKind::Hazard << usual << 38 << Codes{19, 29, 43} << 2;
    QTest::newRow("endless") << LcdPanelKind::Endless << usual << 38 << Codes{} << 1;
    QTest::newRow("start option") << LcdPanelKind::StartOption << usual << 38 << Codes{31, 41} << 1;
    QTest::newRow("detect over temperature")
        << LcdPanelKind::DetectOverTemperature << usual << 38 << Codes{} << 1;
    QTest::newRow("buzzer") << LcdPanelKind::Buzzer << usual << 38 << Codes{} << 1;
}

void LcdDigitsTest::LayoutFollowsTable()
{
    QFETCH(LcdPanelKind, kind);
    QFETCH(QSize, size);
    QFETCH(int, bottom);
    QFETCH(Codes, offsets);
    QFETCH(int, least);
    const LcdLayout layout = LcdLayoutOf(kind);
    QCOMPARE(layout.size, size);
    QCOMPARE(layout.displayArea, QRect(QPoint(8, 18), QPoint(87, bottom - 1)));
    QCOMPARE(AsVector(layout.offsets), offsets);
    QCOMPARE(layout.leastDigits, least);
    QCOMPARE(LcdCaptionArea, QRect(QPoint(7, 1), QPoint(88, 16)));
}

void LcdDigitsTest::PicturesFitTheirPlaces()
{
    for (int i = 0; i <= static_cast<int>(LcdPanelKind::Buzzer); ++i) {
        const LcdLayout layout = LcdLayoutOf(static_cast<LcdPanelKind>(i));
        QCOMPARE(PictureSize(layout.background), layout.size);
        QCOMPARE(PictureSize(layout.display), layout.displayArea.size());
        for (const int x : layout.offsets)
            QVERIFY(x + LcdCellSize.width() <= layout.displayArea.width());
        const std::vector<DigitCell> all =
            PlaceDigits(Codes(layout.offsets.size(), 8), layout.offsets);
        QCOMPARE(OffsetsOf(all), AsVector(layout.offsets));
    }
}

QTEST_MAIN(LcdDigitsTest)
#include "LcdDigitsTest.moc"
