// SPDX-License-Identifier: MIT
// Row drivers of the RGB and HLS conversions, compiled once for every tier.
#include "colormodels/hls_from_rgb.h"
#include "colormodels/hls_to_rgb.h"
#include "colormodels/interleaved_rows.h"

namespace zorcc::ZORCC_TIER {

#include "colormodels/hls_rows.h"

void myRGBToHLS_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels)
{
    convertInterleaved<RgbToHls<uint8_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myRGBToHLS_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<RgbToHls<uint16_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myRGBToHLS_16s_C3R(const int16_t* src, ptrdiff_t srcStep, int16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<RgbToHls<int16_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myRGBToHLS_32f_C3R(const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<RgbToHls<float>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myHLSToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels)
{
    convertInterleaved<HlsToRgb<uint8_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myHLSToRGB_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<HlsToRgb<uint16_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myHLSToRGB_16s_C3R(const int16_t* src, ptrdiff_t srcStep, int16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<HlsToRgb<int16_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myHLSToRGB_32f_C3R(const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<HlsToRgb<float>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myBGRToHLS_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRowsOnThreads(rowsOf<BGRX<In>>(src, srcStep), RgbToHls<uint8_t>{}, rowsOf<AC4<Out>>(dst, dstStep), width,
                         height);
}

} // namespace zorcc::ZORCC_TIER
