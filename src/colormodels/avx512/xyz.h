// SPDX-License-Identifier: MIT
// Bytes of RGB to XYZ by the dot products of AVX-512: every sum as it is written down, in 32 bits.
#pragma once

#include "lumachroma/common/avx512/rgb_to_ycc.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Weights in units of 1/65536. B stands in the upper halves of outer pairs, so that its whole in Z is an addition.
template <Weights y, Weights z> struct DotProductsToXyz {
    [[gnu::always_inline]] Pixels<3> operator()(const PixelQuads<1>& rgb) const
    {
        constexpr Weights x = doubled(13515, 11717, 5912), zLessB = {z.r, z.g, z.b - 65536};
        s32v sum[3][4];
        for (int group = 0; group < 4; ++group) {
            const ChannelPairs pairs = pairsOf(rgb.group[0][group]);
            sum[0][group] = dotProduct<x, 0, Order::asStored>(pairs);
            sum[1][group] = dotProduct<y, 0, Order::asStored>(pairs);
            const s32v wholeB = (s32v)pairs.outer & -65536, greatest = fill32(0xffffff);
            const s32v sumZ = dotProduct<zLessB, 0, Order::asStored>(pairs) + wholeB;
            sum[2][group] = select(sumZ > greatest, greatest, sumZ);
        }
        return {{{gather(sum[0]), gather(sum[1]), gather(sum[2])}}};
    }

    GatherColumns gather;
};

template <int perPixel, class To>
struct OnThisTier<Interleaved<uint8_t, perPixel, 3, Order::asStored>, RgbToXyzOfBytes, To> {
    using Source = InQuads<Interleaved<uint8_t, perPixel, 3, Order::asStored>>;
    using Formula = InXyzBlocks<DotProductsToXyz>;
    using Destination = To;
};

} // namespace
} // namespace zorcc::ZORCC_TIER
