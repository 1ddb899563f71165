// SPDX-License-Identifier: MIT
// Where the samples of a layout's pixels are: lines, each a row of a plane.
#pragma once

#include <utility>

#include "frame/convert.h"
#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// `bytes` bytes of a line hold (1 << log2Pixels) pixels.
struct Unit {
    int bytes, log2Pixels = 0;

    constexpr ptrdiff_t offset(int pixels) const { return static_cast<ptrdiff_t>(pixels >> log2Pixels) * bytes; }
};

// A row of a plane. Where `rows` rows of the plane are converted at a time, it is number `row` of them.
struct Line {
    Unit unit;
    int plane = 0, row = 0, rows = 1;
};

template <Line... all> struct Lines {
    static constexpr int lines = sizeof...(all);
    static constexpr Line line[] = {all...};
    static constexpr int pixelsAtOnce = vectorBytes; // what a load gives and a store takes
    static constexpr int rowsAtOnce = 1;             // rows of the image that the lines hold
    static constexpr int group = 1;                  // pixels of a row that share samples

    uint8_t* start[lines];

    uint8_t* at(int l, int x) const { return start[l] + line[l].unit.offset(x); }

    // f(0) .. f(lines - 1). Written out: a loop over the lines would keep their pointers in memory.
    template <class F> [[gnu::always_inline]] static void each(const F& f)
    {
        [&]<int... l>(std::integer_sequence<int, l...>) __attribute__((always_inline)) { (f(l), ...); }
        (std::make_integer_sequence<int, lines>());
    }
};

// An image as a sequence of rows in a layout, or of pairs of rows.
template <class Layout> class RowsOf {
public:
    [[gnu::always_inline]] explicit RowsOf(const Image& image)
    {
        Layout::each([&](int l) {
            const Line& line = Layout::line[l];
            first[l] = image.row(line.plane, line.row);
            step[l] = line.rows * image.step[line.plane];
        });
    }

    [[gnu::always_inline]] Layout operator[](ptrdiff_t y) const
    {
        Layout row;
        Layout::each([&](int l) {
            row.start[l] = first[l] + y * step[l];
            // In a register: compilers would calculate several pointers in a vector and extract them again.
            asm("" : "+r"(row.start[l]));
        });
        return row;
    }

private:
    uint8_t* first[Layout::lines];
    ptrdiff_t step[Layout::lines];
};

// The rest of a row, from pixel x on.
template <class Layout> ZORCC_INLINE Layout fromPixel(const Layout& whole, int x)
{
    Layout row = whole;
    Layout::each([&](int l) { row.start[l] = whole.at(l, x); });
    return row;
}

} // namespace
} // namespace zorcc::ZORCC_TIER
