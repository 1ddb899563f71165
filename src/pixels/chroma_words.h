// SPDX-License-Identifier: MIT
// Sources of subsampled chroma for formulas that calculate with it in 16 bits: it is loaded so.
#pragma once

#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Luma of one row or two, and chroma for pairs of columns, which are next to each other in luma.
template <int rows> struct SubsampledWords {
    u8v y[rows];
    s16v u, v;
};

template <int rows> ZORCC_INLINE SubsampledWords<rows> inWords(const Subsampled<rows>& ycc)
{
    const u8v uv = zipHalves(ycc.chroma);
    SubsampledWords<rows> words;
    for (int row = 0; row < rows; ++row) words.y[row] = ycc.y[row];
    words.u = firstOfPairs(uv);
    words.v = secondOfPairs(uv);
    return words;
}

template <class Layout> struct InWords;

template <> struct InWords<Planar422> : Planar422 {
    [[gnu::always_inline]] SubsampledWords<1> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(at(0, x))}, loadWidened(at(1, x)), loadWidened(at(2, x))};
    }
};

template <> struct InWords<Planar420> : Planar420 {
    [[gnu::always_inline]] SubsampledWords<2> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(at(0, x)), zorcc::ZORCC_TIER::load(at(1, x))},
                loadWidened(at(2, x)),
                loadWidened(at(3, x))};
    }
};

template <PackedOrder order> struct InWords<Packed422<order>> : Packed422<order> {
    [[gnu::always_inline]] SubsampledWords<1> load(int x) const
    {
        const auto from = this->lumaAndChroma(x);
        return {{from.luma}, firstOfPairs(from.chroma), secondOfPairs(from.chroma)};
    }
};

template <class From, class By>
concept InWordsFor = requires(const By& formula, const InWords<From>& source)
{
    formula(prepared(formula, source.load(0)));
};

template <class From, class By, class To>
requires InWordsFor<From, By>
struct OnThisTier<From, By, To> {
    using Source = InWords<From>;
    using Formula = By;
    using Destination = To;
};

} // namespace
} // namespace zorcc::ZORCC_TIER
