// SPDX-License-Identifier: MIT
// Guarded memory of one plane, kept from one arrangement to the next.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "tests/harness/guarded.h"
#include "tests/harness/row_pages.h"

namespace zorcc::test {

// Where the rows of a plane lie.
struct RowArrangement {
    int rows;
    std::size_t rowBytes;
    std::ptrdiff_t step;  // bytes from a row to the next; negative walks upwards
    Edge edge;            // which end of the plane, or of each isolated row, touches inaccessible memory ...
    std::size_t distance; // ... but for so many bytes
    bool isolated;        // every row on a page of its own; the step must suit RowPages, a row fit a page
};

class PlaneMemory {
public:
    void arrange(const RowArrangement& arrangement);

    std::uint8_t* firstRow() const { return row0; }

    // The rows, what lies between them and up to `margin` bytes around them.
    std::span<const std::span<std::uint8_t>> pieces() const { return accessible; }

    static constexpr std::size_t margin = 128;

private:
    std::unique_ptr<GuardedBuffer> block;
    std::size_t blockBytes = 0;
    std::unique_ptr<RowPages> pages;
    int pageRows = 0;
    std::size_t pageStride = 0;

    std::uint8_t* row0 = nullptr;
    std::vector<std::span<std::uint8_t>> accessible;

    void arrangeBlock(const RowArrangement& arrangement);
    void arrangePages(const RowArrangement& arrangement);
    std::uint8_t* place(std::uint8_t* memory, std::size_t memoryBytes, std::size_t bytes, const RowArrangement& a);
};

} // namespace zorcc::test
