// SPDX-License-Identifier: MIT
// Row drivers of the RGB and HSV conversions; declared once in the namespace of every tier (simd/each_tier.h), hence
// no include guard and no includes. Interleaved images of `channels` channels a pixel, 3, or 4 of which the fourth is
// alpha and stays as it is.

void myRGBToHSV_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels);
void myRGBToHSV_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
void myHSVToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels);
void myHSVToRGB_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels);
