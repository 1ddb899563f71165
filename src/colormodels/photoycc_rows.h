// SPDX-License-Identifier: MIT
// Row drivers of the conversions of photoycc.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct PhotoyccRows {
    Driver &myRGBToYCC_8u_C3R, &myRGBToYCC_8u_AC4R, &myRGBToYCC_16u_C3R, &myRGBToYCC_16u_AC4R, &myRGBToYCC_16s_C3R,
        &myRGBToYCC_16s_AC4R, &myRGBToYCC_32f_C3R, &myRGBToYCC_32f_AC4R, &myYCCToRGB_8u_C3R, &myYCCToRGB_8u_AC4R,
        &myYCCToRGB_16u_C3R, &myYCCToRGB_16u_AC4R, &myYCCToRGB_16s_C3R, &myYCCToRGB_16s_AC4R, &myYCCToRGB_32f_C3R,
        &myYCCToRGB_32f_AC4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(PhotoyccRows, photoyccRows)
