// SPDX-License-Identifier: MIT
/// @file
/// The largest of any number of entries, in bounded memory.
#ifndef TOVANGL_DU_CLARGEST_H
#define TOVANGL_DU_CLARGEST_H

#include "tovangl-du/byte_text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tovangl::program {

/// Keeps the largest entries, and counts the others. The result does not depend on the order of
/// adding. An entry has a size in bytes and a name, which orders entries of equal size.
template <typename Entry>
class CLargest
{
public:
    /// @param limit  how many entries are kept; above 0
    explicit CLargest(std::size_t limit)
        : m_limit(limit)
    {}

    void add(Entry entry)
    {
        if (m_entries.size() == m_limit && !isBefore(entry, m_entries.front())) {
            countOther(entry);
            return;
        }
        if (m_entries.size() == m_limit) {
            std::pop_heap(m_entries.begin(), m_entries.end(), isBefore);
            countOther(m_entries.back());
            m_entries.pop_back();
        }
        m_entries.push_back(std::move(entry));
        std::push_heap(m_entries.begin(), m_entries.end(), isBefore);
    }

    /// Whether an entry of this size would be kept at this point.
    [[nodiscard]] bool takes(long bytes) const
    {
        return m_entries.size() < m_limit || bytes >= m_entries.front().bytes;
    }

    /// In no particular order.
    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// The largest first, entries of equal size by name.
    [[nodiscard]] std::vector<Entry> sorted() const
    {
        std::vector<Entry> result = m_entries;
        std::sort(result.begin(), result.end(), isBefore);
        return result;
    }

    /// What was added but not kept.
    [[nodiscard]] std::uint64_t otherCount() const { return m_otherCount; }
    [[nodiscard]] long otherBytes() const { return m_otherBytes; }

private:
    static bool isBefore(const Entry& a, const Entry& b)
    {
        return a.bytes != b.bytes ? a.bytes > b.bytes : a.name < b.name;
    }

    void countOther(const Entry& entry)
    {
        ++m_otherCount;
        m_otherBytes = addBytes(m_otherBytes, entry.bytes);
    }

    std::size_t m_limit;
    std::vector<Entry> m_entries; // a heap with the smallest at its front
    std::uint64_t m_otherCount = 0;
    long m_otherBytes = 0;
};

} // namespace tovangl::program

#endif
