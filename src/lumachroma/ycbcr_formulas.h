// SPDX-License-Identifier: MIT
// The formulas between RGB and YCbCr on vectors of 8-bit channels, for any coefficient set.
#pragma once

#include "lumachroma/from_rgb.h"
#include "lumachroma/from_rgb_dots.h"
#include "lumachroma/to_rgb.h"
#include "lumachroma/ycbcr_coeffs.h"

namespace zorcc::ZORCC_TIER {
namespace {

// 4:4:4. No result needs a clamp: studio range leaves room (the tests go through all colours).
template <ycbcr::FromRgb k> struct RgbToYCbCr {
    Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const u8v rgLo = zipLow(r, g), bgLo = zipLow(b, g), rgHi = zipHigh(r, g), bgHi = zipHigh(b, g);
        constexpr int y = ycbcr::studioLuma, chroma = ycbcr::chromaBias(1);
        return {{{packWhole(weigh<k.y, y>(rgLo, bgLo), weigh<k.y, y>(rgHi, bgHi)),
                  packWhole(weigh<k.cb, chroma>(rgLo, bgLo), weigh<k.cb, chroma>(rgHi, bgHi)),
                  packWhole(weigh<k.cr, chroma>(rgLo, bgLo), weigh<k.cr, chroma>(rgHi, bgHi))}}};
    }
};

// Chroma of sums over 2 or 4 pixels.
template <ycbcr::FromRgb k, int pixels, int crBias = ycbcr::chromaBias(pixels)>
using YCbCrChroma = MatrixChroma<k.cb, ycbcr::chromaBias(pixels), k.cr, crBias, pixels == 2 ? 17 : 18>;

// 4:2:0.
template <ycbcr::FromRgb k, int lumaBias>
using RgbToYCbCr420 = RgbToSubsampled<2, WeighedLuma<k.y, lumaBias>, YCbCrChroma<k, 4>>;

// The same for Paired layouts, by the quickest way of the tier.
#if defined(ZORCC_TIER_avx512)
template <ycbcr::FromRgb k, Order order = Order::asStored>
using PairedToYCbCr = DotProductsToYcc<k.y, ycbcr::studioLuma, k.cb, k.cr, ycbcr::chromaBias(1), order>;
template <ycbcr::FromRgb k, int lumaBias, Order order = Order::asStored>
using PairedToYCbCr420 = DotProductsTo420<k.y, lumaBias, k.cb, k.cr, ycbcr::chromaBias(4), order>;
#else
template <ycbcr::FromRgb k, Order = Order::asStored> using PairedToYCbCr = RgbToYCbCr<k>;
template <ycbcr::FromRgb k, int lumaBias, Order = Order::asStored> using PairedToYCbCr420 = RgbToYCbCr420<k, lumaBias>;
#endif

// Every sample limited to 1..254.
template <class Formula> struct Limited {
    Subsampled<1> operator()(const Pixels<3>& rgb) const
    {
        const Subsampled<1> s = Formula{}(rgb);
        return {{clamp(s.y[0], 1, 254)}, clamp(s.chroma, 1, 254)};
    }
};

// A pixel that has no partner, as a pair of two of it: luma and chroma of even pixels.
template <class PairFormula> struct AsPair {
    Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        Pixels<3> lo, hi; // every pixel twice
        for (int c = 0; c < 3; ++c) {
            lo.c[0][c] = zipLow(rgb.c[0][c], rgb.c[0][c]);
            hi.c[0][c] = zipHigh(rgb.c[0][c], rgb.c[0][c]);
        }
        const Subsampled<1> l = PairFormula{}(lo), h = PairFormula{}(hi);
        return {{{packUnsigned(firstOfPairs(l.y[0]), firstOfPairs(h.y[0])), (u8v)zipLow((u64v)l.chroma, (u64v)h.chroma),
                  (u8v)zipHigh((u64v)l.chroma, (u64v)h.chroma)}}};
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
