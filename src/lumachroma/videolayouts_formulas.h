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

// A packed row of luma, of three rows, and chroma, of two rows of pairs, or of what it has already.
template <bool filtersLuma, bool filtersChroma> struct Packed {
    template <class Rounding> struct Row {
        [[gnu::always_inline]] Vectors<4> operator()(const Vectors<14>& s) const
        {
            const Vectors<4> old = lumaAndPairs<YUY2>(slice<0, 4>(s));
            return withLuma<YUY2>(filtersLuma ? LowPass<Rounding>{}(slice<4, 6>(s)) : firstHalf(old),
                                  filtersChroma ? Between<Rounding>{}(slice<10, 4>(s)) : secondHalf(old));
        }
    };
};

} // namespace
} // namespace zorcc::ZORCC_TIER
