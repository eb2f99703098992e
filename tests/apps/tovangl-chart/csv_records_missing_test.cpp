// SPDX-License-Identifier: MIT
// The program as it is built without libcsv.
#include "common/CFailure.h"
#include "tovangl-chart/csv_records.h"

#include <gmock/gmock.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

TEST(WithoutCsv, TheMissingPackageIsNamed)
{
    EXPECT_THAT([] { readCsvRecords("/dev/null", [](const CsvFields&) {}); },
                ThrowsMessage<CFailure>(HasSubstr("install the package libcsv-dev")));
}

} // namespace
} // namespace tovangl::program
