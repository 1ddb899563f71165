// SPDX-License-Identifier: MIT
// Row drivers of the adaptive homogeneity-directed demosaicing. The region is not empty; the last image is scratch
// memory.
#pragma once

#include "demosaic/region.h"
#include "simd/tier.h"

namespace zorcc {

struct DemosaicAhdRows {
    DriverWith<const Region&, ZorBayerGrid, const Image&>&myDemosaicAHD_8u_C1C3R, &myDemosaicAHD_16u_C1C3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(DemosaicAhdRows, demosaicAhdRows)
