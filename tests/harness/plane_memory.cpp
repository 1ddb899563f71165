// SPDX-License-Identifier: MIT
#include "tests/harness/plane_memory.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace zorcc::test {

void PlaneMemory::arrange(const RowArrangement& a)
{
    const bool empty = a.rows == 0 || a.rowBytes == 0;
    const std::size_t step = static_cast<std::size_t>(std::abs(a.step)), last = empty ? 0 : (a.rows - 1) * step;
    const std::size_t bytes = empty        ? 0
                              : a.isolated ? a.rowBytes
                                           : last + a.rowBytes; // of a piece, which end at an edge
    const std::size_t pieces = a.isolated && !empty ? a.rows : 1;
    const std::size_t pieceBytes = a.isolated ? isolatedBytes() : inWholePages(bytes + a.distance + 2 * margin);
    const std::size_t stride = a.isolated ? step : pieceBytes + pageBytes();
    if (bytes + a.distance > pieceBytes) throw std::length_error("a row does not fit its memory");

    std::unique_ptr<GuardedPages>& memory = a.isolated ? isolatedRows : block;
    const bool fits = memory && memory->pieces >= pieces && memory->bytes >= pieceBytes;
    if (!fits || (a.isolated && memory->stride != stride))
        memory = std::make_unique<GuardedPages>(pieces, pieceBytes, stride);
    const std::size_t offset = a.edge == Edge::start ? a.distance : memory->bytes - bytes - a.distance;
    const std::size_t first = offset - std::min(offset, margin);
    const std::size_t end = std::min(offset + bytes + margin, memory->bytes);
    accessible.clear();
    for (std::size_t i = 0; i < pieces; ++i) accessible.emplace_back(memory->data(i) + first, end - first);
    row0 = memory->data(0) + offset + (a.step < 0 ? last : 0);
}

} // namespace zorcc::test
