// SPDX-License-Identifier: MIT
/// @file
/// Where the pictures of a batch go.
#ifndef TOVANGL_CHART_CBATCHSINK_H
#define TOVANGL_CHART_CBATCHSINK_H

#include "tovangl-chart/batch_answer.h"

namespace tovangl::program {

/// Takes the answers in the order of the lines. Every operation throws CFailure if the system
/// refuses it.
class CBatchSink
{
public:
    CBatchSink() = default;
    virtual ~CBatchSink() = default;

    CBatchSink(const CBatchSink&) = delete;
    CBatchSink& operator=(const CBatchSink&) = delete;

    /// A picture, or a failure.
    virtual void put(const BatchAnswer& answer) = 0;

    /// Follows the last answer, unless the run was broken off.
    virtual void finish() = 0;
};

} // namespace tovangl::program

#endif
