// SPDX-License-Identifier: MIT
// The formulas between RGB and YCbCr by ITU-R BT.709, studio range (709CSC) and full range (709HDTV).
#pragma once

#include "lumachroma/common/rgb_to_ycc.h"
#include "lumachroma/common/ycc_to_rgb.h"

namespace zorcc::bt709 {

// 0.183, 0.614, 0.062; -0.101, -0.338, 0.439; 0.439, -0.399, -0.040.
inline constexpr ycbcr::FromRgb fromRgb = {{11993, 40239, 4063}, {-6619, -22151, 28770}, {28770, -26149, -2621}};

// Full range: 0.213, 0.715, 0.072; -0.117, -0.394, 0.511; 0.511, -0.464, -0.047.
inline constexpr ycbcr::FromRgb fullFromRgb = {{13959, 46858, 4719}, {-7668, -25821, 33489}, {33489, -30409, -3080}};

// 1.164, 1.793, 0.213, 0.534, 2.115, and full range 1, 1.540, 0.183, 0.459, 1.816; rounded to nearest.
inline constexpr ToRgb toRgb = centred(76284, 117506, 13959, 34996, 138609, 16, 32768);
inline constexpr ToRgb fullToRgb = centred(65536, 100925, 11993, 30081, 119013, 0, 32768);

} // namespace zorcc::bt709

namespace zorcc::ZORCC_TIER {
namespace {

using RgbToBt709_420 = RgbToYCbCr420<bt709::fromRgb, ycbcr::studioLuma>;
using RgbToBt709Full_420 = RgbToYCbCr420<bt709::fullFromRgb, ycbcr::fullLuma>;
using Bt709ToRgb = YccToRgb<bt709::toRgb>;
using Bt709FullToRgb = YccToRgb<bt709::fullToRgb>;

// Full range 4:2:2, every sample limited to 1..254. The constant of Cr is 2 less than that of Cb.
struct RgbToBt709Full_422 {
    [[gnu::always_inline]] Subsampled<1> operator()(const RgbBytes<1> auto& rgb) const
    {
        using Unlimited = RgbToSubsampled<1, WeightedLuma<bt709::fullFromRgb.y, ycbcr::fullLuma>,
                                          YCbCrChroma<bt709::fullFromRgb, 2, ycbcr::chromaBias(2) - 2>>;
        const Subsampled<1> s = Unlimited{}(rgb);
        return {{clamp(s.y[0], 1, 254)}, clamp(s.chroma, 1, 254)};
    }

    // A pixel without a partner is a pair of two of it.
    struct Single {
        [[gnu::always_inline]] Pixels<3> operator()(const RgbBytes<1> auto& rgb) const
        {
            const Pixels<3> planes = inPlanes(rgb);
            Pixels<3> lo, hi; // every pixel twice
            for (int c = 0; c < 3; ++c) {
                lo.c[0][c] = zipLow(planes.c[0][c], planes.c[0][c]);
                hi.c[0][c] = zipHigh(planes.c[0][c], planes.c[0][c]);
            }
            const RgbToBt709Full_422 ofPairs;
            const Subsampled<1> l = ofPairs(lo), h = ofPairs(hi);
            return {{{packUnsigned(firstOfPairs(l.y[0]), firstOfPairs(h.y[0])),
                      (u8v)zipLow((u64v)l.chroma, (u64v)h.chroma), (u8v)zipHigh((u64v)l.chroma, (u64v)h.chroma)}}};
        }
    };
    Single single() const { return {}; }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
