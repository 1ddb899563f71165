// SPDX-License-Identifier: MIT
// RGB to luma and shared chroma: a way to weigh luma and a way to form chroma from the sums over the pixels that share
// it, put together for one row (4:2:2) or two (4:2:0).
#pragma once

#include "simd/layout.h"
#include "simd/weights.h"

namespace zorcc::ZORCC_TIER {
namespace {

// (weighted sum + bias) >> 16 in 0..255, with a bias for the even and one for the odd pixels of a row.
template <Weights w, int evenBias = 0, int oddBias = evenBias> struct WeighedLuma {
    static_assert(evenBias % 256 == 0 && oddBias % 256 == 0); // whole in 8.8 fixed point

    ZORCC_INLINE u8v of(u8v r, u8v g, u8v b)
    {
        const u16v bias = (u16v)fillPair16(evenBias / 256, oddBias / 256);
        return packWhole(weigh<w>(zipLow(r, g), zipLow(b, g)) + bias, weigh<w>(zipHigh(r, g), zipHigh(b, g)) + bias);
    }
};

// (bias + weighted sum) >> shift of 16-bit sums of bytes, saturated to 16 bits. Weights that pass 16 bits are brought
// back by 65536 (to be made up for by the caller) or, above 32767, by a shift of their own.
template <Weights w, int bias, int shift> class WeighedSums {
public:
    ZORCC_INLINE s16v of(s16v r, s16v g, s16v b)
    {
        return packSigned(sum(zipLow(r, g), zipLow(b, g)) >> shift, sum(zipHigh(r, g), zipHigh(b, g)) >> shift);
    }

private:
    // weight * first + second * other, with a weight of up to 16 unsigned bits.
    template <int weight, int other> ZORCC_INLINE s32v add(s32v to, s16v pairs)
    {
        if constexpr (weight > 32767) to += (s32v)((u32v)pairs << 16 >> 1); // 32768 first
        return mulAddPairs(to, pairs, fillPair16(weight > 32767 ? weight - 32768 : weight, other));
    }

    ZORCC_INLINE s32v sum(s16v rg, s16v bg) { return add<w.r, w.g>(add<w.b, 0>(fill32(bias), bg), rg); }
};

// By colour differences. With S the weighted sum and C the luma (S + bias) >> 16 of all pixels together, the first
// channel is (sum of B - C) * u >> (16 + shift), the second the same with R and v.
template <Weights luma, int bias, int u, int v, int shift> struct DifferenceChroma {
    ZORCC_INLINE u8v of(s16v r, s16v g, s16v b)
    {
        constexpr Weights rest = {luma.r, luma.g - 65536, luma.b}; // G itself makes up for the 65536
        const s16v c = WeighedSums<rest, bias, 16>::of(r, g, b) + g;
        return packAround128(scale<u>(b - c) >> shift, scale<v>(r - c) >> shift);
    }
};

// By a matrix: each channel is (weighted sum + bias) >> shift.
template <Weights first, int firstBias, Weights second, int secondBias, int shift> struct MatrixChroma {
    ZORCC_INLINE u8v of(s16v r, s16v g, s16v b)
    {
        return packUnsigned(WeighedSums<first, firstBias, shift>::of(r, g, b),
                            WeighedSums<second, secondBias, shift>::of(r, g, b));
    }
};

template <int rows, class Luma, class Chroma> struct RgbToSubsampled {
    Subsampled<rows> operator()(const Pixels<3, rows>& rgb) const
    {
        Subsampled<rows> out;
        s16v sum[3] = {};
        for (int row = 0; row < rows; ++row) {
            const auto [r, g, b] = rgb.c[row];
            out.y[row] = Luma::of(r, g, b);
            for (int c = 0; c < 3; ++c) sum[c] += mulAddPairs(rgb.c[row][c], fillPair8(1, 1));
        }
        out.chroma = Chroma::of(sum[0], sum[1], sum[2]);
        return out;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
