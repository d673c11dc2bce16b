#include "SimulatedSupport.h"

namespace skeldon::test {

namespace {

// Reading.

TEST(ParseFault, ReadsEveryFormThatIsListed)
{
    for (const FaultForm& form : FaultForms()) {
        const bool isText =
            form.value == FaultValue::Text || form.value == FaultValue::OptionalText;
        std::string text(form.name);
        if (form.value != FaultValue::None)
            text += isText ? "=p" : "=12";
        const auto fault = ParseFault(text);
        ASSERT_TRUE(std::holds_alternative<Fault>(fault)) << text;
        EXPECT_EQ(std::get<Fault>(fault).kind, form.kind);
        if (form.value != FaultValue::None && !isText) {
            EXPECT_EQ(std::get<Fault>(fault).number, 12);
        }
        if (isText) {
            EXPECT_EQ(std::get<Fault>(fault).text, "p");
        }
    }
}

TEST(ParseFault, TakesWhatIsLeftOutFromTheForm)
{
    EXPECT_EQ(std::get<Fault>(ParseFault("garbage")).number, 16);
    EXPECT_EQ(std::get<Fault>(ParseFault("too-few")).number, 1);
    EXPECT_EQ(std::get<Fault>(ParseFault("break=7")).second, 3600);
    EXPECT_EQ(std::get<Fault>(ParseFault("break=7:5")).second, 5);
    EXPECT_EQ(std::get<Fault>(ParseFault("no-mark")).text, "");
}

TEST(ParseFault, SaysWhatIsWrong)
{
    EXPECT_EQ(std::get<std::string>(ParseFault("fire=1")), "\"fire\" is no fault");
    for (const char* const text :
         {"silence-after", "silence-after=", "silence-after=x", "silence-after=-1",
          "silence-after=9999999999999", "silence", "lower-case=1",
          "short-line=1:", "short-line=:1", "short-line", "break=1:2:3", "garbage=", "count", ""})
        EXPECT_TRUE(std::holds_alternative<std::string>(ParseFault(text))) << text;
    EXPECT_EQ(std::get<std::string>(ParseFault("delay=soon")),
              "\"delay=soon\" is not of the form delay=MS");
}

TEST(FaultUsage, ShowsWhatMayBeLeftOut)
{
    EXPECT_EQ(FaultUsage(FaultForms()[0]), "silence-after=BYTES");
    std::string all;
    for (const FaultForm& form : FaultForms())
        all += FaultUsage(form) + " ";
    EXPECT_NE(all.find("garbage[=BYTES] "), std::string::npos);
    EXPECT_NE(all.find("lower-case "), std::string::npos);
    EXPECT_NE(all.find("break=LINE[:SECONDS] "), std::string::npos);
}

// Replies.

TEST(FaultSilenceAfter, CutsEveryDownloadAndNothingElse)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    const std::string whole = Ask(recorder, "D");
    Inflict(recorder, "silence-after=100");
    EXPECT_EQ(Ask(recorder, "D"), whole.substr(0, 100));
    EXPECT_EQ(Ask(recorder, "D"), whole.substr(0, 100));
    EXPECT_EQ(Ask(recorder, "p").back(), '#');
    recorder.m_faults.Clear();
    EXPECT_EQ(Ask(recorder, "D"), whole);
}

TEST(FaultSilenceAfter, OfNothingLeavesADownloadWithoutAByte)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    Inflict(recorder, "silence-after=0");
    EXPECT_EQ(Ask(recorder, "DmN01"), "mN01\r\n#");
}

TEST(FaultSilenceAfter, CutsAStream)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    Inflict(recorder, "silence-after=20");
    (void)Ask(recorder, "x", 0);
    EXPECT_EQ(Ask(recorder, "", 1000).size(), 20U);
    EXPECT_EQ(Ask(recorder, "", 2000), "");
    EXPECT_FALSE(recorder.NextMs());
}

TEST(FaultSilence, LeavesACommandUnheard)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    Inflict(recorder, "silence=N");
    EXPECT_EQ(Ask(recorder, "N05"), "");
    EXPECT_EQ(Ask(recorder, "N05"), "");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@My_ID="), "0");
    EXPECT_EQ(Ask(recorder, "m"), "m");
}

