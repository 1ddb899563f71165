// SPDX-License-Identifier: MIT
// Row drivers of the conversions of xyz.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct XyzRows {
    Driver &myRGBToXYZ_8u_C3R, &myRGBToXYZ_8u_AC4R, &myRGBToXYZ_16u_C3R, &myRGBToXYZ_16u_AC4R, &myRGBToXYZ_16s_C3R,
        &myRGBToXYZ_16s_AC4R, &myRGBToXYZ_32f_C3R, &myRGBToXYZ_32f_AC4R, &myXYZToRGB_8u_C3R, &myXYZToRGB_8u_AC4R,
        &myXYZToRGB_16u_C3R, &myXYZToRGB_16u_AC4R, &myXYZToRGB_16s_C3R, &myXYZToRGB_16s_AC4R, &myXYZToRGB_32f_C3R,
        &myXYZToRGB_32f_AC4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(XyzRows, xyzRows)
