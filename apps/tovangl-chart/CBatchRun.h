// SPDX-License-Identifier: MIT
/// @file
/// Draws the charts of a batch with several threads.
#ifndef TOVANGL_CHART_CBATCHRUN_H
#define TOVANGL_CHART_CBATCHRUN_H

#include "common/CProgressLine.h"
#include "tovangl-chart/CBatchSink.h"
#include "tovangl-chart/CBoundedLines.h"
#include "tovangl-chart/CErrorRecords.h"
#include "tovangl-chart/CIdRegister.h"
#include "tovangl-chart/COrderedQueue.h"
#include "tovangl-chart/batch_progress.h"

#include <chrono>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace tovangl::program {

/// The calling thread reads; several threads draw, and deliver what they have drawn in the order of
/// the lines, each picture as soon as it is its turn.
class CBatchRun
{
public:
    /// @param records  null to leave out what went wrong; has to live as long as this, as have the
    ///                 others
    CBatchRun(CBoundedLines& lines, const AnswerRules& rules, CBatchSink& sink,
              const CErrorRecords* records, int jobs);
    ~CBatchRun();

    CBatchRun(const CBatchRun&) = delete;
    CBatchRun& operator=(const CBatchRun&) = delete;

    /// Answers all lines. Throws CFailure if the run has to be broken off. Call it once.
    BatchCounts run();

private:
    using Clock = std::chrono::steady_clock;
    using Queue = COrderedQueue<NumberedLine, BatchAnswer>;

    void readLines();
    [[nodiscard]] bool put(NumberedLine line);
    void guard(const std::function<void()>& work);
    void drawCharts();
    void deliver(BatchAnswer& answer);
    void refuseKnownId(BatchAnswer& answer);
    void count(const BatchAnswer& answer);
    void join();

    CBoundedLines& m_lines;
    const AnswerRules& m_rules;
    CBatchSink& m_sink;
    const CErrorRecords* m_records;
    const int m_jobs;
    Queue m_queue;
    std::optional<CIdRegister> m_ids;
    CProgressLine m_progress;
    const Clock::time_point m_start = Clock::now();
    BatchCounts m_counts;
    std::mutex m_failureMutex;
    std::exception_ptr m_failure; // of one of the threads
    std::vector<std::thread> m_threads;
};

} // namespace tovangl::program

#endif