TEST(FaultSilence, OfTheMarkLeavesTheStreamRunning)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    Inflict(recorder, "silence=#");
    (void)Ask(recorder, "x", 0);
    (void)Ask(recorder, "#", 100);
    EXPECT_EQ(Ask(recorder, "", 200).size(), 160U);
}

TEST(FaultSilenceOnce, IsOverAfterOneCommand)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    Inflict(recorder, "silence-once=p");
    EXPECT_EQ(Ask(recorder, "N05"), "N05\r\n#");
    EXPECT_EQ(Ask(recorder, "p"), "");
    EXPECT_NE(Ask(recorder, "p"), "");
}

TEST(FaultNoMark, LeavesTheMarkOutOfAllRepliesOrOfOne)
{
    CSimulatedRecorder recorder(StateWith(50, true, 1));
    Inflict(recorder, "no-mark");
    EXPECT_EQ(Ask(recorder, "p").find('#'), std::string::npos);
    EXPECT_EQ(Ask(recorder, "D").size(), 22U);
    EXPECT_EQ(Ask(recorder, "N05"), "N05\r\n");
    recorder.m_faults.Clear();
    Inflict(recorder, "no-mark=D");
    EXPECT_EQ(Ask(recorder, "D").size(), 22U);
    EXPECT_EQ(Ask(recorder, "p").back(), '#');
}

TEST(FaultDelay, HoldsAReplyBack)
{
    CSimulatedRecorder recorder(StateWith(50, true, 1));
    Inflict(recorder, "delay=250");
    EXPECT_EQ(Ask(recorder, "N05", 1000), "");
    EXPECT_EQ(recorder.NextMs(), 1250);
    recorder.Advance(1249);
    EXPECT_EQ(Hear(recorder), "");
    recorder.Advance(1250);
    EXPECT_EQ(Hear(recorder), "N05\r\n#");
    EXPECT_FALSE(recorder.NextMs());
    EXPECT_EQ(Ask(recorder, "D", 2000), "");
    recorder.Advance(2250);
    EXPECT_EQ(Hear(recorder).size(), 23U);
}

TEST(FaultGarbage, StandsBeforeEveryReplyAndHoldsNoDigitMarkOrLineEnd)
{
    CSimulatedRecorder recorder(StateWith(50, true, 1));
    const std::string download = Ask(recorder, "D");
    Inflict(recorder, "garbage=30");
    for (const char* const command : {"p", "N05", "D"}) {
        const std::string reply = Ask(recorder, command);
        ASSERT_GT(reply.size(), 30U);
        EXPECT_EQ(reply.substr(0, 30).find_first_of("0123456789ABCDEF#\r\n"), std::string::npos);
    }
    EXPECT_EQ(Ask(recorder, "D").substr(30), download);
}

TEST(FaultPullAfter, AsksForThePullOnceAndAfterSoManyBytes)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    const std::string whole = Ask(recorder, "D");
    Inflict(recorder, "pull-after=50");
    recorder.Receive("D", 0);
    EXPECT_EQ(Hear(recorder, 49), whole.substr(0, 49));
    EXPECT_FALSE(recorder.HasPullRequest());
    EXPECT_EQ(Hear(recorder), whole.substr(49, 1));
    EXPECT_TRUE(recorder.HasPullRequest());
    recorder.Unplug(1);
    EXPECT_FALSE(recorder.HasPullRequest());
    recorder.Plug(2);
    EXPECT_EQ(Ask(recorder, "D"), whole);
}

TEST(FaultPullAfter, YieldsToASilenceThatComesFirst)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    Inflict(recorder, "pull-after=50");
    Inflict(recorder, "silence-after=20");
    EXPECT_EQ(Ask(recorder, "D").size(), 20U);
    EXPECT_FALSE(recorder.HasPullRequest());
}

