// SPDX-License-Identifier: MIT
// CIE 1976 L*u*v*, with white D65, from linear RGB and back. Single precision, every operation in the order in which
// the model defines it, every division exact.
#pragma once

#include "colormodels/common/cie.h"
#include "colormodels/common/ranges.h"
#include "simd/curve_table.h"

namespace zorcc::cie {

// The chromaticity of white, and what v' is raised by where its size is less than `least`.
struct LuvWhite {
    float u, v, least;
};
inline constexpr LuvWhite luvWhite = {0.197839f, 0.468342f, 1.1920929e-7f};
inline constexpr LuvWhite luvWhiteOfIntegers = {0.19783941f, 0.4683422f, 1.1920929e-5f}; // to RGB

} // namespace zorcc::cie

namespace zorcc::ZORCC_TIER {
namespace {

// ---- from RGB -------------------------------------------------------------------------------------------------------

// u' and v'.
struct Chromaticity {
    f32v u, v;

    ZORCC_INLINE Chromaticity ofIntegers(f32v x, f32v y, f32v z)
    {
        const f32v d = divisorOfIntegers(x, y, z);
        return {x * 4 / d, y * 9 / d};
    }

    // What they are divided by. Integers are all 0 where it would be.
    ZORCC_INLINE f32v divisorOfIntegers(f32v x, f32v y, f32v z) { return max(divisor(x, y, z), fillFloat(0x1p-64f)); }

    ZORCC_INLINE Chromaticity of(f32v x, f32v y, f32v z)
    {
        const f32v d = divisor(x, y, z), none = {};
        return {select(d == 0, none, x * 4 / d), select(d == 0, none, y * 9 / d)};
    }

private:
    ZORCC_INLINE f32v divisor(f32v x, f32v y, f32v z) { return x + y * 15 + z * 3; }
};

ZORCC_INLINE Samples<float> luvOf(f32v l, const Chromaticity& c)
{
    return {{{l, l * 13 * (c.u - cie::luvWhite.u), l * 13 * (c.v - cie::luvWhite.v)}}};
}

template <class Sample> struct RgbToLuv;

template <> struct RgbToLuv<float> {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& rgb) const
    {
        const auto [x, y, z] = RgbToXyzFloats{}(rgb).c[0];
        return luvOf(lightness(y > cie::threshold, y, cubeRoot(y)), Chromaticity::of(x, y, z));
    }
};

// L* in units of 1/655.35; u* and v* raised to be above 0. The last is rounded half up, the others half to even.
template <> struct RgbToLuv<uint16_t> {
    [[gnu::always_inline]] Samples<uint16_t> operator()(const Samples<uint16_t>& rgb) const
    {
        const auto formula = [](f32v r, f32v g, f32v b) __attribute__((always_inline))
        {
            const auto [x, y, z] = RgbToXyzFloats{}({{{r, g, b}}}).c[0];
            const f32v unit = y * Range<uint16_t>::toUnit;
            const auto [l, u, v] =
                luvOf(lightness(y > 580.378f, unit, cubeRoot(unit)), Chromaticity::ofIntegers(x, y, z)).c[0];
            return Integers<3>{{roundToEven(l * 655.35f), roundToEven((u + 134) * 185.12712f),
                                truncate((v + 140) * 250.13359f + 0.5f)}};
        };
        return throughFloats<uint16_t>(formula, rgb.c[0][0], rgb.c[0][1], rgb.c[0][2]);
    }
};

template <> struct RgbToLuv<int16_t> : SignedSamples<RgbToLuv> {
};

// Lightness of bytes is that of Y rounded to a byte or, where that is below 32, to a quarter of a unit, and is rounded
// to a byte or a quarter itself: one of 352 values. None of them is a tie that the error of a cube root could decide.
struct LightnessCodes {
    uint8_t low[256];
    int from256; // the first Y whose code is 256 or more
};

// Of Y from `first` to `end`, both in units of 1 / parts; up to 511.
template <int parts> constexpr LightnessCodes lightnessCodes(int first, int end)
{
    LightnessCodes codes = {};
    for (int y = end - 1; y >= first; --y) {
        const float level = static_cast<float>(y) * (Range<uint8_t>::toUnit / parts);
        const float l = lightness(level > cie::threshold, level, zorcc::cubeRoot(level));
        const int code = static_cast<int>(l * (parts * 2.55f) + 0.5f);
        codes.low[y] = static_cast<uint8_t>(code);
        if (code >= 256) codes.from256 = y;
    }
    return codes;
}

// Less `shift` bits after `raise` is added, saturated.
template <int raise, int shift> ZORCC_INLINE u8v shiftedToBytes(const WideChannel<uint16_t>& v)
{
    return packUnsigned((s16v)((v.half[0] + (uint16_t)raise) >> shift), (s16v)((v.half[1] + (uint16_t)raise) >> shift));
}

// In quarters, of Y in eighths raised by one, rounded down: half of it is Y rounded to quarters.
ZORCC_INLINE WideChannel<uint16_t> quartersOfLightness(const WideChannel<uint16_t>& eighths)
{
    static constexpr LightnessCodes bytes = lightnessCodes<1>(32, 256), quarters = lightnessCodes<4>(0, 128);
    static constexpr CurveTable ofBytes(bytes.low), ofQuarters(quarters.low);
    const u8v y = shiftedToBytes<3, 3>(eighths), quartersOfY = shiftedToBytes<0, 1>(eighths);
    const u8v bright = lookUp(ofBytes, y), dark = lookUp(ofQuarters, quartersOfY);
    const u8v isDark = (u8v)(min(y, fill8(31)) == y),
              isLarge = (u8v)(max(quartersOfY, fill8(quarters.from256)) == quartersOfY);
    const u8v low = select(isDark, dark, shiftBytes<-2>(bright)),
              high = select(isDark, isLarge & 1, shiftBytes<6>(bright));
    return {{(u16v)zipLow(low, high), (u16v)zipHigh(low, high)}};
}

template <> struct RgbToLuv<uint8_t> {
    [[gnu::always_inline]] Samples<uint8_t> operator()(const Samples<uint8_t>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const Floats<4> red = asFloats(r), green = asFloats(g), blue = asFloats(b);
        Floats<4> x, y, z;
        Widened<4> eighths;
        for (int p = 0; p < 4; ++p) {
            const Samples<float> xyz = RgbToXyzFloats{}({{{red.part[p], green.part[p], blue.part[p]}}});
            x.part[p] = xyz.c[0][0];
            y.part[p] = xyz.c[0][1];
            z.part[p] = xyz.c[0][2];
            eighths.part[p] = truncate(y.part[p] * 8 + 1);
        }
        const WideChannel<uint16_t> quarters = quartersOfLightness(narrowParts<uint16_t>(eighths));
        const Floats<4> l = asFloats(quarters);
        Widened<4> u, v;
        for (int p = 0; p < 4; ++p) {
            const Integers<2> colour = codes(x.part[p], y.part[p], z.part[p], l.part[p]);
            u.part[p] = colour.part[0];
            v.part[p] = colour.part[1];
        }
        return {{{shiftedToBytes<2, 2>(quarters), narrow<uint8_t>(u), narrow<uint8_t>(v)}}};
    }

private:
    // Of u* and v*. What is multiplied by a power of two is multiplied by it elsewhere: that rounds nothing.
    ZORCC_INLINE Integers<2> codes(f32v x, f32v y, f32v z, f32v quarters)
    {
        constexpr Divisor full(255);
        x = divideModerate(x, full);
        y = divideModerate(y, full);
        z = divideModerate(z, full);
        const f32v d = Chromaticity::divisorOfIntegers(x, y, z);
        // 13 of 1/2.55 of 255 of 354 units, and of 262; the codes of u* = v* = 0 with the half that rounds.
        return {{truncate(quarters * 3.6723163f * (x / d - cie::luvWhite.u / 4) + 97.02543f),
                 truncate(quarters * (4.961832f / 4) * (y * 9 / d - cie::luvWhite.v) + 136.75955f)}};
    }
};

// ---- to RGB ---------------------------------------------------------------------------------------------------------

// What comes before the last division.
struct LuvParts {
    f32v y, u, v; // u' and v'
    s32v isBlack;
};

ZORCC_INLINE LuvParts beforeDivision(const cie::LuvWhite& white, f32v l, f32v u, f32v v)
{
    const s32v isAbove = l >= 7.9996247f; // 903.3 thresholds
    const f32v ratio = divideByEither(isAbove, select(isAbove, l + 16, l), Divisor(116), Divisor(903.3f));
    const f32v thirteen = l * 13, u1 = u / thirteen + white.u, v1 = v / thirteen + white.v;
    return {select(isAbove, ratio * ratio * ratio, ratio), u1, select(abs(v1) < white.least, v1 + 9e-5f, v1),
            l < 9e-5f};
}

// Before limits. `third` is the way to divide by 3.
template <class Third> ZORCC_INLINE Samples<float> rgbOf(const LuvParts& of, Third third)
{
    const f32v q = of.y / of.v, x = q * 2.25f * of.u, z = q * 3 - of.y * 5 - third(x);
    Samples<float> rgb = XyzToRgbFloats{}({{{x, of.y, z}}});
    for (f32v& channel : rgb.c[0]) channel = select(of.isBlack, f32v{}, channel);
    return rgb;
}

struct LuvToRgbFloats {
    [[gnu::always_inline]] LuvParts prepare(const Samples<float>& luv) const
    {
        return beforeDivision(cie::luvWhite, luv.c[0][0], luv.c[0][1], luv.c[0][2]);
    }

