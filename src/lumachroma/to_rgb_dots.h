// SPDX-License-Identifier: MIT
// Luma and shared chroma to RGB by dot products, on the tier that has them: every sum as it is written down, in 32
// bits.
#pragma once

#include "lumachroma/coefficients.h"
#include "simd/layouts_subsampled.h"
#include "simd/weights.h"
#include "simd/wide_pixels.h"

namespace zorcc::ZORCC_TIER {
namespace {

#if defined(ZORCC_TIER_avx512)

// How luma of 64 columns lies in the 16-bit elements of two vectors, two in a lane beside the chroma that both share.
enum class LumaOrder {
    byColumn, // even and odd columns in a vector each; the first 32 columns in the lower elements
    byHalf    // the first and the last 32 columns in a vector each; the even ones in the lower elements
};

// Luma times four, and the two channels of chroma in the two elements of a lane, for 32 columns in each vector.
template <int rows, LumaOrder order> struct DotColumns {
    s16v luma[rows][2];
    s16v chroma[2];
};

struct DotTables {
    alignas(64) uint8_t luma[64];      // columns 2i, 2i + 1, 32 + 2i, 33 + 2i in lane i
    alignas(64) uint8_t chroma[2][64]; // from halves: the two samples in the even bytes of lane i

    constexpr DotTables() : luma{}, chroma{}
    {
        for (int i = 0; i < 16; ++i) {
            for (int k = 0; k < 4; ++k) luma[4 * i + k] = static_cast<uint8_t>(k / 2 * 32 + 2 * i + k % 2);
            for (int half = 0; half < 2; ++half)
                for (int c = 0; c < 2; ++c)
                    chroma[half][4 * i + 2 * c] = static_cast<uint8_t>((2 * half + i / 8) * 16 + 8 * c + i % 8);
        }
    }
};
constexpr DotTables dotTables;

template <int rows>
ZORCC_INLINE DotColumns<rows, LumaOrder::byColumn> dotColumns(const Subsampled<rows>& ycc, Mask evenBytes)
{
    DotColumns<rows, LumaOrder::byColumn> columns;
    for (int row = 0; row < rows; ++row) {
        const u8v y = (u8v)_mm512_permutexvar_epi8(reg(load(dotTables.luma)), reg(ycc.y[row]));
        columns.luma[row][0] = mulAddPairs(y, fillPair8(4, 0));
        columns.luma[row][1] = mulAddPairs(y, fillPair8(0, 4));
    }
    for (int half = 0; half < 2; ++half) {
        const __m512i from = reg(load(dotTables.chroma[half]));
        columns.chroma[half] = (s16v)_mm512_maskz_permutexvar_epi8(evenBytes, from, reg(ycc.chroma));
    }
    return columns;
}

template <PackedOrder order> ZORCC_INLINE DotColumns<1, LumaOrder::byHalf> dotColumns(const PackedPairs<order>& ycc)
{
    constexpr bool lumaFirst = order == PackedOrder::lumaFirst;
    DotColumns<1, LumaOrder::byHalf> columns;
    for (int half = 0; half < 2; ++half) {
        columns.luma[0][half] = mulAddPairs(ycc.memory[half], lumaFirst ? fillPair8(4, 0) : fillPair8(0, 4));
        columns.chroma[half] = lumaFirst ? secondOfPairs(ycc.memory[half]) : firstOfPairs(ycc.memory[half]);
    }
    return columns;
}

template <ToRgb k> class DotProductsToRgb {
    // Weights beyond 16 bits are those of R and B. They are products of a coefficient and a small factor, by which the
    // sample is multiplied first.
    static constexpr int factorOf(int weight)
    {
        int factor = 1;
        while (weight / factor > 32767 || weight % factor != 0) ++factor;
        return factor;
    }
    static constexpr int factorR = factorOf(k.r), factorB = factorOf(k.b);

public:
    // A quarter of the weight of luma has to fit an element; luma of weight 1 has a quicker way.
    static constexpr bool use =
        k.y % 4 == 0 && k.y / 4 < 32768 && k.y != 65536 && 255 * factorR < 32768 && 255 * factorB < 32768;

    template <int rows> Unsaturated<rows> operator()(const Subsampled<rows>& ycc) const
    {
        return sum(dotColumns(ycc, evenBytes));
    }

    template <PackedOrder order> Unsaturated<1> operator()(const PackedPairs<order>& ycc) const
    {
        return sum(dotColumns(ycc));
    }

private:
    UpperHalves upperHalves;
    Mask evenBytes{0x5555555555555555};

    template <int rows, LumaOrder order>
    __attribute__((always_inline)) Unsaturated<rows> sum(const DotColumns<rows, order>& ycc) const
    {
        const s16v lower = fillPair16(k.y / 4, 0), upper = fillPair16(0, k.y / 4);
        Unsaturated<rows> rgb;
        for (int half = 0; half < 2; ++half) {
            const s16v uv = ycc.chroma[half], multiples = uv * fillPair16(factorB, factorR);
            const s32v g = mulAddPairs(fill32(k.constantG), uv, fillPair16(-k.g1, -k.g2 % factorR));
            const s32v chroma[3] = {mulAddPairs(fill32(k.constantR), multiples, fillPair16(0, k.r / factorR)),
                                    mulAddPairs(g, multiples, fillPair16(0, -k.g2 / factorR)),
                                    mulAddPairs(fill32(k.constantB), multiples, fillPair16(k.b / factorB, 0))};
            for (int row = 0; row < rows; ++row)
                for (int c = 0; c < 3; ++c) {
                    const s16v* luma = ycc.luma[row];
                    if constexpr (order == LumaOrder::byColumn) {
                        const s16v weight = half == 0 ? lower : upper;
                        rgb.c[row][c][half] = upperHalves(mulAddPairs(chroma[c], luma[0], weight),
                                                          mulAddPairs(chroma[c], luma[1], weight));
                    } else {
                        rgb.c[row][c][half] = upperHalves(mulAddPairs(chroma[c], luma[half], lower),
                                                          mulAddPairs(chroma[c], luma[half], upper));
                    }
                }
        }
        return rgb;
    }
};

#else

template <ToRgb k> struct DotProductsToRgb {
    static constexpr bool use = false;
};

#endif

} // namespace
} // namespace zorcc::ZORCC_TIER
