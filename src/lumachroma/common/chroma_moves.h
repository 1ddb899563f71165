// SPDX-License-Identifier: MIT
// How chroma moves from one sampling and layout to another: formulas over vectors in memory order, and the lines that
// they work on. Chroma follows luma; of two chroma channels Cb comes first.
#pragma once

#include "frame/fill_copy.h"
#include "pixels/layouts.h"
#include "pixels/sequences.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- formulas on chroma alone ---------------------------------------------------------------------------------------

using Same = decltype([](const auto& s) { return s; });

// One row for two.
using OntoTwoRows = decltype([](const auto& s) { return concat(s, s); });

// Two planes, or two rows, sample by sample.
using Zip = decltype([](const auto& s) { return zip(firstHalf(s), secondHalf(s)); });

// Bytes, and neighbouring pairs of bytes.
using Unzip = decltype([](const auto& s) { return unzip(s); });
using UnzipPairs = decltype([](const auto& s) { return unzip<u16v>(s); });

using EvenColumns = decltype([](const auto& s) { return everySecond<0>(s); });
using DoubledColumns = decltype([](const auto& s) { return zip(s, s); });

template <class First, class Second> struct Then {
    template <int n> [[gnu::always_inline]] auto operator()(const Vectors<n>& s) const { return Second{}(First{}(s)); }
};

// A formula for one plane, on two.
template <class Formula> struct OnBoth {
    template <int n> [[gnu::always_inline]] auto operator()(const Vectors<n>& s) const
    {
        return concat(Formula{}(firstHalf(s)), Formula{}(secondHalf(s)));
    }
};

// ---- lines of chroma alone: plane 1, with `bytes` bytes for a pixel, which is a sample of the narrower image --------

template <int bytes> using Chroma = Sequences<vectorBytes, Line{{bytes}, 1}>;
template <int bytes> using EvenRows = Sequences<vectorBytes, Line{{bytes}, 1, 0, 2}>;
template <int bytes> using RowPairs = Sequences<vectorBytes, Line{{bytes}, 1, 0, 2}, Line{{bytes}, 1, 1, 2}>;

// Planes 1 and 2; with pairs of rows, both of plane 1 come first.
template <int bytes> using BothChroma = Sequences<vectorBytes, Line{{bytes}, 1}, Line{{bytes}, 2}>;
using EvenRowsOfBoth = Sequences<vectorBytes, Line{{1}, 1, 0, 2}, Line{{1}, 2, 0, 2}>;
using RowPairsOfBoth =
    Sequences<vectorBytes, Line{{1}, 1, 0, 2}, Line{{1}, 1, 1, 2}, Line{{1}, 2, 0, 2}, Line{{1}, 2, 1, 2}>;

// ---- drivers that copy luma and convert chroma ----------------------------------------------------------------------

// Pixels of the image that share a sample of the chroma that is converted.
constexpr ZorSize per2x2 = {2, 2}, per4x1 = {4, 1}, per4x2 = {4, 2}, per4x4 = {4, 4};

constexpr ZorSize samples(ZorSize size, ZorSize shared)
{
    return {size.width / shared.width, size.height / shared.height};
}

// Non-temporal stores do not pay: a frame of up to 4K is copied faster without them, and single rows much faster.
ZORCC_INLINE void copyLuma(const Image& from, const Image& to, int width, int firstRow, int endRow)
{
    copyRows(from.row(0, firstRow), from.step[0], to.row(0, firstRow), to.step[0], static_cast<size_t>(width),
             endRow - firstRow, Stores::ordinary);
}

template <ZorSize shared, class Source, class Formula, class Destination>
void chroma(const Image& from, const Image& to, ZorSize size)
{
    copyLuma(from, to, size.width, 0, size.height);
    rows<Source, Formula, Destination>(from, to, samples(size, shared));
}

// With the second chroma plane as plane 1.
ZORCC_INLINE Image onSecondChroma(Image image)
{
    image.plane[1] = image.plane[2];
    image.step[1] = image.step[2];
    return image;
}

