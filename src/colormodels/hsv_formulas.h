// SPDX-License-Identifier: MIT
// HSV (the hexcone of hue, saturation and value) from RGB and back, for unsigned integers. Single precision, every
// operation in the order in which the model defines it, every division exact.
#pragma once

#include "colormodels/common/hexcone.h"
#include "colormodels/common/ranges.h"
#include "pixels/float_pipeline.h"

namespace zorcc::ZORCC_TIER {
namespace {

enum class Conversion { truncating, rounding };

// Hue in sixths is 0, 2 or 4 by the largest channel, plus the distance of one of the others from it, less that of the
// other, in units of chroma. The greater distance is 1. With the other one, q, that is (1, 3 or 5) - q in even
// sextants, here the size of q less that, and ((0, 2 or 4) + q) - 1 in odd ones.
//
// The red hues of odd sextants are q - 1, below zero, plus 6. Truncated to bytes they are the same as those of 5 + q,
// raised by more than it is rounded by and less than any of these quotients lacks to the next byte. (Anything from
// 2^-21 to 2^-15 would do; the tests go through all colours.)
template <Conversion conversion> struct Sixths {
    static constexpr bool wraps = conversion == Conversion::rounding;
    static constexpr float start[6] = {-1, 2, -3, 4, -5, wraps ? 0 : 5}; // by sextant
    static constexpr float correction[6] = {0, -1, 0, -1, 0, wraps ? -1 : 0x1p-18f};

    template <class F> static constexpr F of(F q, F from, F more) { return abs(from + q) + more; }
};

template <class Sample, Conversion conversion> struct RgbToHsv {
    using V = Vec<Sample>;
    using Hue = Sixths<conversion>;

    struct Prepared {
        V value, chroma;
        V fall; // the middle channel below the largest
        V order;
    };

    [[gnu::always_inline]] Prepared prepare(const Samples<Sample>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<Sample> cone(r, g, b);
        return {cone.largest, cone.chroma, cone.largest - cone.middle, cone.order};
    }

    [[gnu::always_inline]] Samples<Sample> operator()(const Prepared& of) const
    {
        const auto formula =
            [](f32v chroma, f32v value, f32v fall, f32v start, f32v correction) __attribute__((always_inline))
        {
            using R = Range<Sample>;
            f32v hue = Hue::of(fall / chroma, start, correction) * R::sextant;
            if constexpr (Hue::wraps) hue = hue < 0 ? hue + R::max : hue;
            return Integers<2>{{convert(hue), convert(chroma / value * R::max)}};
        };
        const V one = V{} + 1;
        const auto start = lookUp(bySextant(Hue::start), of.order); // 0 for grey, whose distance is 0
        const auto correction = lookUp(bySextant(Hue::correction), of.order);
        const auto [hue, saturation] =
            throughFloats<Sample>(formula, max(of.chroma, one), max(of.value, one), of.fall, start, correction).c[0];
        return {{{hue, saturation & ~(V)(of.chroma == 0), of.value}}};
    }

private:
    ZORCC_INLINE s32v convert(f32v v) { return conversion == Conversion::truncating ? truncate(v) : roundToEven(v); }
};

#if defined(ZORCC_TIER_avx512)
template <> struct RgbToHsv<uint8_t, Conversion::truncating> {
    [[gnu::always_inline]] Hexcone<uint8_t> prepare(const Samples<uint8_t>& rgb) const
    {
        return {rgb.c[0][0], rgb.c[0][1], rgb.c[0][2]};
    }

    [[gnu::always_inline]] Samples<uint8_t> operator()(const Hexcone<uint8_t>& cone) const
    {
        return {{{hueOf(cone, fallsShort), ratio(cone.chroma, cone.largest), cone.largest}}};
    }

private:
    static constexpr FallsShort fallsShort{[](int sextant, float v, float chroma) {
        using Hue = Sixths<Conversion::truncating>;
        const float fall = sextant % 2 ? v : chroma - v;
        return Hue::of(fall / chroma, Hue::start[sextant], Hue::correction[sextant]) * Range<uint8_t>::sextant;
    }};
};
#endif

// Bytes are truncated in the whole blocks of a row and rounded after them; words are always rounded.
using RgbToHsvOfBytes = InBlocks<4, RgbToHsv<uint8_t, Conversion::truncating>, RgbToHsv<uint8_t, Conversion::rounding>>;
using RgbToHsvOfWords = RgbToHsv<uint16_t, Conversion::rounding>;

template <class Sample> struct HsvToRgb {
    using V = Vec<Sample>;

    [[gnu::always_inline]] Samples<Sample> operator()(const Samples<Sample>& hsv) const
    {
        const V h = hsv.c[0][0], s = hsv.c[0][1], v = hsv.c[0][2];
        const auto formula = [](f32v hue, f32v saturation, f32v value) __attribute__((always_inline))
        {
            using R = Range<Sample>;
            const f32v sixths = hue * R::toDegrees * 0.016666668f, unit = saturation * R::toUnit;
            const s32v sextant = truncate(sixths);
            const f32v low = value - value * unit, step = (sixths - toFloat(sextant)) * value * unit;
            return Integers<4>{{sextant, roundToEven(low), roundToEven(value - step), roundToEven(low + step)}};
        };
        const V full = V{} + static_cast<Sample>(Range<Sample>::max);
        const auto [sextant, low, falling, rising] = throughFloats<Sample>(formula, h & ~(V)(h == full), s, v).c[0];
        // The channel between rises in the even sextants and falls in the odd ones.
        return fromHexcone<Sample>(sextant, v, select(lookUp(oddSextants, sextant), falling, rising), low);
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
