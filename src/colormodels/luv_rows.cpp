// SPDX-License-Identifier: MIT
// Row drivers of the conversions between linear RGB and CIE L*u*v*, compiled once for every tier.
#include "colormodels/luv_rows.h"

#include "colormodels/luv_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads threads = Threads::aboveThreshold;

} // namespace

const LuvRows luvRows = {
    .myRGBToLUV_8u_C3R = rows<C3<>, RgbToLuv<uint8_t>, C3<>, threads>,
    .myRGBToLUV_8u_AC4R = rows<AC4<>, RgbToLuv<uint8_t>, AC4<>, threads>,
    .myRGBToLUV_16u_C3R = rows<C3<uint16_t>, RgbToLuv<uint16_t>, C3<uint16_t>, threads>,
    .myRGBToLUV_16u_AC4R = rows<AC4<uint16_t>, RgbToLuv<uint16_t>, AC4<uint16_t>, threads>,
    .myRGBToLUV_16s_C3R = rows<C3<int16_t>, RgbToLuv<int16_t>, C3<int16_t>, threads>,
    .myRGBToLUV_16s_AC4R = rows<AC4<int16_t>, RgbToLuv<int16_t>, AC4<int16_t>, threads>,
    .myRGBToLUV_32f_C3R = rows<C3<float>, RgbToLuv<float>, C3<float>, threads>,
    .myRGBToLUV_32f_AC4R = rows<AC4<float>, RgbToLuv<float>, AC4<float>, threads>,
    .myLUVToRGB_8u_C3R = rows<C3<>, LuvToRgb<uint8_t>, C3<>, threads>,
    .myLUVToRGB_8u_AC4R = rows<AC4<>, LuvToRgb<uint8_t>, AC4<>, threads>,
    .myLUVToRGB_16u_C3R = rows<C3<uint16_t>, LuvToRgb<uint16_t>, C3<uint16_t>, threads>,
    .myLUVToRGB_16u_AC4R = rows<AC4<uint16_t>, LuvToRgb<uint16_t>, AC4<uint16_t>, threads>,
    .myLUVToRGB_16s_C3R = rows<C3<int16_t>, LuvToRgb<int16_t>, C3<int16_t>, threads>,
    .myLUVToRGB_16s_AC4R = rows<AC4<int16_t>, LuvToRgb<int16_t>, AC4<int16_t>, threads>,
    .myLUVToRGB_32f_C3R = rows<C3<float>, LuvToRgb<float>, C3<float>, threads>,
    .myLUVToRGB_32f_AC4R = rows<AC4<float>, LuvToRgb<float>, AC4<float>, threads>,
};

} // namespace zorcc::ZORCC_TIER
