// SPDX-License-Identifier: MIT
// Row drivers of the conversions of hsv.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct HsvRows {
    Driver &myRGBToHSV_8u_C3R, &myRGBToHSV_8u_AC4R, &myRGBToHSV_16u_C3R, &myRGBToHSV_16u_AC4R, &myHSVToRGB_8u_C3R,
        &myHSVToRGB_8u_AC4R, &myHSVToRGB_16u_C3R, &myHSVToRGB_16u_AC4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(HsvRows, hsvRows)
