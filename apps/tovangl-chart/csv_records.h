// SPDX-License-Identifier: MIT
/// @file
/// Reads the records of a file of comma-separated values.
#ifndef TOVANGL_CHART_CSV_RECORDS_H
#define TOVANGL_CHART_CSV_RECORDS_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tovangl::program {

using CsvFields = std::vector<std::string>;

/// Takes one record, or throws CFailure with the reason why not.
using UseCsvRecord = std::function<void(const CsvFields&)>;

/// More columns than databases and spreadsheets have; beyond, the input is no table, and a long
/// line of commas would only fill the memory.
inline constexpr std::size_t kMaxCsvFields = 32'767;

/// Reads a file as RFC 4180 describes it, or standard input if the path is "-", and hands its
/// records, the header among them, one after the other to use(). Beyond that description, "\n" and
/// "\r" end a record as "\r\n" does, empty lines are passed over, and so is a byte order mark. Line
/// breaks inside a field become "\n".
///
/// Throws CFailure with the place (the line where the record starts) and the reason, which may be
/// that of use(): where the file cannot be read, where a quotation mark is out of place, or where a
/// record has no end or too many fields.
void readCsvRecords(const std::string& path, const UseCsvRecord& use);

} // namespace tovangl::program

#endif
