// SPDX-License-Identifier: MIT
// The numbered objects of a PDF file.
#include "pdf/CPdfObjects.h"

#include "output/CDeflater.h"
#include "pdf/pdf_text.h"

#include <algorithm>

namespace tovangl {

namespace {

// Texts that say what they stand for need version 1.5. The bytes above 127 in the second line tell
// programs that copy the file that it is not plain text.
constexpr char kFileBegin[] = "%PDF-1.5\n%\xe2\xe3\xcf\xd3\n";
constexpr char kFreeEntry[] = "0000000000 65535 f \n"; // every table begins with it
constexpr std::size_t kOffsetDigits = 10;

std::string compressed(const std::string& bytes)
{
    const CByteRange range{reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
    CDeflater deflater(range, Compression::Balanced);
    std::string result(deflater.bound(), '\0');
    result.resize(
        deflater.deflate({reinterpret_cast<unsigned char*>(result.data()), result.size()}));
    return result;
}

std::string tableEntry(std::size_t offset)
{
    std::string digits = std::to_string(offset);
    digits.insert(0, kOffsetDigits - std::min(kOffsetDigits, digits.size()), '0');
    return digits + " 00000 n \n";
}

} // namespace

CPdfObjects::CPdfObjects()
    : m_bytes(kFileBegin)
{}

int CPdfObjects::reserve()
{
    m_offsets.push_back(0);
    return static_cast<int>(m_offsets.size());
}

void CPdfObjects::write(int object, const std::string& body)
{
    m_offsets[static_cast<std::size_t>(object - 1)] = m_bytes.size();
    m_bytes += std::to_string(object) + " 0 obj\n" + body + "\nendobj\n";
}

int CPdfObjects::add(const std::string& body)
{
    const int object = reserve();
    write(object, body);
    return object;
}

int CPdfObjects::addStream(const std::string& entries, const std::string& bytes)
{
    const std::string packed = compressed(bytes);
    return add("<<" + entries + "/Filter/FlateDecode/Length " + std::to_string(packed.size()) +
               ">>stream\n" + packed + "\nendstream");
}

CPictureFile CPdfObjects::finish(int catalog, int info)
{
    const std::size_t table = m_bytes.size();
    const std::string count = std::to_string(m_offsets.size() + 1);
    m_bytes += "xref\n0 " + count + '\n' + kFreeEntry;
    for (const std::size_t offset : m_offsets)
        m_bytes += tableEntry(offset);
    m_bytes += "trailer\n<</Size " + count + "/Root " + pdfReference(catalog) + "/Info " +
               pdfReference(info) + ">>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";

    CPictureFile file{std::make_unique<unsigned char[]>(m_bytes.size()), m_bytes.size()};
    std::copy(m_bytes.begin(), m_bytes.end(), file.data.get());
    return file;
}

} // namespace tovangl
