#include "controls/FloatRule.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace skeldon;

Q_DECLARE_METATYPE(skeldon::FloatVerdict)

/// The rule of boxes for decimals.
class FloatRuleTest : public QObject
{
    Q_OBJECT

private slots:
    void DigitsKeepRule_data();
    void DigitsKeepRule();
    void KeyIsJudgedByTextBehindIt_data();
    void KeyIsJudgedByTextBehindIt();
    void RangeSetsMembers();
    void TextIsReadWithinRange_data();
    void TextIsReadWithinRange();
    void ValueIsFormatted_data();
    void ValueIsFormatted();
    void LargestNumbersAreFormattedWhole();
};

void FloatRuleTest::DigitsKeepRule_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<FloatVerdict>("verdict");

    const FloatVerdict passes = FloatVerdict::Passes;
    const FloatVerdict refused = FloatVerdict::Refused;
    const FloatVerdict tooMany = FloatVerdict::TooManyDecimals;
    QTest::newRow("empty") << QByteArray() << 2 << passes;
    QTest::newRow("two of two decimals") << QByteArray("1.25") << 2 << passes;
    QTest::newRow("third decimal") << QByteArray("1.253") << 2 << tooMany;
    QTest::newRow("zero counts as a decimal") << QByteArray("1.000") << 2 << tooMany;
    QTest::newRow("whole number without decimals") << QByteArray("125") << 0 << passes;
    QTest::newRow("one decimal where none is allowed") << QByteArray("1.5") << 0 << tooMany;
    QTest::newRow("fifteen digits") << QByteArray("123456789012345") << 2 << passes;
    QTest::newRow("sixteen digits") << QByteArray("1234567890123456") << 2 << refused;
    QTest::newRow("zeros before do not count") << QByteArray("000123456789012345") << 0 << passes;
    QTest::newRow("zeros behind do not count") << QByteArray("12345678901234500") << 0 << passes;
    QTest::newRow("zeros between count") << QByteArray("1000000000000001") << 0 << refused;
    QTest::newRow("point does not part them") << QByteArray("12345678.12345678") << 8 << refused;
    QTest::newRow("zeros before and behind the point") << QByteArray("0.00012") << 5 << passes;
    QTest::newRow("minus does not count") << QByteArray("-123456789012345") << 0 << passes;
    QTest::newRow("decimals go before digits")
        << QByteArray("1234567890123456.123") << 2 << tooMany;
    QTest::newRow("any number of decimals") << "0." + QByteArray(307, '0') + "1" << -1 << passes;
    QTest::newRow("308 is any number") << "0." + QByteArray(309, '0') << -1 << tooMany;
}

void FloatRuleTest::DigitsKeepRule()
{
    QFETCH(QByteArray, text);
    QFETCH(int, decimals);
    QFETCH(FloatVerdict, verdict);
    QCOMPARE(CFloatRule(-1e9, 1e9, decimals).CheckDigits(text.toStdString()), verdict);
}

void FloatRuleTest::KeyIsJudgedByTextBehindIt_data()
{
    QTest::addColumn<char32_t>("key");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("lower");
    QTest::addColumn<FloatVerdict>("verdict");

    const FloatVerdict passes = FloatVerdict::Passes;
    const FloatVerdict refused = FloatVerdict::Refused;
    const FloatVerdict tooMany = FloatVerdict::TooManyDecimals;
    QTest::newRow("control") << U'\b' << QByteArray("x") << 2 << 0.0 << passes;
    QTest::newRow("digit") << U'5' << QByteArray("1.25") << 2 << 0.0 << passes;
    QTest::newRow("third decimal") << U'5' << QByteArray("1.255") << 2 << 0.0 << tooMany;
    QTest::newRow("sixteenth digit")
        << U'6' << QByteArray("1234567890123456") << 2 << 0.0 << refused;
    QTest::newRow("letter") << U'e' << QByteArray("1e") << 2 << -1.0 << refused;
    QTest::newRow("comma") << U',' << QByteArray("1,") << 2 << -1.0 << refused;
    QTest::newRow("plus") << U'+' << QByteArray("+") << 2 << -1.0 << refused;
    QTest::newRow("minus first") << U'-' << QByteArray("-12") << 2 << -1.0 << passes;
    QTest::newRow("minus alone") << U'-' << QByteArray("-") << 2 << -1.0 << passes;
    QTest::newRow("minus later") << U'-' << QByteArray("1-2") << 2 << -1.0 << refused;
    QTest::newRow("second minus") << U'-' << QByteArray("--2") << 2 << -1.0 << refused;
    QTest::newRow("minus where nothing is negative")
        << U'-' << QByteArray("-") << 2 << 0.0 << refused;
    QTest::newRow("point") << U'.' << QByteArray("1.") << 2 << 0.0 << passes;
    QTest::newRow("point first") << U'.' << QByteArray(".5") << 2 << 0.0 << passes;
    QTest::newRow("second point") << U'.' << QByteArray("1.2.") << 2 << 0.0 << refused;
    QTest::newRow("point without decimals") << U'.' << QByteArray("1.") << 0 << 0.0 << refused;
    QTest::newRow("point far inside") << U'.' << QByteArray("1.234") << 2 << 0.0 << tooMany;
    QTest::newRow("point for any decimals") << U'.' << QByteArray("1.") << -1 << 0.0 << passes;
}

