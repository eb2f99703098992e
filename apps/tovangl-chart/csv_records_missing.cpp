// SPDX-License-Identifier: MIT
// Stands in for the reader of CSV files where the program is built without the library for it.
#include "common/CFailure.h"
#include "tovangl-chart/csv_records.h"

namespace tovangl::program {

void readCsvRecords(const std::string& /*path*/, const UseCsvRecord& /*use*/)
{
    throw CFailure("--csv: this program was built without libcsv; install the package libcsv-dev "
                   "and build it again");
}

} // namespace tovangl::program
