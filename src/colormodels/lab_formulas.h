// SPDX-License-Identifier: MIT
// CIE 1976 L*a*b*, with white D65, from linear RGB bytes and back. Single precision, every operation in the order in
// which the model defines it; rounded to nearest, ties to even, and saturated.
#pragma once

#include "colormodels/common/cie.h"

namespace zorcc::cie {

// What takes RGB bytes by the matrix to ratios to white: 1 / 255 of the reciprocals of (0.950456, 1, 1.088754), and the
// other way round.
inline constexpr float toRatio[] = {0.0041259914f, 0.003921569f, 0.0036018905f};
inline constexpr float fromRatio[] = {242.366f, 255, 277.632f};

// Samples of L*, a* and b*: L* is multiplied, a* and b* are raised by 128 and multiplied.
struct LabCode {
    float lightness, colour;
};
template <class Sample> inline constexpr LabCode labCode{};
template <> inline constexpr LabCode labCode<uint8_t> = {2.55f, 1};
template <> inline constexpr LabCode labCode<uint16_t> = {655.35f, 255};

// Back.
template <class Sample> inline constexpr LabCode labDecode{};
template <> inline constexpr LabCode labDecode<uint8_t> = {0.39215687f, 1};
template <> inline constexpr LabCode labDecode<uint16_t> = {0.0015259022f, 0.003921569f};

} // namespace zorcc::cie

namespace zorcc::ZORCC_TIER {
namespace {

// To samples of this type; the cube roots of several vectors in lockstep.
template <class Sample> struct RgbToLab {
    [[gnu::always_inline]] auto operator()(const Samples<uint8_t>& rgb) const
    {
        const Floats<4> channel[3] = {asFloats(rgb.c[0][0]), asFloats(rgb.c[0][1]), asFloats(rgb.c[0][2])};
        constexpr int together = vectorBytes == 64 ? 4 : 2; // as many as the registers hold
        Widened<4> lab[3];
        for (int p = 0; p < 4; p += together) {
            Lockstep<float, 3 * together> ratio;
            for (int i = 0; i < together; ++i) {
                const Samples<float> xyz =
                    RgbToXyzFloats{}({{{channel[0].part[p + i], channel[1].part[p + i], channel[2].part[p + i]}}});
                for (int c = 0; c < 3; ++c) ratio.v[3 * i + c] = xyz.c[0][c] * cie::toRatio[c];
            }
            const Lockstep<float, 3 * together> root = cubeRoot(ratio);
            for (int i = 0; i < together; ++i) {
                const Integers<3> codes = of(ratio.v + 3 * i, root.v + 3 * i);
                for (int c = 0; c < 3; ++c) lab[c].part[p + i] = codes.part[c];
            }
        }
        decltype(narrowParts<Sample>(lab[0])) narrowed[3] = {narrowParts<Sample>(lab[0]), narrowParts<Sample>(lab[1]),
                                                             narrowParts<Sample>(lab[2])};
        return channelsOf<Sample>(narrowed);
    }

private:
    ZORCC_INLINE f32v curve(f32v ratio, f32v root)
    {
        return select(ratio > cie::threshold, root, ratio * 7.787f + 0.137931034f);
    }

    ZORCC_INLINE Integers<3> of(const f32v* ratio, const f32v* root)
    {
        constexpr cie::LabCode code = cie::labCode<Sample>;
        const f32v fx = curve(ratio[0], root[0]), fy = curve(ratio[1], root[1]), fz = curve(ratio[2], root[2]);
        return {{roundToEven(lightness(ratio[1] > cie::threshold, ratio[1], root[1]) * code.lightness),
                 roundToEven(((fx - fy) * 500 + 128) * code.colour),
                 roundToEven(((fy - fz) * 200 + 128) * code.colour)}};
    }
};

// From samples of this type. The cube stands for the line, too.
template <class Sample> struct LabToRgbFloats {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& lab) const
    {
        constexpr cie::LabCode code = cie::labDecode<Sample>;
        const f32v a = lab.c[0][1] * code.colour - 128, b = lab.c[0][2] * code.colour - 128;
        const f32v fy = (lab.c[0][0] * code.lightness + 16) * 0.00862069f, fx = fy + a * 0.002f, fz = fy - b * 0.005f;
        return XyzToRgbFloats{}(
            {{{cube(fx) * cie::fromRatio[0], cube(fy) * cie::fromRatio[1], cube(fz) * cie::fromRatio[2]}}});
    }

private:
    ZORCC_INLINE f32v cube(f32v v) { return v * v * v; }
};

template <class Sample> using LabToRgb = OnIntegers<uint8_t, LabToRgbFloats<Sample>, RoundedToEven>;

} // namespace
} // namespace zorcc::ZORCC_TIER
