// SPDX-License-Identifier: MIT
// Row drivers of the conversions between RGB and PhotoYCC, compiled once for every tier.
#include "colormodels/photoycc_rows.h"

#include "colormodels/photoycc_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads threads = Threads::aboveThreshold;

} // namespace

const PhotoyccRows photoyccRows = {
    .myRGBToYCC_8u_C3R = rows<C3<>, RgbToPhotoYcc<uint8_t>, C3<>, threads>,
    .myRGBToYCC_8u_AC4R = rows<AC4<>, RgbToPhotoYcc<uint8_t>, AC4<>, threads>,
    .myRGBToYCC_16u_C3R = rows<C3<uint16_t>, RgbToPhotoYcc<uint16_t>, C3<uint16_t>, threads>,
    .myRGBToYCC_16u_AC4R = rows<AC4<uint16_t>, RgbToPhotoYcc<uint16_t>, AC4<uint16_t>, threads>,
    .myRGBToYCC_16s_C3R = rows<C3<int16_t>, RgbToPhotoYcc<int16_t>, C3<int16_t>, threads>,
    .myRGBToYCC_16s_AC4R = rows<AC4<int16_t>, RgbToPhotoYcc<int16_t>, AC4<int16_t>, threads>,
    .myRGBToYCC_32f_C3R = rows<C3<float>, RgbToPhotoYcc<float>, C3<float>, threads>,
    .myRGBToYCC_32f_AC4R = rows<AC4<float>, RgbToPhotoYcc<float>, AC4<float>, threads>,
    .myYCCToRGB_8u_C3R = rows<C3<>, PhotoYccToRgb<uint8_t>, C3<>, threads>,
    .myYCCToRGB_8u_AC4R = rows<AC4<>, PhotoYccToRgb<uint8_t>, AC4<>, threads>,
    .myYCCToRGB_16u_C3R = rows<C3<uint16_t>, PhotoYccToRgb<uint16_t>, C3<uint16_t>, threads>,
    .myYCCToRGB_16u_AC4R = rows<AC4<uint16_t>, PhotoYccToRgb<uint16_t>, AC4<uint16_t>, threads>,
    .myYCCToRGB_16s_C3R = rows<C3<int16_t>, PhotoYccToRgb<int16_t>, C3<int16_t>, threads>,
    .myYCCToRGB_16s_AC4R = rows<AC4<int16_t>, PhotoYccToRgb<int16_t>, AC4<int16_t>, threads>,
    .myYCCToRGB_32f_C3R = rows<C3<float>, PhotoYccToRgb<float>, C3<float>, threads>,
    .myYCCToRGB_32f_AC4R = rows<AC4<float>, PhotoYccToRgb<float>, AC4<float>, threads>,
};

} // namespace zorcc::ZORCC_TIER
