// SPDX-License-Identifier: MIT
// Reads the records of a file of comma-separated values, with libcsv.
#include "tovangl-chart/csv_records.h"

#include "common/CFailure.h"
#include "common/CLineReader.h"

#include <csv.h>
#include <exception>
#include <new>
#include <string_view>

namespace tovangl::program {

namespace {

constexpr std::size_t kBufferStepBytes = std::size_t{1} << 20; // each step may copy a long field
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr char kLineBreak = '\n';

/// Blanks are part of a field; by default libcsv strips them.
int isNoSpace(unsigned char /*character*/)
{
    return 0;
}

/// Feeds libcsv line by line, so that a record knows the line where it starts.
class CCsvReader
{
public:
    CCsvReader(const std::string& path, const UseCsvRecord& use);
    ~CCsvReader() { ::csv_free(&m_parser); }

    CCsvReader(const CCsvReader&) = delete;
    CCsvReader& operator=(const CCsvReader&) = delete;

    void readAll();

private:
    bool readLine();
    void startLine();
    void parseLine();
    void endLine();

    void takeField(const void* bytes, std::size_t size);
    void takeRecord();
    [[nodiscard]] CFailure recordFailure(const std::string& reason) const;

    template <typename Work>
    void keepFailure(Work work) noexcept;
    static void onField(void* bytes, std::size_t size, void* reader);
    static void onRecord(int terminator, void* reader);

    CLineReader m_lines;
    const UseCsvRecord& m_use;
    csv_parser m_parser{};
    std::string m_line; // with its line break
    CsvFields m_fields; // of the record that is being read
    std::string m_recordPlace;
    std::size_t m_recordBytes = 0;
    bool m_isFirstLine = true;
    bool m_isInRecord = false; // a quoted field goes on in the next line
    bool m_hasLineEndedRecord = false;
    std::exception_ptr m_failure; // no exception may cross libcsv, which is written in C
};

CCsvReader::CCsvReader(const std::string& path, const UseCsvRecord& use)
    : m_lines(path)
    , m_use(use)
{
    // This cannot fail: libcsv allocates nothing yet.
    ::csv_init(&m_parser, CSV_STRICT);
    ::csv_set_space_func(&m_parser, isNoSpace);
    ::csv_set_blk_size(&m_parser, kBufferStepBytes);
}

void CCsvReader::readAll()
{
    while (readLine()) {
        startLine();
        parseLine();
        endLine();
    }
    if (m_isInRecord)
        throw recordFailure("a quoted field has no end");
}

bool CCsvReader::readLine()
{
    if (!m_lines.readLine(m_line))
        return false;
    if (m_isFirstLine && m_line.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0)
        m_line.erase(0, kByteOrderMark.size());
    m_isFirstLine = false;
    // With further carriage returns gone, a line that is not empty ends its record unless a
    // quoted field is open.
    while (!m_line.empty() && m_line.back() == '\r')
        m_line.pop_back();
    m_line += kLineBreak;
    return true;
}

void CCsvReader::startLine()
{
    m_hasLineEndedRecord = false;
    if (!m_isInRecord) {
        m_recordPlace = m_lines.place();
        m_recordBytes = 0;
    }
    m_recordBytes += m_line.size();
    if (m_isInRecord && m_recordBytes > CLineReader::kMaxLineBytes)
        throw recordFailure("a quoted field has no end");
}

void CCsvReader::parseLine()
{
    const std::size_t parsed =
        ::csv_parse(&m_parser, m_line.data(), m_line.size(), onField, onRecord, this);
    if (m_failure)
        std::rethrow_exception(m_failure);
    if (parsed == m_line.size())
        return;
    if (::csv_error(&m_parser) != CSV_EPARSE)
        throw std::bad_alloc();
    throw CFailure(m_lines.place() + ": a quotation mark is out of place; a field that has one is "
                                     "quoted and doubles it, as in \"6\"\" nails\"");
}

void CCsvReader::endLine()
{
    const bool isEmpty = m_line.size() == 1;
    m_isInRecord = !m_hasLineEndedRecord && (m_isInRecord || !isEmpty);
}

void CCsvReader::takeField(const void* bytes, std::size_t size)
{
    if (m_fields.size() == kMaxCsvFields)
        throw recordFailure("there are more than " + std::to_string(kMaxCsvFields) + " fields");
    m_fields.emplace_back(static_cast<const char*>(bytes), size);
}

void CCsvReader::takeRecord()
{
    try {
        m_use(m_fields);
    } catch (const CFailure& reason) {
        throw recordFailure(reason.what());
    }
    m_fields.clear();
}

CFailure CCsvReader::recordFailure(const std::string& reason) const
{
    return CFailure(m_recordPlace + ": " + reason);
}

/// Does nothing after a failure: libcsv parses the rest of the line before it can be told.
template <typename Work>
void CCsvReader::keepFailure(Work work) noexcept
{
    if (m_failure)
        return;
    try {
        work();
    } catch (...) {
        m_failure = std::current_exception();
    }
}

void CCsvReader::onField(void* bytes, std::size_t size, void* reader)
{
    auto& self = *static_cast<CCsvReader*>(reader);
    self.keepFailure([&] { self.takeField(bytes, size); });
}

void CCsvReader::onRecord(int terminator, void* reader)
{
    auto& self = *static_cast<CCsvReader*>(reader);
    self.m_hasLineEndedRecord = terminator == kLineBreak;
    self.keepFailure([&] { self.takeRecord(); });
}

} // namespace

void readCsvRecords(const std::string& path, const UseCsvRecord& use)
{
    CCsvReader(path, use).readAll();
}

} // namespace tovangl::program
