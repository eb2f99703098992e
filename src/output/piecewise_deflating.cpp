// SPDX-License-Identifier: MIT
// Compresses rows of which many repeat the row above.
#include "output/piecewise_deflating.h"

#include "deflate/CBitWriter.h"
#include "deflate/last_block.h"
#include "deflate/zlib_frame.h"
#include "output/still_rows_block.h"

#include <libdeflate.h>

namespace tovangl {

namespace {

// Pieces from a compressor begin with a byte. A stored block of nothing leads there from any bit.
void putEmptyBlock(CBitWriter& out)
{
    out.put(0, 3); // stored, not the last one
    out.align();
    out.put(0x0000, 16); // no bytes
    out.put(0xffff, 16); // the same, inverted
}

class CPieceWriter
{
public:
    CPieceWriter(libdeflate_compressor* compressor, CByteRoom room)
        : m_compressor(compressor)
        , m_out(room)
    {
        beginZlibStream(m_out);
    }

    // Whether it fitted.
    [[nodiscard]] bool putRows(CByteRange rows, bool isLast)
    {
        if (m_out.position() % kBitsPerByte != 0)
            putEmptyBlock(m_out);
        const CByteRoom rest = m_out.rest();
        const std::size_t size =
            libdeflate_deflate_compress(m_compressor, rows.data, rows.size, rest.data, rest.size);
        if (m_out.isFull() || size == 0)
            return false;
        if (isLast)
            m_out.skip(kBitsPerByte * size);
        else
            goOnBehind({rest.data, size});
        return true;
    }

    void putStillRows(std::size_t rowBytes, std::size_t rows, bool isLast)
    {
        writeStillRows(m_out, rowBytes, rows, isLast);
    }

    // The length of the stream; 0 if it did not fit.
    [[nodiscard]] std::size_t finish(CByteRange rows) { return endZlibStream(m_out, rows); }

private:
    void goOnBehind(CByteRange stream)
    {
        const CLastBlock last = findLastBlock(stream);
        m_out.clear(m_out.position() + last.begin);
        m_out.skip(last.end);
    }

    libdeflate_compressor* m_compressor;
    CBitWriter m_out;
};

} // namespace

std::size_t deflatePieces(libdeflate_compressor* compressor, CByteRange rows,
                          const CStillRows& still, CByteRoom room)
{
    CPieceWriter writer(compressor, room);
    std::size_t next = 0; // the byte behind the last piece
    for (const CRowRun& run : still.runs) {
        const std::size_t begin = run.first * still.stride;
        if (begin > next && !writer.putRows({rows.data + next, begin - next}, false))
            return 0;
        next = begin + run.count * still.stride;
        writer.putStillRows(still.stride - 1, run.count, next == rows.size);
    }
    if (next < rows.size && !writer.putRows({rows.data + next, rows.size - next}, true))
        return 0;
    return writer.finish(rows);
}

} // namespace tovangl
