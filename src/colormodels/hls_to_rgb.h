// SPDX-License-Identifier: MIT
// RGB from HLS, in single precision and the model's order of operations: integer results are the truncated floats. At
// any hue one channel is high, one low, and one rises or falls.
#pragma once

#include "colormodels/hexcone.h"
#include "colormodels/ranges.h"
#include "colormodels/signed_samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

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

    Samples<Sample> operator()(const Samples<Sample>& hls) const
    {
        using R = Range<Sample>;
        const V h = hls.c[0][0], l = hls.c[0][1], s = hls.c[0][2];
        const V sextant = sextantOf(h);
        // The angle of the channel that rises or falls is the hue plus `turn`, and a whole turn less in the sextant
        // before the last; it rises from 0, or falls to 240.
        const auto turn = lookUp(Table<float>{{0, 120, -120, 0, 120, -120}}, sextant);
        const auto end = lookUp(Table<float>{{0, 240, 0, 240, 360, 240}}, sextant);
        const auto hue = widen(h), lightness = widen(l), saturation = widen(s);
        Widened<partsOf<Sample>> most, middle, least;
        for (int p = 0; p < partsOf<Sample>; ++p) {
            const HighAndLow range(toFloat(lightness.part[p]) * R::toUnit, toFloat(saturation.part[p]) * R::toUnit);
            const f32v angle = toFloat(hue.part[p]) * R::toDegrees + turn.part[p];
            const f32v channel = range.between<sizeof(Sample) == 2>(absolute(angle - end.part[p]));
            most.part[p] = truncate(range.high * R::most);
            middle.part[p] = truncate(channel * R::most);
            least.part[p] = truncate(range.low * R::most);
        }
        const V grey = (V)(s == 0);
        const auto unlessGrey = [&](const Widened<partsOf<Sample>>& v) { return grey ? l : narrow<Sample>(v); };
        return fromHexcone<Sample>(sextant, unlessGrey(most), unlessGrey(middle), unlessGrey(least));
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

    Prepared prepare(const Samples<float>& hls) const
    {
        const f32v h = hls.c[0][0] * 360, red = h + 120, blue = h - 120;
        return {{hls.c[0][1], hls.c[0][2]},
                {maximum(red - 360, 240 - red), minimum(h, 240 - h), minimum(blue, 240 - blue)}};
    }

    // Where a channel begins to fall it is high, not low plus all of the difference, which may be off by a digit.
    Samples<float> operator()(const Prepared& of) const
    {
        Samples<float> rgb;
        for (int c = 0; c < 3; ++c)
            rgb.c[0][c] =
                select(of.slope[c] >= 60, of.range.high, of.range.between<false>(maximum(of.slope[c], f32v{})));
        return rgb;
    }
};

template <> struct HlsToRgb<int16_t> : SignedSamples<HlsToRgb> {
};

} // namespace
} // namespace zorcc::ZORCC_TIER
