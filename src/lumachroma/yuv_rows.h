// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YUV conversions; declared once in the namespace of every tier (simd/each_tier.h), hence no
// include guard and no includes. Width and height are those of the image; the 4:2:0 drivers leave an odd last column
// and row alone.

void myRGBToYUV_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
void myRGBToYUV_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
void myRGBToYUV_8u_AC4P4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep, int width,
                          int height);
void myRGBToYUV_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                         int height);
void myRGBToYUV_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                       int width, int height);
void myYUVToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
void myYUVToRGB_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height);
void myYUVToRGB_8u_P3C3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                         int height);
void myYUVToRGB_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                       int width, int height);
void myRGBToYUV422_8u_C3C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void myRGBToYUV422_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep, int width,
                            int height);
void myRGBToYUV422_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                          int width, int height);
void myRGB565ToYUV422_16u8u_C3P3R(const uint16_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                  int width, int height);
void myYUV422ToRGB_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void myYUV422ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void myYUV422ToRGB_8u_P3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height);
void myYUV422ToRGB_8u_P3AC4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                             int width, int height);
void myRGBToYUV420_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep, int width,
                            int height);
void myRGBToYUV420_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                          int width, int height);
void myBGRToYUV420_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                             int width, int height);
void myRGB565ToYUV420_16u8u_C3P3R(const uint16_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                  int width, int height);
void myYUV420ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void myYUV420ToRGB_8u_P3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height);
void myYUV420ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void myYUV420ToRGB_8u_P3AC4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                             int width, int height);
