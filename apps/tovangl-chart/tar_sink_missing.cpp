// SPDX-License-Identifier: MIT
// Stands in for tar archives where the program is built without the library for them.
#include "common/CFailure.h"
#include "tovangl-chart/batch_sinks.h"

namespace tovangl::program {

std::unique_ptr<CBatchSink> makeTarSink(const std::string& /*path*/, PictureFormat /*format*/)
{
    throw CFailure("--tar: this program was built without libarchive; install the package "
                   "libarchive-dev and build it again");
}

} // namespace tovangl::program
