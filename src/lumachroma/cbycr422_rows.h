// SPDX-License-Identifier: MIT
// Row drivers of the conversions between RGB and packed CbYCr and YCrCb 4:2:2 (ITU-R BT.601).
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct CbYCr422Rows {
    Driver &myRGBToCbYCr422_8u_C3C2R, &myRGBToCbYCr422Gamma_8u_C3C2R, &myBGRToCbYCr422_8u_AC4C2R;
    Driver& myCbYCr422ToRGB_8u_C2C3R;
    DriverWithAlpha<uint8_t>& myCbYCr422ToBGR_8u_C2C4R;

    Driver &myRGBToYCrCb422_8u_C3C2R, &myRGBToYCrCb422_8u_P3C2R;
    Driver &myYCrCb422ToRGB_8u_C2C3R, &myYCrCb422ToRGB_8u_C2P3R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(CbYCr422Rows, cbycr422Rows)
