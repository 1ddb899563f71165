// SPDX-License-Identifier: MIT
// How chroma moves between layouts: formulas over vectors of bytes in memory order. Cb, Cr and pairs of them follow
// luma.
#pragma once

#include "simd/layouts_subsampled.h"
#include "simd/streams.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Chroma in two planes, or in one of interleaved pairs.
enum class Chroma { planes, pairs };

// ---- rows of chroma alone -------------------------------------------------------------------------------------------

struct Same {
    template <int n> [[gnu::always_inline]] Vectors<n> operator()(const Vectors<n>& s) const { return s; }
};

// One row for two.
struct OntoTwoRows {
    template <int n> [[gnu::always_inline]] Vectors<2 * n> operator()(const Vectors<n>& s) const
    {
        return together(s, s);
    }
};

// Two planes, or two rows, sample by sample.
struct Zip {
    template <int n> [[gnu::always_inline]] Vectors<n> operator()(const Vectors<n>& s) const
    {
        return zip(part<0, n / 2>(s), part<n / 2, n / 2>(s));
    }
};

struct Unzip {
    template <int n> [[gnu::always_inline]] Vectors<n> operator()(const Vectors<n>& s) const { return unzip(s); }
};

struct EvenColumns {
    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& s) const
    {
        return everySecond<0>(s);
    }
};

struct EachColumnTwice {
    template <int n> [[gnu::always_inline]] Vectors<2 * n> operator()(const Vectors<n>& s) const { return zip(s, s); }
};

template <class First, class Second> struct Then {
    template <int n> [[gnu::always_inline]] auto operator()(const Vectors<n>& s) const { return Second{}(First{}(s)); }
};

// A formula for one plane, on two.
template <class Formula> struct OnBoth {
    template <int n> [[gnu::always_inline]] auto operator()(const Vectors<n>& s) const
    {
        return together(Formula{}(part<0, n / 2>(s)), Formula{}(part<n / 2, n / 2>(s)));
    }
};

// The same for neighbouring pairs of bytes.
struct UnzipPairs {
    template <int n> [[gnu::always_inline]] Vectors<n> operator()(const Vectors<n>& s) const { return unzip<2>(s); }
};

// ---- packed 4:2:2 ---------------------------------------------------------------------------------------------------

template <PackedOrder order, int n> ZORCC_INLINE Vectors<2 * n> weave(const Vectors<n>& luma, const Vectors<n>& pairs)
{
    if constexpr (order == PackedOrder::lumaFirst) return zip(luma, pairs);
    if constexpr (order == PackedOrder::chromaFirst) return zip(pairs, luma);
}

// Luma, then pairs.
template <PackedOrder order, int both> ZORCC_INLINE Vectors<both> unweave(const Vectors<both>& packed)
{
    const Vectors<both> parted = unzip(packed);
    if constexpr (order == PackedOrder::lumaFirst) return parted;
    if constexpr (order == PackedOrder::chromaFirst)
        return together(part<both / 2, both / 2>(parted), part<0, both / 2>(parted));
}

template <PackedOrder order, int both> ZORCC_INLINE Vectors<both / 2> lumaOf(const Vectors<both>& packed)
{
    return everySecond<order == PackedOrder::chromaFirst>(packed);
}

// Chroma as stored in the given form, as pairs, and back.
template <Chroma form> ZORCC_INLINE Vectors<2> pairsFrom(const Vectors<2>& stored)
{
    if constexpr (form == Chroma::pairs) return stored;
    if constexpr (form == Chroma::planes) return Zip{}(stored);
}

template <Chroma form> ZORCC_INLINE Vectors<2> storedFrom(const Vectors<2>& pairs)
{
    if constexpr (form == Chroma::pairs) return pairs;
    if constexpr (form == Chroma::planes) return Unzip{}(pairs);
}

// `rows` rows of luma and a row of chroma for them to packed rows; every chroma sample goes to `columns` pairs.
template <PackedOrder order, Chroma form, int rows = 1, int columns = 1> struct Pack {
    static constexpr int n = 2 * columns; // vectors of luma

    [[gnu::always_inline]] Vectors<rows * 2 * n> operator()(const Vectors<rows * n + 2>& s) const
    {
        const Vectors<n> pairs = repeated(pairsFrom<form>(part<rows * n, 2>(s)));
        const auto packed = weave<order>(part<0, n>(s), pairs);
        if constexpr (rows == 1) return packed;
        if constexpr (rows == 2) return together(packed, weave<order>(part<n, n>(s), pairs));
    }

private:
    [[gnu::always_inline]] static Vectors<n> repeated(const Vectors<2>& pairs)
    {
        if constexpr (columns == 1) return pairs;
        if constexpr (columns == 2) return zip<2>(pairs, pairs);
    }
};

// The other way: of `rows` packed rows the chroma of the first, of `columns` pairs the chroma of the first.
template <PackedOrder order, Chroma form, int rows = 1, int columns = 1> struct Unpack {
    static constexpr int n = 2 * columns;

    [[gnu::always_inline]] Vectors<rows * n + 2> operator()(const Vectors<rows * 2 * n>& s) const
    {
        const auto parted = unweave<order>(part<0, 2 * n>(s));
        const Vectors<n> luma = part<0, n>(parted);
        const Vectors<2> chroma = storedFrom<form>(kept(part<n, n>(parted)));
        if constexpr (rows == 1) return together(luma, chroma);
        if constexpr (rows == 2) return together(luma, lumaOf<order>(part<2 * n, 2 * n>(s)), chroma);
    }

private:
    [[gnu::always_inline]] static Vectors<2> kept(const Vectors<n>& pairs)
    {
        if constexpr (columns == 1) return pairs;
        if constexpr (columns == 2) return everySecond<0, 2>(pairs);
    }
};

// Another order of the four bytes of every pair of pixels.
template <int first, int second, int third, int fourth> struct Reorder {
    template <int n> [[gnu::always_inline]] Vectors<n> operator()(const Vectors<n>& s) const
    {
        constexpr int quad = first | second << 8 | third << 16 | fourth << 24;
        const u8v order = fillBlock(_mm_setr_epi32(quad, quad + 0x04040404, quad + 0x08080808, quad + 0x0c0c0c0c));
        return collect<n>([&](auto k) { return shuffle(s.v[k], order); });
    }
};

using SwapLumaAndChroma = Reorder<1, 0, 3, 2>; // Y0 Cb Y1 Cr to Cb Y0 Cr Y1, or back
using SwapChroma = Reorder<0, 3, 2, 1>;        // Y0 Cb Y1 Cr to Y0 Cr Y1 Cb

} // namespace
} // namespace zorcc::ZORCC_TIER
