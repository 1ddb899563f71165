// SPDX-License-Identifier: MIT
// The formulas between RGB and YUV on vectors of 8-bit channels. All are exact: the same bytes as the integer formulas
// in 32 bits.
#pragma once

#include "lumachroma/from_rgb.h"
#include "lumachroma/to_rgb.h"
#include "lumachroma/yuv_coeffs.h"

namespace zorcc::ZORCC_TIER {
namespace {

// 4:4:4 by colour differences. With s the weighted sum, Y = s >> 16, and the difference to B is
// ((B << 16) - s + 32767) >> 16 = B - ((s + 32768) >> 16): B less the rounded luma; likewise to R. 8.8 fixed point
// holds both lumas, as 32768 is a multiple of its unit.
struct RgbToYuv {
    Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Half lo = half(zipLow(r, g), zipLow(b, g)), hi = half(zipHigh(r, g), zipHigh(b, g));
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

// 4:4:4 by a matrix. The first whole blocks of a row (blockLuma) round each term of luma down to 1/256 before they are
// added; the remaining pixels round the sum alone.
template <bool blockLuma> struct RgbPlanesToYuv {
    static constexpr int blockPixels = 16;

    Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const u8v rgLo = zipLow(r, g), bgLo = zipLow(b, g), rgHi = zipHigh(r, g), bgHi = zipHigh(b, g);
        return {{{packWhole(luma(rgLo, bgLo), luma(rgHi, bgHi)), chroma<yuv::planarU>(rgLo, bgLo, rgHi, bgHi),
                  chroma<yuv::planarV>(rgLo, bgLo, rgHi, bgHi)}}};
    }

private:
    ZORCC_INLINE u16v luma(u8v rg, u8v bg)
    {
        constexpr Weights w = yuv::planarLuma;
        if constexpr (blockLuma) // a sample times 256, times its weight, / 65536; at most 65279 together
            return mulHigh((u16v)rg << 8, (u16v)fill16(w.r)) + mulHigh((u16v)rg & 0xff00, (u16v)fill16(w.g)) +
                   mulHigh((u16v)bg << 8, (u16v)fill16(w.b));
        else
            return weigh<w>(rg, bg);
    }

    // Weights are in units of 1/32768.
    template <Weights w> ZORCC_INLINE u8v chroma(u8v rgLo, u8v bgLo, u8v rgHi, u8v bgHi)
    {
        return packAround128((s16v)weigh<w>(rgLo, bgLo) >> 7, (s16v)weigh<w>(rgHi, bgHi) >> 7);
    }
};

// 4:2:2. ((B << 16) - S + 65535) >> 16 = B - (S >> 16), with B the sum over a pair.
using RgbToYuv422 = RgbToSubsampled<1, WeighedLuma<yuv::luma>,
                                    DifferenceChroma<yuv::luma, 0, yuv::uPerDifference, yuv::vPerDifference, 1>>;

// 4:2:0. ((B << 16) - S + 131071) >> 16 = B - ((S - 65536) >> 16), with B the sum over four pixels.
using RgbToYuv420 = RgbToSubsampled<2, WeighedLuma<yuv::luma>,
                                    DifferenceChroma<yuv::luma, -65536, yuv::uPerDifference, yuv::vPerDifference, 2>>;

// 4:2:0 of the interleaved source. ((B << 14) - S) >> 14 = B - ((S + 16383) >> 14) in units of 1/16384; four times that
// sum is a multiple of 4, so that 65535 rounds it up.
using RgbToYuv420By14 =
    RgbToSubsampled<2, WeighedLuma<yuv::luma14>,
                    DifferenceChroma<yuv::luma14, 65535, yuv::uPerFourDifferences, yuv::vPerFourDifferences, 0>>;

} // namespace
} // namespace zorcc::ZORCC_TIER
