#include "SimulatedSupport.h"

namespace skeldon::test {

namespace {

TEST(SimulatedRecorder, EchoesTheWakeUpWithoutAMark)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    EXPECT_EQ(Ask(recorder, "m"), "m");
}

TEST(SimulatedRecorder, ClosesTheReportWithAMark)
{
    CSimulatedRecorder recorder(StateWith(50, true, 3));
    const std::string report = Ask(recorder, "p");
    EXPECT_EQ(ValueOf(report, "@Count="), "3 32000");
    EXPECT_EQ(report.find('#'), report.size() - 1);
}

TEST(SimulatedRecorder, AnswersEachSettingWithTextAndAMark)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    for (const char* const command : {"i5", "j^", "d05", "k1", "N07", "w05", "Ox99", "Oz01", "z0",
                                      "s2024 05/06 07:08:09", "t", "l05/06 07:08", "w99"}) {
        const std::string reply = Ask(recorder, command);
        EXPECT_EQ(reply, std::string(command) + "\r\n#");
    }
}

TEST(SimulatedRecorder, ReportsTheConditionsItWasGiven)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    (void)Ask(recorder, "i9jcd05k1N42w03Ox07Oz01z0");
    const std::string report = Ask(recorder, "p");
    EXPECT_EQ(ValueOf(report, "@Interval="), "9");
    EXPECT_EQ(ValueOf(report, "@Record="), "c");
    EXPECT_EQ(ValueOf(report, "@detect="), "0.5G");
    EXPECT_EQ(ValueOf(report, "@Warn="), "1");
    EXPECT_EQ(ValueOf(report, "@My_ID="), "42");
    EXPECT_EQ(ValueOf(report, "@wait="), "3");
    EXPECT_EQ(ValueOf(report, "@ADJ h="), "7 0 1");
    EXPECT_EQ(ValueOf(report, "@BZZ="), "0");
    (void)Ask(recorder, "Oz00z1");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@ADJ h="), "7 0 0");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@BZZ="), "1");
}

TEST(SimulatedRecorder, TakesTheStartOptionForNoneWhenItIsTheCalibration)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    (void)Ask(recorder, "w90w99");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@wait="), "90");
}

TEST(SimulatedRecorder, DoesNotAnswerWhatItDoesNotKnow)
{
    struct Unknown
    {
        int type;
        bool alpha;
        const char* command;
    };
    for (const Unknown& unknown :
         {Unknown{0, false, "w05"}, Unknown{0, false, "i6"}, Unknown{0, false, "jf"},
          Unknown{0, false, "D"}, Unknown{0, false, "z0"}, Unknown{10, false, "Ox05"},
          Unknown{10, false, "Oz01"}, Unknown{10, false, "i0"}, Unknown{10, false, "jZ"},
          Unknown{10, false, "G"}, Unknown{50, false, "z0"}, Unknown{10, false, "20"},
          Unknown{50, true, "20"}, Unknown{5, true, "10"}, Unknown{10, true, "02"},
          Unknown{10, true, "10"}, Unknown{10, true, "s2024 13/06 07:08:09"},
          Unknown{10, true, "l02/30 00:00"}}) {
        CSimulatedRecorder recorder(StateWith(unknown.type, unknown.alpha, 2));
        EXPECT_EQ(Ask(recorder, unknown.command), "") << unknown.type << " " << unknown.command;
        EXPECT_EQ(Ask(recorder, "p").back(), '#');
    }
}

TEST(SimulatedRecorder, OfType0KnowsItsOwnSamplingAndIntervals)
{
    CSimulatedRecorder recorder(StateWith(0, false, 0));
    EXPECT_EQ(Ask(recorder, "i0jA"), "i0\r\n#jA\r\n#");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Interval="), "0");
}

TEST(SimulatedRecorder, ChangesItsRangeBetweenTheTwoOfAPair)
{
    for (const auto& [from, to, command] : {std::tuple(1, 2, "02"), std::tuple(2, 1, "01"),
                                            std::tuple(10, 20, "20"), std::tuple(20, 10, "10")}) {
        CSimulatedRecorder recorder(StateWith(from, true, 0));
        EXPECT_EQ(Ask(recorder, command), std::string(command) + "\r\n#");
        EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Type="), std::to_string(to));
    }
}

TEST(SimulatedRecorder, SendsItsWholeMemoryAndAMark)
{
    for (const auto& [type, alpha, command, length] :
         {std::tuple(0, false, "G", 18U), std::tuple(0, true, "G", 22U),
          std::tuple(10, false, "D", 20U), std::tuple(7, false, "D", 20U),
          std::tuple(50, true, "D", 22U)}) {
        const RecorderState state = StateWith(type, alpha, 5);
        CSimulatedRecorder recorder(state);
        const std::string download = Ask(recorder, command);
        EXPECT_EQ(download.size(), 5 * length + 1);
        EXPECT_EQ(download, std::string(state.memory.Wire()) + "#");
        EXPECT_EQ(Ask(recorder, command), download) << "a download takes nothing away";
    }
}

TEST(SimulatedRecorder, WithAnEmptyMemorySendsTheMarkAlone)
{
    CSimulatedRecorder recorder(StateWith(50, true, 0));
    EXPECT_EQ(Ask(recorder, "D"), "#");
}

TEST(SimulatedRecorder, ClearsItsMemoryWithItsClock)
{
    CSimulatedRecorder recorder(StateWith(50, true, 3));
    (void)Ask(recorder, "s2023 12/31 23:59:58", 5000);
    const std::string report = Ask(recorder, "p");
    EXPECT_EQ(ValueOf(report, "@Count="), "0 32000");
    EXPECT_EQ(ValueOf(report, "@Year="), "2023/12/31 23:59:58");
    EXPECT_EQ(recorder.StateAt(7000).clock, At("2024-01-01 00:00:00"));
}

