// SPDX-License-Identifier: MIT
// The formulas between RGB and YUV on vectors of 8-bit channels. All are exact: the same bytes as the integer formulas
// in 32 bits.
#pragma once

#include "lumachroma/yuv_coeffs.h"
#include "simd/layout.h"
#include "simd/weights.h"

namespace zorcc::ZORCC_TIER
{
namespace
{

// Signed 16-bit differences of chroma to bytes around 128: a block's eight from `lo`, then eight from `hi`.
ZORCC_INLINE u8v packAround128(s16v lo, s16v hi) { return (u8v)packSigned(lo, hi) ^ fill8(0x80); }

// The upper bytes of 8.8 fixed point.
ZORCC_INLINE u8v packWhole(u16v lo, u16v hi) { return packUnsigned((s16v)(lo >> 8), (s16v)(hi >> 8)); }

// The lower byte of every pair.
ZORCC_INLINE s16v firstOfPairs(u8v pairs) { return (s16v)pairs & 0xff; }

// ---- RGB to YUV -----------------------------------------------------------------------------------------------------

constexpr Weights yuvLuma = {yuv::lumaR, yuv::lumaG, yuv::lumaB};
constexpr Weights yuvLuma14 = {4 * yuv::lumaR14, 4 * yuv::lumaG14, 4 * yuv::lumaB14};

// 4:4:4 by colour differences. With s the weighted sum, Y = s >> 16, and the difference to B is
// ((B << 16) - s + 32767) >> 16 = B - ((s + 32768) >> 16): B less the rounded luma; likewise to R. 8.8 fixed point
// holds both lumas, as 32768 is a multiple of its unit.
struct RgbToYuv {
    Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Half lo = half(zipLow(r, g), zipLow(b, g)), hi = half(zipHigh(r, g), zipHigh(b, g));
        return {{{packWhole(lo.y, hi.y), packAround128(lo.u, hi.u), packAround128(lo.v, hi.v)}}};
    }

private:
    struct Half {
        u16v y; // 8.8 fixed point
        s16v u, v;
    };

    ZORCC_INLINE Half half(u8v rg, u8v bg)
    {
        const u16v y = weigh<yuvLuma>(rg, bg);
        const s16v rounded = (s16v)((y + 128) >> 8);
        return {y, scale<yuv::uPerDifference>(firstOfPairs(bg) - rounded),
                scale<yuv::vPerDifference>(firstOfPairs(rg) - rounded)};
    }
};

// 4:4:4 by a matrix. The first whole blocks of a row (blockLuma) round each term of luma down to 1/256 before they are
// added; the remaining pixels round the sum alone.
template <bool blockLuma> struct RgbPlanesToYuv {
    static constexpr int blockPixels = 16;

    Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const u8v rgLo = zipLow(r, g), bgLo = zipLow(b, g), rgHi = zipHigh(r, g), bgHi = zipHigh(b, g);
        return {{{packWhole(luma(rgLo, bgLo), luma(rgHi, bgHi)), chroma<u>(rgLo, bgLo, rgHi, bgHi),
                  chroma<v>(rgLo, bgLo, rgHi, bgHi)}}};
    }

private:
    static constexpr Weights y = {yuv::lumaR, yuv::planarLumaG, yuv::lumaB};
    static constexpr Weights u = {yuv::uR, yuv::uG, yuv::uB}, v = {yuv::vR, yuv::vG, yuv::vB}; // 1/32768

    ZORCC_INLINE u16v luma(u8v rg, u8v bg)
    {
        if constexpr (blockLuma) // a sample times 256, times its weight, / 65536; at most 65279 together
            return mulHigh((u16v)rg << 8, (u16v)fill16(y.r)) + mulHigh((u16v)rg & 0xff00, (u16v)fill16(y.g)) +
                   mulHigh((u16v)bg << 8, (u16v)fill16(y.b));
        else
            return weigh<y>(rg, bg);
    }

    template <Weights w> ZORCC_INLINE u8v chroma(u8v rgLo, u8v bgLo, u8v rgHi, u8v bgHi)
    {
        return packAround128((s16v)weigh<w>(rgLo, bgLo) >> 7, (s16v)weigh<w>(rgHi, bgHi) >> 7);
    }
};

// How chroma follows from the sums over the pixels that share it. With S the weighted sum (in 1/65536) and C the luma
// (S + bias) >> 16, U is (sum of B - C) * u >> (16 + shift), and V from R likewise.
struct SharedChroma {
    Weights luma;
    int bias, u, v, shift;
};

// ((B << 16) - S + 65535) >> 16 = B - (S >> 16), with B the sum over a pair.
constexpr SharedChroma yuvOfPair = {yuvLuma, 0, yuv::uPerDifference, yuv::vPerDifference, 1};

// ((B << 16) - S + 131071) >> 16 = B - ((S - 65536) >> 16), with B the sum over four pixels.
constexpr SharedChroma yuvOfBlock = {yuvLuma, -65536, yuv::uPerDifference, yuv::vPerDifference, 2};

