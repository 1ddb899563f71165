// SPDX-License-Identifier: MIT
#include "tests/harness/plane_memory.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace zorcc::test {

void PlaneMemory::arrange(const RowArrangement& arrangement)
{
    accessible.clear();
    if (arrangement.isolated)
        arrangePages(arrangement);
    else
        arrangeBlock(arrangement);
}

// Puts `bytes` bytes at the edge of the memory; remembers them and their margins.
std::uint8_t* PlaneMemory::place(std::uint8_t* memory, std::size_t memoryBytes, std::size_t bytes,
                                 const RowArrangement& a)
{
    if (bytes + a.distance > memoryBytes) throw std::length_error("plane does not fit its memory");
    const std::size_t offset = a.edge == Edge::start ? a.distance : memoryBytes - bytes - a.distance;
    const std::size_t first = offset - std::min(offset, margin);
    const std::size_t last = std::min(offset + bytes + margin, memoryBytes);
    accessible.emplace_back(memory + first, last - first);
    return memory + offset;
}

void PlaneMemory::arrangeBlock(const RowArrangement& a)
{
    const std::size_t step = static_cast<std::size_t>(std::abs(a.step));
    const std::size_t bytes = a.rows > 0 && a.rowBytes > 0 ? (a.rows - 1) * step + a.rowBytes : 0;
    const std::size_t page = RowPages::pageBytes();
    if (!block || blockBytes < bytes + a.distance + 2 * margin) {
        blockBytes = (bytes + a.distance + 2 * margin + page - 1) / page * page; // both ends lie on pages' edges
        block = std::make_unique<GuardedBuffer>(blockBytes, Edge::start);
    }
    row0 = place(block->data(), blockBytes, bytes, a);
    if (a.step < 0 && bytes > 0) row0 += (a.rows - 1) * step;
}

void PlaneMemory::arrangePages(const RowArrangement& a)
{
    const std::size_t stride = static_cast<std::size_t>(std::abs(a.step));
    if (!pages || pageRows < a.rows || pageStride != stride) {
        pageRows = std::max(a.rows, 1);
        pageStride = stride;
        pages = std::make_unique<RowPages>(pageRows, stride);
    }
    if (a.rows == 0 || a.rowBytes == 0) {
        row0 = place(pages->data(), RowPages::pageBytes(), 0, a);
        return;
    }
    for (int y = 0; y < a.rows; ++y) {
        const int page = a.step < 0 ? a.rows - 1 - y : y;
        std::uint8_t* const row = place(pages->data() + page * stride, RowPages::pageBytes(), a.rowBytes, a);
        if (y == 0) row0 = row;
    }
}

} // namespace zorcc::test
