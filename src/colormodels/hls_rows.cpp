// SPDX-License-Identifier: MIT
// Row drivers of the RGB and HLS conversions of interleaved images, compiled once for every tier.
#include "colormodels/hls_rows.h"

#include "colormodels/hls_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads threads = Threads::aboveThreshold;

} // namespace

const HlsRows hlsRows = {
    .myRGBToHLS_8u_C3R = rows<C3<>, RgbToHls<uint8_t>, C3<>, threads>,
    .myRGBToHLS_8u_AC4R = rows<AC4<>, RgbToHls<uint8_t>, AC4<>, threads>,
    .myRGBToHLS_16u_C3R = rows<C3<uint16_t>, RgbToHls<uint16_t>, C3<uint16_t>, threads>,
    .myRGBToHLS_16u_AC4R = rows<AC4<uint16_t>, RgbToHls<uint16_t>, AC4<uint16_t>, threads>,
    .myRGBToHLS_16s_C3R = rows<C3<int16_t>, RgbToHls<int16_t>, C3<int16_t>, threads>,
    .myRGBToHLS_16s_AC4R = rows<AC4<int16_t>, RgbToHls<int16_t>, AC4<int16_t>, threads>,
    .myRGBToHLS_32f_C3R = rows<C3<float>, RgbToHls<float>, C3<float>, threads>,
    .myRGBToHLS_32f_AC4R = rows<AC4<float>, RgbToHls<float>, AC4<float>, threads>,
    .myHLSToRGB_8u_C3R = rows<C3<>, HlsToRgb<uint8_t>, C3<>, threads>,
    .myHLSToRGB_8u_AC4R = rows<AC4<>, HlsToRgb<uint8_t>, AC4<>, threads>,
    .myHLSToRGB_16u_C3R = rows<C3<uint16_t>, HlsToRgb<uint16_t>, C3<uint16_t>, threads>,
    .myHLSToRGB_16u_AC4R = rows<AC4<uint16_t>, HlsToRgb<uint16_t>, AC4<uint16_t>, threads>,
    .myHLSToRGB_16s_C3R = rows<C3<int16_t>, HlsToRgb<int16_t>, C3<int16_t>, threads>,
    .myHLSToRGB_16s_AC4R = rows<AC4<int16_t>, HlsToRgb<int16_t>, AC4<int16_t>, threads>,
    .myHLSToRGB_32f_C3R = rows<C3<float>, HlsToRgb<float>, C3<float>, threads>,
    .myHLSToRGB_32f_AC4R = rows<AC4<float>, HlsToRgb<float>, AC4<float>, threads>,
    .myBGRToHLS_8u_AC4R = rows<Bgrx, RgbToHls<uint8_t>, AC4<>, threads>,
};

} // namespace zorcc::ZORCC_TIER