TEST(SimulatedRecorder, KeepsMemoryAndClockAtAStartWithoutClock)
{
    CSimulatedRecorder recorder(StateWith(50, true, 3));
    (void)Ask(recorder, "t");
    EXPECT_EQ(ValueOf(Ask(recorder, "p"), "@Count="), "3 32000");
    EXPECT_EQ(recorder.State().phase, RecorderPhase::Started);
}

TEST(SimulatedRecorder, KeepsCommandsForTheEndOfADownload)
{
    CSimulatedRecorder recorder(StateWith(50, true, 100));
    recorder.Receive("DmN05p", 0);
    const std::string all = Hear(recorder);
    const std::size_t mark = all.find('#');
    EXPECT_EQ(mark, 100U * 22U);
    EXPECT_EQ(all.substr(mark + 1, 7), "mN05\r\n#");
    EXPECT_EQ(ValueOf(all, "@My_ID="), "5");
}

TEST(SimulatedRecorder, TakesAtMostAFewThousandBytesAhead)
{
    CSimulatedRecorder recorder(StateWith(50, true, 1));
    recorder.Receive("D", 0);
    for (int i = 0; i < 100; ++i)
        recorder.Receive(std::string(1000, 'm'), 0);
    EXPECT_EQ(Hear(recorder).size(), 22U + 1U + 4096U);
}

TEST(SimulatedRecorder, SendsWhatAnyBlockSizeAsksFor)
{
    CSimulatedRecorder whole(StateWith(50, true, 50));
    const std::string expected = Ask(whole, "D");
    CSimulatedRecorder recorder(StateWith(50, true, 50));
    recorder.Receive("D", 0);
    std::string got;
    while (!recorder.Output().empty()) {
        const std::string part(recorder.Output().substr(0, 7));
        got += part;
        recorder.Sent(part.size());
    }
    EXPECT_EQ(got, expected);
}

TEST(SimulatedRecorder, LosesWhatWaitsWhenTheHostClosesThePort)
{
    CSimulatedRecorder recorder(StateWith(50, true, 50));
    recorder.Receive("DN05", 0);
    (void)Hear(recorder, 30);
    recorder.LoseOutput();
    EXPECT_EQ(Hear(recorder), "N05\r\n#") << "the recorder is through with the download";
}

TEST(SimulatedRecorder, ForgetsTheConversationWhenTheCableIsPulled)
{
    CSimulatedRecorder recorder(StateWith(50, true, 50));
    recorder.Receive("Dp", 0);
    recorder.Unplug(1);
    EXPECT_EQ(recorder.Output(), "");
    recorder.Plug(2);
    EXPECT_EQ(recorder.Output(), "");
    EXPECT_EQ(Ask(recorder, "m"), "m");
    recorder.Receive("d0", 3);
    recorder.Unplug(4);
    recorder.Plug(5);
    EXPECT_EQ(Ask(recorder, "5p").front(), '\r') << "the 5 has lost its command";
}

// The live stream.

TEST(LiveStream, BeginsInMidLineAndGivesTwoHundredLinesASecond)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    EXPECT_EQ(Ask(recorder, "mx", 1000), "m");
    EXPECT_EQ(recorder.NextMs(), 1005);
    recorder.Advance(1004);
    EXPECT_EQ(recorder.Output(), "");
    recorder.Advance(2000);
    const std::string stream = Hear(recorder);
    EXPECT_EQ(stream.substr(0, 4), "01\rG");
    EXPECT_EQ(stream.size(), 3U + 200U * 8U);
    EXPECT_EQ(recorder.NextMs(), 2005);
}

TEST(LiveStream, HasSixDigitsBehindEachG)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    (void)Ask(recorder, "x", 0);
    recorder.Advance(1000);
    const std::string stream = Hear(recorder).substr(3);
    for (std::size_t i = 0; i < stream.size(); i += 8) {
        EXPECT_EQ(stream[i], 'G');
        EXPECT_EQ(stream.find_first_not_of("0123456789ABCDEF", i + 1), i + 7);
        EXPECT_EQ(stream[i + 7], '\r');
    }
}

TEST(LiveStream, EndsWithTheMarkAndWithoutAnAnswer)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    (void)Ask(recorder, "x", 0);
    (void)Ask(recorder, "", 500);
    EXPECT_EQ(Ask(recorder, "#", 500), "");
    recorder.Advance(5000);
    EXPECT_EQ(recorder.Output(), "");
    EXPECT_FALSE(recorder.NextMs());
}

TEST(LiveStream, GoesOnThroughAWakeUpAndEndsWithAnyOtherCommand)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    (void)Ask(recorder, "x", 0);
    EXPECT_EQ(Ask(recorder, "m", 10).substr(0, 4), "01\rG") << "and no echo";
    EXPECT_EQ(Ask(recorder, "", 20).size(), 16U);
    EXPECT_EQ(Ask(recorder, "N05", 20), "N05\r\n#");
    EXPECT_EQ(Ask(recorder, "", 1000), "");
}

TEST(LiveStream, LosesLinesThatNobodyTakesInTime)
{
    CSimulatedRecorder recorder(StateWith(10, false, 0));
    (void)Ask(recorder, "x", 0);
    recorder.Advance(3600'000);
    const std::size_t held = Hear(recorder).size();
    EXPECT_GT(held, 3000U);
    EXPECT_LE(held, 4099U);
    recorder.Advance(3600'005);
    EXPECT_EQ(Hear(recorder).size(), 8U) << "and goes on with the present";
}

} // namespace

} // namespace skeldon::test
