// SPDX-License-Identifier: MIT
// HLS (the double hexcone of hue, lightness and saturation) from RGB and back. Single precision, every operation in the
// order in which the model defines it, every division exact: integer results are the truncated floats.
#pragma once

#include "colormodels/common/hexcone.h"
#include "colormodels/common/ranges.h"
#include "pixels/float_pipeline.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- from RGB -------------------------------------------------------------------------------------------------------

// Half of the sum of the largest and the smallest channel, rounded down.
template <class Sample> ZORCC_INLINE Vec<Sample> lightnessOf(const Hexcone<Sample>& cone)
{
    return ~averageUp(~cone.largest, ~cone.smallest);
}

// What chroma is divided by for the saturation: the sum of the two, or what is missing to twice the greatest sample
// where that is less.
template <class Sample> ZORCC_INLINE Vec<Sample> divisorOf(const Hexcone<Sample>& cone)
{
    return min(addSaturate(cone.largest, cone.smallest), addSaturate(~cone.largest, ~cone.smallest));
}

// By sextant, in degrees: where it begins, from which the hue goes up, or ends, from which it goes down; less than zero
// for these, so that the size of the sum is the hue.
constexpr float hueFrom[] = {0, -120, 120, -240, 240, -360};
constexpr Table<float> hueFromByOrder = bySextant(hueFrom);

// `rise60` is 60 times what the middle channel rises above the smallest.
template <class F> constexpr F degrees(F rise60, F chroma, F from) { return abs(rise60 / chroma + from); }

// From RGB of unsigned integers.
template <class Sample> struct RgbToHls {
    using V = Vec<Sample>;

    struct Prepared {
        V lightness, chroma;
        V divisor; // of the saturation
        V rise;    // the middle channel above the smallest
        V order;
    };

    [[gnu::always_inline]] Prepared prepare(const Samples<Sample>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<Sample> cone(r, g, b);
        return {lightnessOf(cone), cone.chroma, divisorOf(cone), cone.middle - cone.smallest, cone.order};
    }

    [[gnu::always_inline]] Samples<Sample> operator()(const Prepared& of) const
    {
        const V one = V{} + 1;
        const auto formula = [](f32v chroma, f32v divisor, f32v rise, f32v from) __attribute__((always_inline))
        {
            using R = Range<Sample>;
            return Integers<2>{
                {truncate(degrees(rise * 60, chroma, from) * R::fromDegrees), truncate(chroma / divisor * R::max)}};
        };
        const auto [hue, saturation] = throughFloats<Sample>(formula, max(of.chroma, one), max(of.divisor, one),
                                                             of.rise, lookUp(hueFromByOrder, of.order))
                                           .c[0];
        return {{{hue, of.lightness, saturation & ~(V)(of.chroma == 0)}}};
    }
};

#if defined(ZORCC_TIER_avx512)
template <> struct RgbToHls<uint8_t> {
    struct Prepared {
        Hexcone<uint8_t> cone;
        u8v lightness, divisor;
    };

    [[gnu::always_inline]] Prepared prepare(const Samples<uint8_t>& rgb) const
    {
        const Hexcone<uint8_t> cone(rgb.c[0][0], rgb.c[0][1], rgb.c[0][2]);
        return {cone, lightnessOf(cone), divisorOf(cone)};
    }

    [[gnu::always_inline]] Samples<uint8_t> operator()(const Prepared& of) const
    {
        return {{{hueOf(of.cone, fallsShort), of.lightness, ratio(of.cone.chroma, of.divisor)}}};
    }

private:
    static constexpr FallsShort fallsShort{[](int sextant, float v, float chroma) {
        const float rise = sextant % 2 ? chroma - v : v;
        return degrees(60 * rise, chroma, hueFrom[sextant]) * Range<uint8_t>::fromDegrees;
    }};
};
#endif

template <> struct RgbToHls<float> {
    struct Prepared {
        f32v lightness, chroma;
        f32v divisor; // of the saturation: the sum up to a lightness of 1/2
        f32v rise60;  // 60 times what the middle channel rises above the smallest
        f32v from;
    };

    [[gnu::always_inline]] Prepared prepare(const Samples<float>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<float> cone(r, g, b);
        const f32v sum = cone.largest + cone.smallest;
        return {sum * 0.5f, cone.chroma, min(sum, 2 - sum), (cone.middle - cone.smallest) * 60,
                lookUp(hueFromByOrder, cone.order)};
    }

    [[gnu::always_inline]] Samples<float> operator()(const Prepared& of) const
    {
        const f32v hue = degrees(of.rise60, of.chroma, of.from), none = {};
        const s32v coloured = of.chroma > 1.1920929e-7f;
        return {{{divideBy<360>(coloured ? hue : none), of.lightness, coloured ? of.chroma / of.divisor : none}}};
    }
};