TEST(FaultPullAt, CountsTheBytesOfBothWays)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    EXPECT_EQ(Ask(recorder, "m"), "m");
    Inflict(recorder, "pull-at=9");
    EXPECT_EQ(Ask(recorder, "mN0"), "m");
    recorder.Receive("5", 0);
    EXPECT_EQ(Hear(recorder, 3), "N05");
    EXPECT_FALSE(recorder.HasPullRequest());
    EXPECT_EQ(Hear(recorder), "\r") << "no more gets through";
    EXPECT_TRUE(recorder.HasPullRequest());
    recorder.Receive("N06", 0);
    EXPECT_EQ(Hear(recorder), "");
    recorder.Unplug(1);
    recorder.Plug(2);
    EXPECT_FALSE(recorder.HasPullRequest());
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@My_ID="), "5") << "it pulls once";
}

TEST(FaultPullAt, LosesWhatComesBehindTheLastByte)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    Inflict(recorder, "pull-at=3");
    recorder.Receive("N05N06", 0);
    EXPECT_TRUE(recorder.HasPullRequest());
    recorder.Unplug(1);
    recorder.Plug(2);
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@My_ID="), "5");
}

TEST(FaultPullAt, OfNothingPullsAsSoonAsTheHostSends)
{
    CSimulatedRecorder recorder(StateWith(50, true, 10));
    Inflict(recorder, "pull-at=0");
    EXPECT_FALSE(recorder.HasPullRequest());
    recorder.Receive("m", 0);
    EXPECT_TRUE(recorder.HasPullRequest());
    EXPECT_EQ(Hear(recorder), "");
}

// The lines of a download.

std::vector<std::string> Spoilt(std::string_view fault, std::size_t lines = 6)
{
    CSimulatedRecorder recorder(StateWith(50, true, lines));
    Inflict(recorder, fault);
    return Lines(Ask(recorder, "D"));
}

std::vector<std::string> Sound(std::size_t lines = 6)
{
    return Lines(std::string(StateWith(50, true, lines).memory.Wire()));
}

TEST(FaultTooFew, EndsTheDownloadEarly)
{
    EXPECT_EQ(Spoilt("too-few=2"), Sound(4));
    EXPECT_EQ(Spoilt("too-few=7").size(), 0U);
    CSimulatedRecorder recorder(StateWith(50, true, 6));
    Inflict(recorder, "too-few");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Count="), "6 32000");
    EXPECT_EQ(Ask(recorder, "D").back(), '#');
}

TEST(FaultTooMany, GoesOnBehindTheAnnouncedLines)
{
    const std::vector<std::string> lines = Spoilt("too-many=3");
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines.back(), Sound().back());
    EXPECT_EQ(Spoilt("too-many", 0).size(), 0U);
}

TEST(FaultShortLine, CutsOneLine)
{
    std::vector<std::string> expected = Sound();
    expected[2].resize(6);
    EXPECT_EQ(Spoilt("short-line=2:6"), expected);
    expected = Sound();
    expected[0].resize(10);
    EXPECT_EQ(Spoilt("short-line=0"), expected);
    EXPECT_EQ(Spoilt("short-line=2:99"), Sound());
    EXPECT_EQ(Spoilt("short-line=99"), Sound());
}

TEST(FaultCorruptLine, PutsOtherCharactersIntoOneLine)
{
    std::vector<std::string> expected = Sound();
    for (const std::size_t place : {2U, 5U, 8U, 11U, 14U, 17U})
        expected[3][place] = '?';
    EXPECT_EQ(Spoilt("corrupt-line=3"), expected);
}

TEST(FaultInvalidLine, HasNoMonth)
{
    std::vector<std::string> expected = Sound();
    expected[5][0] = '0';
    EXPECT_EQ(Spoilt("invalid-line=5"), expected);
    EXPECT_FALSE(LineTime(expected[5]));
}

TEST(FaultLowerCase, SparesOnlyTheDecimalDigits)
{
    for (const std::string& line : Spoilt("lower-case"))
        EXPECT_EQ(line.find_first_not_of("0123456789abcdef"), std::string::npos);
}

