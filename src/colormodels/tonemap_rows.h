// SPDX-License-Identifier: MIT
// Row drivers of tone mapping: a plane of floats times a factor to bytes.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct TonemapRows {
    DriverWith<float>&myToneMapLinear_32f8u_C1R, &myToneMapMean_32f8u_C1R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(TonemapRows, tonemapRows)
