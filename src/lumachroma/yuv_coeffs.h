// SPDX-License-Identifier: MIT
// Coefficients of the RGB and YUV conversions: Y'UV of analogue television with the luma weights of ITU-R BT.601. The real
// values stand beside the integers, which are part of the contract where they are not the nearest ones.
#pragma once

namespace zorcc::yuv {

// Luma in units of 1/65536: 0.299, 0.587, 0.114. They add up to 65536, so that luma needs no clamp.
inline constexpr int lumaR = 19595, lumaG = 38470, lumaB = 7471;

// U per B - Y and V per R - Y, in units of 1/65536: 0.492, 0.877.
inline constexpr int uPerDifference = 32244, vPerDifference = 57475;

// The interleaved source to 4:2:0 in units of 1/16384: the same luma, and a quarter (for the sum of four pixels) of the
// difference factors in units of 1/65536: 0.123, 0.219.
inline constexpr int lumaR14 = 4899, lumaG14 = 9617, lumaB14 = 1868;
inline constexpr int uPerFourDifferences = 8061, vPerFourDifferences = 14369;

// Planes to planes: luma with a green weight one unit lower, U and V as sums of their own in units of 1/32768: -0.147,
// -0.289, 0.436 and 0.615, -0.515, -0.100.
inline constexpr int planarLumaG = 38469;
inline constexpr int uR = -4816, uG = -9469, uB = 14286;
inline constexpr int vR = 20152, vG = -16875, vB = -3276;

// YUV to RGB in units of 1/65536: R from V, G from U and V (to be subtracted), B from U.
struct Inverse {
    int rV, gU, gV, bU;
};
inline constexpr Inverse inverse = {74711, 25821, 38076, 133169};       // 1.140, 0.394, 0.581, 2.032
inline constexpr Inverse planarInverse = {74710, 25820, 38075, 133168}; // of the planar 4:4:4 sources

} // namespace zorcc::yuv
