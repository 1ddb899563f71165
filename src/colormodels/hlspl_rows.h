// SPDX-License-Identifier: MIT
// Row drivers of the conversions of hlspl.cpp.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct HlsplRows {
    Driver &myBGRToHLS_8u_AC4P4R, &myBGRToHLS_8u_AP4C4R, &myBGRToHLS_8u_AP4R, &myBGRToHLS_8u_C3P3R,
        &myBGRToHLS_8u_P3C3R, &myBGRToHLS_8u_P3R, &myHLSToBGR_8u_AC4P4R, &myHLSToBGR_8u_AP4C4R, &myHLSToBGR_8u_AP4R,
        &myHLSToBGR_8u_C3P3R, &myHLSToBGR_8u_P3C3R, &myHLSToBGR_8u_P3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(HlsplRows, hlsplRows)
