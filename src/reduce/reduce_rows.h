// SPDX-License-Identifier: MIT
// Row drivers of the bit-depth reduction: one for each method and pair of sample types.
#pragma once

#include "reduce/reduction.h"
#include "simd/tier.h"

namespace zorcc {

// What error diffusion needs beside the reduction.
struct DiffusionNeeds {
    const Noise* noise; // null: no noise
    float* errors;      // for every channel that is converted as many rows of `width` zeros as the method looks up
    int workers;        // that share out the channels
};

struct ReduceDrivers {
    DriverWith<const Reduction&>& plain;
    DriverWith<const Reduction&, const Noise*>& ordered; // with noise unless it is null
    DriverWith<const Reduction&, const DiffusionNeeds&>&floydSteinberg, &jarvisJudiceNinke, &stucki;
    float whiteOfSource;
    int maxLevels;
};

struct ReduceRows {
    ReduceDrivers my8u, my16u, my16u8u, my16s, my16s8u, my32f8u, my32f16u, my32f16s;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(ReduceRows, reduceRows)
