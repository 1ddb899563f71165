// SPDX-License-Identifier: MIT
// Vertical low-pass filters that remove the comb of interlaced images, over rows.
#pragma once

#include "lumachroma/common/chroma_moves.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The middle one of three rows.
template <class Rounding> struct LowPass {
    template <int n> [[gnu::always_inline]] Vectors<n / 3> operator()(const Vectors<n>& s) const
    {
        constexpr int row = n / 3;
        return collect<row>([&](auto k) { return Rounding::lowPass(s.v[k], s.v[row + k], s.v[2 * row + k]); });
    }
};

// The row halfway between two.
template <class Rounding> struct Between {
    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& s) const
    {
        return collect<n / 2>([&](auto k) { return Rounding::average(s.v[k], s.v[n / 2 + k]); });
    }
};

template <class Rounding> using PlanesBetween = Then<Between<Rounding>, Unzip>;

// Three rows of luma and two of chroma pairs.
template <class Rounding> struct PackedRow {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<10>& s) const
    {
        return withLuma<YUY2>(LowPass<Rounding>{}(slice<0, 6>(s)), Between<Rounding>{}(slice<6, 4>(s)));
    }
};

// The packed row as it is, and three rows of luma, or two of chroma, that replace its own.
template <class Rounding> struct PackedLuma {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<10>& s) const
    {
        return withLuma<YUY2>(LowPass<Rounding>{}(slice<4, 6>(s)), secondHalf(lumaAndPairs<YUY2>(slice<0, 4>(s))));
    }
};

template <class Rounding> struct PackedChroma {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<8>& s) const
    {
        return withLuma<YUY2>(lumaOf<YUY2>(slice<0, 4>(s)), Between<Rounding>{}(slice<4, 4>(s)));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
