#include "ScriptedRecorder.h"

#include "recorder/LinkWorker.h"
#include "setup/conditions/MeasureCondition.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

namespace skeldon {
namespace {

using test::LinkFixture;
using testing::ElementsAre;

constexpr std::uint32_t FractionMs = 500;

/// The program ends while somebody waits for the recorder.
class Abandoned : public testing::Test, public LinkFixture
{
protected:
    /// The program ends in the middle of the so-manieth read from now on.
    void EndAtRead(int number)
    {
        m_recorder.m_beforeRead = [this, last = m_recorder.Reads() + number](int read) {
            if (read == last)
                m_link.Abandon();
        };
    }

    /// Milliseconds since this was made.
    [[nodiscard]] std::uint32_t Elapsed() const { return m_clock.m_tick - m_start; }

    const std::uint32_t m_start = m_clock.m_tick;
};

TEST_F(Abandoned, ReplyIsNotWaitedFor)
{
    ASSERT_TRUE(m_link.OpenPort());
    const std::uint32_t opened = m_clock.m_tick;
    m_recorder.Arrive("part");
    EndAtRead(3);
    EXPECT_EQ(m_link.ReadReply(), "part");
    EXPECT_TRUE(m_link.m_timedOut);
    EXPECT_LT(m_clock.m_tick - opened, FractionMs);
}

TEST_F(Abandoned, ReplyThatIsThereIsStillRead)
{
    ASSERT_TRUE(m_link.OpenPort());
    m_link.Abandon();
    m_recorder.Arrive("whole#");
    EXPECT_EQ(m_link.ReadReply(), "whole");
    EXPECT_FALSE(m_link.m_timedOut);
}

TEST_F(Abandoned, StatusFailsAndThePortIsClosed)
{
    EndAtRead(4);
    EXPECT_FALSE(m_link.ReadStatus());
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_LT(Elapsed(), 300 + FractionMs);
    EXPECT_THAT(m_recorder.Events(), ElementsAre("open /dev/cable", "m", "p", "close"));
}

TEST_F(Abandoned, NoFurtherCommandFollowsOneWithoutAnAnswer)
{
    EndAtRead(4);
    EXPECT_FALSE(m_link.StartMeasuring({}, true));
    EXPECT_FALSE(m_link.IsOpen());
    EXPECT_EQ(m_recorder.Events().size(), 4U); // opened, woken, one command, closed
}

TEST_F(Abandoned, RawCommandOfARecorderThatStreamsComesToItsEnd)
{
    m_recorder.On("m", "");
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.m_endless = "G010203\r\n";
    m_recorder.m_readTakesMs = 5;
    EndAtRead(200);
    EXPECT_TRUE(m_link.SendMonitorCommand("x"));
    EXPECT_TRUE(m_link.m_timedOut);
}

TEST_F(Abandoned, DrainOfARecorderThatStreamsIsCutShort)
{
    ASSERT_TRUE(m_link.OpenPort());
    m_recorder.m_endless = "G010203\r\n";
    m_recorder.m_readTakesMs = 45;
    m_link.Abandon();
    const std::uint32_t opened = m_clock.m_tick;
    EXPECT_TRUE(m_link.DrainPort());
    EXPECT_LT(m_clock.m_tick - opened, FractionMs);
}

TEST_F(Abandoned, ThreadThatWaitsForAReplyIsBackAtOnce)
{
    std::promise<void> waiting;
    // The recorder's time stands still: without an end of the program this would wait for ever.
    m_recorder.m_beforeRead = [this, &waiting](int read) {
        m_clock.m_tick = m_start;
        if (read == 20)
            waiting.set_value();
    };
    bool isAnswered = true;
    CLinkWorker worker([] {});
    worker.Start([&] { isAnswered = m_link.ReadStatus(); });
    waiting.get_future().wait();
    EXPECT_FALSE(worker.HasEnded());
    m_link.Abandon();
    worker.Finish();
    EXPECT_FALSE(isAnswered);
    EXPECT_FALSE(m_link.IsOpen());
}

} // namespace
} // namespace skeldon
