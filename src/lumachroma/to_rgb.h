// SPDX-License-Identifier: MIT
// Luma and two chroma channels to RGB, by a coefficient set, for chroma of every pixel and for chroma shared by two
// columns (and two rows). Exact: the same bytes as the sums in 32 bits.
#pragma once

#include "lumachroma/to_rgb_dots.h"
#include "simd/layouts_subsampled.h"
#include "simd/weights.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <ToRgb k> class YccToRgb {
public:
    // Every channel is whole units of luma and chroma, added in 16 bits, and a rest of less than 16 bits in 8.8 fixed
    // point.
    Pixels<3> operator()(const Pixels<3>& ycc) const
    {
        const auto [y, u, v] = ycc.c[0];
        const Triple lo = channels(zipLow(y, v), zipLow(y, u), zipLow(u, v));
        const Triple hi = channels(zipHigh(y, v), zipHigh(y, u), zipHigh(u, v));
        Pixels<3> rgb;
        for (int c = 0; c < 3; ++c) rgb.c[0][c] = packUnsigned(lo.c[c], hi.c[c]);
        return rgb;
    }

    template <int rows> auto operator()(const Subsampled<rows>& ycc) const
    {
        if constexpr (DotProductsToRgb<k>::use)
            return dotProducts(ycc);
        else if constexpr (k.y == 65536)
            return onWholeLuma(ycc, zipHalves(ycc.chroma));
        else
            return onScaledLuma(ycc, zipHalves(ycc.chroma));
    }

    template <PackedOrder order> auto operator()(const PackedPairs<order>& ycc) const
    {
        if constexpr (DotProductsToRgb<k>::use)
            return dotProducts(ycc);
        else
            return (*this)(Subsampled<1>(ycc));
    }

