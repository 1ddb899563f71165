// SPDX-License-Identifier: MIT
// Coefficients of the RGB and YCbCr conversions, studio range (Y 16..235, Cb and Cr 16..240) and full range. The real
// values stand beside the integers, which are part of the contract where they are not the nearest ones.
#pragma once

#include "lumachroma/coefficients.h"

namespace zorcc::ycbcr {

struct FromRgb {
    Weights y, cb, cr;
};

// ITU-R BT.601: 0.257, 0.504, 0.098; -0.148, -0.291, 0.439; 0.439, -0.368, -0.071.
inline constexpr FromRgb bt601 = {{16843, 33030, 6423}, {-9699, -19071, 28770}, {28770, -24117, -4653}};

// ITU-R BT.709: 0.183, 0.614, 0.062; -0.101, -0.338, 0.439; 0.439, -0.399, -0.040.
inline constexpr FromRgb bt709 = {{11993, 40239, 4063}, {-6619, -22151, 28770}, {28770, -26149, -2621}};

// ITU-R BT.709, full range: 0.213, 0.715, 0.072; -0.117, -0.394, 0.511; 0.511, -0.464, -0.047.
inline constexpr FromRgb bt709Full = {{13959, 46858, 4719}, {-7668, -25821, 33489}, {33489, -30409, -3080}};

// What is added to luma: 16 and a half; 16 alone, for the second pixel of each packed BT.601 pair; a half.
inline constexpr int studioLuma = 16 * 65536 + 32768, studioLumaDown = 16 * 65536, fullLuma = 32768;

// What is added to chroma: 128 and a half, for each pixel of a sum of 1 or 2; 128 and an eighth for each of 4.
constexpr int chromaBias(int pixels) { return pixels * (128 * 65536 + (pixels == 4 ? 8192 : 32768)); }

// BT.601 to RGB: 1.164, 1.596, 0.392, 0.813, 2.017, rounded down.
inline constexpr ToRgb bt601ToRgb = centred(76284, 104595, 25690, 53281, 132186, 16, 0);
inline constexpr ToRgb bt601PlanarToRgb = centred(76282, 104593, 25689, 53279, 132184, 16, 0); // some planar sources
inline constexpr ToRgb bt601ToRgb411 = centred(76294, 104595, 25625, 53281, 132186, 16, 0);
// Packed 4:2:2, with constants 57, 14 and 13 below the exact centres.
inline constexpr ToRgb bt601PackedToRgb = {76284, 104595, 25690, 53281, 132186, -14608761, 8887730, -18140365};

// BT.709 to RGB: 1.164, 1.793, 0.213, 0.534, 2.115, and full range 1, 1.540, 0.183, 0.459, 1.816; rounded to nearest.
inline constexpr ToRgb bt709ToRgb = centred(76284, 117506, 13959, 34996, 138609, 16, 32768);
inline constexpr ToRgb bt709FullToRgb = centred(65536, 100925, 11993, 30081, 119013, 0, 32768);

} // namespace zorcc::ycbcr
