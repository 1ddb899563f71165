// SPDX-License-Identifier: MIT
// Row drivers of the BGR and YCbCr (ITU-R BT.709) conversions, compiled once for every tier.
#include "frame/steps.h"
#include "lumachroma/subsampled_rows.h"
#include "lumachroma/ycbcr_formulas.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/bt709_rows.h"

namespace {

using PairedForward420 = PairedToYCbCr420<ycbcr::bt709, ycbcr::studioLuma, Order::reversed>;
using Inverse = YccToRgb<ycbcr::bt709ToRgb>;

// Full range. The constant of packed Cr is 2 less than that of Cb.
using FullForward420 = RgbToYCbCr420<ycbcr::bt709Full, ycbcr::fullLuma>;
using FullForward422 = Limited<RgbToSubsampled<1, WeighedLuma<ycbcr::bt709Full.y, ycbcr::fullLuma>,
                                               YCbCrChroma<ycbcr::bt709Full, 2, ycbcr::chromaBias(2) - 2>>>;
using FullInverse = YccToRgb<ycbcr::bt709FullToRgb>;

template <class Byte> using CbYCr = Packed422<Byte, PackedOrder::chromaFirst>;

} // namespace

void myBGRToYCbCr420_709CSC_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                     int width, int height)
{
    rgbTo420(rowsOf<Paired<BGR<In>>>(src, srcStep), PairedForward420{}, dst, dstStep, width, height);
}

void myBGRToYCbCr420_709CSC_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                      int width, int height)
{
    rgbTo420(rowsOf<Paired<BGRX<In>>>(src, srcStep), PairedForward420{}, dst, dstStep, width, height);
}

void myYCbCr420ToBGR_709CSC_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                     int width, int height)
{
    rgbFrom420(src, srcStep, Inverse{}, rowsOf<BGR<Out>>(dst, dstStep), width, height);
}

void myYCbCrToBGR_709CSC_8u_P3C3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                  int width, int height)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), Inverse{}, rowsOf<BGR<Out>>(dst, dstStep), width, height);
}

void myYCbCrToBGR_709CSC_8u_P3C4R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                  int width, int height, uint8_t aval)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), WithAlpha<Inverse>{aval}, rowsOf<BGRA<Out>>(dst, dstStep), width, height);
}

void myBGRToYCbCr420_709HDTV_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                       int width, int height)
{
    rgbTo420(rowsOf<BGRX<In>>(src, srcStep), FullForward420{}, dst, dstStep, width, height);
}

void myYCbCr420ToBGR_709HDTV_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                      int width, int height, uint8_t aval)
{
    rgbFrom420(src, srcStep, WithAlpha<FullInverse>{aval}, rowsOf<BGRA<Out>>(dst, dstStep), width, height);
}

void myBGRToCbYCr422_709HDTV_8u_C3C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                                      int height)
{
    rgbTo422(rowsOf<BGR<In>>(src, srcStep), FullForward422{}, AsPair<FullForward422>{},
             rowsOf<CbYCr<Out>>(dst, dstStep), width, height);
}

void myBGRToCbYCr422_709HDTV_8u_AC4C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                       int width, int height)
{
    rgbTo422(rowsOf<BGRX<In>>(src, srcStep), FullForward422{}, AsPair<FullForward422>{},
             rowsOf<CbYCr<Out>>(dst, dstStep), width, height);
}

void myCbYCr422ToBGR_709HDTV_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                                      int height)
{
    rgbFrom422(rowsOf<CbYCr<In>>(src, srcStep), FullInverse{}, rowsOf<BGR<Out>>(dst, dstStep), width, height);
}

void myCbYCr422ToBGR_709HDTV_8u_C2C4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                                      int height, uint8_t aval)
{
    rgbFrom422(rowsOf<CbYCr<In>>(src, srcStep), WithAlpha<FullInverse>{aval}, rowsOf<BGRA<Out>>(dst, dstStep), width,
               height);
}

} // namespace zorcc::ZORCC_TIER
