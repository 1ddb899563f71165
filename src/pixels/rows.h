// SPDX-License-Identifier: MIT
// Rows of an image in a memory layout, and the walk over them: the one loop in which every conversion runs.
//
// A layout turns the next pixels of a row, as many as a vector holds samples, into vectors of one channel each, or
// back. A formula turns such vectors into others and never accesses memory. rows<Source, Formula, Destination> is a
// driver: it loads, calculates and stores, and never touches a byte outside the rows.
#pragma once

#include <algorithm>
#include <type_traits>

#include "frame/parallel.h"
#include "pixels/lines.h"
#include "simd/interleave.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- what layouts hand to formulas, and formulas to layouts ---------------------------------------------------------

// The channels of the next pixels of one row, or of two rows that are converted at a time.
template <int channels, int rows = 1, Columns columns = Columns::inOrder, class Sample = uint8_t> struct Pixels {
    Vec<Sample> c[rows][channels];
};

template <class Sample, int channels = 3> using Samples = Pixels<channels, 1, Columns::inOrder, Sample>;

// Samples of twice as many bits as those that they are made from, or that are made from them: for as many pixels as
// those fill a vector with, two vectors of each channel, which a zip makes and a pack takes.
template <class S> struct WideChannel {
    Vec<S> half[2];
};
template <class S, int channels = 3> struct WideSamples {
    WideChannel<S> c[channels];
};

template <int channels, int rows>
ZORCC_INLINE Pixels<channels, rows> inOrder(const Pixels<channels, rows, Columns::evenThenOdd>& pixels)
{
    Pixels<channels, rows> ordered;
    for (int row = 0; row < rows; ++row)
        for (int i = 0; i < channels; ++i) ordered.c[row][i] = zipHalves(pixels.c[row][i]);
    return ordered;
}

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

// Luma of one row or two, and chroma for pairs of columns: per block eight samples of Cb or U, then eight of Cr or V.
template <int rows> struct Subsampled {
    u8v y[rows];
    u8v chroma;
};

// ---- two rows at a time ----

template <Line... all>
auto twice(Lines<all...>) -> Lines<Line{all.unit, all.plane, all.row, 2 * all.rows}...,
                                   Line{all.unit, all.plane, all.row + all.rows, 2 * all.rows}...>;

// Two rows of a layout that holds one: the lines of the upper row, then those of the lower.
template <class Layout> struct TwoRows : decltype(twice(typename Layout::Base{})) {
    static constexpr int rowsAtOnce = 2;

    Layout state; // what a layout holds beside its lines

    Layout row(int r) const
    {
        Layout one = state;
        Layout::each([&](int l) { one.start[l] = this->start[r * Layout::lines + l]; });
        return one;
    }

    [[gnu::always_inline]] auto load(int x) const { return stack(row(0).load(x), row(1).load(x)); }

    template <class Pair> [[gnu::always_inline]] void store(int x, const Pair& pair) const
    {
        for (int r = 0; r < 2; ++r) row(r).store(x, rowOf(pair, r));
    }
};

// ---- formulas -------------------------------------------------------------------------------------------------------

template <class Formula, class Loaded>
concept Takes = requires(const Formula& formula, const Loaded& pixels)
{
    formula(pixels);
};

// Some formulas work in two steps, `prepare` (what comes before their divisions, or what pixels share) and the call.
// The walk prepares the next vector before it finishes the current one: work for while divisions last, or while the
// results of a chain of products are due, 10 to 25 % here. Others lose by it.
template <class Formula, class Loaded>
concept WorksInTwoSteps = requires(const Formula& formula, const Loaded& pixels)
{
    formula.prepare(pixels);
};

// What the formula is called with.
template <class Formula, class Loaded> ZORCC_INLINE auto prepared(const Formula& formula, const Loaded& pixels)
{
    if constexpr (WorksInTwoSteps<Formula, Loaded>)
        return formula.prepare(pixels);
    else
        return pixels;
}

// The formula for the pixels from column x on: formulas that see where they are say so by a member `at`.
template <class Formula> ZORCC_INLINE decltype(auto) formulaAt(const Formula& formula, int x)
{
    if constexpr (requires { formula.at(x); })
        return formula.at(x);
    else
        return (formula);
}

