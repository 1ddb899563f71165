// SPDX-License-Identifier: MIT
// Row drivers and row kernels of the RGB and YUV conversions, compiled once for every tier.
#include "frame/steps.h"
#include "lumachroma/subsampled_rows.h"
#include "lumachroma/yuv_formulas.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/yuv_rows.h"

namespace {

using YuvToRgb = YccToRgb<yuv::toRgb>;
using YuvToRgb0 = WithAlpha<YccToRgb<yuv::toRgbNearest>>; // the fourth byte is written as 0

// RGBA to YUVA: alpha goes along.
struct RgbaToYuva {
    Pixels<4> operator()(const Pixels<4>& rgba) const
    {
        const auto [r, g, b, a] = rgba.c[0];
        const auto [y, u, v] = RgbToYuv{}(Pixels<3>{{{r, g, b}}}).c[0];
        return {{{y, u, v, a}}};
    }
};

// One row of planes by the matrix, whose luma differs between the whole blocks of a row and the rest.
ZORCC_INLINE void innerRGBToYUV_8u_P3R(const P3<In>& rgb, const P3<Out>& yuv, int width)
{
    const int whole = width - width % RgbPlanesToYuv<true>::blockPixels;
    convertRow(rgb, RgbPlanesToYuv<true>{}, yuv, whole);
    convertRow(from(rgb, whole), RgbPlanesToYuv<false>{}, from(yuv, whole), width - whole);
}

} // namespace

void myRGBToYUV_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<C3<In>>(src, srcStep), RgbToYuv{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<AC4<In>>(src, srcStep), RgbToYuv{}, rowsOf<AC4<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV_8u_AC4P4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep, int width,
                          int height)
{
    convertRows(rowsOf<C4<In>>(src, srcStep), RgbaToYuva{}, rowsOf<P4<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                         int height)
{
    convertRows(rowsOf<C3<In>>(src, srcStep), RgbToYuv{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                       int width, int height)
{
    const Image<P3<In>> rgb = rowsOf<P3<In>>(src, srcStep);
    const Image<P3<Out>> yuv = rowsOf<P3<Out>>(dst, dstStep);
    for (int y = 0; y < height; ++y) innerRGBToYUV_8u_P3R(rgb[y], yuv[y], width);
}

void myYUVToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<C3<In>>(src, srcStep), YuvToRgb{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUVToRGB_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<AC4<In>>(src, srcStep), YuvToRgb{}, rowsOf<AC4<Out>>(dst, dstStep), width, height);
}

void myYUVToRGB_8u_P3C3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                         int height)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), YccToRgb<yuv::planarToRgb>{}, rowsOf<C3<Out>>(dst, dstStep), width,
                height);
}

void myYUVToRGB_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                       int width, int height)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), YccToRgb<yuv::planarToRgb>{}, rowsOf<P3<Out>>(dst, dstStep), width,
                height);
}

void myRGBToYUV422_8u_C3C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    rgbTo422(rowsOf<C3<In>>(src, srcStep), RgbToYuv422{}, RgbToYuv{}, rowsOf<Packed422<Out>>(dst, dstStep), width,
             height);
}

void myRGBToYUV422_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep, int width,
                            int height)
{
    rgbTo422(rowsOf<C3<In>>(src, srcStep), RgbToYuv422{}, RgbToYuv{}, rowsOf<Planar422<Out>>(dst, dstStep), width,
             height);
}

void myRGBToYUV422_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                          int width, int height)
{
    rgbTo422(rowsOf<P3<In>>(src, srcStep), RgbToYuv422{}, RgbToYuv{}, rowsOf<Planar422<Out>>(dst, dstStep), width,
             height);
}

void myRGB565ToYUV422_16u8u_C3P3R(const uint16_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                  int width, int height)
{
    rgbTo422(rowsOf<Bits565<In>>(src, srcStep), RgbToYuv422{}, RgbToYuv{}, rowsOf<Planar422<Out>>(dst, dstStep), width,
             height);
}

void myYUV422ToRGB_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    rgbFrom422(rowsOf<Packed422<In>>(src, srcStep), YuvToRgb{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    rgbFrom422(rowsOf<Planar422<In>>(src, srcStep), YuvToRgb{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_P3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height)
{
    rgbFrom422(rowsOf<Planar422<In>>(src, srcStep), YuvToRgb{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_P3AC4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                             int width, int height)
{
    rgbFrom422(rowsOf<Planar422<In>>(src, srcStep), YuvToRgb0{0}, rowsOf<C4<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV420_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep, int width,
                            int height)
{
    rgbTo420(rowsOf<C3<In>>(src, srcStep), RgbToYuv420By14{}, dst, dstStep, width, height);
}

void myRGBToYUV420_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                          int width, int height)
{
    rgbTo420(rowsOf<P3<In>>(src, srcStep), RgbToYuv420{}, dst, dstStep, width, height);
}

void myBGRToYUV420_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                             int width, int height)
{
    rgbTo420(rowsOf<BGRX<In>>(src, srcStep), RgbToYuv420{}, dst, dstStep, width, height);
}

void myRGB565ToYUV420_16u8u_C3P3R(const uint16_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                  int width, int height)
{
    rgbTo420(rowsOf<Bits565<In>>(src, srcStep), RgbToYuv420{}, dst, dstStep, width, height);
}

void myYUV420ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    rgbFrom420(src, srcStep, YuvToRgb{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUV420ToRGB_8u_P3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height)
{
    rgbFrom420(src, srcStep, YuvToRgb{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myYUV420ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    rgbFrom420(src, srcStep, YuvToRgb{}, rowsOf<BGR<Out>>(dst, dstStep), width, height);
}

void myYUV420ToRGB_8u_P3AC4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                             int width, int height)
{
    rgbFrom420(src, srcStep, YuvToRgb0{0}, rowsOf<C4<Out>>(dst, dstStep), width, height);
}

} // namespace zorcc::ZORCC_TIER