void FloatRuleTest::KeyIsJudgedByTextBehindIt()
{
    QFETCH(char32_t, key);
    QFETCH(QByteArray, text);
    QFETCH(int, decimals);
    QFETCH(double, lower);
    QFETCH(FloatVerdict, verdict);
    QCOMPARE(CFloatRule(lower, 1e9, decimals).CheckKey(key, text.toStdString()), verdict);
}

void FloatRuleTest::RangeSetsMembers()
{
    const CFloatRule rule(10.5, -1, 400);
    QCOMPARE(rule.m_dMin, -1.0);
    QCOMPARE(rule.m_dMax, 10.5);
    QCOMPARE(rule.m_nDecimals, 308);
    QVERIFY(rule.m_bNegative);
    QCOMPARE(rule.DecimalLimit(), 308);
    const CFloatRule positive(0, 1, -3);
    QVERIFY(!positive.m_bNegative);
    QCOMPARE(positive.m_nDecimals, -3);
    QCOMPARE(positive.DecimalLimit(), 308);
}

void FloatRuleTest::TextIsReadWithinRange_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<double>("value");

    // The range is -1.5 to 20.
    QTest::newRow("inside") << QByteArray("2.25") << true << 2.25;
    QTest::newRow("lower bound") << QByteArray("-1.5") << true << -1.5;
    QTest::newRow("upper bound") << QByteArray("20.000") << true << 20.0;
    QTest::newRow("below") << QByteArray("-1.51") << false << -1.5;
    QTest::newRow("above") << QByteArray("20.001") << false << 20.0;
    QTest::newRow("empty") << QByteArray() << false << -1.5;
    QTest::newRow("no number is 0") << QByteArray("abc") << true << 0.0;
    QTest::newRow("pasted nan") << QByteArray("nan") << false << -1.5;
    QTest::newRow("pasted infinity") << QByteArray("inf") << false << 20.0;
    QTest::newRow("point alone") << QByteArray(".") << true << 0.0;
    QTest::newRow("comma ends the number") << QByteArray("3,9") << true << 3.0;
}

void FloatRuleTest::TextIsReadWithinRange()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isValid);
    QFETCH(double, value);
    const FloatReading reading = CFloatRule(-1.5, 20, 2).Read(text.toStdString());
    QCOMPARE(reading.isValid, isValid);
    QCOMPARE(reading.value, value);
}

void FloatRuleTest::ValueIsFormatted_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("no decimals") << 12.5 << 0 << QByteArray("12");
    QTest::newRow("one decimal") << 12.25 << 1 << QByteArray("12.2");
    QTest::newRow("padded") << 3.0 << 2 << QByteArray("3.00");
    QTest::newRow("negative") << -0.5 << 1 << QByteArray("-0.5");
    QTest::newRow("fifteen decimals") << 0.1 << 15 << QByteArray("0.100000000000000");
    QTest::newRow("any: whole number") << 42.0 << -1 << QByteArray("42");
    QTest::newRow("any: zero") << 0.0 << -1 << QByteArray("0");
    QTest::newRow("any: zeros at the end go") << 12.5 << -1 << QByteArray("12.5");
    QTest::newRow("any: fifteen digits") << 1.0 / 3 << -1 << QByteArray("0.333333333333333");
    QTest::newRow("any: rounded to fifteen") << 0.1 + 0.2 << -1 << QByteArray("0.3");
    QTest::newRow("any: leading zeros") << 0.00012 << -1 << QByteArray("0.00012");
    QTest::newRow("any: negative") << -0.00012 << -1 << QByteArray("-0.00012");
    QTest::newRow("any: zeros within stay") << 1000.0 << -1 << QByteArray("1000");
    QTest::newRow("any: longer than its digits")
        << 1e20 << -1 << QByteArray("100000000000000000000");
    QTest::newRow("any: rounds up to a power") << 9.9999999999999982 << -1 << QByteArray("10");
    QTest::newRow("sixteen decimals are fifteen") << 12.5 << 16 << QByteArray("12.500000000000000");
    QTest::newRow("many decimals are cut") << 1.0 / 3000 << 20 << QByteArray("0.000333333333333");
    QTest::newRow("many decimals of a long number")
        << 1e16 << 16 << QByteArray("10000000000000000.000000000000000");
}

void FloatRuleTest::ValueIsFormatted()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QByteArray, text);
    QCOMPARE(QByteArray::fromStdString(FormatDecimal(value, decimals)), text);
}

void FloatRuleTest::LargestNumbersAreFormattedWhole()
{
    const double largest = std::numeric_limits<double>::max();
    const std::string plain = FormatDecimal(-largest, 15);
    QCOMPARE(plain.size(), std::size_t{1 + 309 + 1 + 15});
    const std::string any = FormatDecimal(largest, -1);
    QCOMPARE(any.size(), std::size_t{309});
    QVERIFY(any.starts_with("179769313486232000"));
    const double smallest = std::numeric_limits<double>::min();
    const std::string tiny = FormatDecimal(smallest, -1);
    QVERIFY(tiny.starts_with("0.000"));
    QVERIFY(tiny.ends_with("222507385850720") || tiny.ends_with("22250738585072"));
    QCOMPARE(FormatDecimal(std::numeric_limits<double>::infinity(), -1), std::string("inf"));
}

QTEST_MAIN(FloatRuleTest)
#include "FloatRuleTest.moc"