    [[gnu::always_inline]] Samples<float> operator()(const LuvParts& parts) const
    {
        return rgbOf(parts, [](f32v x) { return divideBy<3>(x); });
    }
};

// From the codes of integers, to the range of the type.
template <class Sample> struct LuvCodesToRgb {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& codes) const
    {
        const auto [l, u, v] = codes.c[0];
        constexpr cie::LuvWhite white = cie::luvWhiteOfIntegers;
        const LuvParts parts =
            sizeof(Sample) == 1 ? beforeDivision(white, l * 0.39215687f, u * 1.38823533f - 134, v * 1.02745104f - 140)
                                : beforeDivision(white, l * 0.0015259022f, divideModerate(u, Divisor(185.12712f)) - 134,
                                                 divideModerate(v, Divisor(250.13359f)) - 140);
        Samples<float> rgb = rgbOf(parts, [](f32v x) { return divideModerate(x, Divisor(3)); });
        for (f32v& channel : rgb.c[0]) channel = min(channel, f32v{} + 1) * Range<Sample>::max;
        return rgb;
    }
};

template <class Sample> struct LuvToRgb : OnIntegers<Sample, LuvCodesToRgb<Sample>, RoundedToEven> {
};
template <> struct LuvToRgb<float> : WithinUnit<LuvToRgbFloats> {
};
template <> struct LuvToRgb<int16_t> : SignedSamples<LuvToRgb> {
};

} // namespace
} // namespace zorcc::ZORCC_TIER
