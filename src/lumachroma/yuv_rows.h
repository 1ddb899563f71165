// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YUV conversions.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct YuvRows {
    Driver &myRGBToYUV_8u_C3R, &myRGBToYUV_8u_AC4R, &myRGBToYUV_8u_AC4P4R, &myRGBToYUV_8u_C3P3R, &myRGBToYUV_8u_P3R;
    Driver &myYUVToRGB_8u_C3R, &myYUVToRGB_8u_AC4R, &myYUVToRGB_8u_P3C3R, &myYUVToRGB_8u_P3R;

    Driver &myRGBToYUV422_8u_C3C2R, &myRGBToYUV422_8u_C3P3R, &myRGBToYUV422_8u_P3R, &myRGB565ToYUV422_16u8u_C3P3R;
    Driver &myYUV422ToRGB_8u_C2C3R, &myYUV422ToRGB_8u_P3C3R, &myYUV422ToRGB_8u_P3R;
    DriverWithAlpha<uint8_t>& myYUV422ToRGB_8u_P3AC4R;

    Driver &myRGBToYUV420_8u_C3P3R, &myRGBToYUV420_8u_P3R, &myBGRToYUV420_8u_AC4P3R, &myRGB565ToYUV420_16u8u_C3P3R;
    Driver &myYUV420ToRGB_8u_P3C3R, &myYUV420ToRGB_8u_P3R, &myYUV420ToBGR_8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYUV420ToRGB_8u_P3AC4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(YuvRows, yuvRows)
