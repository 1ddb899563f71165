// SPDX-License-Identifier: MIT
// Luma and shared chroma to RGB by the dot products of AVX-512: every sum as it is written down, in 32 bits.
#pragma once

#include "simd/avx512/wide_pixels.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <ToRgb k> class DotProductsToRgb {
    // Weights may pass 16 bits. They are products of a coefficient and a small factor, by which the
    // sample is multiplied first, and a rest of less than that factor where there is no such product.
    static constexpr int factorOf(int weight)
    {
        for (int factor = 1; factor < 128; ++factor)
            if (weight % factor == 0 && weight / factor < 32768) return factor;
        return weight / 32768 + 1;
    }
    static constexpr int factorR = factorOf(k.r), factorB = factorOf(k.b);

public:
    static constexpr int lumaFactor = factorOf(k.y);
    static constexpr bool possible = k.y % lumaFactor == 0; // there is no place for a rest of luma

    template <int rows, LumaOrder order> struct Prepared {
        s16v luma[rows][2];
        s32v chroma[2][3]; // for each half of the lanes
    };

    template <int rows> [[gnu::always_inline]] auto prepare(const Subsampled<rows>& ycc) const
    {
        return prepare(toLanes.template operator()<lumaFactor>(ycc.y, ycc.chroma));
    }

    template <int rows, LumaOrder order>
    [[gnu::always_inline]] Prepared<rows, order> prepare(const YccLanes<rows, order>& ycc) const
    {
        Prepared<rows, order> from;
        for (int half = 0; half < 2; ++half) {
            for (int row = 0; row < rows; ++row) from.luma[row][half] = ycc.luma[row][half];
            const s16v uv = ycc.chroma[half], multiples = uv * fillPair16(factorB, factorR);
            from.chroma[half][0] = sum<0, k.r>(fill32(k.constantR), uv, multiples);
            from.chroma[half][1] = sum<-k.g1, -k.g2>(fill32(k.constantG), uv, multiples);
            from.chroma[half][2] = sum<k.b, 0>(fill32(k.constantB), uv, multiples);
        }
        return from;
    }

    template <int rows, LumaOrder order>
    [[gnu::always_inline]] Unsaturated<rows> operator()(const Prepared<rows, order>& from) const
    {
        const s16v lower = fillPair16(k.y / lumaFactor, 0), upper = fillPair16(0, k.y / lumaFactor);
        Unsaturated<rows> rgb;
        for (int half = 0; half < 2; ++half)
            for (int row = 0; row < rows; ++row)
                for (int c = 0; c < 3; ++c) {
                    const s16v* luma = from.luma[row];
                    const s32v chroma = from.chroma[half][c];
                    if constexpr (order == LumaOrder::byColumn) {
                        const s16v weight = half == 0 ? lower : upper;
                        rgb.c[row][c][half] =
                            upperHalves(mulAddPairs(chroma, luma[0], weight), mulAddPairs(chroma, luma[1], weight));
                    } else {
                        rgb.c[row][c][half] =
                            upperHalves(mulAddPairs(chroma, luma[half], lower), mulAddPairs(chroma, luma[half], upper));
                    }
                }
        return rgb;
    }

    YccToRgb<k> single() const { return {}; }

private:
    UpperHalves upperHalves;
    ToYccLanes toLanes;

    // Of both chroma channels and their multiples.
    template <int u, int v> ZORCC_INLINE s32v sum(s32v constant, s16v uv, s16v multiples)
    {
        constexpr int restU = u % factorB, restV = v % factorR;
        if constexpr (restU != 0 || restV != 0) constant = mulAddPairs(constant, uv, fillPair16(restU, restV));
        return mulAddPairs(constant, multiples, fillPair16(u / factorB, v / factorR));
    }
};

template <int rows> ZORCC_INLINE UnsaturatedWithAlpha<rows> withAlpha(const Unsaturated<rows>& rgb, uint8_t alpha)
{
    return {rgb, fill8(alpha)};
}

