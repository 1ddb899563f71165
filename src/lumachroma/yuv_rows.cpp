// SPDX-License-Identifier: MIT
// Row drivers and row kernels of the RGB and YUV conversions, compiled once for every tier.
#include "frame/steps.h"
#include "lumachroma/yuv_formulas.h"
#include "simd/layouts_444.h"
#include "simd/layouts_subsampled.h"
#include "simd/row_loop.h"

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

// ---- 4:2:2: the last pixel of an odd row has no partner -------------------------------------------------------------

struct Yuv {
    uint8_t y, u, v;
};

// Packed, its own U is there; its V is that of the pair before it, or its U where there is none.
ZORCC_INLINE Yuv lastPixel(const Packed422<In>& row, int x)
{
    const uint8_t* p = row.at(0, x);
    return {p[0], p[1], x > 0 ? p[-1] : p[1]};
}

// Planar, it shares the last chroma samples of the row; none exist at width 1.
ZORCC_INLINE Yuv lastPixel(const Planar422<In>& row, int x)
{
    if (x == 0) return {*row.at(0, 0), 128, 128};
    return {*row.at(0, x), *(row.at(1, x) - 1), *(row.at(2, x) - 1)};
}

ZORCC_INLINE void storeLastPixel(const Packed422<Out>& row, int x, Yuv pixel)
{
    row.at(0, x)[0] = pixel.y;
    row.at(0, x)[1] = pixel.u;
}

ZORCC_INLINE void storeLastPixel(const Planar422<Out>& row, int x, Yuv pixel) { *row.at(0, x) = pixel.y; }

template <class Source, class Destination>
ZORCC_INLINE void innerRGBToYUV422(const Source& rgb, const Destination& yuv, int width)
{
    const int even = width & ~1;
    convertRow(rgb, RgbToYuv422{}, yuv, even);
    if (even == width) return;
    Yuv last;
    convertRow(from(rgb, even), RgbToYuv{}, P3<Out>{{{&last.y, &last.u, &last.v}}}, 1);
    storeLastPixel(yuv, even, last);
}

template <class Formula, class Source, class Destination>
ZORCC_INLINE void innerYUV422ToRGB(const Source& yuv, const Destination& rgb, int width)
{
    const int even = width & ~1;
    convertRow(yuv, Formula{}, rgb, even);
    if (even == width) return;
    const Yuv last = lastPixel(yuv, even);
    convertRow(P3<In>{{{&last.y, &last.u, &last.v}}}, Formula{}, from(rgb, even), 1);
}

template <class Source, class Destination>
void rgbToYuv422(const Image<Source>& rgb, const Image<Destination>& yuv, int width, int height)
{
    for (int y = 0; y < height; ++y) innerRGBToYUV422(rgb[y], yuv[y], width);
}

template <class Formula = YuvToRgb, class Source, class Destination>
void yuv422ToRgb(const Image<Source>& yuv, const Image<Destination>& rgb, int width, int height)
{
    for (int y = 0; y < height; ++y) innerYUV422ToRGB<Formula>(yuv[y], rgb[y], width);
}

// ---- 4:2:0: whole 2 x 2 blocks --------------------------------------------------------------------------------------

template <class Formula, class Source>
void rgbToYuv420(const Image<Source>& rgb, uint8_t* const* dst, const PlaneSteps& dstStep, int width, int height)
{
    convertRows(inPairs(rgb), Formula{}, planar420(dst, dstStep), width & ~1, height / 2);
}

template <class Formula = YuvToRgb, class Destination>
void yuv420ToRgb(const uint8_t* const* src, const PlaneSteps& srcStep, const Image<Destination>& rgb, int width,
                 int height)
{
    convertRows(planar420(src, srcStep), Formula{}, inPairs(rgb), width & ~1, height / 2);
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
    rgbToYuv422(rowsOf<C3<In>>(src, srcStep), rowsOf<Packed422<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV422_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep, int width,
                            int height)
{
    rgbToYuv422(rowsOf<C3<In>>(src, srcStep), rowsOf<Planar422<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV422_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                          int width, int height)
{
    rgbToYuv422(rowsOf<P3<In>>(src, srcStep), rowsOf<Planar422<Out>>(dst, dstStep), width, height);
}

void myRGB565ToYUV422_16u8u_C3P3R(const uint16_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                  int width, int height)
{
    rgbToYuv422(rowsOf<Bits565<In>>(src, srcStep), rowsOf<Planar422<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    yuv422ToRgb(rowsOf<Packed422<In>>(src, srcStep), rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    yuv422ToRgb(rowsOf<Planar422<In>>(src, srcStep), rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_P3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height)
{
    yuv422ToRgb(rowsOf<Planar422<In>>(src, srcStep), rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myYUV422ToRGB_8u_P3AC4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                             int width, int height)
{
    yuv422ToRgb<YuvToRgb0>(rowsOf<Planar422<In>>(src, srcStep), rowsOf<C4<Out>>(dst, dstStep), width, height);
}

void myRGBToYUV420_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep, int width,
                            int height)
{
    rgbToYuv420<RgbToYuv420By14>(rowsOf<C3<In>>(src, srcStep), dst, dstStep, width, height);
}

void myRGBToYUV420_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                          int width, int height)
{
    rgbToYuv420<RgbToYuv420>(rowsOf<P3<In>>(src, srcStep), dst, dstStep, width, height);
}

void myBGRToYUV420_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                             int width, int height)
{
    rgbToYuv420<RgbToYuv420>(rowsOf<AC4<In, Order::reversed>>(src, srcStep), dst, dstStep, width, height);
}

void myRGB565ToYUV420_16u8u_C3P3R(const uint16_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                  int width, int height)
{
    rgbToYuv420<RgbToYuv420>(rowsOf<Bits565<In>>(src, srcStep), dst, dstStep, width, height);
}

void myYUV420ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    yuv420ToRgb(src, srcStep, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYUV420ToRGB_8u_P3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height)
{
    yuv420ToRgb(src, srcStep, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myYUV420ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    yuv420ToRgb(src, srcStep, rowsOf<C3<Out, Order::reversed>>(dst, dstStep), width, height);
}

void myYUV420ToRGB_8u_P3AC4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                             int width, int height)
{
    yuv420ToRgb<YuvToRgb0>(src, srcStep, rowsOf<C4<Out>>(dst, dstStep), width, height);
}

} // namespace zorcc::ZORCC_TIER
