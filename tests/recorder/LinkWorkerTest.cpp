#include "recorder/LinkWorker.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

namespace skeldon {
namespace {

TEST(LinkWorker, RunsWorkBesideItsOwner)
{
    std::promise<void> ended;
    CLinkWorker worker([&] { ended.set_value(); });
    EXPECT_FALSE(worker.IsUnderWay());
    std::promise<void> go;
    std::thread::id runner;
    worker.Start([&] {
        runner = std::this_thread::get_id();
        go.get_future().wait();
    });
    EXPECT_TRUE(worker.IsUnderWay());
    EXPECT_FALSE(worker.HasEnded());
    go.set_value();
    ended.get_future().wait();
    EXPECT_TRUE(worker.HasEnded());
    EXPECT_TRUE(worker.IsUnderWay()) << "until its owner has taken note";
    worker.Finish();
    EXPECT_FALSE(worker.IsUnderWay());
    EXPECT_NE(runner, std::this_thread::get_id());
}

TEST(LinkWorker, FinishWaitsForTheEnd)
{
    int result = 0;
    CLinkWorker worker([] {});
    for (int i = 1; i <= 50; ++i) {
        worker.Start([&result] { ++result; });
        worker.Finish();
        ASSERT_EQ(result, i);
    }
}

TEST(LinkWorker, WaitsForItsWorkWhenItGoes)
{
    std::atomic<bool> isDone = false;
    {
        CLinkWorker worker([] {});
        worker.Start([&] {
            std::this_thread::yield();
            isDone = true;
        });
    }
    EXPECT_TRUE(isDone);
}

} // namespace
} // namespace skeldon
