// SPDX-License-Identifier: MIT
// What the models of the CIE share: the matrices between linear RGB, with the primaries of ITU-R BT.709 and white D65,
// and CIE 1931 XYZ; CIE 1976 lightness. Constants have the digits they are defined with.
#pragma once

#include "colormodels/common/matrix.h"
#include "simd/cube_root.h"

namespace zorcc::cie {

inline constexpr Matrix rgbToXyz = {
    {{0.412453f, 0.357580f, 0.180423f}, {0.212671f, 0.715160f, 0.072169f}, {0.019334f, 0.119193f, 0.950227f}}};
inline constexpr Matrix xyzToRgb = {
    {{3.240479f, -1.53715f, -0.498535f}, {-0.969256f, 1.875991f, 0.041556f}, {0.055648f, -0.204043f, 1.057311f}}};

// Up to it the curves of lightness and of L*a*b* are lines.
inline constexpr float threshold = 0.008856f;

} // namespace zorcc::cie

namespace zorcc::ZORCC_TIER {
namespace {

using RgbToXyzFloats = ByMatrix<cie::rgbToXyz>;
using XyzToRgbFloats = ByMatrix<cie::xyzToRgb>;

// L* of Y in 0..1, whose root is wanted above the threshold; of vectors, and of numbers while this is compiled.
template <class Mask, class V> [[gnu::always_inline]] constexpr V lightness(Mask isAbove, V y, V root)
{
    return isAbove ? root * 116 - 16 : y * 903.3f;
}

} // namespace
} // namespace zorcc::ZORCC_TIER