// The formula for row y of the image: formulas that see it say so by a member `onRow`.
template <class Formula> ZORCC_INLINE decltype(auto) formulaOnRow(const Formula& formula, int y)
{
    if constexpr (requires { formula.onRow(y); })
        return formula.onRow(y);
    else
        return (formula);
}

// One formula for the whole blocks of a row, another for the pixels after them, where the contract wants it so.
template <int pixels, class Blocks, class Rest> struct InBlocks {
};

// The formula for a pixel that has none to share chroma with, on 4:4:4: the formula itself unless it has another.
template <class Formula> ZORCC_INLINE auto singleOf(const Formula& formula)
{
    if constexpr (requires { formula.single(); })
        return formula.single();
    else
        return formula;
}

// A tier's quicker way of a conversion, where specialised: other layouts of the same memory, a formula, the same bytes.
template <class From, class By, class To> struct OnThisTier {
    using Source = From;
    using Formula = By;
    using Destination = To;
};

// ---- pixels of a row ------------------------------------------------------------------------------------------------

// The bytes that a load or a store takes from one line, at most.
template <class Layout>
constexpr ptrdiff_t longestLine = [] {
    ptrdiff_t most = 0;
    for (const Line& line : Layout::line) most = std::max(most, line.unit.offset(Layout::pixelsAtOnce));
    return most;
}();

// A copy of the first pixels of a row, long enough for a load or a store, with zeros after them.
template <class Layout> class Stage {
public:
    // `width` pixels, fewer than a load or a store takes.
    [[gnu::always_inline]] Stage(const Layout& row, int width) : staged(row)
    {
        Layout::each([&](int l) {
            __builtin_memcpy(bytes[l], row.start[l], bytesOf(l, width));
            staged.start[l] = bytes[l];
        });
    }

    const Layout& row() const { return staged; }

    [[gnu::always_inline]] void copyTo(const Layout& row, int width) const
    {
        Layout::each([&](int l) { __builtin_memcpy(row.start[l], bytes[l], bytesOf(l, width)); });
    }

private:
    static constexpr size_t bytesOf(int l, int pixels)
    {
        return static_cast<size_t>(Layout::line[l].unit.offset(pixels));
    }
    alignas(vectorBytes) uint8_t bytes[Layout::lines][longestLine<Layout>] = {};
    Layout staged;
};

// Converts `width` pixels, fewer than a load takes; for the formula they begin at column x.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertShortRow(const Source& from, const Formula& formula, const Destination& to, int width,
                                  int x = 0)
{
    const Stage<Source> source(from, width);
    const Stage<Destination> destination(to, width); // with what a store keeps
    destination.row().store(0, formulaAt(formula, x)(prepared(formula, source.row().load(0))));
    destination.copyTo(to, width);
}

// Formulas of wide samples have some hundred instructions for each cache line, of which a processor holds few; images
// beyond the caches gain a tenth to twice their speed when lines are requested this far ahead. Bytes have too many
// pixels in a line for that. `width` is a multiple of a load's pixels: nothing beyond the row is requested.
constexpr int prefetchedBytes = 1024;
template <class Layout> ZORCC_INLINE void prefetchAhead(const Layout& row, int x, int width)
{
    if constexpr (requires { typename Layout::Sample; }) {
        constexpr int step = Layout::pixelsAtOnce;
        constexpr int ahead = (prefetchedBytes / Layout::line[0].unit.bytes + step - 1) / step * step;
        if (sizeof(typename Layout::Sample) == 1 || ahead >= width - x) return;
        Layout::each([&](int l) {
            for (ptrdiff_t b = 0; b < Layout::line[l].unit.offset(step); b += 64)
                __builtin_prefetch(row.at(l, x + ahead) + b);
        });
    }
}

// Converts `width` pixels, a multiple of a load's and at least one.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertVectors(const Source& from, const Formula& formula, const Destination& to, int width)
{
    constexpr int step = Source::pixelsAtOnce;
    if constexpr (WorksInTwoSteps<Formula, decltype(from.load(0))>) {
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
            to.store(x, formulaAt(formula, x)(from.load(x)));
        }
    }
}

