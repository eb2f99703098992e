// SPDX-License-Identifier: MIT
// Jobs and their answers, between threads.
#include "tovangl-chart/COrderedQueue.h"

#include <gmock/gmock.h>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace tovangl::program {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Queue = COrderedQueue<int, int>;

constexpr std::chrono::milliseconds kAtOnce{0};
constexpr std::chrono::seconds kLong{20};

// A queue that keeps what it delivers.
class OrderedQueue : public testing::Test
{
protected:
    [[nodiscard]] Queue::Deliver keep()
    {
        return [this](int answer) { m_delivered.push_back(answer); };
    }

    std::vector<int> m_delivered;
};

TEST_F(OrderedQueue, DeliversAnswersInTheOrderOfTheJobs)
{
    Queue queue(2, keep());
    queue.put(10);
    queue.put(20);
    const Queue::Task first = *queue.takeJob();
    const Queue::Task second = *queue.takeJob();
    queue.answer(second.ticket, second.job + 1);
    EXPECT_THAT(m_delivered, IsEmpty());
    queue.answer(first.ticket, first.job + 1);
    EXPECT_THAT(m_delivered, ElementsAre(11, 21));
}

TEST_F(OrderedQueue, DeliversEachAnswerAsSoonAsItIsItsTurn)
{
    Queue queue(3, keep());
    for (int job = 1; job <= 3; ++job)
        queue.put(job);
    queue.answer(queue.takeJob()->ticket, 1);
    EXPECT_THAT(m_delivered, ElementsAre(1));
    queue.answer(queue.takeJob()->ticket, 2);
    EXPECT_THAT(m_delivered, ElementsAre(1, 2));
}

TEST_F(OrderedQueue, DeliversWhatIsAnsweredMeanwhileFromTheSameThread)
{
    std::vector<std::thread::id> threads;
    Queue* inside = nullptr;
    Queue queue(2, [&](int answer) {
        threads.push_back(std::this_thread::get_id());
        if (answer == 1)
            std::thread([&] { inside->answer(inside->takeJob()->ticket, 2); }).join();
    });
    inside = &queue;
    queue.put(1);
    queue.put(2);
    queue.answer(queue.takeJob()->ticket, 1);
    EXPECT_THAT(threads, ElementsAre(std::this_thread::get_id(), std::this_thread::get_id()));
}

TEST_F(OrderedQueue, HasNoMorePlacesThanItsCapacity)
{
    Queue queue(2, keep());
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
    queue.put(1);
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
    queue.put(2);
    EXPECT_FALSE(queue.waitForPlace(kAtOnce));
}

TEST_F(OrderedQueue, HasAPlaceAgainWhenAnAnswerIsDelivered)
{
    Queue queue(2, keep());
    queue.put(1);
    queue.put(2);
    const Queue::Task first = *queue.takeJob();
    EXPECT_FALSE(queue.waitForPlace(kAtOnce));
    queue.answer(first.ticket, 1);
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
}

TEST_F(OrderedQueue, WakesWhoWaitsForAPlace)
{
    Queue queue(4, keep());
    for (int job = 1; job <= 4; ++job)
        queue.put(job);
    std::thread reader([&] { EXPECT_TRUE(queue.waitForPlace(kLong)); });
    for (int job = 1; job <= 4; ++job)
        queue.answer(queue.takeJob()->ticket, job);
    reader.join();
}

TEST_F(OrderedQueue, DeliversTheLastAnswerAfterItIsClosed)
{
    Queue queue(2, keep());
    queue.put(1);
    queue.close();
    queue.answer(queue.takeJob()->ticket, 2);
    EXPECT_FALSE(queue.takeJob());
    EXPECT_THAT(m_delivered, ElementsAre(2));
}

TEST_F(OrderedQueue, TakesAndDeliversNothingMoreWhenItIsStopped)
{
    Queue queue(2, keep());
    queue.put(1);
    queue.put(2);
    const Queue::Task first = *queue.takeJob();
    queue.stop();
    queue.answer(first.ticket, 1);
    EXPECT_TRUE(queue.waitForPlace(kAtOnce));
    EXPECT_FALSE(queue.put(3));
    EXPECT_FALSE(queue.takeJob());
    EXPECT_THAT(m_delivered, IsEmpty());
}

TEST_F(OrderedQueue, DeliversNothingMoreAfterAFailure)
{
    Queue queue(2, [this](int answer) {
        m_delivered.push_back(answer);
        throw std::runtime_error("no room");
    });
    queue.put(1);
    queue.put(2);
    EXPECT_THROW(queue.answer(queue.takeJob()->ticket, 1), std::runtime_error);
    queue.answer(queue.takeJob()->ticket, 2);
    EXPECT_THAT(m_delivered, ElementsAre(1));
}

TEST_F(OrderedQueue, WakesThoseWhoWaitWhenItIsStopped)
{
    Queue queue(1, keep());
    queue.put(1);
    static_cast<void>(queue.takeJob());
    std::thread worker([&] { EXPECT_FALSE(queue.takeJob()); });
    std::thread reader([&] { EXPECT_TRUE(queue.waitForPlace(kLong)); });
    queue.stop();
    worker.join();
    reader.join();
}

TEST_F(OrderedQueue, KeepsTheOrderWithManyThreads)
{
    constexpr int kJobs = 20000;
    Queue queue(8, keep());
    std::vector<std::thread> workers;
    for (int i = 0; i < 5; ++i)
        workers.emplace_back([&] {
            while (const auto task = queue.takeJob())
                queue.answer(task->ticket, task->job);
        });
    for (int job = 0; job < kJobs && queue.waitForPlace(kLong); ++job)
        queue.put(job);
    queue.close();
    for (std::thread& worker : workers)
        worker.join();
    std::vector<int> expected(kJobs);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(m_delivered, expected);
}

} // namespace
} // namespace tovangl::program
