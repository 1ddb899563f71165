// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YUV conversions, compiled once for every tier.
#include "lumachroma/yuv_rows.h"

#include "lumachroma/yuv_formulas.h"
#include "pixels/packed_bits.h"

namespace zorcc::ZORCC_TIER {

const YuvRows yuvRows = {
    .myRGBToYUV_8u_C3R = rows<C3<>, RgbToYuv, C3<>>,
    .myRGBToYUV_8u_AC4R = rows<AC4<>, RgbToYuv, AC4<>>,
    .myRGBToYUV_8u_AC4P4R = rows<C4<>, CopyingAlpha<RgbToYuv>, AP4<>>,
    .myRGBToYUV_8u_C3P3R = rows<C3<>, RgbToYuv, P3<>>,
    .myRGBToYUV_8u_P3R = rows<P3<>, RgbPlanesToYuv, P3<>>,
    .myYUVToRGB_8u_C3R = rows<C3<>, YuvToRgb, C3<>>,
    .myYUVToRGB_8u_AC4R = rows<AC4<>, YuvToRgb, AC4<>>,
    .myYUVToRGB_8u_P3C3R = rows<P3<>, YuvPlanesToRgb, C3<>>,
    .myYUVToRGB_8u_P3R = rows<P3<>, YuvPlanesToRgb, P3<>>,

    .myRGBToYUV422_8u_C3C2R = rows<C3<>, RgbToYuv422, Yuy2>,
    .myRGBToYUV422_8u_C3P3R = rows<C3<>, RgbToYuv422, Planar422>,
    .myRGBToYUV422_8u_P3R = rows<P3<>, RgbToYuv422, Planar422>,
    .myRGB565ToYUV422_16u8u_C3P3R = rows<Rgb16<bits565>, RgbToYuv422, Planar422>,
    .myYUV422ToRGB_8u_C2C3R = rows<Yuy2, YuvToRgb, C3<>>,
    .myYUV422ToRGB_8u_P3C3R = rows<Planar422, YuvToRgb, C3<>>,
    .myYUV422ToRGB_8u_P3R = rows<Planar422, YuvToRgb, P3<>>,
    .myYUV422ToRGB_8u_P3AC4R = rows<Planar422, WithAlpha<YuvToRgbNearest>, C4<>>,

    .myRGBToYUV420_8u_C3P3R = rows<C3<>, RgbToYuv420By14, Planar420>,
    .myRGBToYUV420_8u_P3R = rows<P3<>, RgbToYuv420, Planar420>,
    .myBGRToYUV420_8u_AC4P3R = rows<Bgrx, RgbToYuv420, Planar420>,
    .myRGB565ToYUV420_16u8u_C3P3R = rows<Rgb16<bits565>, RgbToYuv420, Planar420>,
    .myYUV420ToRGB_8u_P3C3R = rows<Planar420, YuvToRgb, C3<>>,
    .myYUV420ToRGB_8u_P3R = rows<Planar420, YuvToRgb, P3<>>,
    .myYUV420ToBGR_8u_P3C3R = rows<Planar420, YuvToRgb, Bgr>,
    .myYUV420ToRGB_8u_P3AC4R = rows<Planar420, WithAlpha<YuvToRgbNearest>, C4<>>,
};

} // namespace zorcc::ZORCC_TIER
