// SPDX-License-Identifier: MIT
// Row drivers between the layouts of video, and of deinterlacing; sizes are whole blocks. YV12 is planar 4:2:0, NV12
// semi-planar 4:2:0, YUY2 is Y0 Cb Y1 Cr, UYVY is Cb Y0 Cr Y1. Of YCrCb planes the wrapper exchanges Cb and Cr.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

// Which edges of a frame a slice of its rows holds.
struct FrameEdges {
    bool top, bottom;
};

struct VideoLayoutsRows {
    Driver &myYUY2ToUYVY_8u_C2R, &myUYVYToYUY2_8u_C2R;
    Driver &myYUY2ToNV12_8u_C2P2R, &myUYVYToNV12_8u_C2P2R, &myNV12ToYUY2_8u_P2C2R, &myNV12ToUYVY_8u_P2C2R;
    Driver &myYV12ToYUY2_8u_P3C2R, &myYV12ToUYVY_8u_P3C2R;
    DriverWith<FrameEdges>&myDeinterlaceToYUY2_8u_P2C2R, &myDeinterlaceToYV12_8u_P2P3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(VideoLayoutsRows, videoLayoutsRows)
