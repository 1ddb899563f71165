// SPDX-License-Identifier: MIT
// Row drivers of the RGB and HSV conversions, compiled once for every tier.
#include "colormodels/hsv_rows.h"

#include "colormodels/hsv_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads threads = Threads::aboveThreshold;

} // namespace

const HsvRows hsvRows = {
    .myRGBToHSV_8u_C3R = rows<C3<>, RgbToHsvOfBytes, C3<>, threads>,
    .myRGBToHSV_8u_AC4R = rows<AC4<>, RgbToHsvOfBytes, AC4<>, threads>,
    .myRGBToHSV_16u_C3R = rows<C3<uint16_t>, RgbToHsvOfWords, C3<uint16_t>, threads>,
    .myRGBToHSV_16u_AC4R = rows<AC4<uint16_t>, RgbToHsvOfWords, AC4<uint16_t>, threads>,
    .myHSVToRGB_8u_C3R = rows<C3<>, HsvToRgb<uint8_t>, C3<>, threads>,
    .myHSVToRGB_8u_AC4R = rows<AC4<>, HsvToRgb<uint8_t>, AC4<>, threads>,
    .myHSVToRGB_16u_C3R = rows<C3<uint16_t>, HsvToRgb<uint16_t>, C3<uint16_t>, threads>,
    .myHSVToRGB_16u_AC4R = rows<AC4<uint16_t>, HsvToRgb<uint16_t>, AC4<uint16_t>, threads>,
};

} // namespace zorcc::ZORCC_TIER