// Each chroma plane on its own.
template <ZorSize shared, class Source, class Formula, class Destination>
void eachChroma(const Image& from, const Image& to, ZorSize size)
{
    chroma<shared, Source, Formula, Destination>(from, to, size);
    rows<Source, Formula, Destination>(onSecondChroma(from), onSecondChroma(to), samples(size, shared));
}

// ---- packed 4:2:2 ---------------------------------------------------------------------------------------------------

constexpr PackedOrder YUY2 = PackedOrder::lumaFirst, UYVY = PackedOrder::chromaFirst;

// Packed bytes from luma and chroma pairs.
template <PackedOrder order, int n>
ZORCC_INLINE Vectors<2 * n> withLuma(const Vectors<n>& luma, const Vectors<n>& pairs)
{
    if constexpr (order == YUY2) return zip(luma, pairs);
    if constexpr (order == UYVY) return zip(pairs, luma);
}

// To luma, then pairs.
template <PackedOrder order, int both> ZORCC_INLINE Vectors<both> lumaAndPairs(const Vectors<both>& packed)
{
    const Vectors<both> unzipped = unzip(packed);
    if constexpr (order == YUY2) return unzipped;
    if constexpr (order == UYVY) return concat(secondHalf(unzipped), firstHalf(unzipped));
}

template <PackedOrder order, int both> ZORCC_INLINE Vectors<both / 2> lumaOf(const Vectors<both>& packed)
{
    return everySecond<order == UYVY>(packed);
}

// Chroma in two planes, or in one of interleaved pairs.
enum class ChromaForm { planes, pairs };

// `rows` rows of luma and a row of chroma for them to packed rows; every chroma sample is for `columns` pairs of
// pixels.
template <PackedOrder order, ChromaForm form, int rows = 1, int columns = 1> struct Pack {
    static constexpr int n = 2 * columns; // vectors of luma

    [[gnu::always_inline]] Vectors<rows * 2 * n> operator()(const Vectors<rows * n + 2>& s) const
    {
        const Vectors<2> chroma = slice<rows * n, 2>(s);
        const Vectors<n> pairs = repeated(form == ChromaForm::pairs ? chroma : Zip{}(chroma));
        const auto packed = withLuma<order>(slice<0, n>(s), pairs);
        if constexpr (rows == 1) return packed;
        if constexpr (rows == 2) return concat(packed, withLuma<order>(slice<n, n>(s), pairs));
    }

private:
    [[gnu::always_inline]] static Vectors<n> repeated(const Vectors<2>& pairs)
    {
        if constexpr (columns == 1) return pairs;
        if constexpr (columns == 2) return zip<u16v>(pairs, pairs);
    }
};

// The other way: of `rows` packed rows the chroma of the first, of `columns` pairs of pixels the chroma of the first.
template <PackedOrder order, ChromaForm form, int rows = 1, int columns = 1> struct Unpack {
    static constexpr int n = 2 * columns;

    [[gnu::always_inline]] Vectors<rows * n + 2> operator()(const Vectors<rows * 2 * n>& s) const
    {
        const auto first = lumaAndPairs<order>(slice<0, 2 * n>(s));
        const Vectors<n> luma = firstHalf(first);
        const Vectors<2> pairs = kept(secondHalf(first)), chroma = form == ChromaForm::pairs ? pairs : Unzip{}(pairs);
        if constexpr (rows == 1) return concat(luma, chroma);
        if constexpr (rows == 2) return concat(concat(luma, lumaOf<order>(slice<2 * n, 2 * n>(s))), chroma);
    }

private:
    [[gnu::always_inline]] static Vectors<2> kept(const Vectors<n>& pairs)
    {
        if constexpr (columns == 1) return pairs;
        if constexpr (columns == 2) return everySecond<0, u16v>(pairs);
    }
};

// ---- lines of whole images: `rows` rows, chroma samples for `columns` pairs of pixels, which makes loads as long ----

