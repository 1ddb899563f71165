// SPDX-License-Identifier: MIT
// The formulas between RGB and YCbCr by ITU-R BT.601, studio range (Y 16..235, Cb and Cr 16..240). The real
// coefficients stand beside the integers, which are those of the contract and not always the nearest ones.
#pragma once

#include "lumachroma/common/rgb_to_ycc.h"
#include "lumachroma/common/ycc_to_rgb.h"

namespace zorcc::bt601 {

// 0.257, 0.504, 0.098; -0.148, -0.291, 0.439; 0.439, -0.368, -0.071.
inline constexpr ycbcr::FromRgb fromRgb = {{16843, 33030, 6423}, {-9699, -19071, 28770}, {28770, -24117, -4653}};

// 1.164, 1.596, 0.392, 0.813, 2.017, rounded down; two units lower for some planar sources; for 4:1:1.
inline constexpr ToRgb toRgb = centred(76284, 104595, 25690, 53281, 132186, 16, 0);
inline constexpr ToRgb planarToRgb = centred(76282, 104593, 25689, 53279, 132184, 16, 0);
inline constexpr ToRgb toRgb411 = centred(76294, 104595, 25625, 53281, 132186, 16, 0);

// For packed 4:2:2 and all BGR, with constants 57, 14 and 13 below the exact centres.
inline constexpr ToRgb foldedToRgb = {76284, 104595, 25690, 53281, 132186, -14608761, 8887730, -18140365};

} // namespace zorcc::bt601

namespace zorcc::ZORCC_TIER {
namespace {

using RgbToBt601 = RgbToYCbCr<bt601::fromRgb>;
using RgbToBt601_420 = RgbToYCbCr420<bt601::fromRgb, ycbcr::studioLuma>;

// 4:2:2. The luma of the second pixel of a pair is rounded down; with the rounding of 4:2:0 it is not.
using RgbToBt601_422 = RgbToYCbCr422<bt601::fromRgb, YCbCrChroma<bt601::fromRgb, 2>, ycbcr::studioLumaDown>;
using RgbToBt601_422By8th = RgbToYCbCr422<bt601::fromRgb, EighthChroma<bt601::fromRgb>>;

struct RgbToBt601_411
    : RgbToSubsampled<1, WeightedLuma<bt601::fromRgb.y, ycbcr::studioLuma>, YCbCrChroma<bt601::fromRgb, 4>, 4> {
    RgbToBt601 single() const { return {}; }
};

using Bt601ToRgb = YccToRgb<bt601::toRgb>;
using Bt601PlanesToRgb = YccToRgb<bt601::planarToRgb>;
using Bt601FoldedToRgb = YccToRgb<bt601::foldedToRgb>;
using Bt601_411ToRgb = YccToRgb<bt601::toRgb411>;

} // namespace
} // namespace zorcc::ZORCC_TIER
