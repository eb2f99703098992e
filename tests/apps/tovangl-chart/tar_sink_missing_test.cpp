// SPDX-License-Identifier: MIT
// The program as it is built without libarchive.
#include "common/CFailure.h"
#include "tovangl-chart/batch_sinks.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

TEST(WithoutTar, TheMissingPackageIsNamed)
{
    EXPECT_THAT([] { static_cast<void>(makeTarSink("x.tar", PictureFormat::Png)); },
                ThrowsMessage<CFailure>(HasSubstr("install the package libarchive-dev")));
}

} // namespace
} // namespace tovangl::program
