// SPDX-License-Identifier: MIT
// RGB to luma and chroma by any coefficients: chroma of every pixel, and chroma that two pixels of a row (4:2:2) or the
// four of a 2 x 2 block (4:2:0) share, which is formed from their sums.
#pragma once

#include "lumachroma/common/weighted_sums.h"
#include "pixels/byte_pairs.h"

namespace zorcc::ycbcr {

struct FromRgb {
    Weights y, cb, cr;
};

// What is added to luma: 16 and a half; 16 alone; a half.
inline constexpr int studioLuma = 16 * 65536 + 32768, studioLumaDown = 16 * 65536, fullLuma = 32768;

// What is added to chroma: 128 and an eighth for each pixel of a sum; 128 and a half for each of 1 or 2.
constexpr int eighthBias(int pixels) { return pixels * (128 * 65536 + 8192); }
constexpr int chromaBias(int pixels) { return pixels == 4 ? eighthBias(4) : pixels * (128 * 65536 + 32768); }

} // namespace zorcc::ycbcr

namespace zorcc::ZORCC_TIER {
namespace {

// ---- chroma of every pixel ------------------------------------------------------------------------------------------

// A matrix whose results need no clamp: each channel is (weighted sum + bias) >> 16.
template <Weights y, int yBias, Weights first, Weights second, int chromaBias> struct MatrixToYcc {
    [[gnu::always_inline]] Pixels<3> operator()(const RgbBytes<1> auto& rgb) const
    {
        const RgbPairs<1> pairs = inPairs(rgb);
        return {{{channel<y, yBias>(pairs), channel<first, chromaBias>(pairs), channel<second, chromaBias>(pairs)}}};
    }

private:
    template <Weights w, int bias> ZORCC_INLINE u8v channel(const RgbPairs<1>& rgb)
    {
        return packWhole(weigh<w, bias>(rgb.rg[0][0], rgb.bg[0][0]), weigh<w, bias>(rgb.rg[0][1], rgb.bg[0][1]));
    }
};

// ---- shared chroma: a way to weigh luma and a way to form chroma, for one row or two --------------------------------

// Two columns share chroma, or four: then the first of their two pairs gets it.
template <int rows, class Luma, class Chroma, int columns = 2> struct RgbToSubsampled {
    [[gnu::always_inline]] Subsampled<rows> operator()(const RgbBytes<rows> auto& rgb) const
    {
        Subsampled<rows> out;
        const RgbPairs<rows> pairs = inPairs(rgb);
        for (int row = 0; row < rows; ++row) out.y[row] = Luma::of(pairs.rg[row], pairs.bg[row]);
        const ColumnSums sums = sumColumns(rgb);
        if constexpr (columns == 4)
            out.chroma = Chroma::of(sumOfNeighbours(sums.rg), sumOfNeighbours(sums.bg));
        else
            out.chroma = Chroma::of(sums);
        return out;
    }

private:
    // Of the pairs of both vectors: the first and the second, the third and the fourth ...
    ZORCC_INLINE s16v sumOfNeighbours(const s16v (&pairs)[2])
    {
        const f32v lo = (f32v)pairs[0], hi = (f32v)pairs[1];
        return (s16v)pick<0, 2, 0, 2>(lo, hi) + (s16v)pick<1, 3, 1, 3>(lo, hi);
    }
};

// (weighted sum + bias) >> 16 in 0..255, with a bias for the even and one for the odd pixels of a row.
template <Weights w, int evenBias = 0, int oddBias = evenBias> struct WeightedLuma {
    static_assert(evenBias % 256 == 0 && oddBias % 256 == 0); // whole in 8.8 fixed point

    ZORCC_INLINE u8v of(const u8v (&rg)[2], const u8v (&bg)[2])
    {
        const u16v bias = (u16v)fillPair16(evenBias / 256, oddBias / 256);
        return packWhole(weigh<w>(rg[0], bg[0]) + bias, weigh<w>(rg[1], bg[1]) + bias);
    }
};

// (bias + weighted sum) >> shift of 16-bit sums of bytes, saturated to 16 bits. Weights that pass 16 bits are reduced
// by 65536, for which the caller makes up, or, above 32767, take a shift of their own.
template <Weights w, int bias, int shift> class WeightedSums {
public:
    ZORCC_INLINE s16v of(const ColumnSums& sums)
    {
        return packSigned(of(sums.rg[0], sums.bg[0]), of(sums.rg[1], sums.bg[1]));
    }
    ZORCC_INLINE s32v of(s16v rg, s16v bg) { return sum(rg, bg) >> shift; }

private:
    // weight * first + second * other, with a weight of up to 16 unsigned bits.
    template <int weight, int other> ZORCC_INLINE s32v add(s32v to, s16v pairs)
    {
        if constexpr (weight > 32767) to += (s32v)((u32v)pairs << 16 >> 1); // 32768 first
        return mulAddPairs(to, pairs, fillPair16(weight > 32767 ? weight - 32768 : weight, other));
    }

    ZORCC_INLINE s32v sum(s16v rg, s16v bg) { return add<w.r, w.g>(add<w.b, 0>(fill32(bias), bg), rg); }
};

// By colour differences. With S the weighted sum and C the luma (S + bias) >> 16 of the pixels' sums, the first channel
// is (sum of B - C) * u >> (16 + shift), the second the same with R and v.
template <Weights luma, int bias, int u, int v, int shift> struct DifferenceChroma {
    ZORCC_INLINE u8v of(const ColumnSums& sums)
    {
        constexpr Weights rest = {luma.r, luma.g - 65536, luma.b}; // G itself makes up for the 65536
        const s16v r = first(sums.rg), b = first(sums.bg),
                   g = packSigned((s32v)sums.rg[0] >> 16, (s32v)sums.rg[1] >> 16);
        const s16v c = WeightedSums<rest, bias, 16>::of(sums) + g;
        return packAround128(scale<u>(b - c) >> shift, scale<v>(r - c) >> shift);
    }

private:
    ZORCC_INLINE s16v first(const s16v (&pairs)[2])
    {
        return packSigned((s32v)pairs[0] & 0xffff, (s32v)pairs[1] & 0xffff);
    }
};

// By a matrix: each channel is (weighted sum + bias) >> shift.
template <Weights first, int firstBias, Weights second, int secondBias, int shift> struct MatrixChroma {
    ZORCC_INLINE u8v of(const ColumnSums& sums)
    {
        return packUnsigned(WeightedSums<first, firstBias, shift>::of(sums),
                            WeightedSums<second, secondBias, shift>::of(sums));
    }

    // In the even bytes alone.
    ZORCC_INLINE u8v of(s16v rg, s16v bg)
    {
        return packUnsigned((s16v)WeightedSums<first, firstBias, shift>::of(rg, bg),
                            (s16v)WeightedSums<second, secondBias, shift>::of(rg, bg));
    }
};

// ---- YCbCr by any matrix ---

// 4:4:4. No result needs a clamp: studio range has space to spare (the tests go through all colours).
template <ycbcr::FromRgb k> using RgbToYCbCr = MatrixToYcc<k.y, ycbcr::studioLuma, k.cb, k.cr, ycbcr::chromaBias(1)>;

// Chroma of sums over 2 or 4 pixels.
template <ycbcr::FromRgb k, int pixels, int crBias = ycbcr::chromaBias(pixels)>
using YCbCrChroma = MatrixChroma<k.cb, ycbcr::chromaBias(pixels), k.cr, crBias, pixels == 2 ? 17 : 18>;

// Two pixels with the rounding of four.
template <ycbcr::FromRgb k>
using EighthChroma = MatrixChroma<k.cb, ycbcr::eighthBias(2), k.cr, ycbcr::eighthBias(2), 17>;

// 4:2:2. The luma of the second pixel of a pair may be rounded its own way.
template <ycbcr::FromRgb k, class Chroma = YCbCrChroma<k, 2>, int oddLuma = ycbcr::studioLuma>
struct RgbToYCbCr422 : RgbToSubsampled<1, WeightedLuma<k.y, ycbcr::studioLuma, oddLuma>, Chroma> {
    RgbToYCbCr<k> single() const { return {}; }
};

template <ycbcr::FromRgb k, int lumaBias>
using RgbToYCbCr420 = RgbToSubsampled<2, WeightedLuma<k.y, lumaBias>, YCbCrChroma<k, 4>>;

} // namespace
} // namespace zorcc::ZORCC_TIER

#if defined(ZORCC_TIER_avx512)
    #include "lumachroma/common/avx512/rgb_to_ycc.h"
#endif
