// SPDX-License-Identifier: MIT
// Row drivers of the RGB and HLS conversions; declared once in the namespace of every tier (simd/each_tier.h), hence
// no include guard and no includes. Interleaved images of `channels` channels a pixel, 3, or 4 of which the fourth is
// alpha and stays as it is.

void myRGBToHLS_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels);
void myRGBToHLS_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myRGBToHLS_16s_C3R(const int16_t* src, ptrdiff_t srcStep, int16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myRGBToHLS_32f_C3R(const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myHLSToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels);
void myHLSToRGB_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myHLSToRGB_16s_C3R(const int16_t* src, ptrdiff_t srcStep, int16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myHLSToRGB_32f_C3R(const float* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myBGRToHLS_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
