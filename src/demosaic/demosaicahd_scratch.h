// SPDX-License-Identifier: MIT
// The caller's scratch buffer as lines of floats. zorcc.h tells callers how large it must be.
#pragma once

#include "frame/convert.h"
#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Of the buffer: rows, and bytes of a row for a region of the given width.
constexpr int scratchRows = 64;
constexpr ptrdiff_t scratchRowBytes(int width) { return 32 * (static_cast<ptrdiff_t>(width) + 32); }

// How lines lie in the buffer. A line starts on a cache line's boundary and has a cache line as a margin before it and
// after it, which vectors may read that extend over its ends.
class Scratch {
public:
    static constexpr int margin = 16; // floats

    // For lines of `length` floats, a multiple of `margin`.
    Scratch(const Image& scratchImage, int width, int length)
        : image(scratchImage), pitch(length + margin),
          linesPerRow(static_cast<int>((scratchRowBytes(width) / 4 - 2 * margin) / pitch))
    {
    }

    int lines() const { return scratchRows * linesPerRow; }

    float* line(int index) const
    {
        const uintptr_t row = (uintptr_t)image.row(0, index / linesPerRow);
        return (float*)((row + 63) / 64 * 64) + margin + index % linesPerRow * pitch;
    }

private:
    const Image& image;
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
