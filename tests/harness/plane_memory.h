// SPDX-License-Identifier: MIT
// Guarded memory of one plane, kept from one arrangement to the next.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "tests/harness/guarded.h"

namespace zorcc::test {

// Where the rows of a plane lie.
struct RowArrangement {
    int rows;
    std::size_t rowBytes;
    std::ptrdiff_t step;  // bytes from a row to the next; negative walks upwards
    Edge edge;            // which end of the plane, or of each isolated row, touches inaccessible memory, or is near it
    std::size_t distance; // in bytes of that end from inaccessible memory
    bool isolated;        // every row in memory of its own; the step is a multiple of isolatedStep()
};

class PlaneMemory {
public:
    void arrange(const RowArrangement& arrangement);

    std::uint8_t* firstRow() const { return row0; }

    // The rows, what lies between them and up to `margin` bytes around them.
    std::span<const std::span<std::uint8_t>> pieces() const { return accessible; }

    static constexpr std::size_t margin = 128;

    // What an isolated row may take: a long one of floats.
    static std::size_t isolatedBytes() { return 4 * pageBytes(); }
    static std::size_t isolatedStep() { return 2 * isolatedBytes(); }

private:
    std::unique_ptr<GuardedPages> block, isolatedRows;
    std::uint8_t* row0 = nullptr;
    std::vector<std::span<std::uint8_t>> accessible;
};

} // namespace zorcc::test
