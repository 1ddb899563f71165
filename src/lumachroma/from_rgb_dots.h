// SPDX-License-Identifier: MIT
// RGB to luma and chroma by dot products, on the tier that has them: every sum as it is written down, in 32 bits.
#pragma once

#include "lumachroma/coefficients.h"
#include "simd/layouts_444.h"

#if defined(ZORCC_TIER_avx512)

namespace zorcc::ZORCC_TIER {
namespace {

// w.r R + w.g G + w.b B + bias, of pairs (R, B) and (G, G). The weight of G may pass 16 bits: it is shared out.
template <Weights w, int bias, Order order> ZORCC_INLINE s32v dotProduct(s16v rb, s16v gg)
{
    constexpr int half = w.g / 2, first = order == Order::asStored ? w.r : w.b, third = w.r + w.b - first;
    static_assert(w.r < 32768 && w.b < 32768 && half < 32767);
    return mulAddPairs(mulAddPairs(fill32(bias), rb, fillPair16(first, third)), gg, fillPair16(half, w.g - half));
}

// One channel of 64 pixels: (weighted sum + bias) >> 16, which has to be within 0..255.
template <Weights w, int bias, Order order, int rows>
ZORCC_INLINE u8v channelOf(const PixelPairs<rows>& rgb, int row, const GatherColumns& gather)
{
    s32v sum[4];
    for (int group = 0; group < 4; ++group)
        sum[group] = dotProduct<w, bias, order>(rgb.outer[row][group], rgb.inner[row][group]);
    return gather(sum);
}

// 4:4:4, by a matrix that needs no clamp.
template <Weights y, int yBias, Weights u, Weights v, int bias, Order order> struct DotProductsToYcc {
    Pixels<3> operator()(const PixelPairs<1>& rgb) const
    {
        return {{{channelOf<y, yBias, order>(rgb, 0, gather), channelOf<u, bias, order>(rgb, 0, gather),
                  channelOf<v, bias, order>(rgb, 0, gather)}}};
    }

    GatherColumns gather;
};

// 4:2:0: chroma of the sums over four pixels, (weighted sum + bias) >> 18.
template <Weights y, int yBias, Weights u, Weights v, int bias, Order order> struct DotProductsTo420 {
    Subsampled<2> operator()(const PixelPairs<2>& rgb) const
    {
        const PairSums sums = sumsOf2x2(rgb);
        s32v chroma[4];
        for (int half = 0; half < 2; ++half) {
            chroma[half] = dotProduct<u, bias, order>(sums.outer[half], sums.inner[half]) >> 18;
            chroma[2 + half] = dotProduct<v, bias, order>(sums.outer[half], sums.inner[half]) >> 18;
        }
        return {{channelOf<y, yBias, order>(rgb, 0, gather), channelOf<y, yBias, order>(rgb, 1, gather)},
                gatherChroma(chroma)};
    }

    GatherColumns gather;
    GatherChroma gatherChroma;
};

} // namespace
} // namespace zorcc::ZORCC_TIER

#endif
