// SPDX-License-Identifier: MIT
// HSV (the hexcone of hue, saturation and value) from RGB and back, for unsigned integers. Single precision, every
// operation in the order in which the model defines it, every division exact.
#pragma once

#include "colormodels/byte_hexcone.h"
#include "colormodels/hexcone.h"
#include "colormodels/ranges.h"

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

    template <class F> static constexpr F of(F q, F from, F more) { return absolute(from + q) + more; }
};

template <class Sample, Conversion conversion> struct RgbToHsv {
    using V = Vec<Sample>;
    using Hue = Sixths<conversion>;

    struct Prepared {
        V most, chroma;
        V fall; // the middle channel below the largest
        V order;
    };

    Prepared prepare(const Samples<Sample>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Hexcone<Sample> cone(r, g, b);
        return {cone.most, cone.chroma, cone.most - cone.middle, cone.order};
    }

    Samples<Sample> operator()(const Prepared& of) const
    {
        const V one = V{} + 1;
        const auto chroma = toFloat(widen(maximum(of.chroma, one))), most = toFloat(widen(maximum(of.most, one)));
        const auto distance = toFloat(widen(of.fall));
        const auto start = lookUp(bySextant(Hue::start), of.order); // 0 for grey, whose distance is 0
        const auto correction = lookUp(bySextant(Hue::correction), of.order);
        Widened<partsOf<Sample>> h, s;
        for (int p = 0; p < partsOf<Sample>; ++p) {
            const f32v d = chroma.part[p];
            const f32v hue = Hue::of(distance.part[p] / d, start.part[p], correction.part[p]) * Range<Sample>::sextant;
            if constexpr (Hue::wraps)
                h.part[p] = convert(hue < 0 ? hue + Range<Sample>::most : hue);
            else
                h.part[p] = convert(hue);
            s.part[p] = convert(d / most.part[p] * Range<Sample>::most);
        }
        return {{{narrow<Sample>(h), narrow<Sample>(s) & ~(V)(of.chroma == 0), of.most}}};
    }

private:
    ZORCC_INLINE s32v convert(f32v v) { return conversion == Conversion::truncating ? truncate(v) : roundToEven(v); }
};

#if defined(ZORCC_TIER_avx512)
template <> struct RgbToHsv<uint8_t, Conversion::truncating> {
    Hexcone<uint8_t> prepare(const Samples<uint8_t>& rgb) const { return {rgb.c[0][0], rgb.c[0][1], rgb.c[0][2]}; }

    Samples<uint8_t> operator()(const Hexcone<uint8_t>& cone) const
    {
        return {{{hueOf(cone, fallsShort), ratio(cone.chroma, cone.most), cone.most}}};
    }

private:
    static constexpr FallsShort fallsShort{[](int sextant, float v, float chroma) {
        using Hue = Sixths<Conversion::truncating>;
        const float fall = sextant % 2 ? v : chroma - v;
        return Hue::of(fall / chroma, Hue::start[sextant], Hue::correction[sextant]) * Range<uint8_t>::sextant;
    }};
};
#endif

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
        // The channel between rises in the even sextants and falls in the odd ones.
        const V i = narrow<Sample>(sextant);
        const V middle = select(lookUp(oddSextants, i), narrow<Sample>(falling), narrow<Sample>(rising));
        return fromHexcone<Sample>(i, v, middle, narrow<Sample>(low));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
