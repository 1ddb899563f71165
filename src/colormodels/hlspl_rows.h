// SPDX-License-Identifier: MIT
// Row drivers of the BGR and HLS conversions; declared once in the namespace of every tier (simd/each_tier.h), hence
// no include guard and no includes. Images with planes on one side or both;
// four channels are those of three and alpha, which goes along.

void ownpi_BGRToHLS_8u_AC4P4(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep, int width,
                             int height);
void ownpi_BGRToHLS_8u_AP4C4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                             int height);
void ownpi_BGRToHLS_8u_AP4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep,
                           int width, int height);
void ownpi_BGRToHLS_8u_C3P3(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                            int height);
void ownpi_BGRToHLS_8u_P3C3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void ownpi_BGRToHLS_8u_P3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height);
void ownpi_HLSToBGR_8u_AC4P4(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep, int width,
                             int height);
void ownpi_HLSToBGR_8u_AP4C4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                             int height);
void ownpi_HLSToBGR_8u_AP4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep,
                           int width, int height);
void ownpi_HLSToBGR_8u_C3P3(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                            int height);
void ownpi_HLSToBGR_8u_P3C3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height);
void ownpi_HLSToBGR_8u_P3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height);
