// SPDX-License-Identifier: MIT
// RGB to luma and chroma by dot products, on the tier that has them: every sum as it is written down, in 32 bits.
#pragma once

#include "simd/channel_weights.h"
#include "simd/layouts_444.h"

#if defined(ZORCC_TIER_avx512)

namespace zorcc::ZORCC_TIER {
namespace {

// w.r R + w.g G + w.b B + bias, of pairs (R, B) and (G, G). The weight of G may pass 16 bits: it is shared out.
template <Weights w, int bias, Order order> ZORCC_INLINE s32v dotProduct(const ChannelPairs& p)
{
    constexpr int half = w.g / 2, first = order == Order::asStored ? w.r : w.b, second = w.r + w.b - first;
    static_assert(w.r < 32768 && w.b < 32768 && half < 32767);
    return mulAddPairs(mulAddPairs(fill32(bias), p.outer, fillPair16(first, second)), p.inner,
                       fillPair16(half, w.g - half));
}

// 4:4:4, by a matrix that needs no clamp: (weighted sum + bias) >> 16.
template <Weights y, int yBias, Weights u, Weights v, int bias, Order order> struct DotProductsToYcc {
    Pixels<3> operator()(const PixelQuads<1>& rgb) const
    {
        s32v sum[3][4];
        for (int group = 0; group < 4; ++group) {
            const ChannelPairs pairs = pairsOf(rgb.group[0][group]);
            sum[0][group] = dotProduct<y, yBias, order>(pairs);
            sum[1][group] = dotProduct<u, bias, order>(pairs);
            sum[2][group] = dotProduct<v, bias, order>(pairs);
        }
        return {{{gather(sum[0]), gather(sum[1]), gather(sum[2])}}};
    }

    GatherColumns gather;
};

// 4:2:0: chroma of the sums over four pixels, (weighted sum + bias) >> 18.
template <Weights y, int yBias, Weights u, Weights v, int bias, Order order> struct DotProductsTo420 {
    Subsampled<2> operator()(const PixelQuads<2>& rgb) const
    {
        s32v luma[2][4], first[2], second[2];
        ChannelPairs columns[2];
        for (int group = 0; group < 4; ++group) {
            const ChannelPairs upper = pairsOf(rgb.group[0][group]), lower = pairsOf(rgb.group[1][group]);
            luma[0][group] = dotProduct<y, yBias, order>(upper);
            luma[1][group] = dotProduct<y, yBias, order>(lower);
            columns[group % 2] = upper + lower;
            if (group % 2 == 0) continue;
            const ChannelPairs sums = sumsOfColumns(columns[0], columns[1]);
            first[group / 2] = dotProduct<u, bias, order>(sums);
            second[group / 2] = dotProduct<v, bias, order>(sums);
        }
        return {{gather(luma[0]), gather(luma[1])}, gatherChroma(first, second)};
    }

    SumsOfColumns sumsOfColumns;
    GatherColumns gather;
    GatherChroma gatherChroma;
};

} // namespace
} // namespace zorcc::ZORCC_TIER

#endif
