// SPDX-License-Identifier: MIT
// Row drivers of the demosaicing functions, and what they get.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

// A rectangle inside an image.
struct Region {
    int x0, y0, x1, y1; // the first pixel inside, the first after it
};

// A mosaic and the image that its region, which is not empty, is to fill.
struct Mosaic {
    const Image &from, &to;
    ZorSize size; // of the mosaic
    Region region;
    ZorBayerGrid grid;
};

struct BayerRows {
    void (&myCFAToRGB_8u_C1C3R)(const Mosaic&);
    void (&myCFAToRGB_16u_C1C3R)(const Mosaic&);
};

struct DemosaicAhdRows {
    void (&myDemosaicAHD_8u_C1C3R)(const Mosaic&, const Image& scratch);
    void (&myDemosaicAHD_16u_C1C3R)(const Mosaic&, const Image& scratch);
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(BayerRows, bayerRows)
ZORCC_TABLE_OF_EACH_TIER(DemosaicAhdRows, demosaicAhdRows)