template <int rows, int pixels, Unit luma, Line... chroma>
struct LumaRows : std::conditional_t<rows == 1, Sequences<pixels, Line{luma}, chroma...>,
                                     Sequences<pixels, Line{luma, 0, 0, 2}, Line{luma, 0, 1, 2}, chroma...>> {
    static constexpr int rowsAtOnce = rows;
};

template <int rows, int columns> using PackedLines = LumaRows<rows, 2 * columns * vectorBytes, Unit{4, 1}>;

template <ChromaForm form, int rows, int columns>
using SeparateLines =
    std::conditional_t<form == ChromaForm::planes,
                       LumaRows<rows, 2 * columns * vectorBytes, Unit{1}, Line{{1, columns}, 1}, Line{{1, columns}, 2}>,
                       LumaRows<rows, 2 * columns * vectorBytes, Unit{1}, Line{{2, columns}, 1}>>;

template <PackedOrder order, ChromaForm form, int rowsOfBoth = 1, int columns = 1>
constexpr Driver& pack = rows<SeparateLines<form, rowsOfBoth, columns>, Pack<order, form, rowsOfBoth, columns>,
                              PackedLines<rowsOfBoth, columns>>;

template <PackedOrder order, ChromaForm form, int rowsOfBoth = 1, int columns = 1>
constexpr Driver& unpack = rows<PackedLines<rowsOfBoth, columns>, Unpack<order, form, rowsOfBoth, columns>,
                                SeparateLines<form, rowsOfBoth, columns>>;

// Another order of the four bytes of every pair of pixels.
template <int first, int second, int third, int fourth> struct Reorder {
    template <int n> [[gnu::always_inline]] Vectors<n> operator()(const Vectors<n>& s) const
    {
        return collect<n>([&](auto k) { return shuffle(s.v[k], order); });
    }

private:
    static constexpr Block order = [] {
        constexpr uint8_t quad[] = {first, second, third, fourth};
        Block block{};
        for (int i = 0; i < 16; ++i) block.byte[i] = static_cast<uint8_t>(i / 4 * 4 + quad[i % 4]);
        return block;
    }();
};

using SwapLumaAndChroma = Reorder<1, 0, 3, 2>; // Y0 Cb Y1 Cr to Cb Y0 Cr Y1, or back
using SwapChroma = Reorder<0, 3, 2, 1>;        // Y0 Cb Y1 Cr to Y0 Cr Y1 Cb

// 64 bytes at a time: more of them do not help a formula of one instruction.
using Packed64Bytes = Sequences<32, Line{{4, 1}}>;
template <class Formula> constexpr Driver& repack = rows<Packed64Bytes, Formula, Packed64Bytes>;

// ---- averages that round up in the whole blocks of a row and down after them ----------------------------------------

struct Up {
    static u8v average(u8v a, u8v b) { return averageUp(a, b); }

    // A sample and its neighbours with weights 1, 2, 1.
    static u8v lowPass(u8v previous, u8v sample, u8v next)
    {
        return averageUp(averageUp(previous, sample), averageUp(sample, next));
    }
};

struct Down {
    static u8v average(u8v a, u8v b) { return averageDown(a, b); }

    static u8v lowPass(u8v previous, u8v sample, u8v next)
    {
        const auto weigh = [](u8v neighbours, u8v twice) {
            return (mulAddPairs(neighbours, fillPair8(1, 1)) + mulAddPairs(twice, fillPair8(1, 1))) >> 2;
        };
        return packUnsigned(weigh(zipLow(previous, next), zipLow(sample, sample)),
                            weigh(zipHigh(previous, next), zipHigh(sample, sample)));
    }
};

// A formula that takes its rounding as a parameter; a block has eight samples.
constexpr int roundedBlock = 8;
template <template <class> class Formula, int pixels = roundedBlock>
using Rounded = InBlocks<pixels, Formula<Up>, Formula<Down>>;

} // namespace
} // namespace zorcc::ZORCC_TIER
