// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YCbCr (ITU-R BT.601) conversions; declared once in the namespace of every tier
// (simd/each_tier.h), hence no include guard and no includes. Width and height are those of the image.

void myRGBToYCbCr_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
void myRGBToYCbCr_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                          int height);
void myRGBToYCbCr_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                           int height);
void myRGBToYCbCr_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                            int height);
void myRGBToYCbCr_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                         int width, int height);
void myRGBToYCbCr422_8u_C3C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                              int height);
void myRGBToYCbCr422_8u_P3C2R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height);
void myRGBToYCbCr420_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                              int width, int height);
void myYCbCrToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
void myYCbCrToRGB_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                          int height);
void myYCbCrToRGB_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                         int width, int height);
void myYCbCrToRGB_8u_P3C3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                           int height);
void myYCbCrToRGB_8u_P3C4R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                           int height, uint8_t aval);
void myYCbCr422ToRGB_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                              int height);
void myYCbCr422ToRGB_8u_C2P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                              int width, int height);
void myYCbCr422ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height);
void myYCbCr420ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height);
void myYCbCr420ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height);
void myYCbCr420ToBGR_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height, uint8_t aval);
void myYCrCb420ToRGB_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height, uint8_t aval);
void myYCbCr411ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height);
void myYCbCr411ToBGR_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height, uint8_t aval);
void myYCrCb420ToBGR_Filter_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                     int width, int height, uint8_t aval);
