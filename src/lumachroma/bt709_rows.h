// SPDX-License-Identifier: MIT
// Row drivers of the BGR and YCbCr (ITU-R BT.709) conversions; declared once in the namespace of every tier
// (simd/each_tier.h), hence no include guard and no includes. Width and height are those of the image.

void myBGRToYCbCr420_709CSC_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                     int width, int height);
void myBGRToYCbCr420_709CSC_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                      int width, int height);
void myYCbCr420ToBGR_709CSC_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                     int width, int height);
void myYCbCrToBGR_709CSC_8u_P3C3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                  int width, int height);
void myYCbCrToBGR_709CSC_8u_P3C4R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                  int width, int height, uint8_t aval);
void myBGRToYCbCr420_709HDTV_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                                       int width, int height);
void myYCbCr420ToBGR_709HDTV_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                      int width, int height, uint8_t aval);
void myBGRToCbYCr422_709HDTV_8u_C3C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                                      int height);
void myBGRToCbYCr422_709HDTV_8u_AC4C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                       int width, int height);
void myCbYCr422ToBGR_709HDTV_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                                      int height);
void myCbYCr422ToBGR_709HDTV_8u_C2C4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                                      int height, uint8_t aval);
