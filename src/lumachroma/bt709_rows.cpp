// SPDX-License-Identifier: MIT
// Row drivers of the BGR and YCbCr (ITU-R BT.709) conversions, compiled once for every tier.
#include "lumachroma/bt709_rows.h"

#include "lumachroma/bt709_formulas.h"

namespace zorcc::ZORCC_TIER {

const Bt709Rows bt709Rows = {
    .myBGRToYCbCr420_709CSC_8u_C3P3R = rows<Bgr, RgbToBt709_420, Planar420>,
    .myBGRToYCbCr420_709CSC_8u_AC4P3R = rows<Bgrx, RgbToBt709_420, Planar420>,
    .myYCbCr420ToBGR_709CSC_8u_P3C3R = rows<Planar420, Bt709ToRgb, Bgr>,
    .myYCbCrToBGR_709CSC_8u_P3C3R = rows<P3<>, Bt709ToRgb, Bgr>,
    .myYCbCrToBGR_709CSC_8u_P3C4R = rows<P3<>, WithAlpha<Bt709ToRgb>, Bgra>,

    .myBGRToYCbCr420_709HDTV_8u_AC4P3R = rows<Bgrx, RgbToBt709Full_420, Planar420>,
    .myYCbCr420ToBGR_709HDTV_8u_P3C4R = rows<Planar420, WithAlpha<Bt709FullToRgb>, Bgra>,
    .myBGRToCbYCr422_709HDTV_8u_C3C2R = rows<Bgr, RgbToBt709Full_422, Uyvy>,
    .myBGRToCbYCr422_709HDTV_8u_AC4C2R = rows<Bgrx, RgbToBt709Full_422, Uyvy>,
    .myCbYCr422ToBGR_709HDTV_8u_C2C3R = rows<Uyvy, Bt709FullToRgb, Bgr>,
    .myCbYCr422ToBGR_709HDTV_8u_C2C4R = rows<Uyvy, WithAlpha<Bt709FullToRgb>, Bgra>,
};

} // namespace zorcc::ZORCC_TIER
