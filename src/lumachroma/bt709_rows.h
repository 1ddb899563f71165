// SPDX-License-Identifier: MIT
// Row drivers of the BGR and YCbCr (ITU-R BT.709) conversions. Where planes are YCrCb the wrapper exchanges them.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct Bt709Rows {
    Driver &myBGRToYCbCr420_709CSC_8u_C3P3R, &myBGRToYCbCr420_709CSC_8u_AC4P3R;
    Driver &myYCbCr420ToBGR_709CSC_8u_P3C3R, &myYCbCrToBGR_709CSC_8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYCbCrToBGR_709CSC_8u_P3C4R;

    Driver& myBGRToYCbCr420_709HDTV_8u_AC4P3R;
    DriverWithAlpha<uint8_t>& myYCbCr420ToBGR_709HDTV_8u_P3C4R;
    Driver &myBGRToCbYCr422_709HDTV_8u_C3C2R, &myBGRToCbYCr422_709HDTV_8u_AC4C2R;
    Driver& myCbYCr422ToBGR_709HDTV_8u_C2C3R;
    DriverWithAlpha<uint8_t>& myCbYCr422ToBGR_709HDTV_8u_C2C4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(Bt709Rows, bt709Rows)