private:
    [[no_unique_address]] DotProductsToRgb<k> dotProducts;

    struct Triple {
        s16v c[3];
    };

    // ---- 4:4:4, from zipped bytes ----------------------------------------------------------------------------------

    static constexpr int yWhole = wholePart(k.y), yPart = signedPart(k.y);
    static_assert(yWhole == 1);

    ZORCC_INLINE Triple channels(u8v yv, u8v yu, u8v uv)
    {
        const s16v y = firstOfPairs(yv), v = secondOfPairs(yv), u = firstOfPairs(uv);
        if constexpr (k.y == 65536) {
            const Triple offset = offsets(uv);
            return {{y + offset.c[0], y + offset.c[1], y + offset.c[2]}};
        } else {
            return {{y + driven<k.r, k.constantR>(yv, v), y + green(yv, uv, v), y + driven<k.b, k.constantB>(yu, u)}};
        }
    }

    // R from the second chroma channel, B from the first, less the whole of luma: the chroma channel c with its weight.
    // Whole units are counted from 128, which keeps the rest small.
    template <int weight, int constant> ZORCC_INLINE s16v driven(u8v yc, s16v c)
    {
        constexpr int whole = wholePart(weight), part = signedPart(weight);
        return times<whole>(c - 128) + (weighPair<yPart, part, constant + 128 * 65536 * whole>(yc) >> 8);
    }

    ZORCC_INLINE s16v green(u8v yv, u8v uv, s16v v)
    {
        constexpr int whole = wholePart(-k.g2), part = signedPart(-k.g2), constant = k.constantG + 128 * 65536 * whole;
        static_assert(wholePart(-k.g1) == 0);
        // Luma, second and first chroma channel in the places of R, G and B.
        constexpr Weights w = {yPart, part, -k.g1};
        return times<whole>(v - 128) + ((s16v)weigh<w, constant>(yv, uv) >> 8);
    }

    // ---- luma of weight 1 ------------------------------------------------------------------------------------------

    // A channel is luma plus the floor of its chroma products.
    ZORCC_INLINE Triple offsets(u8v uv)
    {
        const s16v u = firstOfPairs(uv) - 128, v = secondOfPairs(uv) - 128;
        return {
            {product<k.r, k.constantR>(v), product2<-k.g1, -k.g2, k.constantG>(u, v), product<k.b, k.constantB>(u)}};
    }

    // The constants centre chroma, which u and v are already, and round.
    template <int constant, int weights> static constexpr bool rounds()
    {
        static_assert(constant + 128 * weights == 0 || constant + 128 * weights == 32768);
        return constant + 128 * weights == 32768;
    }

    template <int weight, int constant> ZORCC_INLINE s16v product(s16v c)
    {
        return rounds<constant, weight>() ? scaleRounded<weight>(c) : scale<weight>(c);
    }

    template <int first, int second, int constant> ZORCC_INLINE s16v product2(s16v u, s16v v)
    {
        const s16v sum = addOneWhere(scale<first>(u) + scale<second>(v), scaleRest<first>(u), ~scaleRest<second>(v));
        if constexpr (rounds<constant, first + second>())
            return sum + (s16v)((scaleRest<first>(u) + scaleRest<second>(v)) >> 15);
        return sum;
    }

    // Offsets are formed once for a pair of columns and applied to the bytes of luma as what is to be added and what is
    // to be taken away, one of them being 0. That they saturate at 255 makes no difference to the saturated result.
    template <int rows> ZORCC_INLINE Pixels<3, rows> onWholeLuma(const Subsampled<rows>& ycc, u8v uv)
    {
        const Triple offset = offsets(uv);
        Pixels<3, rows> rgb;
        for (int c = 0; c < 3; ++c) {
            const u8v both = packUnsigned(offset.c[c], -offset.c[c]);
            const u8v more = zipLow(both, both), less = zipHigh(both, both);
            for (int row = 0; row < rows; ++row) rgb.c[row][c] = subSaturate(addSaturate(ycc.y[row], more), less);
        }
        return rgb;
    }

    // ---- shared chroma, luma scaled --------------------------------------------------------------------------------

    // Luma and chroma products are 16.16 fixed point in two halves. Even and odd columns are apart, so that the chroma
    // of a pair of columns stands in the lane of both.
    struct Luma {
        s16v high;
        u16v low;
    };
    struct Chroma {
        s16v high;
        u16v room; // 65535 - low: a luma above it carries
    };

    template <int rows>
    ZORCC_INLINE Pixels<3, rows, Columns::evenThenOdd> onScaledLuma(const Subsampled<rows>& ycc, u8v uv)
    {
        const Chroma chroma[3] = {chromaHalves<0, k.r, k.constantR>(uv), chromaHalves<-k.g1, -k.g2, k.constantG>(uv),
                                  chromaHalves<k.b, 0, k.constantB>(uv)};
        Pixels<3, rows, Columns::evenThenOdd> rgb;
        for (int row = 0; row < rows; ++row) {
            const Luma even = lumaHalves(mulAddPairs(ycc.y[row], fillPair8(2, 0)));
            const Luma odd = lumaHalves(mulAddPairs(ycc.y[row], fillPair8(0, 2)));
            for (int c = 0; c < 3; ++c) rgb.c[row][c] = packUnsigned(whole(even, chroma[c]), whole(odd, chroma[c]));
        }
        return rgb;
    }

    // From luma doubled, which brings its weight into 16 bits.
    ZORCC_INLINE Luma lumaHalves(s16v twice)
    {
        static_assert(k.y % 2 == 0);
        const u16v weight = (u16v)fill16(k.y / 2);
        return {(s16v)mulHigh((u16v)twice, weight), (u16v)twice * weight};
    }

    template <int first, int second, int constant> ZORCC_INLINE Chroma chromaHalves(u8v uv)
    {
        const s16v u = firstOfPairs(uv), v = secondOfPairs(uv);
        const s16v parts = fillPair16(signedPart(first), signedPart(second));
        const s32v lo = mulAddPairs(fill32(constant), (s16v)zipLow(uv, u8v{}), parts);
        const s32v hi = mulAddPairs(fill32(constant), (s16v)zipHigh(uv, u8v{}), parts);
        const u16v room = (u16v)fill16(-1 - constant) - scaleRest<first>(u) - scaleRest<second>(v);
        return {packSigned(lo >> 16, hi >> 16) + times<wholePart(first)>(u) + times<wholePart(second)>(v), room};
    }

    // The whole part of the sum.
    ZORCC_INLINE s16v whole(const Luma& y, const Chroma& c) { return addOneWhere(y.high + c.high, y.low, c.room); }
};

// Alpha as a fourth channel, the same for all pixels.
template <class Formula> struct WithAlpha {
    uint8_t alpha;
    Formula formula{};

    template <class Source> auto operator()(const Source& source) const { return add(formula(source)); }

private:
#if defined(ZORCC_TIER_avx512)
    template <int rows> UnsaturatedWithAlpha<rows> add(const Unsaturated<rows>& rgb) const
    {
        return {rgb, fill8(alpha)};
    }
#endif

    template <int rows, Columns columns> Pixels<4, rows, columns> add(const Pixels<3, rows, columns>& rgb) const
    {
        Pixels<4, rows, columns> rgba;
        for (int row = 0; row < rows; ++row) {
            for (int c = 0; c < 3; ++c) rgba.c[row][c] = rgb.c[row][c];
            rgba.c[row][3] = fill8(alpha);
        }
        return rgba;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
