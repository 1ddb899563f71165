// SPDX-License-Identifier: MIT
// Row drivers of the conversions of hls.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct HlsRows {
    Driver &myRGBToHLS_8u_C3R, &myRGBToHLS_8u_AC4R, &myRGBToHLS_16u_C3R, &myRGBToHLS_16u_AC4R, &myRGBToHLS_16s_C3R,
        &myRGBToHLS_16s_AC4R, &myRGBToHLS_32f_C3R, &myRGBToHLS_32f_AC4R, &myHLSToRGB_8u_C3R, &myHLSToRGB_8u_AC4R,
        &myHLSToRGB_16u_C3R, &myHLSToRGB_16u_AC4R, &myHLSToRGB_16s_C3R, &myHLSToRGB_16s_AC4R, &myHLSToRGB_32f_C3R,
        &myHLSToRGB_32f_AC4R, &myBGRToHLS_8u_AC4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(HlsRows, hlsRows)