TEST(FaultBreak, PutsTheTimeBackFromALineOn)
{
    const std::vector<std::string> lines = Spoilt("break=4:60");
    const std::vector<std::string> sound = Sound();
    EXPECT_EQ(lines[3], sound[3]);
    EXPECT_EQ(LineTime(sound[4])->minute, 8);
    EXPECT_EQ(LineTime(lines[4])->minute, 7);
    EXPECT_EQ(LineTime(lines[5])->minute, 7);
    EXPECT_EQ(lines[4].substr(8), sound[4].substr(8));
}

TEST(FaultNewYear, MovesTheMemoryOverTheTurnOfTheYear)
{
    CSimulatedRecorder recorder(StateWith(50, true, 6));
    Inflict(recorder, "new-year=2");
    const std::vector<std::string> lines = Lines(Ask(recorder, "D"));
    EXPECT_EQ(*LineTime(lines[1]),
              (CalendarFields{
                  .year = 0, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 55}));
    EXPECT_EQ(*LineTime(lines[2]), (CalendarFields{.year = 0, .month = 1, .day = 1}));
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Year="), "2024/12/31 23:59:50");
    Inflict(recorder, "year-only");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Year="), "2024");
}

TEST(FaultNewYear, DoesNothingWithoutThatLine)
{
    EXPECT_EQ(Spoilt("new-year=6"), Sound());
}

TEST(Faults, OfDifferentLinesGoTogether)
{
    CSimulatedRecorder recorder(StateWith(50, true, 6));
    for (const char* const fault :
         {"short-line=1:4", "short-line=2:5", "invalid-line=3", "too-few"})
        Inflict(recorder, fault);
    const std::vector<std::string> lines = Lines(Ask(recorder, "D"));
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[1].size(), 4U);
    EXPECT_EQ(lines[2].size(), 5U);
    EXPECT_EQ(lines[3][0], '0');
    EXPECT_EQ(lines[4], Sound()[4]);
}

// The report.

std::string ReportWith(std::string_view fault)
{
    CSimulatedRecorder recorder(StateWith(50, true, 6));
    Inflict(recorder, fault);
    return Ask(recorder, "p");
}

TEST(FaultCount, AnnouncesAnotherNumber)
{
    EXPECT_EQ(ValueOf(ReportWith("count=99999999999"), "@Count="), "99999999999 32000");
}

TEST(FaultNoCount, LeavesTheKeyOut)
{
    EXPECT_FALSE(ValueOf(ReportWith("no-count"), "@Count="));
}

TEST(FaultYearOnly, LeavesMonthAndDayOut)
{
    EXPECT_EQ(ValueOf(ReportWith("year-only"), "@Year="), "2024");
}

TEST(FaultKeysTwice, RepeatsKeysBehindTheTrueOnes)
{
    const std::string report = ReportWith("keys-twice");
    EXPECT_EQ(ValueOf(report, "@Count="), "6 32000");
    EXPECT_NE(report.find("@Count=1 1"), std::string::npos);
    EXPECT_LT(report.find("@Count=6"), report.find("@Count=1 1"));
}

TEST(FaultEndlessReport, GoesOnWithoutAMarkUntilTheNextCommand)
{
    CSimulatedRecorder recorder(StateWith(50, true, 6));
    Inflict(recorder, "endless-report");
    recorder.Receive("p", 0);
    const std::string report = Hear(recorder, 100'000);
    EXPECT_EQ(report.size(), 100'000U);
    EXPECT_EQ(report.find('#'), std::string::npos);
    recorder.LoseOutput();
    EXPECT_EQ(Ask(recorder, "N05"), "N05\r\n#");
}

TEST(FaultLineFeeds, EndTheLinesOfTheStream)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    Inflict(recorder, "line-feeds");
    (void)Ask(recorder, "x", 0);
    const std::string stream = Ask(recorder, "", 10);
    EXPECT_EQ(stream.size(), 4U + 2U * 9U);
    EXPECT_EQ(stream.substr(0, 5), "01\r\nG");
    EXPECT_EQ(stream.substr(stream.size() - 2), "\r\n");
}

} // namespace

} // namespace skeldon::test
