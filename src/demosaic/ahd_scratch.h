// SPDX-License-Identifier: MIT
// The caller's scratch buffer as lines of floats. zorcc.h tells callers how large it must be.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Of the buffer: rows, and bytes of a row for a region of the given width.
constexpr int scratchRows = 64;
constexpr ptrdiff_t scratchRowBytes(int width) { return 32 * (static_cast<ptrdiff_t>(width) + 32); }

// How lines lie in the buffer. A line starts on a cache line's boundary and has a cache line of room before it and
// behind it, which vectors may read that reach over its ends.
class Scratch {
public:
    static constexpr int room = 16; // floats

    // For lines of `length` floats, a multiple of `room`.
    Scratch(void* buffer, ptrdiff_t bufferStep, int width, int length)
        : base(static_cast<uint8_t*>(buffer)), step(bufferStep), pitch(length + room),
          linesPerRow(static_cast<int>((scratchRowBytes(width) / 4 - 2 * room) / pitch))
    {
    }

    int lines() const { return scratchRows * linesPerRow; }

    float* line(int index) const
    {
        const uintptr_t row = (uintptr_t)base + (uintptr_t)(step * (index / linesPerRow));
        return (float*)((row + 63) / 64 * 64) + room + index % linesPerRow * pitch;
    }

private:
    uint8_t* base;
    ptrdiff_t step;
    int pitch, linesPerRow;
};

// Lines of a row, [1], and of the rows above and below.
struct ThreeRows {
    const float* line[3];
};

// The lines of the last `count` rows of something.
template <int count> struct Ring {
    float* lines[count];

    float* operator[](int row) const { return lines[static_cast<unsigned>(row) % count]; }
    ThreeRows around(int row) const { return {{(*this)[row - 1], (*this)[row], (*this)[row + 1]}}; }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