// Converts `width` pixels, a multiple of the group that shares samples. Source and destination may be the same row of
// the same layout: the last load, which overlaps the one before it, is read before anything is written.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertPixels(const Source& from, const Formula& formula, const Destination& to, int width)
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
        to.store(width - step, formulaAt(formula, width - step)(last));
    }
}

// Converts a row of any width. Pixels after the last whole group are converted on their own, as 4:4:4: a source says
// which chroma they have, a destination which of their samples have a place.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertRow(const Source& from, const Formula& formula, const Destination& to, int width)
{
    constexpr int group = std::max(Source::group, Destination::group);
    const int whole = width & -group;
    convertPixels(from, formula, to, whole);
    if constexpr (requires { from.remainder(whole, width); }) {
        if (whole == width) return;
        auto rest = from.remainder(whole, width);
        convertShortRow(rest.planes(), singleOf(formula), fromPixel(to, whole), width - whole, whole);
    } else if constexpr (requires { to.storeRemainder(whole, width, {}); }) {
        if (whole == width) return;
        typename Destination::Remainder rest;
        convertShortRow(fromPixel(from, whole), singleOf(formula), rest.planes(), width - whole);
        to.storeRemainder(whole, width, rest);
    }
}

template <class Source, int pixels, class Blocks, class Rest, class Destination>
ZORCC_INLINE void convertRow(const Source& from, const InBlocks<pixels, Blocks, Rest>&, const Destination& to,
                             int width)
{
    const int whole = width - width % pixels;
    convertPixels(from, Blocks{}, to, whole);
    convertRow(fromPixel(from, whole), Rest{}, fromPixel(to, whole), width - whole);
}

// ---- rows of an image -----------------------------------------------------------------------------------------------

enum class Threads {
    one,
    aboveThreshold, // of 4096 pixels
    tallImages,     // from 192 rows
    always
};

// Whether formulas look at pixels wherever in a row they are.
template <class Formula> constexpr bool seesPlaceInRow = false;
template <int pixels, class Blocks, class Rest> constexpr bool seesPlaceInRow<InBlocks<pixels, Blocks, Rest>> = true;

// Whether the rows of an image, of whole groups of pixels, follow each other without gaps.
template <class Layout> ZORCC_INLINE bool isContiguous(const Image& image, int width)
{
    bool contiguous = width % Layout::group == 0;
    for (const Line& line : Layout::line)
        contiguous = contiguous && line.rows == 1 && image.step[line.plane] == line.unit.offset(width);
    return contiguous;
}

template <class Layout, int rowsAtOnce>
using WithRows = typename std::conditional_t<Layout::rowsAtOnce == rowsAtOnce, std::type_identity<Layout>,
                                             std::type_identity<TwoRows<Layout>>>::type;

// A driver. `arguments` are those of the formula.
template <class From, class By, class To, Threads threads = Threads::one, class... Arguments>
void rows(const Image& from, const Image& to, ZorSize size, Arguments... arguments)
{
    using Way = OnThisTier<From, By, To>;
    constexpr int rowsAtOnce = std::max(From::rowsAtOnce, To::rowsAtOnce);
    using Source = WithRows<typename Way::Source, rowsAtOnce>;
    using Destination = WithRows<typename Way::Destination, rowsAtOnce>;
    const typename Way::Formula formula{arguments...};

    int width = size.width, height = size.height / rowsAtOnce;
    if constexpr (threads == Threads::one && !seesPlaceInRow<By>) { // contiguous images are one row
        const int64_t pixels = static_cast<int64_t>(width) * height;
        if (pixels <= INT32_MAX && isContiguous<Source>(from, width) && isContiguous<Destination>(to, width)) {
            width = static_cast<int>(pixels);
            height = 1;
        }
    }
    const RowsOf<Source> source(from);
    const RowsOf<Destination> destination(to);
    const auto row = [&](int y) __attribute__((always_inline))
    {
        convertRow(source[y], formulaOnRow(formula, rowsAtOnce * y), destination[y], width);
    };
    if constexpr (threads == Threads::one)
        for (int y = 0; y < height; ++y) row(y);
    else if constexpr (threads == Threads::aboveThreshold)
        rowsAboveThreshold(width, height, row);
    else if constexpr (threads == Threads::tallImages)
        rowsOfTallImages(height, row);
    else
        rowsAlways(height, row);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