// ((B << 14) - S) >> 14 = B - ((S + 16383) >> 14), in 1/16384; four times that is a multiple of 4, so 65535 will do.
constexpr SharedChroma yuvOfBlock14 = {yuvLuma14, 65535, yuv::uPerFourDifferences, yuv::vPerFourDifferences, 0};

// 4:2:2 (one row) and 4:2:0 (two rows).
template <int rows, SharedChroma shared> struct RgbToSubsampledYuv {
    Subsampled<rows> operator()(const Pixels<3, rows>& rgb) const
    {
        Subsampled<rows> out;
        s16v sum[3] = {};
        for (int row = 0; row < rows; ++row) {
            const auto [r, g, b] = rgb.c[row];
            out.y[row] = packWhole(weigh<shared.luma>(zipLow(r, g), zipLow(b, g)),
                                   weigh<shared.luma>(zipHigh(r, g), zipHigh(b, g)));
            for (int c = 0; c < 3; ++c) sum[c] += mulAddPairs(rgb.c[row][c], fillPair8(1, 1));
        }
        const s16v c = lumaOfSums(sum[0], sum[1], sum[2]);
        out.chroma =
            packAround128(scale<shared.u>(sum[2] - c) >> shared.shift, scale<shared.v>(sum[0] - c) >> shared.shift);
        return out;
    }

private:
    // G is taken out of the sum, because its weight does not fit 16 bits: S = 65536 G + rest.
    ZORCC_INLINE s16v lumaOfSums(s16v r, s16v g, s16v b)
    {
        return packSigned(rest(zipLow(r, g), zipLow(b, g)) >> 16, rest(zipHigh(r, g), zipHigh(b, g)) >> 16) + g;
    }

    ZORCC_INLINE s32v rest(s16v rg, s16v bg)
    {
        const s32v withB = mulAddPairs(fill32(shared.bias), bg, fillPair16(shared.luma.b, 0));
        return mulAddPairs(withB, rg, fillPair16(shared.luma.r, shared.luma.g - 65536));
    }
};

// ---- YUV to RGB -----------------------------------------------------------------------------------------------------

// Luma enters as Y << 16, so that a channel is Y plus the floor of its chroma products: those alone are scaled. Rounded
// adds a half before the floor.
template <yuv::Inverse k, bool rounded = false> struct YuvToRgb {
    Pixels<3> operator()(const Pixels<3>& yuv) const
    {
        const auto [y, u, v] = yuv.c[0];
        const Offsets lo = offsets(zipLow(u, v)), hi = offsets(zipHigh(u, v));
        const s16v yLo = (s16v)zipLow(y, u8v{}), yHi = (s16v)zipHigh(y, u8v{});
        Pixels<3> rgb;
        for (int c = 0; c < 3; ++c) rgb.c[0][c] = packUnsigned(yLo + lo.c[c], yHi + hi.c[c]);
        return rgb;
    }

    // Offsets are formed once for a pair of columns and applied to the bytes of luma as what is to be added and what is
    // to be taken away, one of them being 0. That they saturate at 255 makes no difference to the saturated result.
    template <int rows> Pixels<3, rows> operator()(const Subsampled<rows>& yuv) const
    {
        const Offsets pair = offsets(zipHalves(yuv.chroma));
        Pixels<3, rows> rgb;
        for (int c = 0; c < 3; ++c) {
            const u8v both = packUnsigned(pair.c[c], -pair.c[c]);
            const u8v more = zipLow(both, both), less = zipHigh(both, both);
            for (int row = 0; row < rows; ++row) rgb.c[row][c] = subSaturate(addSaturate(yuv.y[row], more), less);
        }
        return rgb;
    }

private:
    struct Offsets {
        s16v c[3];
    };

    // From zipped bytes (U, V).
    ZORCC_INLINE Offsets offsets(u8v uv)
    {
        const s16v u = firstOfPairs(uv) - 128, v = (s16v)((u16v)uv >> 8) - 128;
        if constexpr (rounded) return {{scaleRounded<k.rV>(v), greenOffset(uv) - v, scaleRounded<k.bU>(u)}};
        return {{scale<k.rV>(v), greenOffset(uv) - v, scale<k.bU>(u)}};
    }

    // floor((-gU u - gV v [+ 32768]) / 65536) + v: the weight of v is brought into 16 bits by a whole v. As in weigh,
    // but with a constant: 256 H + L, from the bytes U = u + 128 and V = v + 128.
    ZORCC_INLINE s16v greenOffset(u8v uv)
    {
        constexpr int ku = -k.gU, kv = 65536 - k.gV;
        constexpr int constant = -128 * (ku + kv) + (rounded ? 32768 : 0);
        constexpr int high = constant >> 8, low = constant & 0xff;
        static_assert(fits8(highPart(ku)) && fits8(highPart(kv)));
        static_assert(sumFits16(highPart(ku), highPart(kv)) && sumFits16(lowPart(ku), lowPart(kv), 1)); // low < 256
        const s16v sumHigh = mulAddPairs(uv, fillPair8(highPart(ku), highPart(kv))) + fill16(high);
        const s16v sumLow = mulAddPairs(uv, fillPair8(lowPart(ku), lowPart(kv))) + fill16(low);
        return (sumHigh + (sumLow >> 8)) >> 8;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
