// SPDX-License-Identifier: MIT
// HLS (the double hexcone of hue, lightness and saturation) from RGB and back. Single precision, every operation in the
// order in which the model defines it, every division exact: integer results are the truncated floats.
#pragma once

#include "colormodels/hexcone.h"
#include "colormodels/ranges.h"

namespace zorcc::ZORCC_TIER {
namespace {

// From RGB of unsigned integers.
template <class Sample> struct RgbToHls {
    using V = Vec<Sample>;

    Samples<Sample> operator()(const Samples<Sample>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<Sample> cone(r, g, b);
        const V most = cone.most, least = cone.least, one = V{} + 1;
        // Half of the sum, rounded down; the sum, or what is missing to twice the greatest sample where that is less.
        const V lightness = ~averageUp(~most, ~least);
        const V divisor = minimum(addSaturate(most, least), addSaturate(~most, ~least));

        const auto chroma = toFloat(widen(maximum(cone.chroma, one))), limit = toFloat(widen(maximum(divisor, one)));
        // The difference of the channels other than the largest, less than zero in odd sextants, and degrees where the
        // largest channel's third has its middle: 360 for red where the sum would get negative.
        const V odd = lookUp(oddByOrder, cone.order);
        const auto difference = scaleDifference<60>(((cone.middle - cone.least) ^ odd) - odd, odd);
        const auto middle = lookUp(bySextant<float>(0, 120, 120, 240, 240, 360), cone.order);
        Widened<partsOf<Sample>> h, s;
        for (int p = 0; p < partsOf<Sample>; ++p) {
            const f32v d = chroma.part[p];
            h.part[p] = truncate((difference.part[p] / d + middle.part[p]) * Range<Sample>::fromDegrees);
            s.part[p] = truncate(d / limit.part[p] * Range<Sample>::most);
        }
        const V grey = (V)(cone.chroma == 0);
        return {{{narrow<Sample>(h) & ~grey, lightness, narrow<Sample>(s) & ~grey}}};
    }
};

template <> struct RgbToHls<float> {
    Samples<float> operator()(const Samples<float>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const f32v most = maximum(maximum(r, g), b), least = minimum(minimum(r, g), b);
        const f32v d = most - least, sum = most + least;
        const f32v lightness = sum * 0.5f;
        const s32v coloured = d > 1.1920929e-7f;
        const f32v s = d / minimum(sum, 2 - sum); // the first up to a lightness of 1/2
        const f32v difference = most == r ? g - b : most == g ? b - r : r - g;
        const f32v base = most == r ? f32v{} : most == g ? fillFloat(120) : fillFloat(240);
        const f32v h = difference * 60 / d + base;
        const f32v hue = (h < 0 ? h + 360 : h) / 360;
        return {{{(f32v)((s32v)hue & coloured), lightness, (f32v)((s32v)s & coloured)}}};
    }
};

template <class Sample> struct HlsToRgb {
    using V = Vec<Sample>;
    static constexpr bool isFloat = sizeof(Sample) == 4;

    Samples<Sample> operator()(const Samples<Sample>& hls) const
    {
        const auto [h, l, s] = hls.c[0];
        if constexpr (isFloat) {
            const Rgb rgb = convert(h * 360, l, s);
            return {{{rgb.c[0], rgb.c[1], rgb.c[2]}}};
        } else {
            using R = Range<Sample>;
            const auto hue = widen(h), lightness = widen(l), saturation = widen(s);
            Widened<partsOf<Sample>> c[3];
            for (int p = 0; p < partsOf<Sample>; ++p) {
                const Rgb rgb = convert(toFloat(hue.part[p]) * R::toDegrees, toFloat(lightness.part[p]) * R::toUnit,
                                        toFloat(saturation.part[p]) * R::toUnit);
                for (int i = 0; i < 3; ++i) c[i].part[p] = truncate(rgb.c[i] * R::most);
            }
            const V grey = (V)(s == 0);
            Samples<Sample> rgb;
            for (int i = 0; i < 3; ++i) rgb.c[0][i] = grey ? l : narrow<Sample>(c[i]);
            return rgb;
        }
    }

private:
    struct Rgb {
        f32v c[3];
    };

    // Hue in degrees, lightness, saturation and the result in 0..1. Grey needs no choice here: with s = 0 high and low
    // are l.
    ZORCC_INLINE Rgb convert(f32v h, f32v l, f32v s)
    {
        const f32v high = l <= 0.5f ? l * (1 + s) : l + s - l * s;
        const f32v low = 2 * l - high;
        const f32v red = h + 120, blue = h - 120;
        return {{channel(red > 360 ? red - 360 : red, low, high), channel(h, low, high),
                 channel(blue < 0 ? blue + 360 : blue, low, high)}};
    }

    // A channel by how far the hue is from where it starts to rise: it rises over the first 60 degrees, is high up to
    // 180, falls to 240, and is low from there.
    ZORCC_INLINE f32v channel(f32v angle, f32v low, f32v high)
    {
        const f32v slope = maximum(minimum(angle, 240 - angle), f32v{});
        const f32v step = (high - low) * slope;
        const f32v ramp = low + (sizeof(Sample) == 2 ? step / 60 : step * 0.016666668f);
        return select((angle >= 60) & (angle < 180), high, ramp);
    }
};

// 16-bit signed samples by the formula of unsigned ones.
template <class Formula> struct SignedSamples {
    Samples<int16_t> operator()(const Samples<int16_t>& from) const
    {
        Samples<uint16_t> in;
        for (int c = 0; c < 3; ++c) in.c[0][c] = (u16v)from.c[0][c] ^ 0x8000;
        const Samples<uint16_t> out = Formula{}(in);
        Samples<int16_t> to;
        for (int c = 0; c < 3; ++c) to.c[0][c] = (s16v)(out.c[0][c] ^ 0x8000);
        return to;
    }
};
template <> struct RgbToHls<int16_t> : SignedSamples<RgbToHls<uint16_t>> {
};
template <> struct HlsToRgb<int16_t> : SignedSamples<HlsToRgb<uint16_t>> {
};

} // namespace
} // namespace zorcc::ZORCC_TIER
