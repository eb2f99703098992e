// SPDX-License-Identifier: MIT
/// @file
/// Remembers the ids of any number of charts, without holding them in memory.
#ifndef TOVANGL_CHART_CIDREGISTER_H
#define TOVANGL_CHART_CIDREGISTER_H

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace tovangl::program {

/// Ids lie in two files without a name: a hash table, and the texts that it points to. Every
/// operation throws CFailure if the system refuses it.
class CIdRegister
{
public:
    CIdRegister();

    /// @param id  without line breaks
    /// @return whether it is new
    [[nodiscard]] bool add(const std::string& id);

private:
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

    /// A place in the hash table; all zero if it is free.
    struct Slot
    {
        std::uint64_t hash = 0;
        std::uint64_t end = 0; // of the text in its file
    };

    [[nodiscard]] static File makeFile();
    [[nodiscard]] Slot slotAt(std::uint64_t index) const;
    void setSlot(std::uint64_t index, const Slot& slot) const;
    [[nodiscard]] bool isTextAt(std::uint64_t end, const std::string& text) const;
    void appendText(const std::string& text);
    void insert(const Slot& slot) const;
    void grow();

    std::string m_salt; // so that nobody can choose ids whose hashes are equal
    File m_table;
    File m_texts;
    std::uint64_t m_slotCount; // a power of two
    std::uint64_t m_usedSlots = 0;
    std::uint64_t m_textEnd = 0;
};

} // namespace tovangl::program

#endif
