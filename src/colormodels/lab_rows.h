// SPDX-License-Identifier: MIT
// Row drivers of the conversions of lab.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct LabRows {
    Driver &myBGRToLab_8u_C3R, &myBGRToLab_8u16u_C3R, &myLabToBGR_8u_C3R, &myLabToBGR_16u8u_C3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(LabRows, labRows)
