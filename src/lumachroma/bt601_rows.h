// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YCbCr (ITU-R BT.601) conversions. Where planes are YCrCb the wrapper exchanges them.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct Bt601Rows {
    Driver &myRGBToYCbCr_8u_C3R, &myRGBToYCbCr_8u_AC4R, &myRGBToYCbCr_8u_C3P3R, &myRGBToYCbCr_8u_AC4P3R,
        &myRGBToYCbCr_8u_P3R;
    Driver &myYCbCrToRGB_8u_C3R, &myYCbCrToRGB_8u_AC4R, &myYCbCrToRGB_8u_P3R, &myYCbCrToRGB_8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYCbCrToRGB_8u_P3C4R;

    Driver &myRGBToYCbCr422_8u_C3C2R, &myRGBToYCbCr422_8u_P3C2R;
    Driver &myYCbCr422ToRGB_8u_C2C3R, &myYCbCr422ToRGB_8u_C2P3R, &myYCbCr422ToRGB_8u_P3C3R;

    Driver& myRGBToYCbCr420_8u_C3P3R;
    Driver &myYCbCr420ToRGB_8u_P3C3R, &myYCbCr420ToBGR_8u_P3C3R;
    DriverWithAlpha<uint8_t>&myYCbCr420ToBGR_8u_P3C4R, &myYCrCb420ToRGB_8u_P3C4R, &myYCrCb420ToBGR_Filter_8u_P3C4R;

    Driver &myBGRToYCbCr422_8u_C3C2R, &myBGRToYCbCr422_8u_C3P3R, &myBGRToYCbCr422_8u_AC4C2R, &myBGRToYCbCr422_8u_AC4P3R,
        &myRGBToYCbCr422_8u_C3P3R;
    Driver &myBGRToYCbCr411_8u_C3P3R, &myBGRToYCbCr411_8u_AC4P3R;
    Driver &myBGRToYCbCr420_8u_C3P3R, &myBGRToYCbCr420_8u_AC4P3R, &myRGBToYCrCb420_8u_AC4P3R;
    Driver& myYCbCr422ToBGR_8u_C2C3R;
    DriverWithAlpha<uint8_t>& myYCbCr422ToBGR_8u_C2C4R;
    Driver &myYCbCr422ToBGR_8u_P3C3R, &myYCbCrToBGR_8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYCbCrToBGR_8u_P3C4R;

    Driver& myYCbCr411ToBGR_8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYCbCr411ToBGR_8u_P3C4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(Bt601Rows, bt601Rows)
