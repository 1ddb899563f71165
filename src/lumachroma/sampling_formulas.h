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
    template <int n> Vectors<n> operator()(const Vectors<n>& s) const { return s; }
};

// One row for two.
struct OntoTwoRows {
    template <int n> Vectors<2 * n> operator()(const Vectors<n>& s) const { return together(s, s); }
};

// Two planes, or two rows, sample by sample.
struct Zip {
    template <int n> Vectors<n> operator()(const Vectors<n>& s) const
    {
        return zip(part<0, n / 2>(s), part<n / 2, n / 2>(s));
    }
};

struct Unzip {
    template <int n> Vectors<n> operator()(const Vectors<n>& s) const
    {
        const auto [even, odd] = unzip(s);
        return together(even, odd);
    }
};

struct EvenColumns {
    template <int n> Vectors<n / 2> operator()(const Vectors<n>& s) const { return unzip(s).even; }
};

struct EachColumnTwice {
    template <int n> Vectors<2 * n> operator()(const Vectors<n>& s) const { return zip(s, s); }
};

template <class First, class Second> struct Then {
    template <int n> auto operator()(const Vectors<n>& s) const { return Second{}(First{}(s)); }
};

// A formula for one plane, on two.
template <class Formula> struct OnBoth {
    template <int n> auto operator()(const Vectors<n>& s) const
    {
        return together(Formula{}(part<0, n / 2>(s)), Formula{}(part<n / 2, n / 2>(s)));
    }
};

// The same for neighbouring pairs of bytes.
struct UnzipPairs {
    template <int n> Vectors<n> operator()(const Vectors<n>& s) const
    {
        const auto [even, odd] = unzip<2>(s);
        return together(even, odd);
    }
};

// ---- packed 4:2:2 ---------------------------------------------------------------------------------------------------

template <PackedOrder order, int n> ZORCC_INLINE Vectors<2 * n> weave(const Vectors<n>& luma, const Vectors<n>& pairs)
{
    return order == PackedOrder::lumaFirst ? zip(luma, pairs) : zip(pairs, luma);
}

template <int n> struct LumaAndPairs {
    Vectors<n> luma, pairs;
};

template <PackedOrder order, int both> ZORCC_INLINE LumaAndPairs<both / 2> unweave(const Vectors<both>& packed)
{
    const auto [even, odd] = unzip(packed);
    if constexpr (order == PackedOrder::lumaFirst) return {even, odd};
    return {odd, even};
}

// `rows` rows of luma and a row of chroma for them to packed rows; every chroma sample goes to `columns` pairs.
template <PackedOrder order, Chroma form, int rows = 1, int columns = 1> struct Pack {
    static constexpr int n = 2 * columns; // vectors of luma

    Vectors<rows * 2 * n> operator()(const Vectors<rows * n + 2>& s) const
    {
        Vectors<2> stored = part<rows * n, 2>(s);
        if constexpr (form == Chroma::planes) stored = Zip{}(stored);
        Vectors<n> pairs;
        if constexpr (columns == 1)
            pairs = stored;
        else
            pairs = zip<2>(stored, stored);
        const auto packed = weave<order>(part<0, n>(s), pairs);
        if constexpr (rows == 1)
            return packed;
        else
            return together(packed, weave<order>(part<n, n>(s), pairs));
    }
};

// The other way: of `rows` packed rows the chroma of the first, of `columns` pairs the chroma of the first.
template <PackedOrder order, Chroma form, int rows = 1, int columns = 1> struct Unpack {
    static constexpr int n = 2 * columns;

    Vectors<rows * n + 2> operator()(const Vectors<rows * 2 * n>& s) const
    {
        const auto [luma, pairs] = unweave<order>(part<0, 2 * n>(s));
        Vectors<2> kept;
        if constexpr (columns == 1)
            kept = pairs;
        else
            kept = unzip<2>(pairs).even;
        if constexpr (form == Chroma::planes) kept = Unzip{}(kept);
        if constexpr (rows == 1)
            return together(luma, kept);
        else
            return together(luma, unweave<order>(part<2 * n, 2 * n>(s)).luma, kept);
    }
};

// Y0 Cb Y1 Cr to Cb Y0 Cr Y1, or back.
struct SwapLumaAndChroma {
    template <int n> Vectors<n> operator()(const Vectors<n>& s) const
    {
        Vectors<n> swapped;
        for (int k = 0; k < n; ++k) swapped.v[k] = (u8v)((u16v)s.v[k] << 8 | (u16v)s.v[k] >> 8);
        return swapped;
    }
};

// Y0 Cb Y1 Cr to Y0 Cr Y1 Cb.
struct SwapChroma {
    template <int n> Vectors<n> operator()(const Vectors<n>& s) const
    {
        const u8v order = fillBlock(_mm_setr_epi8(0, 3, 2, 1, 4, 7, 6, 5, 8, 11, 10, 9, 12, 15, 14, 13));
        Vectors<n> swapped;
        for (int k = 0; k < n; ++k) swapped.v[k] = shuffle(s.v[k], order);
        return swapped;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
