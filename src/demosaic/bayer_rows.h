// SPDX-License-Identifier: MIT
// Row drivers of the gradient-directed Bayer interpolation. The region is not empty.
#pragma once

#include "demosaic/region.h"
#include "simd/tier.h"

namespace zorcc {

struct BayerRows {
    DriverWith<const Region&, ZorBayerGrid>&myCFAToRGB_8u_C1C3R, &myCFAToRGB_16u_C1C3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(BayerRows, bayerRows)
