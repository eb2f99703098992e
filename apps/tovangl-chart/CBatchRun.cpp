// SPDX-License-Identifier: MIT
// Draws the charts of a batch with several threads.
#include "tovangl-chart/CBatchRun.h"

#include "common/interruption.h"

namespace tovangl::program {

namespace {

// A few lines for each thread, so that one large chart does not hold up the others; a fixed number,
// so that memory does not grow.
constexpr int kLinesPerThread = 8;

constexpr std::chrono::milliseconds kInterruptionDelay{100}; // until a signal is seen

} // namespace

CBatchRun::CBatchRun(CBoundedLines& lines, const AnswerRules& rules, CBatchSink& sink,
                     const CErrorRecords* records, int jobs)
    : m_lines(lines)
    , m_rules(rules)
    , m_sink(sink)
    , m_records(records)
    , m_jobs(jobs)
    , m_queue(static_cast<std::size_t>(jobs) * kLinesPerThread,
              [this](BatchAnswer& answer) { deliver(answer); })
{
    if (rules.needsId)
        m_ids.emplace();
}

CBatchRun::~CBatchRun()
{
    m_queue.stop();
    join();
}

BatchCounts CBatchRun::run()
{
    for (int i = 0; i < m_jobs; ++i)
        m_threads.emplace_back([this] { guard([this] { drawCharts(); }); });
    readLines();
    m_queue.close();
    join();
    if (m_failure)
        std::rethrow_exception(m_failure);
    m_sink.finish();
    return m_counts;
}

// Where a thread has failed, whoever writes the lines may wait for the end of this run and write no
// more of them.
void CBatchRun::readLines()
{
    const auto isWanted = [this] { return !m_queue.isStopped(); };
    while (std::optional<NumberedLine> line = m_lines.next(isWanted)) {
        if (!put(std::move(*line)))
            return;
    }
}

// False if no more lines are wanted.
bool CBatchRun::put(NumberedLine line)
{
    do {
        stopIfInterrupted();
    } while (!m_queue.waitForPlace(kInterruptionDelay));
    return m_queue.put(std::move(line));
}

void CBatchRun::drawCharts()
{
    while (const std::optional<Queue::Task> task = m_queue.takeJob())
        m_queue.answer(task->ticket, answerLine(task->job, m_rules));
}

// Keeps what a thread throws for run(), which breaks off.
void CBatchRun::guard(const std::function<void()>& work)
{
    try {
        work();
    } catch (...) {
        const std::lock_guard lock(m_failureMutex);
        m_failure = std::current_exception();
        m_queue.stop();
    }
}

void CBatchRun::deliver(BatchAnswer& answer)
{
    refuseKnownId(answer);
    if (!answer.isThere)
        m_sink.put(answer);
    if (m_records && !(answer.failure.empty() && answer.problem.empty())) {
        m_progress.clear();
        m_records->put(answer);
    }
    count(answer);
    m_progress.show(
        [this] { return progressText(m_counts, Clock::now() - m_start, m_lines.size()); });
}

void CBatchRun::refuseKnownId(BatchAnswer& answer)
{
    if (!m_ids || !answer.failure.empty() || m_ids->add(answer.id))
        return;
    answer.failure = "/id: an earlier line has the same";
    answer.isThere = false;
}

void CBatchRun::count(const BatchAnswer& answer)
{
    m_counts.end = answer.end;
    if (!answer.failure.empty())
        ++m_counts.errors;
    else if (answer.isThere)
        ++m_counts.passedOver;
    else
        ++m_counts.charts;
}

void CBatchRun::join()
{
    for (std::thread& thread : m_threads)
        thread.join();
    m_threads.clear();
}

} // namespace tovangl::program
