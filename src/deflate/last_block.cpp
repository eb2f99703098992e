// SPDX-License-Identifier: MIT
// Finds the last block of a deflate stream.
#include "deflate/last_block.h"

#include <array>
#include <memory>
#include <new>
#include <vector>
#include <zlib.h>

namespace tovangl {

namespace {

constexpr int kLargestWindowAndNoHeader = -15;
constexpr std::size_t kScratchBytes = 4096;

// What zlib says about where it stopped, beside the number of unused bits of the last byte.
constexpr int kUnusedBits = 7;
constexpr int kIsInLastBlock = 64;
constexpr int kIsBetweenBlocks = 128;

// What zlib asks for. It goes with the reader.
using Memory = std::vector<std::unique_ptr<unsigned char[]>>;

// No exception may pass through zlib.
void* allocate(void* memory, unsigned count, unsigned size)
{
    auto& blocks = *static_cast<Memory*>(memory);
    try {
        blocks.push_back(std::make_unique<unsigned char[]>(std::size_t{count} * size));
        return blocks.back().get();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void release(void* /*memory*/, void* /*block*/) {}

// Decompresses block by block. What comes out is of no interest.
class CBlockReader
{
public:
    explicit CBlockReader(CByteRange bytes)
        : m_size(bytes.size)
    {
        m_stream.opaque = &m_memory;
        m_stream.zalloc = allocate;
        m_stream.zfree = release;
        // The interface lacks const, but only reads the bytes.
        m_stream.next_in = const_cast<unsigned char*>(bytes.data);
        m_stream.avail_in = static_cast<unsigned>(bytes.size);
        if (inflateInit2(&m_stream, kLargestWindowAndNoHeader) != Z_OK)
            throw std::bad_alloc();
    }
    ~CBlockReader() = default;
    CBlockReader(const CBlockReader&) = delete;
    CBlockReader& operator=(const CBlockReader&) = delete;

    // Goes on behind the next block.
    void readBlock()
    {
        do {
            m_stream.next_out = m_scratch.data();
            m_stream.avail_out = static_cast<unsigned>(m_scratch.size());
            // A whole stream has no other reason to stop.
            if (inflate(&m_stream, Z_BLOCK) != Z_OK)
                throw std::bad_alloc();
        } while ((m_stream.data_type & kIsBetweenBlocks) == 0);
    }
    [[nodiscard]] bool isBehindLastBlock() const
    {
        return (m_stream.data_type & kIsInLastBlock) != 0;
    }
    // In bits.
    [[nodiscard]] std::size_t position() const
    {
        const auto unused = static_cast<std::size_t>(m_stream.data_type & kUnusedBits);
        return kBitsPerByte * (m_size - m_stream.avail_in) - unused;
    }

private:
    std::size_t m_size;
    Memory m_memory;
    z_stream m_stream{};
    std::array<unsigned char, kScratchBytes> m_scratch;
};

} // namespace

CLastBlock findLastBlock(CByteRange stream)
{
    CBlockReader reader(stream);
    CLastBlock block;
    reader.readBlock();
    while (!reader.isBehindLastBlock()) {
        block.begin = reader.position();
        reader.readBlock();
    }
    block.end = reader.position();
    return block;
}

} // namespace tovangl
