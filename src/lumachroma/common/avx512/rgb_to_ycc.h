// SPDX-License-Identifier: MIT
// Interleaved RGB to luma and chroma by the dot products of AVX-512: every sum as it is written down, in 32 bits.
#pragma once

#include "pixels/avx512/in_quads.h"

namespace zorcc::ZORCC_TIER {
namespace {

// w.r R + w.g G + w.b B + bias, of pairs (R, B) and (G, G). The weight of G may pass 16 bits: it is divided.
template <Weights w, int bias, Order order> ZORCC_INLINE s32v dotProduct(const ChannelPairs& p)
{
    constexpr int half = w.g / 2, first = order == Order::asStored ? w.r : w.b, second = w.r + w.b - first;
    static_assert(w.r < 32768 && w.b < 32768 && half < 32767);
    return mulAddPairs(mulAddPairs(fill32(bias), p.outer, fillPair16(first, second)), p.inner,
                       fillPair16(half, w.g - half));
}

// 4:4:4: (weighted sum + bias) >> 16.
template <Weights y, int yBias, Weights u, Weights v, int bias, Order order> struct DotProductsToYcc {
    [[gnu::always_inline]] Pixels<3> operator()(const PixelQuads<1>& rgb) const
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
    [[gnu::always_inline]] Subsampled<2> operator()(const PixelQuads<2>& rgb) const
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

// Whether a sum over `pixels` pixels never leaves 0..255: bytes are gathered without saturation.
template <Weights w, int bias, int pixels> constexpr bool fitsByte()
{
    const int64_t shift = pixels == 1 ? 16 : 18;
    return (pixels * int64_t{minOf(w.r, w.g, w.b)} + bias) >> shift >= 0 &&
           (pixels * int64_t{maxOf(w.r, w.g, w.b)} + bias) >> shift <= 255;
}

template <int perPixel, Order order, Weights y, int yBias, Weights u, Weights v, int bias, class To>
requires(fitsByte<y, yBias, 1>() && fitsByte<u, bias, 1>() &&
         fitsByte<v, bias, 1>()) struct OnThisTier<Interleaved<uint8_t, perPixel, 3, order>,
                                                   MatrixToYcc<y, yBias, u, v, bias>, To> {
    using Source = InQuads<Interleaved<uint8_t, perPixel, 3, order>>;
    using Formula = DotProductsToYcc<y, yBias, u, v, bias, order>;
    using Destination = To;
};

template <int perPixel, Order order, Weights y, int yBias, Weights u, Weights v, int bias, class To>
requires(fitsByte<y, yBias, 1>() && fitsByte<u, bias, 4>() && fitsByte<v, bias, 4>()) struct OnThisTier<
    Interleaved<uint8_t, perPixel, 3, order>,
    RgbToSubsampled<2, WeightedLuma<y, yBias, yBias>, MatrixChroma<u, bias, v, bias, 18>>, To> {
    using Source = InQuads<Interleaved<uint8_t, perPixel, 3, order>>;
    using Formula = DotProductsTo420<y, yBias, u, v, bias, order>;
    using Destination = To;
};

} // namespace
} // namespace zorcc::ZORCC_TIER
