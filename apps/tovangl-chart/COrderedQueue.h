// SPDX-License-Identifier: MIT
/// @file
/// Jobs for several threads, whose answers are delivered in the order of the jobs.
#ifndef TOVANGL_CHART_CORDEREDQUEUE_H
#define TOVANGL_CHART_CORDEREDQUEUE_H

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace tovangl::program {

/// One thread puts jobs in, and any number of threads take and answer them. Each answer is
/// delivered as soon as it and all before it are there. No more than `capacity` jobs are ever
/// between being put in and being delivered.
template <typename Job, typename Answer>
class COrderedQueue
{
public:
    using Ticket = std::size_t;

    struct Task
    {
        Ticket ticket;
        Job job;
    };

    /// What is done with an answer when it is its turn. A thread that answers does it, because to
    /// wake another one for each answer takes as long as a good part of a small chart; no two do it
    /// at a time. Where it throws, nothing more is delivered.
    using Deliver = std::function<void(Answer&)>;

    /// @param capacity  at least 1
    COrderedQueue(std::size_t capacity, Deliver deliver)
        : m_capacity(capacity)
        , m_deliver(std::move(deliver))
    {}

    /// Waits for a place.
    ///
    /// @return whether put() may be called: there is a place, or the queue was stopped
    [[nodiscard]] bool waitForPlace(std::chrono::milliseconds longest)
    {
        std::unique_lock lock(m_mutex);
        return m_placeIsFree.wait_for(
            lock, longest, [this] { return m_isStopped || m_answers.size() < m_capacity; });
    }

    /// Takes a job for which waitForPlace() has found a place.
    ///
    /// @return false if the queue was stopped
    bool put(Job job)
    {
        const std::lock_guard lock(m_mutex);
        if (m_isStopped)
            return false;
        m_jobs.push_back({m_firstTicket + m_answers.size(), std::move(job)});
        m_answers.emplace_back();
        m_jobIsThere.notify_one();
        return true;
    }

    /// Says that no more jobs come.
    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_isClosed = true;
        m_jobIsThere.notify_all();
    }

    /// Gives up: all waits end, and nothing is taken or delivered any more.
    void stop()
    {
        const std::lock_guard lock(m_mutex);
        m_isStopped = true;
        m_placeIsFree.notify_all();
        m_jobIsThere.notify_all();
    }

    [[nodiscard]] bool isStopped()
    {
        const std::lock_guard lock(m_mutex);
        return m_isStopped;
    }

    /// Waits for a job. Nothing comes after the last one.
    [[nodiscard]] std::optional<Task> takeJob()
    {
        std::unique_lock lock(m_mutex);
        m_jobIsThere.wait(lock, [this] { return m_isStopped || m_isClosed || !m_jobs.empty(); });
        if (m_isStopped || m_jobs.empty())
            return std::nullopt;
        std::optional<Task> task(std::move(m_jobs.front()));
        m_jobs.pop_front();
        return task;
    }

    /// Hands in the answer to a job, and delivers all whose turn it is, unless another thread is
    /// about to do so.
    void answer(Ticket ticket, Answer answer)
    {
        std::unique_lock lock(m_mutex);
        m_answers[ticket - m_firstTicket] = std::move(answer);
        if (m_isDelivering)
            return;
        m_isDelivering = true;
        while (std::optional<Answer> next = takeAnswer()) {
            lock.unlock();
            m_deliver(*next);
            lock.lock();
        }
        m_isDelivering = false;
    }

private:
    // Whoever puts jobs in is woken when half of the places are free, not for each of them.
    [[nodiscard]] std::optional<Answer> takeAnswer()
    {
        if (m_isStopped || m_answers.empty() || !m_answers.front())
            return std::nullopt;
        std::optional<Answer> answer = std::move(m_answers.front());
        m_answers.pop_front();
        ++m_firstTicket;
        if (m_answers.size() <= m_capacity / 2)
            m_placeIsFree.notify_one();
        return answer;
    }

    const std::size_t m_capacity;
    const Deliver m_deliver;
    std::mutex m_mutex;
    std::condition_variable m_placeIsFree;
    std::condition_variable m_jobIsThere;
    std::deque<Task> m_jobs;                     // not taken yet
    std::deque<std::optional<Answer>> m_answers; // of all jobs, from m_firstTicket on
    Ticket m_firstTicket = 0;
    bool m_isDelivering = false;
    bool m_isClosed = false;
    bool m_isStopped = false;
};

} // namespace tovangl::program

#endif
