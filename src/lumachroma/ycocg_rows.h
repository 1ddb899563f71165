// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YCoCg conversions.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct YCoCgRows {
    Driver &myBGRToYCoCg_8u16s_C3P3R, &myBGRToYCoCg_8u16s_C4P3R, &mySBGRToYCoCg_16s_C3P3R, &mySBGRToYCoCg_16s_C4P3R,
        &mySBGRToYCoCg_16s32s_C3P3R, &mySBGRToYCoCg_16s32s_C4P3R, &myYCoCgToBGR_16s8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYCoCgToBGR_16s8u_P3C4R;
    Driver& myYCoCgToSBGR_16s_P3C3R;
    DriverWithAlpha<int16_t>& myYCoCgToSBGR_16s_P3C4R;
    Driver& myYCoCgToSBGR_32s16s_P3C3R;
    DriverWithAlpha<int16_t>& myYCoCgToSBGR_32s16s_P3C4R;
    Driver &myBGRToYCoCg_Rev_8u16s_C3P3R, &myBGRToYCoCg_Rev_8u16s_C4P3R, &mySBGRToYCoCg_Rev_16s_C3P3R,
        &mySBGRToYCoCg_Rev_16s_C4P3R, &mySBGRToYCoCg_Rev_16s32s_C3P3R, &mySBGRToYCoCg_Rev_16s32s_C4P3R,
        &myYCoCgToBGR_Rev_16s8u_P3C3R;
    DriverWithAlpha<uint8_t>& myYCoCgToBGR_Rev_16s8u_P3C4R;
    Driver& myYCoCgToSBGR_Rev_16s_P3C3R;
    DriverWithAlpha<int16_t>& myYCoCgToSBGR_Rev_16s_P3C4R;
    Driver& myYCoCgToSBGR_Rev_32s16s_P3C3R;
    DriverWithAlpha<int16_t>& myYCoCgToSBGR_Rev_32s16s_P3C4R;
    Driver &myRGBToYCoCg_8u_C3P3R, &myYCoCgToRGB_8u_P3C3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(YCoCgRows, ycocgRows)
