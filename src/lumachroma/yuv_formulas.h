// SPDX-License-Identifier: MIT
// The formulas between RGB and Y'UV of analogue television with the luma weights of ITU-R BT.601. All are exact: the
// same bytes as the integer formulas in 32 bits. The real coefficients stand beside the integers, which are those
// of the contract and not always the nearest ones.
#pragma once

#include "lumachroma/common/rgb_to_ycc.h"
#include "lumachroma/common/ycc_to_rgb.h"

namespace zorcc::yuv {

// 0.299, 0.587, 0.114. They add up to 65536, so that luma needs no clamp.
inline constexpr Weights luma = {19595, 38470, 7471};

// U per B - Y and V per R - Y: 0.492, 0.877.
inline constexpr int uPerDifference = 32244, vPerDifference = 57475;

// The interleaved source to 4:2:0: the same luma weights in units of 1/16384 (here times 4), and a quarter, for the sum
// of four pixels, of the difference factors: 0.123, 0.219.
inline constexpr Weights luma14 = {4 * 4899, 4 * 9617, 4 * 1868};
inline constexpr int uPerFourDifferences = 8061, vPerFourDifferences = 14369;

// Planes to planes: luma with a green weight one unit lower; U and V as sums of their own in units of 1/32768: -0.147,
// -0.289, 0.436 and 0.615, -0.515, -0.100.
inline constexpr Weights planarLuma = {19595, 38469, 7471};
inline constexpr Weights planarU = {-4816, -9469, 14286}, planarV = {20152, -16875, -3276};

// To RGB: 1.140, 0.394, 0.581, 2.032, rounded down; of the planar 4:4:4 sources; rounded to nearest.
inline constexpr ToRgb toRgb = centred(65536, 74711, 25821, 38076, 133169, 0, 0);
inline constexpr ToRgb planarToRgb = centred(65536, 74710, 25820, 38075, 133168, 0, 0);
inline constexpr ToRgb toRgbNearest = centred(65536, 74711, 25821, 38076, 133169, 0, 32768);

} // namespace zorcc::yuv

namespace zorcc::ZORCC_TIER {
namespace {

// 4:4:4 by colour differences. With s the weighted sum, Y = s >> 16, and the difference to B is
// ((B << 16) - s + 32767) >> 16 = B - ((s + 32768) >> 16): B less the rounded luma; likewise to R. 8.8 fixed point
// holds both lumas, as 32768 is a multiple of its unit.
struct RgbToYuv {
    [[gnu::always_inline]] Pixels<3> operator()(const RgbBytes<1> auto& rgb) const
    {
        const RgbPairs<1> pairs = inPairs(rgb);
        const Half lo = half(pairs.rg[0][0], pairs.bg[0][0]), hi = half(pairs.rg[0][1], pairs.bg[0][1]);
        return {{{packWhole(lo.y, hi.y), packAround128(lo.u, hi.u), packAround128(lo.v, hi.v)}}};
    }

private:
    struct Half {
        u16v y; // 8.8 fixed point
        s16v u, v;
    };

    ZORCC_INLINE Half half(u8v rg, u8v bg)
    {
        const u16v y = weigh<yuv::luma>(rg, bg);
        const s16v rounded = (s16v)((y + 128) >> 8);
        return {y, scale<yuv::uPerDifference>(firstOfPairs(bg) - rounded),
                scale<yuv::vPerDifference>(firstOfPairs(rg) - rounded)};
    }
};

// 4:4:4 by a matrix. The whole blocks of a row (blockLuma) round each term of luma down to 1/256 before they are added;
// the pixels after them round the sum alone.
template <bool blockLuma> struct MatrixToYuv {
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [rg, bg] = inPairs(rgb);
        return {{{packWhole(luma(rg[0][0], bg[0][0]), luma(rg[0][1], bg[0][1])), chroma<yuv::planarU>(rg[0], bg[0]),
                  chroma<yuv::planarV>(rg[0], bg[0])}}};
    }

private:
    ZORCC_INLINE u16v luma(u8v rg, u8v bg)
    {
        constexpr Weights w = yuv::planarLuma;
        if constexpr (blockLuma) // a sample times 256, times its weight, / 65536; at most 65279 in all
            return mulHigh((u16v)rg << 8, (u16v)fill16(w.r)) + mulHigh((u16v)rg & 0xff00, (u16v)fill16(w.g)) +
                   mulHigh((u16v)bg << 8, (u16v)fill16(w.b));
        else
            return weigh<w>(rg, bg);
    }

    // Weights are in units of 1/32768.
    template <Weights w> ZORCC_INLINE u8v chroma(const u8v (&rg)[2], const u8v (&bg)[2])
    {
        return packAround128((s16v)weigh<w>(rg[0], bg[0]) >> 7, (s16v)weigh<w>(rg[1], bg[1]) >> 7);
    }
};

using RgbPlanesToYuv = InBlocks<16, MatrixToYuv<true>, MatrixToYuv<false>>;

// 4:2:2. ((B << 16) - S + 65535) >> 16 = B - (S >> 16), with B the sum over a pair.
struct RgbToYuv422 : RgbToSubsampled<1, WeightedLuma<yuv::luma>,
                                     DifferenceChroma<yuv::luma, 0, yuv::uPerDifference, yuv::vPerDifference, 1>> {
    RgbToYuv single() const { return {}; }
};

// 4:2:0. ((B << 16) - S + 131071) >> 16 = B - ((S - 65536) >> 16), with B the sum over four pixels.
using RgbToYuv420 = RgbToSubsampled<2, WeightedLuma<yuv::luma>,
                                    DifferenceChroma<yuv::luma, -65536, yuv::uPerDifference, yuv::vPerDifference, 2>>;

// 4:2:0 of the interleaved source. ((B << 14) - S) >> 14 = B - ((S + 16383) >> 14) in units of 1/16384; four times that
// sum is a multiple of 4, so that 65535 rounds it up.
using RgbToYuv420By14 =
    RgbToSubsampled<2, WeightedLuma<yuv::luma14>,
                    DifferenceChroma<yuv::luma14, 65535, yuv::uPerFourDifferences, yuv::vPerFourDifferences, 0>>;

using YuvToRgb = YccToRgb<yuv::toRgb>;
using YuvPlanesToRgb = YccToRgb<yuv::planarToRgb>;
using YuvToRgbNearest = YccToRgb<yuv::toRgbNearest>;

} // namespace
} // namespace zorcc::ZORCC_TIER