template <int rows> ZORCC_INLINE Pixels<3, rows> inBytes(const Unsaturated<rows>& rgb)
{
    Pixels<3, rows> bytes;
    for (int row = 0; row < rows; ++row)
        for (int c = 0; c < 3; ++c) bytes.c[row][c] = saturated(rgb.c[row][c]);
    return bytes;
}

// ---- layouts --------------------------------------------------------------------------------------------------------

template <class Layout, int lumaFactor> struct InLanes : Layout {
};

template <PackedOrder order, int lumaFactor> struct InLanes<Packed422<order>, lumaFactor> : Packed422<order> {
    [[gnu::always_inline]] YccLanes<1, LumaOrder::byHalf> load(int x) const
    {
        constexpr bool lumaFirst = order == PackedOrder::lumaFirst;
        YccLanes<1, LumaOrder::byHalf> ycc;
        for (int half = 0; half < 2; ++half) {
            const u8v bytes = zorcc::ZORCC_TIER::load(this->at(0, x) + half * vectorBytes);
            ycc.luma[0][half] = mulAddPairs(bytes, lumaFirst ? fillPair8(lumaFactor, 0) : fillPair8(0, lumaFactor));
            ycc.chroma[half] = lumaFirst ? secondOfPairs(bytes) : firstOfPairs(bytes);
        }
        return ycc;
    }
};

template <class Layout> struct OfWide : Layout {
    using Layout::store;
    [[gnu::always_inline]] void store(int x, const Unsaturated<1>& p) const { store(x, inBytes(p)); }
};

template <Order order> struct OfWide<C3<uint8_t, order>> : C3<uint8_t, order> {
    using C3<uint8_t, order>::store;
    [[gnu::always_inline]] void store(int x, const Unsaturated<1>& p) const { storeThrees(this->at(0, x), p); }

    StoreThrees<order == Order::reversed> storeThrees;
};

template <Order order> struct OfWide<C4<uint8_t, order>> : C4<uint8_t, order> {
    using C4<uint8_t, order>::store;
    [[gnu::always_inline]] void store(int x, const UnsaturatedWithAlpha<1>& p) const { storeFours(this->at(0, x), p); }

    StoreFours<order == Order::reversed> storeFours;
};

// ---- where they are used ---

template <class Layout> constexpr bool isPacked422 = false;
template <PackedOrder order> constexpr bool isPacked422<Packed422<order>> = true;

template <class Layout> constexpr bool hasFourChannels = false;
template <Order order> constexpr bool hasFourChannels<C4<uint8_t, order>> = true;

// For packed pixels and for two rows that share chroma. Luma of weight 1 has a quicker way, but from packed pixels to
// four channels; so have single rows of planes.
template <class From, ToRgb k, class To>
constexpr bool dotProductsAreQuicker =
    k.y == 65536 ? isPacked422<From>&& hasFourChannels<To> : isPacked422<From> || From::rowsAtOnce == 2;

template <class From, ToRgb k, class To>
requires(DotProductsToRgb<k>::possible&& dotProductsAreQuicker<From, k, To>) struct OnThisTier<From, YccToRgb<k>, To> {
    using Source = InLanes<From, DotProductsToRgb<k>::lumaFactor>;
    using Formula = DotProductsToRgb<k>;
    using Destination = OfWide<To>;
};

template <class From, ToRgb k, class To>
struct OnThisTier<From, WithAlpha<YccToRgb<k>>, To> : OnThisTier<From, YccToRgb<k>, To> {
    using Formula = WithAlpha<typename OnThisTier<From, YccToRgb<k>, To>::Formula>;
};

template <class From, FieldBits bits, ToRgb k, class To>
struct OnThisTier<From, Dithered<bits, YccToRgb<k>>, To> : OnThisTier<From, YccToRgb<k>, To> {
    using Formula = Dithered<bits, typename OnThisTier<From, YccToRgb<k>, To>::Formula>;
};

} // namespace
} // namespace zorcc::ZORCC_TIER
