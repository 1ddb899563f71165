// SPDX-License-Identifier: MIT
// The loop over a row, for every conversion: whole vectors, then the end of the row, never a byte outside it.
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A copy of the first pixels of a row, long enough for a load or a store, with zeros behind them.
template <class Layout> class Stage {
public:
    // `width` pixels, fewer than a load or a store takes.
    Stage(const Layout& row, int width) : staged(row)
    {
        for (int p = 0; p < Layout::planes; ++p) {
            __builtin_memcpy(bytes[p], row.plane[p], static_cast<size_t>(Layout::unit[p].offset(width)));
            staged.plane[p] = bytes[p];
        }
    }

    const Layout& row() const { return staged; }

    void copyTo(const Layout& row, int width) const
    {
        for (int p = 0; p < Layout::planes; ++p)
            __builtin_memcpy(row.plane[p], bytes[p], static_cast<size_t>(Layout::unit[p].offset(width)));
    }

private:
    static constexpr ptrdiff_t planeBytes()
    {
        ptrdiff_t most = 0;
        for (const Unit& unit : Layout::unit)
            if (unit.offset(Layout::pixelsAtOnce) > most) most = unit.offset(Layout::pixelsAtOnce);
        return most;
    }
    alignas(vectorBytes) uint8_t bytes[Layout::planes][planeBytes()] = {};
    Layout staged;
};

// Converts `width` pixels, fewer than a load takes.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertShortRow(const Source from, const Formula formula, const Destination to, int width)
{
    const Stage<Source> source(from, width);
    const Stage<Destination> destination(to, width); // with what a store keeps
    destination.row().store(0, formula(prepared(formula, source.row().load(0))));
    destination.copyTo(to, width);
}

// Formulas of wide samples have some hundred instructions for a line of cache, so that what a processor looks ahead
// holds few lines; images beyond the caches gain a tenth to twice their speed when lines are asked for this far ahead.
// Bytes have too many pixels in a line for that. `width` is a multiple of a load's pixels: what lies behind the row is
// not asked for.
constexpr int prefetchedBytes = 1024;
template <class Layout> ZORCC_INLINE void prefetchAhead(const Layout& row, int x, int width)
{
    if constexpr (requires { typename Layout::Sample; }) {
        constexpr int step = Layout::pixelsAtOnce;
        constexpr int ahead = (prefetchedBytes / Layout::unit[0].bytes + step - 1) / step * step;
        if (sizeof(typename Layout::Sample) == 1 || x + ahead >= width) return;
        for (int p = 0; p < Layout::planes; ++p)
            for (ptrdiff_t b = 0; b < Layout::unit[p].offset(step); b += 64)
                __builtin_prefetch(row.at(p, x + ahead) + b);
    }
}

// Converts `width` pixels, a multiple of a load's and at least one.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertVectors(const Source from, const Formula formula, const Destination to, int width)
{
    constexpr int step = Source::pixelsAtOnce;
    if constexpr (worksInTwoSteps<Formula, decltype(from.load(0))>) {
        // The first step for the next vector stands before the second for this one, so that the processor, which does
        // not look far ahead, finds work while divisions last.
        auto next = formula.prepare(from.load(0));
        for (int x = step; x < width; x += step) {
            prefetchAhead(from, x, width);
            prefetchAhead(to, x, width);
            const auto current = next;
            next = formula.prepare(from.load(x));
            to.store(x - step, formula(current));
        }
        to.store(width - step, formula(next));
    } else {
        for (int x = 0; x < width; x += step) {
            prefetchAhead(from, x, width);
            prefetchAhead(to, x, width);
            to.store(x, formula(from.load(x)));
        }
    }
}

// Converts `width` pixels, a multiple of the pixels that share a sample. Source and destination may be the same row of
// the same layout: the last load, which overlaps the one before it, is read before anything is written.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertRow(const Source from, const Formula formula, const Destination to, int width)
{
    constexpr int step = Source::pixelsAtOnce;
    static_assert(step == Destination::pixelsAtOnce);
    if (width < step) {
        if (width > 0) convertShortRow(from, formula, to, width);
    } else if (width % step == 0) {
        convertVectors(from, formula, to, width);
    } else {
        const auto last = prepared(formula, from.load(width - step));
        convertVectors(from, formula, to, width - width % step);
        to.store(width - step, formula(last));
    }
}

// The same for the first `count` rows (or pairs of rows) of two images.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertRows(const Image<Source> from, const Formula formula, const Image<Destination> to, int width,
                              int count)
{
    for (int y = 0; y < count; ++y) convertRow(from[y], formula, to[y], width);
}

// Whether the rows of an image follow each other without gaps.
template <class Layout> bool isContiguous(const Image<Layout>& image, int width)
{
    for (int p = 0; p < Layout::planes; ++p)
        if (image.step[p] != Layout::unit[p].offset(width)) return false;
    return true;
}

// The same for formulas that do not look beyond a pixel: rows without gaps become one row.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertImage(const Image<Source> from, const Formula formula, const Image<Destination> to, int width,
                               int count)
{
    const int64_t pixels = static_cast<int64_t>(width) * count;
    if (pixels <= INT32_MAX && isContiguous(from, width) && isContiguous(to, width)) {
        width = static_cast<int>(pixels);
        count = 1;
    }
    convertRows(from, formula, to, width, count);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
