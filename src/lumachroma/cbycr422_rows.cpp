// SPDX-License-Identifier: MIT
// Row drivers of the conversions between RGB and packed CbYCr and YCrCb 4:2:2 (ITU-R BT.601), compiled once for every
// tier.
#include "lumachroma/cbycr422_rows.h"

#include "lumachroma/cbycr422_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

using Rounded = YccToRgb<bt601::roundedToRgb>;
using OfCrCb = YccToRgb<bt601::fromCrCb(bt601::foldedToRgb)>; // makes BGR

} // namespace

const CbYCr422Rows cbycr422Rows = {
    .myRGBToCbYCr422_8u_C3C2R = rows<C3AndPrevious, RgbToCbYCr422Filtered, Uyvy>,
    .myRGBToCbYCr422Gamma_8u_C3C2R = rows<C3AndPrevious, OfLinear<>, Uyvy>,
    .myBGRToCbYCr422_8u_AC4C2R = rows<Bgrx, RgbToCbYCr422, Uyvy>,
    .myCbYCr422ToRGB_8u_C2C3R = rows<Uyvy, Rounded, C3<>>,
    .myCbYCr422ToBGR_8u_C2C4R = rows<Uyvy, WithAlpha<Rounded>, Bgra>,

    .myRGBToYCrCb422_8u_C3C2R = rows<C3<>, RgbToYCrCb422, Yuy2>,
    .myRGBToYCrCb422_8u_P3C2R = rows<P3<>, RgbToYCrCb422, Yuy2>,
    .myYCrCb422ToRGB_8u_C2C3R = rows<Yuy2, OfCrCb, Bgr>,
    .myYCrCb422ToRGB_8u_C2P3R = rows<Yuy2, OfCrCb, P3<uint8_t, Order::reversed>>,
};

} // namespace zorcc::ZORCC_TIER
