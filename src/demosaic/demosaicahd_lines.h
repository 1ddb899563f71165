// SPDX-License-Identifier: MIT
// Lines of floats in the caller's scratch buffer, and loops along them.
#pragma once

#include "frame/convert.h"
#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Rows of the buffer, and bytes of a row for a region of the given width.
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

    int64_t lines() const { return int64_t{scratchRows} * linesPerRow; }

    float* line(int index) const
    {
        const uintptr_t row = (uintptr_t)image.row(0, index / linesPerRow);
        return (float*)((row + 63) / 64 * 64) + margin + index % linesPerRow * pitch;
    }

private:
    const Image& image;
    int pitch, linesPerRow;
};

// Lines of a row, the middle one, and of the rows above and below.
template <int count> struct Rows {
    const float* line[count];
};

// The lines of the last `count` rows of something.
template <int count> struct Ring {
    float* lines[count];

    float* operator[](int row) const { return lines[static_cast<unsigned>(row) % count]; }
    Rows<3> around(int row) const { return {{(*this)[row - 1], (*this)[row], (*this)[row + 1]}}; }
    Rows<5> farAround(int row) const
    {
        return {{(*this)[row - 2], (*this)[row - 1], (*this)[row], (*this)[row + 1], (*this)[row + 2]}};
    }
};

// ---- loops: over whole vectors; what is computed beyond the ends of a line is not used ------------------------------

// A stage is a function of its own, so that its loop has all registers to itself.
#define ZORCC_STAGE static __attribute__((noinline))

ZORCC_INLINE f32v at(const float* p, int i) { return load<f32v>(p + i); }

template <class Body> ZORCC_INLINE void alongLine(int length, Body body)
{
    for (int i = 0; i < length; i += lanes) body(i);
}

template <int count> struct Values {
    f32v v[count];
};

// Calls body(i, left, here, right) with the values at i and at their neighbours. value(i) gives Values for any i from a
// vector before the line to one after it, and is called once for each.
template <class Value, class Body> ZORCC_INLINE void alongNeighbours(int length, Value value, Body body)
{
    auto previous = value(-lanes), here = value(0);
    for (int i = 0; i < length; i += lanes) {
        const auto next = value(i + lanes);
        decltype(previous) left, right;
        for (size_t k = 0; k < sizeof here / sizeof(f32v); ++k) {
            left.v[k] = leftOf(previous.v[k], here.v[k]);
            right.v[k] = rightOf(here.v[k], next.v[k]);
        }
        body(i, left, here, right);
        for (size_t k = 0; k < sizeof here / sizeof(f32v); ++k) { // one by one: see homogeneity()
            previous.v[k] = here.v[k];
            here.v[k] = next.v[k];
        }
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
