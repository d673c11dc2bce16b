#include "controls/IntRule.h"

#include <QTest>

using namespace skeldon;

/// The rule of boxes for whole numbers.
class IntRuleTest : public QObject
{
    Q_OBJECT

private slots:
    void TextIsReadWithinRange_data();
    void TextIsReadWithinRange();
    void BoundsAreSorted();
    void TextLimitIsThatOfUpperBound_data();
    void TextLimitIsThatOfUpperBound();
    void DigitsAndControlCharactersPass_data();
    void DigitsAndControlCharactersPass();
};

void IntRuleTest::TextIsReadWithinRange_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<quint32>("value");

    // The range is 5 to 99.
    QTest::newRow("inside") << QByteArray("42") << true << 42U;
    QTest::newRow("lower bound") << QByteArray("5") << true << 5U;
    QTest::newRow("upper bound") << QByteArray("99") << true << 99U;
    QTest::newRow("below") << QByteArray("4") << false << 5U;
    QTest::newRow("above") << QByteArray("100") << false << 99U;
    QTest::newRow("empty gives the lower bound") << QByteArray() << false << 5U;
    QTest::newRow("leading zeros") << QByteArray("007") << true << 7U;
    QTest::newRow("ends at the first other character") << QByteArray("12abc") << true << 12U;
    QTest::newRow("no number is 0") << QByteArray("abc") << false << 5U;
    QTest::newRow("negative compares as unsigned") << QByteArray("-7") << false << 99U;
    QTest::newRow("too long for 32 bits") << QByteArray("4294967342") << false << 99U;
    QTest::newRow("very long") << QByteArray(400, '9') << false << 99U;
    QTest::newRow("blank before") << QByteArray(" 42") << true << 42U;
    QTest::newRow("plus") << QByteArray("+42") << true << 42U;
}

void IntRuleTest::TextIsReadWithinRange()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isValid);
    QFETCH(quint32, value);
    const IntReading reading = CIntRule(5, 99).Read(text.toStdString());
    QCOMPARE(reading.isValid, isValid);
    QCOMPARE(reading.value, value);
}

void IntRuleTest::BoundsAreSorted()
{
    const CIntRule rule(10, 1);
    QCOMPARE(rule.m_nMin, 1U);
    QCOMPARE(rule.m_nMax, 10U);
    QVERIFY(rule.Read("1").isValid);
    QVERIFY(rule.Read("10").isValid);
    QVERIFY(!rule.Read("11").isValid);
    // As unsigned numbers too.
    const CIntRule high(0x80000000, 5);
    QCOMPARE(high.m_nMin, 5U);
    QVERIFY(high.Read("2147483648").isValid);
    QVERIFY(CIntRule(0, 0xFFFFFFFF).Read("-1").isValid);
    QCOMPARE(CIntRule(0, 0xFFFFFFFF).Read("-1").value, 0xFFFFFFFFU);
}

void IntRuleTest::TextLimitIsThatOfUpperBound_data()
{
    QTest::addColumn<quint32>("upper");
    QTest::addColumn<int>("limit");

    QTest::newRow("99") << 99U << 2;
    QTest::newRow("100") << 100U << 3;
    QTest::newRow("0") << 0U << 1;
    QTest::newRow("86400") << 86400U << 5;
    QTest::newRow("largest positive") << 0x7FFFFFFFU << 10;
    QTest::newRow("shown with a minus") << 0xFFFFFFFFU << 11;
}

void IntRuleTest::TextLimitIsThatOfUpperBound()
{
    QFETCH(quint32, upper);
    QFETCH(int, limit);
    QCOMPARE(CIntRule(0, upper).TextLimit(), limit);
}

void IntRuleTest::DigitsAndControlCharactersPass_data()
{
    QTest::addColumn<char32_t>("key");
    QTest::addColumn<bool>("passes");

    QTest::newRow("0") << U'0' << true;
    QTest::newRow("9") << U'9' << true;
    QTest::newRow("backspace") << U'\b' << true;
    QTest::newRow("paste") << char32_t{0x16} << true;
    QTest::newRow("delete") << char32_t{0x7F} << true;
    QTest::newRow("slash, just below 0") << U'/' << false;
    QTest::newRow("colon, just above 9") << U':' << false;
    QTest::newRow("minus") << U'-' << false;
    QTest::newRow("point") << U'.' << false;
    QTest::newRow("blank") << U' ' << false;
    QTest::newRow("wide digit") << U'\uFF11' << false;
}

void IntRuleTest::DigitsAndControlCharactersPass()
{
    QFETCH(char32_t, key);
    QFETCH(bool, passes);
    QCOMPARE(PassesIntKey(key), passes);
}

QTEST_MAIN(IntRuleTest)
#include "IntRuleTest.moc"
