// SPDX-License-Identifier: MIT
// PhotoYCC from RGB and back: luma of BT.601, scaled down by 0.7132668, and two colour differences around 156 and 137
// of 255. Words and floats in single precision; bytes in fixed point, rounded down, the same as the sums in 32 bits.
#pragma once

#include "colormodels/common/matrix.h"
#include "lumachroma/common/ycc_to_rgb.h"
#include "pixels/byte_pairs.h"

namespace zorcc::photoycc {

inline constexpr MatrixRow luma = {0.299f, 0.587f, 0.114f};

// Of words: luma and the second difference are written out by their weights.
inline constexpr MatrixRow scaledLuma = {0.213267f, 0.418688f, 0.0813124f},
                           redLessLuma = {0.372876f, -0.312237f, -0.0606389f};
inline constexpr float middleOfWords[] = {40092, 35209};

// Of bytes: luma in units of 1/16384, here times 4; the scales of 16 times luma and differences, in units of 1/65536.
inline constexpr Weights byteLuma = {4 * 4898, 4 * 9617, 4 * 1867};
inline constexpr int lumaScale = 2921, blueScale = 1789, redScale = 2178;

// Back: 1.3584, 1.8215 and 2.2179 in units of 1/4096, here times 8. G has two differences of its own.
inline constexpr int toLuma = 8 * 5564, toRed = 8 * 7460, toBlue = 8 * 9084;
inline constexpr int redConstant = -8 * 1022020, blueConstant = -8 * 1417104;

} // namespace zorcc::photoycc

namespace zorcc::ZORCC_TIER {
namespace {

// ---- from RGB -------------------------------------------------------------------------------------------------------

template <class Sample> struct RgbToPhotoYcc;

template <> struct RgbToPhotoYcc<float> {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& rgb) const
    {
        const f32v r = rgb.c[0][0], b = rgb.c[0][2], luma = weighted(photoycc::luma, rgb);
        return {{{luma * 0.7132668f, (b - luma) * 0.4368627f + 0.6117647f, (r - luma) * 0.53192f + 0.5372549f}}};
    }
};

struct RgbWordsToPhotoYcc {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& rgb) const
    {
        using namespace photoycc;
        return {{{weighted(scaledLuma, rgb), (rgb.c[0][2] - weighted(luma, rgb)) * 0.4368627f + middleOfWords[0],
                  weighted(redLessLuma, rgb) + middleOfWords[1]}}};
    }
};

struct RoundedBelowHalf {
    ZORCC_INLINE s32v of(f32v v) { return truncate(v + 0.49999f); }
};

template <> struct RgbToPhotoYcc<uint16_t> : OnIntegers<uint16_t, RgbWordsToPhotoYcc, RoundedBelowHalf> {
};
template <> struct RgbToPhotoYcc<int16_t> : SignedSamples<RgbToPhotoYcc> {
};

// A difference is ((B << 14) - s) >> 10 = 16 B - ((s + 1023) >> 10), s being luma in units of 1/16384.
template <> struct RgbToPhotoYcc<uint8_t> {
    [[gnu::always_inline]] Pixels<3> operator()(const RgbBytes<1> auto& rgb) const
    {
        const RgbPairs<1> pairs = inPairs(rgb);
        const Half lo = half(pairs.rg[0][0], pairs.bg[0][0]), hi = half(pairs.rg[0][1], pairs.bg[0][1]);
        Pixels<3> ycc;
        for (int c = 0; c < 3; ++c) ycc.c[0][c] = packUnsigned(lo.c[c], hi.c[c]);
        return ycc;
    }

private:
    using Half = WideRgb;

    ZORCC_INLINE Half half(u8v rg, u8v bg)
    {
        using namespace photoycc;
        const u16v luma = weigh<byteLuma>(rg, bg) >> 4;
        const s16v up = (s16v)(weigh<byteLuma, 4 * 1023>(rg, bg) >> 4);
        return {{(s16v)mulHigh(luma, (u16v)fill16(lumaScale)),
                 mulHigh((firstOfPairs(bg) << 4) - up, fill16(blueScale)) + 156,
                 mulHigh((firstOfPairs(rg) << 4) - up, fill16(redScale)) + 137}};
    }
};

// ---- to RGB ---------------------------------------------------------------------------------------------------------

struct PhotoYccFloatsToRgb {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& ycc) const
    {
        const f32v y = ycc.c[0][0] * 1.3584f, c1 = (ycc.c[0][1] - 0.6117647f) * 2.2179f,
                   c2 = (ycc.c[0][2] - 0.5372549f) * 1.8215f;
        return {{{y + c2, y - c1 * 0.194f - c2 * 0.509f, y + c1}}};
    }
};

struct PhotoYccWordsToRgb {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& ycc) const
    {
        const f32v y = ycc.c[0][0] * 1.3584f, c1 = ycc.c[0][1] - photoycc::middleOfWords[0],
                   c2 = ycc.c[0][2] - photoycc::middleOfWords[1];
        return {{{y + c2 * 1.8215f, y - c1 * 0.4302726f - c2 * 0.92714345f, y + c1 * 2.2179f}}};
    }
};

template <class Sample> struct PhotoYccToRgb;
template <> struct PhotoYccToRgb<float> : WithinUnit<PhotoYccFloatsToRgb> {
};
template <> struct PhotoYccToRgb<uint16_t> : OnIntegers<uint16_t, PhotoYccWordsToRgb, RoundedBelowHalf> {
};
template <> struct PhotoYccToRgb<int16_t> : SignedSamples<PhotoYccToRgb> {
};

// R and B as from any luma and chroma. G is (89024 Y - 794 p - 2084 q) >> 16, where p and q are what B and R take of
// chroma, shifted down by 8: whole luma is added in 16 bits, the rest is formed in 32.
template <> struct PhotoYccToRgb<uint8_t> {
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& ycc) const
    {
        const auto [y, c1, c2] = ycc.c[0];
        const WideRgb lo = channels(zipLow(y, c2), zipLow(y, c1), zipLow(c1, c2));
        const WideRgb hi = channels(zipHigh(y, c2), zipHigh(y, c1), zipHigh(c1, c2));
        Pixels<3> rgb;
        for (int c = 0; c < 3; ++c) rgb.c[0][c] = packUnsigned(lo.c[c], hi.c[c]);
        return rgb;
    }

private:
    static constexpr int lumaRest = photoycc::toLuma - 32768;

    ZORCC_INLINE WideRgb channels(u8v y2, u8v y1, u8v c12)
    {
        using namespace photoycc;
        const s16v y = firstOfPairs(y2), none = {};
        const s16v p = weighPair<toBlue / 8, 0, blueConstant / 8>(c12),
                   q = weighPair<0, toRed / 8, redConstant / 8>(c12);
        const s16v greenLessLuma =
            packSigned(green(zipLow(p, q), zipLow(y, none)), green(zipHigh(p, q), zipHigh(y, none)));
        return {{fromOneChroma<lumaRest, toRed, redConstant, 15>(y2), y + greenLessLuma,
                 fromOneChroma<lumaRest, toBlue, blueConstant, 15>(y1)}};
    }

    ZORCC_INLINE s32v green(s16v pq, s16v y)
    {
        return mulAddPairs(mulAddPairs(pq, fillPair16(-794, -2084)), y, fillPair16(2 * lumaRest, 0)) >> 16;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
