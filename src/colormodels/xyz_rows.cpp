// SPDX-License-Identifier: MIT
// Row drivers of the conversions between linear RGB and CIE XYZ, compiled once for every tier.
#include "colormodels/xyz_rows.h"

#include "colormodels/xyz_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads threads = Threads::aboveThreshold;

} // namespace

const XyzRows xyzRows = {
    .myRGBToXYZ_8u_C3R = rows<C3<>, RgbToXyzOfBytes, C3<>, threads>,
    .myRGBToXYZ_8u_AC4R = rows<AC4<>, RgbToXyzOfBytes, AC4<>, threads>,
    .myRGBToXYZ_16u_C3R = rows<C3<uint16_t>, RgbToXyz<uint16_t>, C3<uint16_t>, threads>,
    .myRGBToXYZ_16u_AC4R = rows<AC4<uint16_t>, RgbToXyz<uint16_t>, AC4<uint16_t>, threads>,
    .myRGBToXYZ_16s_C3R = rows<C3<int16_t>, RgbToXyz<int16_t>, C3<int16_t>, threads>,
    .myRGBToXYZ_16s_AC4R = rows<AC4<int16_t>, RgbToXyz<int16_t>, AC4<int16_t>, threads>,
    .myRGBToXYZ_32f_C3R = rows<C3<float>, RgbToXyz<float>, C3<float>, threads>,
    .myRGBToXYZ_32f_AC4R = rows<AC4<float>, RgbToXyz<float>, AC4<float>, threads>,
    .myXYZToRGB_8u_C3R = rows<C3<>, XyzToRgb<uint8_t>, C3<>, threads>,
    .myXYZToRGB_8u_AC4R = rows<AC4<>, XyzToRgb<uint8_t>, AC4<>, threads>,
    .myXYZToRGB_16u_C3R = rows<C3<uint16_t>, XyzToRgb<uint16_t>, C3<uint16_t>, threads>,
    .myXYZToRGB_16u_AC4R = rows<AC4<uint16_t>, XyzToRgb<uint16_t>, AC4<uint16_t>, threads>,
    .myXYZToRGB_16s_C3R = rows<C3<int16_t>, XyzToRgb<int16_t>, C3<int16_t>, threads>,
    .myXYZToRGB_16s_AC4R = rows<AC4<int16_t>, XyzToRgb<int16_t>, AC4<int16_t>, threads>,
    .myXYZToRGB_32f_C3R = rows<C3<float>, XyzToRgb<float>, C3<float>, threads>,
    .myXYZToRGB_32f_AC4R = rows<AC4<float>, XyzToRgb<float>, AC4<float>, threads>,
};

} // namespace zorcc::ZORCC_TIER
