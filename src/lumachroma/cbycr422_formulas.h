// SPDX-License-Identifier: MIT
// The formulas between RGB and packed 4:2:2 with chroma first, or with Cr before Cb, by ITU-R BT.601, studio range.
#pragma once

#include "colormodels/common/transfer_curve.h"
#include "lumachroma/bt601_formulas.h"
#include "simd/curve_table.h"
#include "simd/order.h"

namespace zorcc::bt601 {

// Rounded to nearest.
inline constexpr ToRgb roundedToRgb = centred(76282, 104593, 25689, 53279, 132184, 16, 32768);

// Where Cr is the first chroma channel. To RGB that exchanges red and blue.
inline constexpr ycbcr::FromRgb fromRgbToCrCb = {fromRgb.y, fromRgb.cr, fromRgb.cb};
constexpr ToRgb fromCrCb(const ToRgb& k) { return {k.y, k.b, k.g2, k.g1, k.r, k.constantB, k.constantG, k.constantR}; }

// In 1/32768: luma; chroma of the even pixel of a pair, which counts half, and of its neighbours, a quarter each.
struct Filtered {
    Weights y, cb, cbBeside, cr, crBeside;
    int chromaBias;
};
inline constexpr Filtered filtered = {{8422, 16515, 3212},  {-2426, -4769, 7193}, {-1213, -2385, 3596},
                                      {7193, -6030, -1164}, {3596, -3015, -582},  257 * 16384 - 1};

} // namespace zorcc::bt601

namespace zorcc::ZORCC_TIER {
namespace {

// ---- chroma of a pair: its mean -------------------------------------------------------------------------------------

// The constant of Cr is 2 less than that of Cb. An odd last pixel is taken for one in the other order.
struct RgbToCbYCr422 : RgbToYCbCr422<bt601::fromRgb, YCbCrChroma<bt601::fromRgb, 2, ycbcr::chromaBias(2) - 2>> {
    struct Single {
        [[gnu::always_inline]] Pixels<3> operator()(const RgbBytes<1> auto& rgb) const
        {
            RgbPairs<1> bgr = inPairs(rgb);
            std::swap(bgr.rg, bgr.bg);
            return RgbToBt601{}(bgr);
        }
    };
    Single single() const { return {}; }
};

// The luma of the second pixel of a pair is rounded down after the last whole four pixels of a row.
template <int oddLuma>
using RgbToYCrCb422By = RgbToYCbCr422<bt601::fromRgbToCrCb, YCbCrChroma<bt601::fromRgbToCrCb, 2>, oddLuma>;
using RgbToYCrCb422 = InBlocks<4, RgbToYCrCb422By<ycbcr::studioLuma>, RgbToYCrCb422By<ycbcr::studioLumaDown>>;

// ---- chroma of a pair: 1/4, 1/2, 1/4 of the pixels around its first -------------------------------------------------

// A row of RGB, and the pixel before those that are loaded: black before the first of the row.
struct RgbAndPrevious {
    Pixels<3> rgb;
    uint8_t previous[3];
};

struct C3AndPrevious : C3<> {
    [[gnu::always_inline]] RgbAndPrevious load(int x) const
    {
        RgbAndPrevious p = {C3<>::load(x), {}};
        if (x > 0) __builtin_memcpy(p.previous, at(0, x) - 3, 3);
        return p;
    }
};

struct RgbToCbYCr422Filtered {
    [[gnu::always_inline]] Subsampled<1> operator()(const RgbAndPrevious& p) const
    {
        constexpr Weights y = bt601::filtered.y, twice = {2 * y.r, 2 * y.g, 2 * y.b};
        const RgbPairs<1> rgb = inPairs(p.rgb);
        Pairs pairs[3];
        for (int c = 0; c < 3; ++c) {
            const s16v odd = secondOfPairs(p.rgb.c[0][c]), beside = odd + shiftIn(odd, p.previous[c]);
            pairs[c] = {(s16v)zipLow(firstOfPairs(p.rgb.c[0][c]), beside),
                        (s16v)zipHigh(firstOfPairs(p.rgb.c[0][c]), beside)};
        }
        return {{WeightedLuma<twice, ycbcr::studioLuma>::of(rgb.rg[0], rgb.bg[0])},
                packUnsigned(chroma<bt601::filtered.cb, bt601::filtered.cbBeside>(pairs),
                             chroma<bt601::filtered.cr, bt601::filtered.crBeside>(pairs))};
    }

    // An odd last pixel is not filtered.
    struct Single {
        [[gnu::always_inline]] Pixels<3> operator()(const RgbAndPrevious& p) const { return RgbToBt601{}(p.rgb); }
    };
    Single single() const { return {}; }

private:
    // Even pixels, each with the sum of its neighbours.
    struct Pairs {
        s16v lo, hi;
    };

    template <Weights even, Weights beside> ZORCC_INLINE s16v chroma(const Pairs (&p)[3])
    {
        s32v lo = fill32(bt601::filtered.chromaBias), hi = lo;
        constexpr int weights[3][2] = {{even.r, beside.r}, {even.g, beside.g}, {even.b, beside.b}};
        for (int c = 0; c < 3; ++c) {
            lo = mulAddPairs(lo, p[c].lo, fillPair16(weights[c][0], weights[c][1]));
            hi = mulAddPairs(hi, p[c].hi, fillPair16(weights[c][0], weights[c][1]));
        }
        return packSigned(lo >> 15, hi >> 15);
    }
};

// The same of linear light.
template <class Formula = RgbToCbYCr422Filtered> struct OfLinear {
    Formula formula{};

    [[gnu::always_inline]] auto operator()(RgbAndPrevious p) const
    {
        static constexpr CurveTable table(bytesOf<Forward>.of);
        lookUp(table, p.rgb.c[0]);
        for (uint8_t& byte : p.previous) byte = bytesOf<Forward>.of[byte];
        return formula(p);
    }

    auto single() const { return OfLinear<decltype(formula.single())>{}; }
};

template <> inline constexpr bool seesPlaceInRow<RgbToCbYCr422Filtered> = true;
template <class Formula> constexpr bool seesPlaceInRow<OfLinear<Formula>> = true;

} // namespace
} // namespace zorcc::ZORCC_TIER
