#include "korva-simulator/ControlLine.h"
#include "korva-simulator/TraceText.h"
#include "korva-simulator/WirePacer.h"

#include <gtest/gtest.h>

#include <string>

namespace skeldon::test {

namespace {

constexpr std::int64_t Second = 1'000'000;

TEST(WirePacer, WithoutARateLetsEverythingGo)
{
    CWirePacer pacer(0);
    EXPECT_FALSE(pacer.IsLimited());
    EXPECT_EQ(pacer.Allowed(22'000'000, 0), 22'000'000U);
    EXPECT_EQ(pacer.Allowed(0, 0), 0U);
}

TEST(WirePacer, LetsBytesGoAsTimePasses)
{
    CWirePacer pacer(1000);
    EXPECT_EQ(pacer.Allowed(5000, 10 * Second), 0U) << "a run begins with nothing";
    EXPECT_EQ(pacer.Allowed(5000, 10 * Second + 999), 0U);
    EXPECT_EQ(pacer.Allowed(5000, 10 * Second + 1000), 1U);
    EXPECT_EQ(pacer.Allowed(5000, 11 * Second), 1000U);
    EXPECT_EQ(pacer.Allowed(3, 11 * Second), 3U);
}

/// Sends `bytes` as the loop does: whatever may go, at the moments that the pacer names.
std::int64_t TimeFor(CWirePacer& pacer, std::size_t bytes)
{
    std::int64_t now = 5 * Second;
    std::size_t sent = 0;
    int rounds = 0;
    while (sent < bytes) {
        const std::size_t allowed = pacer.Allowed(bytes - sent, now);
        pacer.Sent(allowed);
        sent += allowed;
        if (sent < bytes)
            now = pacer.NextUs();
        if (++rounds > 1'000'000)
            return -1;
    }
    return now - 5 * Second;
}

TEST(WirePacer, TakesAsLongAsTheLineWould)
{
    for (const std::int64_t rate :
         {std::int64_t{1}, std::int64_t{100}, CWirePacer::LineRate, std::int64_t{1'000'000}}) {
        CWirePacer pacer(rate);
        const std::int64_t time = TimeFor(pacer, static_cast<std::size_t>(10 * rate));
        EXPECT_GE(time, 10 * Second) << rate;
        EXPECT_LE(time, 10 * Second + 10'000) << rate;
    }
}

TEST(WirePacer, StartsAfreshBehindARest)
{
    CWirePacer pacer(1000);
    (void)TimeFor(pacer, 100);
    EXPECT_EQ(pacer.Allowed(0, 100 * Second), 0U);
    EXPECT_EQ(pacer.Allowed(10, 200 * Second), 0U);
    EXPECT_EQ(pacer.Allowed(10, 200 * Second + 3000), 3U);
}

TEST(WirePacer, LetsAHostThatDidNotReadCatchUpByNoMoreThanABuffer)
{
    CWirePacer pacer(1000);
    (void)pacer.Allowed(1'000'000, 0);
    EXPECT_EQ(pacer.Allowed(1'000'000, 1000 * Second), 4096U);
}

TEST(AppendTrace, ShowsEachByteWithTimeAndDirection)
{
    std::string text;
    AppendTrace(text, 250'431, TraceDirection::FromHost, "m");
    AppendTrace(text, 12'000'000, TraceDirection::ToHost, std::string_view("A\0\r\n\xFF#", 6));
    EXPECT_EQ(text, "    0.250431 > 6D                                              |m|\n"
                    "   12.000000 < 41 00 0D 0A FF 23                               |A....#|\n");
}

TEST(AppendTrace, BreaksLongRunsIntoLinesOfSixteen)
{
    std::string text;
    AppendTrace(text, 0, TraceDirection::Lost, "0123456789ABCDEFG");
    EXPECT_EQ(text,
              "    0.000000 ! 30 31 32 33 34 35 36 37 38 39 41 42 43 44 45 46 |0123456789ABCDEF|\n"
              "    0.000000 ! 47                                              |G|\n");
    text.clear();
    AppendTrace(text, 0, TraceDirection::Lost, "");
    EXPECT_EQ(text, "");
}

TEST(AppendTraceEvent, NamesTheEvent)
{
    std::string text;
    AppendTraceEvent(text, 1'000'000'000'000, "pulled");
    EXPECT_EQ(text, "1000000.000000 - pulled\n");
}

ControlKind KindOf(std::string_view line)
{
    return std::get<ControlLine>(ParseControlLine(line)).kind;
}

TEST(ParseControlLine, KnowsItsWords)
{
    EXPECT_EQ(KindOf("plug"), ControlKind::Plug);
    EXPECT_EQ(KindOf(" pull \r"), ControlKind::Pull);
    EXPECT_EQ(KindOf("start"), ControlKind::Start);
    EXPECT_EQ(KindOf("magnet near"), ControlKind::MagnetNear);
    EXPECT_EQ(KindOf("magnet away"), ControlKind::MagnetAway);
    EXPECT_EQ(KindOf("clear-faults"), ControlKind::ClearFaults);
    EXPECT_EQ(KindOf("quit"), ControlKind::Quit);
    EXPECT_EQ(KindOf(""), ControlKind::Nothing);
    EXPECT_EQ(KindOf("# a comment"), ControlKind::Nothing);
}

TEST(ParseControlLine, TakesAFault)
{
    const ControlLine line = std::get<ControlLine>(ParseControlLine("fault silence-after=100"));
    EXPECT_EQ(line.kind, ControlKind::AddFault);
    EXPECT_EQ(line.fault.kind, FaultKind::SilenceAfter);
    EXPECT_EQ(line.fault.number, 100);
}

TEST(ParseControlLine, SaysWhatIsWrong)
{
    EXPECT_EQ(std::get<std::string>(ParseControlLine("jump")), "\"jump\" is no command");
    EXPECT_EQ(std::get<std::string>(ParseControlLine("fault")), "\"fault\" is no command");
    EXPECT_EQ(std::get<std::string>(ParseControlLine("fault fire")), "\"fire\" is no fault");
}

TEST(LineCollector, PutsPiecesTogether)
{
    CLineCollector lines;
    std::string line;
    lines.Append("pu");
    EXPECT_FALSE(lines.Next(line));
    lines.Append("ll\n\nplug\nqu");
    EXPECT_TRUE(lines.Next(line));
    EXPECT_EQ(line, "pull");
    EXPECT_TRUE(lines.Next(line));
    EXPECT_EQ(line, "");
    EXPECT_TRUE(lines.Next(line));
    EXPECT_EQ(line, "plug");
    EXPECT_FALSE(lines.Next(line));
    lines.Append("it\n");
    EXPECT_TRUE(lines.Next(line));
    EXPECT_EQ(line, "quit");
}

TEST(LineCollector, HoldsNoEndlessLine)
{
    CLineCollector lines;
    for (int i = 0; i < 100; ++i)
        lines.Append(std::string(4096, 'x'));
    lines.Append("\n");
    std::string line;
    ASSERT_TRUE(lines.Next(line));
    EXPECT_EQ(line.size(), 65536U);
}

} // namespace

} // namespace skeldon::test
