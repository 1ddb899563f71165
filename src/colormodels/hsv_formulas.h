// SPDX-License-Identifier: MIT
// HSV (the hexcone of hue, saturation and value) from RGB and back, for unsigned integers. Single precision, every
// operation in the order in which the model defines it, every division exact.
#pragma once

#include "colormodels/hexcone.h"
#include "colormodels/ranges.h"

namespace zorcc::ZORCC_TIER {
namespace {

enum class Conversion { truncating, rounding };

template <class Sample, Conversion conversion> struct RgbToHsv {
    using V = Vec<Sample>;

    Samples<Sample> operator()(const Samples<Sample>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<Sample> cone(r, g, b);
        const V one = V{} + 1;
        const auto chroma = toFloat(widen(maximum(cone.chroma, one))), most = toFloat(widen(maximum(cone.most, one)));
        // Hue in sixths is 0, 2 or 4 by the largest channel, plus the distance of one of the others from it, less that
        // of the other, in units of chroma. The greater distance is 1. With the other one, q, that is (1, 3 or 5) - q
        // in even sextants, and ((0, 2 or 4) + q) - 1 in odd ones.
        const V fall = cone.most - cone.middle, even = ~lookUp(oddByOrder, cone.order);
        const auto distance = scaleDifference<1>((fall ^ even) - even, even & (V)(fall != 0));
        const auto start = lookUp(bySextant<float>(1, 2, 3, 4, 5, redRising), cone.order);
        const auto correction = lookUp(bySextant<float>(0, -1, 0, -1, 0, redCorrection), cone.order);
        Widened<partsOf<Sample>> h, s;
        for (int p = 0; p < partsOf<Sample>; ++p) {
            const f32v d = chroma.part[p];
            const f32v sixths = start.part[p] + distance.part[p] / d + correction.part[p];
            const f32v hue = sixths * Range<Sample>::sextant;
            if constexpr (wraps)
                h.part[p] = convert(hue < 0 ? hue + Range<Sample>::most : hue);
            else
                h.part[p] = convert(hue);
            s.part[p] = convert(d / most.part[p] * Range<Sample>::most);
        }
        const V grey = (V)(cone.chroma == 0);
        return {{{narrow<Sample>(h) & ~grey, narrow<Sample>(s) & ~grey, cone.most}}};
    }

private:
    // The red hues of odd sextants are q - 1, below zero, plus 6. Truncated to bytes they are the same as those of 5 +
    // q, raised by more than it is rounded by and less than any of these quotients lacks to the next byte. (Anything
    // from 2^-21 to 2^-15 would do; the tests go through all colours.)
    static constexpr bool wraps = conversion == Conversion::rounding;
    static constexpr float redRising = wraps ? 0 : 5, redCorrection = wraps ? -1 : 0x1p-18f;

    ZORCC_INLINE s32v convert(f32v v) { return conversion == Conversion::truncating ? truncate(v) : roundToEven(v); }
};

template <class Sample> struct HsvToRgb {
    using V = Vec<Sample>;

    Samples<Sample> operator()(const Samples<Sample>& hsv) const
    {
        using R = Range<Sample>;
        constexpr int parts = partsOf<Sample>;
        const V h = hsv.c[0][0], s = hsv.c[0][1], v = hsv.c[0][2];
        const V full = V{} + static_cast<Sample>(R::most);
        const auto hue = widen(h & ~(V)(h == full)), saturation = widen(s), value = widen(v);
        Widened<parts> sextant, low, falling, rising;
        for (int p = 0; p < parts; ++p) {
            const f32v sixths = toFloat(hue.part[p]) * R::toDegrees * 0.016666668f;
            const f32v unit = toFloat(saturation.part[p]) * R::toUnit, most = toFloat(value.part[p]);
            sextant.part[p] = truncate(sixths);
            const f32v f = sixths - toFloat(sextant.part[p]);
            const f32v least = most - most * unit, step = f * most * unit;
            low.part[p] = roundToEven(least);
            falling.part[p] = roundToEven(most - step);
            rising.part[p] = roundToEven(least + step);
        }
        // The channel between rises in the even sextants and falls in the odd ones. Every channel is never below the
        // lowest.
        const V i = narrow<Sample>(sextant), bottom = narrow<Sample>(low);
        const V middle = select(lookUp(oddSextants, i), narrow<Sample>(falling), narrow<Sample>(rising));
        const auto choose = [&](const Table<uint8_t>& isTop, const Table<uint8_t>& isMiddle) {
            return maximum(maximum(lookUp(isTop, i) & v, lookUp(isMiddle, i) & middle), bottom);
        };
        return {{{choose(sextants(5, 0), sextants(1, 4)), choose(sextants(1, 2), sextants(0, 3)),
                  choose(sextants(3, 4), sextants(2, 5))}}};
    }

private:
    // The two as a mask.
    static constexpr Table<uint8_t> sextants(int one, int other)
    {
        Table<uint8_t> table{};
        table.of[one] = table.of[other] = 255;
        return table;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
