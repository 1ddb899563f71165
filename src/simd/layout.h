// SPDX-License-Identifier: MIT
// What all memory layouts share. A layout turns the next pixels of a row, as many as a vector holds samples, into
// vectors of one channel each, or back; a conversion is a source layout, a formula and a destination layout
// (row_loop.h).
//
// A layout also says how many bytes its planes hold for a pixel, or for a group of pixels that share a sample: all that
// is needed to move along a row and to stage its end. Where two rows are converted together they are planes of one
// layout.
#pragma once

#include <stddef.h>
#include <type_traits>

#include "frame/steps.h"
#include "simd/interleave.h"
#include "simd/wide_pixels.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- what layouts hand to formulas, and formulas to layouts ---------------------------------------------------------

// The channels of the next pixels of one row or of two. Where a formula works on even and odd columns apart, a layout
// may take them so; the others get them in order.
template <int channels, int rows = 1, Columns columns = Columns::inOrder, class Sample = uint8_t> struct Pixels {
    Vec<Sample> c[rows][channels];

    operator Pixels<channels, rows, Columns::inOrder>() const requires(columns == Columns::evenThenOdd)
    {
        Pixels<channels, rows> ordered;
        for (int row = 0; row < rows; ++row)
            for (int i = 0; i < channels; ++i) ordered.c[row][i] = zipHalves(c[row][i]);
        return ordered;
    }
};

template <class Sample, int channels = 3> using Samples = Pixels<channels, 1, Columns::inOrder, Sample>;

template <int channels>
ZORCC_INLINE Pixels<channels, 2> stack(const Pixels<channels>& upper, const Pixels<channels>& lower)
{
    Pixels<channels, 2> both;
    for (int c = 0; c < channels; ++c) {
        both.c[0][c] = upper.c[0][c];
        both.c[1][c] = lower.c[0][c];
    }
    return both;
}

template <int channels, Columns columns>
ZORCC_INLINE Pixels<channels, 1, columns> rowOf(const Pixels<channels, 2, columns>& both, int row)
{
    Pixels<channels, 1, columns> one;
    for (int c = 0; c < channels; ++c) one.c[0][c] = both.c[row][c];
    return one;
}

// Luma of one row or of two, and the chroma that each pair of columns shares: per block eight samples of the first
// chroma channel, then eight of the second.
template <int rows> struct Subsampled {
    u8v y[rows];
    u8v chroma;
};

// Most formulas turn pixels into pixels; some work in two steps, what comes before their divisions and the rest.
template <class Formula, class Loaded>
concept worksInTwoSteps = requires(const Formula& formula, const Loaded& pixels)
{
    formula.prepare(pixels);
};

// What the formula is called with.
template <class Formula, class Loaded> ZORCC_INLINE auto prepared(const Formula& formula, const Loaded& pixels)
{
    if constexpr (worksInTwoSteps<Formula, Loaded>)
        return formula.prepare(pixels);
    else
        return pixels;
}

// ---- where the bytes are --------------------------------------------------------------------------------------------

using In = const uint8_t;
using Out = uint8_t;

// `bytes` bytes of a plane hold (1 << log2Pixels) pixels of a row.
struct Unit {
    int bytes, log2Pixels;

    constexpr ptrdiff_t offset(int pixels) const { return static_cast<ptrdiff_t>(pixels >> log2Pixels) * bytes; }
};

// Layouts name the type of their samples, const in a source, but move in bytes.
template <class Sample> using BytesOf = std::conditional_t<std::is_const_v<Sample>, In, Out>;

// One row of every plane.
template <class B, Unit... units> struct Rows {
    using Byte = B;
    static constexpr int planes = sizeof...(units);
    static constexpr Unit unit[] = {units...};
    static constexpr int pixelsAtOnce = vectorBytes; // what a load gives and a store takes

    Byte* plane[planes];

    Byte* at(int p, int x) const { return plane[p] + unit[p].offset(x); }
};

template <class R> struct Twice;
template <class Byte, Unit... units> struct Twice<Rows<Byte, units...>> {
    using Type = Rows<Byte, units..., units...>;
};

// Two rows of a layout that holds one: the planes of the first row, then those of the second.
template <class Layout> struct TwoRows : Twice<typename Layout::Base>::Type {
    Layout both; // what a row holds beside its planes

    Layout row(int r) const
    {
        Layout one = both;
        for (int p = 0; p < Layout::planes; ++p) one.plane[p] = this->plane[r * Layout::planes + p];
        return one;
    }

    auto load(int x) const { return stack(row(0).load(x), row(1).load(x)); }

    template <class Pair> void store(int x, const Pair& pair) const
    {
        for (int r = 0; r < 2; ++r) row(r).store(x, rowOf(pair, r));
    }
};

// The rest of a row, from pixel x on.
template <class Layout> ZORCC_INLINE Layout from(Layout row, int x)
{
    for (int p = 0; p < Layout::planes; ++p) row.plane[p] = row.at(p, x);
    return row;
}

// ---- images ---------------------------------------------------------------------------------------------------------

// An image as a sequence of rows (or of pairs of rows) of a layout.
template <class Layout> struct Image {
    typename Layout::Byte* plane[Layout::planes];
    ptrdiff_t step[Layout::planes]; // from one element of the sequence to the next

    Layout operator[](int y) const
    {
        Layout rows;
        for (int p = 0; p < Layout::planes; ++p) rows.plane[p] = plane[p] + y * step[p];
        return rows;
    }
};

// One plane, of bytes or of wider samples.
template <class Layout, class Sample> Image<Layout> rowsOf(Sample* p, ptrdiff_t step)
{
    return {{reinterpret_cast<typename Layout::Byte*>(p)}, {step}};
}

// Planes with one step for all, or with a step each.
template <class Layout, class Byte> Image<Layout> rowsOf(Byte* const* plane, ptrdiff_t step)
{
    Image<Layout> image;
    for (int p = 0; p < Layout::planes; ++p) {
        image.plane[p] = plane[p];
        image.step[p] = step;
    }
    return image;
}

template <class Layout, class Byte> Image<Layout> rowsOf(Byte* const* plane, const PlaneSteps& step)
{
    Image<Layout> image;
    for (int p = 0; p < Layout::planes; ++p) {
        image.plane[p] = plane[p];
        image.step[p] = step.of[p];
    }
    return image;
}

// The same image as a sequence of pairs of rows.
template <class Layout> Image<TwoRows<Layout>> inPairs(const Image<Layout>& rows)
{
    Image<TwoRows<Layout>> pairs;
    for (int p = 0; p < TwoRows<Layout>::planes; ++p) {
        const int q = p % Layout::planes;
        pairs.plane[p] = rows.plane[q] + p / Layout::planes * rows.step[q];
        pairs.step[p] = 2 * rows.step[q];
    }
    return pairs;
}

} // namespace
} // namespace zorcc::ZORCC_TIER
