// SPDX-License-Identifier: MIT
// HLS (the double hexcone of hue, lightness and saturation) from RGB. Single precision, every operation in the order in
// which the model defines it, every division exact: integer results are the truncated floats.
#pragma once

#include "colormodels/byte_hexcone.h"
#include "colormodels/hexcone.h"
#include "colormodels/ranges.h"
#include "colormodels/signed_samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Half of the sum of the largest and the least channel, rounded down.
template <class Sample> ZORCC_INLINE Vec<Sample> lightnessOf(const Hexcone<Sample>& cone)
{
    return ~averageUp(~cone.most, ~cone.least);
}

// What chroma is divided by for the saturation: the sum of the two, or what is missing to twice the greatest sample
// where that is less.
template <class Sample> ZORCC_INLINE Vec<Sample> divisorOf(const Hexcone<Sample>& cone)
{
    return minimum(addSaturate(cone.most, cone.least), addSaturate(~cone.most, ~cone.least));
}

// By sextant, in degrees: where it begins, from which the hue goes up, or ends, from which it goes down; less than zero
// for these, so that the size of the sum is the hue.
constexpr float hueFrom[] = {0, -120, 120, -240, 240, -360};
constexpr Table<float> hueFromByOrder = bySextant(hueFrom);

// Of 60 times what the middle channel rises above the least.
template <class F> constexpr F degrees(F rise60, F chroma, F from) { return absolute(rise60 / chroma + from); }

// From RGB of unsigned integers.
template <class Sample> struct RgbToHls {
    using V = Vec<Sample>;

    struct Prepared {
        V lightness, chroma;
        V divisor; // of the saturation
        V rise;    // the middle channel above the least
        V order;
    };

    Prepared prepare(const Samples<Sample>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<Sample> cone(r, g, b);
        return {lightnessOf(cone), cone.chroma, divisorOf(cone), cone.middle - cone.least, cone.order};
    }

    Samples<Sample> operator()(const Prepared& of) const
    {
        const V one = V{} + 1;
        const auto chroma = toFloat(widen(maximum(of.chroma, one))), limit = toFloat(widen(maximum(of.divisor, one)));
        const auto rise = toFloat(widen(of.rise)), from = lookUp(hueFromByOrder, of.order);
        Widened<partsOf<Sample>> h, s;
        for (int p = 0; p < partsOf<Sample>; ++p) {
            const f32v d = chroma.part[p];
            h.part[p] = truncate(degrees(rise.part[p] * 60, d, from.part[p]) * Range<Sample>::fromDegrees);
            s.part[p] = truncate(d / limit.part[p] * Range<Sample>::most);
        }
        return {{{narrow<Sample>(h), of.lightness, narrow<Sample>(s) & ~(V)(of.chroma == 0)}}};
    }
};

#if defined(ZORCC_TIER_avx512)
template <> struct RgbToHls<uint8_t> {
    struct Prepared {
        Hexcone<uint8_t> cone;
        u8v lightness, divisor;
    };

    Prepared prepare(const Samples<uint8_t>& rgb) const
    {
        const Hexcone<uint8_t> cone(rgb.c[0][0], rgb.c[0][1], rgb.c[0][2]);
        return {cone, lightnessOf(cone), divisorOf(cone)};
    }

    Samples<uint8_t> operator()(const Prepared& of) const
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
        f32v rise60;  // 60 times what the middle channel rises above the least
        f32v from;
    };

    Prepared prepare(const Samples<float>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<float> cone(r, g, b);
        const f32v sum = cone.most + cone.least;
        return {sum * 0.5f, cone.chroma, minimum(sum, 2 - sum), (cone.middle - cone.least) * 60,
                lookUp(hueFromByOrder, cone.order)};
    }

    Samples<float> operator()(const Prepared& of) const
    {
        const f32v hue = degrees(of.rise60, of.chroma, of.from), none = {};
        const s32v coloured = of.chroma > 1.1920929e-7f;
        return {{{divideBy<360>(coloured ? hue : none), of.lightness, coloured ? of.chroma / of.divisor : none}}};
    }
};

template <> struct RgbToHls<int16_t> : SignedSamples<RgbToHls> {
};

} // namespace
} // namespace zorcc::ZORCC_TIER
