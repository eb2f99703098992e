// SPDX-License-Identifier: MIT
// Jobs and their answers, between threads.
#include "tovangl-chart/COrderedQueue.h"

#include <gmock/gmock.h>
#include <thread>
#include <vector>

namespace tovangl::program {
namespace {

using Queue = COrderedQueue<int, int>;

constexpr std::chrono::milliseconds kAtOnce{0};
constexpr std::chrono::seconds kLong{20};

TEST(OrderedQueue, GivesAnswersInTheOrderOfTheJobs)
{
    Queue queue(2);
    queue.put(10);
    queue.put(20);
    const Queue::Task first = *queue.takeJob();
    const Queue::Task second = *queue.takeJob();
    queue.answer(second.ticket, second.job + 1);
    queue.answer(first.ticket, first.job + 1);
    EXPECT_EQ(queue.takeAnswer(), 11);
    EXPECT_EQ(queue.takeAnswer(), 21);
}

TEST(OrderedQueue, HasNoMorePlacesThanItsCapacity)
{
    Queue queue(2);
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
    queue.put(1);
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
    queue.put(2);
    EXPECT_FALSE(queue.waitForPlace(kAtOnce));
}

TEST(OrderedQueue, HasAPlaceAgainWhenAnAnswerIsTaken)
{
    Queue queue(1);
    queue.put(1);
    queue.answer(queue.takeJob()->ticket, 1);
    EXPECT_FALSE(queue.waitForPlace(kAtOnce));
    static_cast<void>(queue.takeAnswer());
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
}

TEST(OrderedQueue, EndsAfterTheLastAnswerWhenItIsClosed)
{
    Queue queue(2);
    queue.put(1);
    queue.close();
    queue.answer(queue.takeJob()->ticket, 2);
    EXPECT_FALSE(queue.takeJob());
    EXPECT_EQ(queue.takeAnswer(), 2);
    EXPECT_EQ(queue.takeAnswer(), std::nullopt);
}

TEST(OrderedQueue, GivesNothingMoreWhenItIsStopped)
{
    Queue queue(1);
    queue.put(1);
    queue.stop();
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
    EXPECT_FALSE(queue.put(2));
    EXPECT_FALSE(queue.takeJob());
    EXPECT_EQ(queue.takeAnswer(), std::nullopt);
}

TEST(OrderedQueue, WakesThoseWhoWaitWhenItIsStopped)
{
    Queue queue(1);
    queue.put(1);
    static_cast<void>(queue.takeJob());
    std::thread worker([&] { EXPECT_FALSE(queue.takeJob()); });
    std::thread last([&] { EXPECT_EQ(queue.takeAnswer(), std::nullopt); });
    std::thread first([&] { EXPECT_TRUE(queue.waitForPlace(kLong)); });
    queue.stop();
    for (std::thread* thread : {&worker, &last, &first})
        thread->join();
}

TEST(OrderedQueue, KeepsTheOrderWithManyThreads)
{
    constexpr int kJobs = 20000;
    Queue queue(8);
    std::vector<std::thread> workers;
    for (int i = 0; i < 5; ++i)
        workers.emplace_back([&] {
            while (const auto task = queue.takeJob())
                queue.answer(task->ticket, task->job);
        });
    std::vector<int> answers;
    std::thread last([&] {
        while (const std::optional<int> answer = queue.takeAnswer())
            answers.push_back(*answer);
    });
    for (int job = 0; job < kJobs && queue.waitForPlace(kLong); ++job)
        queue.put(job);
    queue.close();
    for (std::thread& worker : workers)
        worker.join();
    last.join();
    std::vector<int> expected(kJobs);
    for (int job = 0; job < kJobs; ++job)
        expected[static_cast<std::size_t>(job)] = job;
    EXPECT_EQ(answers, expected);
}

} // namespace
} // namespace tovangl::program
