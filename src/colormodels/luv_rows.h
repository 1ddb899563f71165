// SPDX-License-Identifier: MIT
// Row drivers of the conversions of luv.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct LuvRows {
    Driver &myRGBToLUV_8u_C3R, &myRGBToLUV_8u_AC4R, &myRGBToLUV_16u_C3R, &myRGBToLUV_16u_AC4R, &myRGBToLUV_16s_C3R,
        &myRGBToLUV_16s_AC4R, &myRGBToLUV_32f_C3R, &myRGBToLUV_32f_AC4R, &myLUVToRGB_8u_C3R, &myLUVToRGB_8u_AC4R,
        &myLUVToRGB_16u_C3R, &myLUVToRGB_16u_AC4R, &myLUVToRGB_16s_C3R, &myLUVToRGB_16s_AC4R, &myLUVToRGB_32f_C3R,
        &myLUVToRGB_32f_AC4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(LuvRows, luvRows)
