// SPDX-License-Identifier: MIT
// Row drivers of the grey of colour, each for any weights.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

// Of the channels in the order of memory.
struct GrayWeights {
    float of[3];
};

// In units of 1/4096, each of 16 unsigned bits.
struct ByteGrayWeights {
    int of[3];
};

struct GrayRows {
    DriverWith<ByteGrayWeights>&myRGBToGray_8u_C3C1R, &myRGBToGray_8u_AC4C1R;
    DriverWith<GrayWeights>&myRGBToGray_16u_C3C1R, &myRGBToGray_16u_AC4C1R, &myRGBToGray_16s_C3C1R,
        &myRGBToGray_16s_AC4C1R, &myRGBToGray_32f_C3C1R, &myRGBToGray_32f_AC4C1R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(GrayRows, grayRows)
