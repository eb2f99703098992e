// SPDX-License-Identifier: MIT
// Remembers the ids of any number of charts, without holding them in memory.
#include "tovangl-chart/CIdRegister.h"

#include "common/CFailure.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <random>
#include <unistd.h>
#include <utility>

namespace tovangl::program {

namespace {

constexpr std::uint64_t kFirstSlotCount = 4096;
constexpr std::uint64_t kGrowth = 2;
constexpr std::uint64_t kSlotsPerText = 2; // fewer make searches long
constexpr const char* kName = "temporary file";

// TMPDIR, where the environment has it.
std::string temporaryFolder()
{
    std::error_code error;
    const std::string folder = std::filesystem::temp_directory_path(error);
    if (error)
        throw systemFailure("folder for temporary files", error.value());
    return folder;
}

// Beyond its end, a file has zeros.
void readAt(std::FILE* file, void* bytes, std::size_t count, std::uint64_t offset)
{
    auto* next = static_cast<unsigned char*>(bytes);
    while (count > 0) {
        const ssize_t got = ::pread(::fileno(file), next, count, static_cast<off_t>(offset));
        if (got == 0)
            return;
        if (got < 0 && errno != EINTR)
            throw systemFailure(kName);
        const std::size_t done = got < 0 ? 0 : static_cast<std::size_t>(got);
        next += done;
        count -= done;
        offset += done;
    }
}

void writeAt(std::FILE* file, const void* bytes, std::size_t count, std::uint64_t offset)
{
    const auto* next = static_cast<const unsigned char*>(bytes);
    while (count > 0) {
        const ssize_t put = ::pwrite(::fileno(file), next, count, static_cast<off_t>(offset));
        if (put < 0 && errno != EINTR)
            throw systemFailure(kName);
        const std::size_t done = put < 0 ? 0 : static_cast<std::size_t>(put);
        next += done;
        count -= done;
        offset += done;
    }
}

} // namespace

CIdRegister::CIdRegister()
    : m_salt(std::to_string(std::random_device()()))
    , m_table(makeFile())
    , m_texts(makeFile())
    , m_slotCount(kFirstSlotCount)
{}

bool CIdRegister::add(const std::string& id)
{
    const std::string text = id + '\n';
    const std::uint64_t hash = std::hash<std::string>()(m_salt + text);
    std::uint64_t index = hash;
    for (Slot slot = slotAt(index); slot.end != 0; slot = slotAt(++index)) {
        if (slot.hash == hash && isTextAt(slot.end, text))
            return false;
    }
    appendText(text);
    setSlot(index, {hash, m_textEnd});
    if (++m_usedSlots * kSlotsPerText > m_slotCount)
        grow();
    return true;
}

CIdRegister::File CIdRegister::makeFile()
{
    std::string name = temporaryFolder() + "/tovangl-XXXXXX";
    const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0)
        throw systemFailure(kName);
    ::unlink(name.c_str());
    File file(::fdopen(descriptor, "r+"), &std::fclose);
    if (!file) {
        ::close(descriptor);
        throw systemFailure(kName);
    }
    return file;
}

CIdRegister::Slot CIdRegister::slotAt(std::uint64_t index) const
{
    Slot slot;
    readAt(m_table.get(), &slot, sizeof slot, index % m_slotCount * sizeof slot);
    return slot;
}

void CIdRegister::setSlot(std::uint64_t index, const Slot& slot) const
{
    writeAt(m_table.get(), &slot, sizeof slot, index % m_slotCount * sizeof slot);
}

bool CIdRegister::isTextAt(std::uint64_t end, const std::string& text) const
{
    if (end < text.size())
        return false;
    std::string found(text.size(), '\0');
    readAt(m_texts.get(), found.data(), found.size(), end - text.size());
    const bool isWhole = end == text.size() || [&] {
        char before = 0;
        readAt(m_texts.get(), &before, 1, end - text.size() - 1);
        return before == '\n';
    }();
    return isWhole && found == text;
}

void CIdRegister::appendText(const std::string& text)
{
    writeAt(m_texts.get(), text.data(), text.size(), m_textEnd);
    m_textEnd += text.size();
}

void CIdRegister::insert(const Slot& slot) const
{
    std::uint64_t index = slot.hash;
    while (slotAt(index).end != 0)
        ++index;
    setSlot(index, slot);
}

void CIdRegister::grow()
{
    const File old = std::exchange(m_table, makeFile());
    const std::uint64_t oldCount = std::exchange(m_slotCount, m_slotCount * kGrowth);
    for (std::uint64_t index = 0; index < oldCount; ++index) {
        Slot slot;
        readAt(old.get(), &slot, sizeof slot, index * sizeof slot);
        if (slot.end != 0)
            insert(slot);
    }
}

} // namespace tovangl::program
