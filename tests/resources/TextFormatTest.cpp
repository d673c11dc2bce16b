#include "resources/TextFormat.h"

#include <QTest>

#include <array>
#include <cstdio>
#include <limits>

using namespace skeldon;

namespace {

/// What the C library makes of the same pattern and value.
template <typename T>
QString Printed(const char* pattern, T value)
{
    std::array<char, 512> text{};
    // The patterns below fit their values.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
    std::snprintf(text.data(), text.size(), pattern, value);
#pragma GCC diagnostic pop
    return QString::fromUtf8(text.data());
}

QString Formatted(const char* pattern, const CTextArgument& value)
{
    return FormatText(QString::fromUtf8(pattern), {value});
}

} // namespace

class CTextFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void WholeNumbersReadAsPrintfWritesThem()
    {
        for (const auto* pattern :
             {"%d", "%i", "%02d", "%04d", "%5d", "%5d ", "%-5d|", "%+d", "% d", "%.3d", "%05.2d",
              "%.0d", "%-05d|", "0.%04dsec", "%03d"}) {
            for (const int value :
                 {0, 1, -1, 7, 42, -42, 312, 1250, 99999, 123456789,
                  std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
                QCOMPARE(Formatted(pattern, value), Printed(pattern, value));
        }
    }

    void UnsignedNumbersReadAsPrintfWritesThem()
    {
        for (const auto* pattern :
             {"%u", "%x", "%X", "%08x", "%#x", "%#X", "%#010x", "%5u", "%-6u|"}) {
            for (const unsigned value : {0U, 1U, 255U, 48879U, 4294967295U})
                QCOMPARE(Formatted(pattern, value), Printed(pattern, value));
            for (const int value : {-1, std::numeric_limits<int>::min()})
                QCOMPARE(Formatted(pattern, value), Printed(pattern, value));
        }
    }

    void LongNumbersKeepTheirValue()
    {
        QCOMPARE(Formatted("%lld", std::numeric_limits<std::int64_t>::min()),
                 QStringLiteral("-9223372036854775808"));
        QCOMPARE(Formatted("%d", std::numeric_limits<std::int64_t>::max()),
                 QStringLiteral("9223372036854775807"));
        QCOMPARE(Formatted("%u", std::numeric_limits<std::uint64_t>::max()),
                 QStringLiteral("18446744073709551615"));
    }

    void DecimalsReadAsPrintfWritesThem()
    {
        for (const auto* pattern :
             {"%f", "%.1f", "%3.1f", "%3.1f ", "%3.3f ", "%4.4f ", "%6.2f ", "%.0f", "%#.0f",
              "%08.2f", "%+.1f", "% .1f", "%-8.1f|", "%.15f", "%06f"}) {
            for (const double value :
                 {0.0, -0.0, 0.05, 0.15, 0.25, 0.5, 1.5, 2.5, -0.04, 9.9, 49.5, 1e15, -123.456,
                  std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                  std::numeric_limits<double>::quiet_NaN()})
                QCOMPARE(Formatted(pattern, value), Printed(pattern, value));
        }
        QCOMPARE(Formatted("%.1f", 1e300), Printed("%.1f", 1e300));
    }

    void TextsReadAsPrintfWritesThem()
    {
        for (const auto* pattern : {"%s", "[%s]", "%5s", "%-5s|", "%.2s", "%5.1s"}) {
            for (const auto* value : {"", "a", "abc", "abcdefgh"})
                QCOMPARE(Formatted(pattern, value), Printed(pattern, value));
        }
        QCOMPARE(Formatted("%c", 'x'), Printed("%c", 'x'));
        QCOMPARE(Formatted("%3c|", 'x'), Printed("%3c|", 'x'));
    }

    void TextsOfOtherScriptsPassWhole()
    {
        QCOMPARE(FormatText(QStringLiteral("%sには"), {QStringLiteral("しきい値")}),
                 QStringLiteral("しきい値には"));
    }

    void ArgumentsAreTakenInTheirOrder()
    {
        QCOMPARE(FormatText(QStringLiteral(" %s(Max %.1fG) Alpha"), {"PL20", 10.0}),
                 QStringLiteral(" PL20(Max 10.0G) Alpha"));
        QCOMPARE(FormatText(QStringLiteral("%d(%dmin)"), {120, 2}), QStringLiteral("120(2min)"));
    }

    void TwoPercentSignsAreOne()
    {
        QCOMPARE(FormatText(QStringLiteral("100%% of %d%%"), {5}), QStringLiteral("100% of 5%"));
    }

    void AFilledInTextIsNotReadAgain()
    {
        QCOMPARE(FormatText(QStringLiteral("%s\n%s"), {"a%sb%d", "c"}),
                 QStringLiteral("a%sb%d\nc"));
    }

    void AMissingArgumentGivesNothing()
    {
        QCOMPARE(FormatText(QStringLiteral("a%sb%5db%5.1fc%5sd"), {}), QStringLiteral("abbcd"));
        QCOMPARE(FormatText(QStringLiteral("%d-%d"), {1}), QStringLiteral("1-"));
    }

    void AnArgumentOfAnotherKindGivesNothing()
    {
        QCOMPARE(FormatText(QStringLiteral("[%d]"), {"7"}), QStringLiteral("[]"));
        QCOMPARE(FormatText(QStringLiteral("[%d]"), {7.5}), QStringLiteral("[]"));
        QCOMPARE(FormatText(QStringLiteral("[%f]"), {"7"}), QStringLiteral("[]"));
        QCOMPARE(FormatText(QStringLiteral("[%s]"), {7}), QStringLiteral("[]"));
        QCOMPARE(FormatText(QStringLiteral("[%c]"), {-1}), QStringLiteral("[]"));
        QCOMPARE(FormatText(QStringLiteral("[%d][%d]"), {"x", 2}), QStringLiteral("[][2]"));
    }

    void AWholeNumberServesADecimalConversion()
    {
        QCOMPARE(FormatText(QStringLiteral("%.1f"), {2}), QStringLiteral("2.0"));
    }

    void AnythingElseStaysAsItStands()
    {
        QCOMPARE(FormatText(QStringLiteral("50% off, 5%n, %"), {1}),
                 QStringLiteral("50% off, 5%n, %"));
        QCOMPARE(FormatText(QStringLiteral("%5.1"), {1}), QStringLiteral("%5.1"));
        QCOMPARE(FormatText(QStringLiteral("%-08l"), {1}), QStringLiteral("%-08l"));
        QCOMPARE(FormatText(QString(), {1}), QString());
    }

    void ArgumentsLeftOverAreDropped()
    {
        QCOMPARE(FormatText(QStringLiteral("%d"), {1, 2, "x"}), QStringLiteral("1"));
    }

    void AWidthBeyondReasonIsCut()
    {
        QCOMPARE(FormatText(QStringLiteral("%99999999999d"), {1}).size(), 4096);
        QVERIFY(FormatText(QStringLiteral("%.99999999999f"), {1.0}).size() < 4096);
    }
};

QTEST_GUILESS_MAIN(CTextFormatTest)
#include "TextFormatTest.moc"