template <> struct RgbToHls<int16_t> : SignedSamples<RgbToHls> {
};

// ---- to RGB: at any hue one channel is high, one low, and one rises or falls ----------------------------------------

// A channel by its angle, how far the hue is from where the channel starts to rise: it rises over the first 60 degrees,
// is high up to 180, falls to 240, and is low from there. With a saturation of 0, high and low are the lightness.
struct HighAndLow {
    f32v high, low, difference;

    // Lightness and saturation in 0..1.
    [[gnu::always_inline]] HighAndLow(f32v l, f32v s)
    {
        high = l <= 0.5f ? l * (1 + s) : l + s - l * s;
        low = 2 * l - high;
        difference = high - low;
    }

    // `slope` degrees from where the channel is low.
    template <bool divides> f32v between(f32v slope) const
    {
        const f32v step = difference * slope;
        return low + (divides ? divideBy<60>(step) : step * 0.016666668f);
    }
};

// To RGB of unsigned integers.
template <class Sample> struct HlsToRgb {
    using V = Vec<Sample>;

    [[gnu::always_inline]] Samples<Sample> operator()(const Samples<Sample>& hls) const
    {
        const V h = hls.c[0][0], l = hls.c[0][1], s = hls.c[0][2];
        const V sextant = sextantOf(h);
        // The angle of the channel that rises or falls is the hue plus `turn`, and a whole turn less in the sextant
        // before the last; it rises from 0, or falls to 240.
        const auto turn = lookUp(Table<float>{{0, 120, -120, 0, 120, -120}}, sextant);
        const auto end = lookUp(Table<float>{{0, 240, 0, 240, 360, 240}}, sextant);
        const auto formula =
            [](f32v hue, f32v lightness, f32v saturation, f32v turnOfHue, f32v endOfRamp) __attribute__((always_inline))
        {
            using R = Range<Sample>;
            const HighAndLow range(lightness * R::toUnit, saturation * R::toUnit);
            const f32v angle = hue * R::toDegrees + turnOfHue;
            const f32v channel = range.between<sizeof(Sample) == 2>(abs(angle - endOfRamp));
            return Integers<3>{
                {truncate(range.high * R::max), truncate(channel * R::max), truncate(range.low * R::max)}};
        };
        const auto [high, middle, low] = throughFloats<Sample>(formula, h, l, s, turn, end).c[0];
        const V grey = (V)(s == 0);
        return fromHexcone<Sample>(sextant, grey ? l : high, grey ? l : middle, grey ? l : low);
    }

private:
    // Sixths of the range, by products with 6 that are raised so that no hue beyond a border falls short of it. On the
    // border between two sextants either will do: there the channel is low or high in both.
    static u8v sextantOf(u8v hue)
    {
        const u8v one = fill8(1);
        const s8v sixthsAndBias = fillPair8(6, 2);
        return packUnsigned((s16v)((u16v)mulAddPairs(zipLow(hue, one), sixthsAndBias) >> 8),
                            (s16v)((u16v)mulAddPairs(zipHigh(hue, one), sixthsAndBias) >> 8));
    }
    static u16v sextantOf(u16v hue) { return mulHigh(addSaturate(hue, hue >> 15), u16v{} + 6); }
};

template <> struct HlsToRgb<float> {
    struct Prepared {
        HighAndLow range;
        f32v slope[3]; // how far a channel's angle is from where it is low: 0..60 on the ramps, less or more beyond
    };

    [[gnu::always_inline]] Prepared prepare(const Samples<float>& hls) const
    {
        const f32v h = hls.c[0][0] * 360, red = h + 120, blue = h - 120;
        return {{hls.c[0][1], hls.c[0][2]}, {max(red - 360, 240 - red), min(h, 240 - h), min(blue, 240 - blue)}};
    }

    // Where a channel begins to fall it is high, not low plus all of the difference, which may be off by a digit.
    [[gnu::always_inline]] Samples<float> operator()(const Prepared& of) const
    {
        Samples<float> rgb;
        for (int c = 0; c < 3; ++c)
            rgb.c[0][c] = select(of.slope[c] >= 60, of.range.high, of.range.between<false>(max(of.slope[c], f32v{})));
        return rgb;
    }
};

template <> struct HlsToRgb<int16_t> : SignedSamples<HlsToRgb> {
};

} // namespace
} // namespace zorcc::ZORCC_TIER
