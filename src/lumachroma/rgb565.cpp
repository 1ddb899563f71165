// SPDX-License-Identifier: MIT
// Exported conversions from and to packed 16-bit RGB.
#include "zorcc/rgb565.h"
#include "lumachroma/rgb565_rows.h"

using namespace zorcc;

static constexpr auto& rows = rgb565Rows;

namespace {

using OddSize = Checks::OddSize;

constexpr Checks pairs = {.minimum = {2, 1}},
                 quads = {.block = {4, 1}, .minimum = {4, 1}, .oddSize = OddSize::convertedAndWarned},
                 squares = {.block = {2, 2}, .minimum = {2, 2}, .oddSize = OddSize::warned},
                 evenPlanesFirst = {.block = {2, 2},
                                    .minimum = {2, 2},
                                    .oddSize = OddSize::warned,
                                    .planes = Checks::Planes::beforeSize};

} // namespace

// ---- to 16 bits -----------------------------------------------------------------------------------------------------

// Three planes of one step, three planes with a step each, and one plane.
#define ZORCC_FROM_444P(name, driver)                                                                                  \
    ZorStatus name(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)            \
    {                                                                                                                  \
        return convert(driver, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);                         \
    }
#define ZORCC_FROM_PLANES(name, driver)                                                                                \
    ZorStatus name(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst, int dstStep, ZorSize roiSize)   \
    {                                                                                                                  \
        return convert(driver, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);                            \
    }
#define ZORCC_FROM_PACKED(name, driver)                                                                                \
    ZorStatus name(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)                     \
    {                                                                                                                  \
        return convert(driver, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);                       \
    }

ZORCC_FROM_444P(zoriYCbCrToRGB565_8u16u_P3C3R, rows().myYCbCrToRGB565_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToRGB565Dither_8u16u_P3C3R, rows().myYCbCrToRGB565Dither_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToBGR565_8u16u_P3C3R, rows().myYCbCrToBGR565_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToBGR565Dither_8u16u_P3C3R, rows().myYCbCrToBGR565Dither_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToRGB555_8u16u_P3C3R, rows().myYCbCrToRGB555_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToRGB555Dither_8u16u_P3C3R, rows().myYCbCrToRGB555Dither_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToBGR555_8u16u_P3C3R, rows().myYCbCrToBGR555_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToBGR555Dither_8u16u_P3C3R, rows().myYCbCrToBGR555Dither_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToRGB444_8u16u_P3C3R, rows().myYCbCrToRGB444_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToRGB444Dither_8u16u_P3C3R, rows().myYCbCrToRGB444Dither_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToBGR444_8u16u_P3C3R, rows().myYCbCrToBGR444_8u16u_P3C3R)
ZORCC_FROM_444P(zoriYCbCrToBGR444Dither_8u16u_P3C3R, rows().myYCbCrToBGR444Dither_8u16u_P3C3R)

ZORCC_FROM_PACKED(zoriYCbCrToRGB565_8u16u_C3R, rows().myYCbCrToRGB565_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToRGB565Dither_8u16u_C3R, rows().myYCbCrToRGB565Dither_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToBGR565_8u16u_C3R, rows().myYCbCrToBGR565_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToBGR565Dither_8u16u_C3R, rows().myYCbCrToBGR565Dither_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToRGB555_8u16u_C3R, rows().myYCbCrToRGB555_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToRGB555Dither_8u16u_C3R, rows().myYCbCrToRGB555Dither_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToBGR555_8u16u_C3R, rows().myYCbCrToBGR555_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToBGR555Dither_8u16u_C3R, rows().myYCbCrToBGR555Dither_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToRGB444_8u16u_C3R, rows().myYCbCrToRGB444_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToRGB444Dither_8u16u_C3R, rows().myYCbCrToRGB444Dither_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToBGR444_8u16u_C3R, rows().myYCbCrToBGR444_8u16u_C3R)
ZORCC_FROM_PACKED(zoriYCbCrToBGR444Dither_8u16u_C3R, rows().myYCbCrToBGR444Dither_8u16u_C3R)

ZORCC_FROM_PLANES(zoriYCbCr422ToRGB565_8u16u_P3C3R, rows().myYCbCr422ToRGB565_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToRGB565Dither_8u16u_P3C3R, rows().myYCbCr422ToRGB565Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToBGR565_8u16u_P3C3R, rows().myYCbCr422ToBGR565_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToBGR565Dither_8u16u_P3C3R, rows().myYCbCr422ToBGR565Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToRGB555_8u16u_P3C3R, rows().myYCbCr422ToRGB555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToRGB555Dither_8u16u_P3C3R, rows().myYCbCr422ToRGB555Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToBGR555_8u16u_P3C3R, rows().myYCbCr422ToBGR555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToBGR555Dither_8u16u_P3C3R, rows().myYCbCr422ToBGR555Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToRGB444_8u16u_P3C3R, rows().myYCbCr422ToRGB444_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToRGB444Dither_8u16u_P3C3R, rows().myYCbCr422ToRGB444Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToBGR444_8u16u_P3C3R, rows().myYCbCr422ToBGR444_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr422ToBGR444Dither_8u16u_P3C3R, rows().myYCbCr422ToBGR444Dither_8u16u_P3C3R)

ZORCC_FROM_PACKED(zoriYCbCr422ToRGB565_8u16u_C2C3R, rows().myYCbCr422ToRGB565_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToRGB565Dither_8u16u_C2C3R, rows().myYCbCr422ToRGB565Dither_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToBGR565_8u16u_C2C3R, rows().myYCbCr422ToBGR565_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToBGR565Dither_8u16u_C2C3R, rows().myYCbCr422ToBGR565Dither_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToRGB555_8u16u_C2C3R, rows().myYCbCr422ToRGB555_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToRGB555Dither_8u16u_C2C3R, rows().myYCbCr422ToRGB555Dither_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToBGR555_8u16u_C2C3R, rows().myYCbCr422ToBGR555_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToBGR555Dither_8u16u_C2C3R, rows().myYCbCr422ToBGR555Dither_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToRGB444_8u16u_C2C3R, rows().myYCbCr422ToRGB444_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToRGB444Dither_8u16u_C2C3R, rows().myYCbCr422ToRGB444Dither_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToBGR444_8u16u_C2C3R, rows().myYCbCr422ToBGR444_8u16u_C2C3R)
ZORCC_FROM_PACKED(zoriYCbCr422ToBGR444Dither_8u16u_C2C3R, rows().myYCbCr422ToBGR444Dither_8u16u_C2C3R)

ZORCC_FROM_PLANES(zoriYCbCr420ToRGB565_8u16u_P3C3R, rows(roiSize).myYCbCr420ToRGB565_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToRGB565Dither_8u16u_P3C3R, rows(roiSize).myYCbCr420ToRGB565Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToBGR565_8u16u_P3C3R, rows(roiSize).myYCbCr420ToBGR565_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToBGR565Dither_8u16u_P3C3R, rows(roiSize).myYCbCr420ToBGR565Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToRGB555_8u16u_P3C3R, rows(roiSize).myYCbCr420ToRGB555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToRGB555Dither_8u16u_P3C3R, rows(roiSize).myYCbCr420ToRGB555Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToBGR555_8u16u_P3C3R, rows(roiSize).myYCbCr420ToBGR555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToBGR555Dither_8u16u_P3C3R, rows(roiSize).myYCbCr420ToBGR555Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToRGB444_8u16u_P3C3R, rows(roiSize).myYCbCr420ToRGB444_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToRGB444Dither_8u16u_P3C3R, rows(roiSize).myYCbCr420ToRGB444Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToBGR444_8u16u_P3C3R, rows(roiSize).myYCbCr420ToBGR444_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr420ToBGR444Dither_8u16u_P3C3R, rows(roiSize).myYCbCr420ToBGR444Dither_8u16u_P3C3R)

ZORCC_FROM_PLANES(zoriYUV420ToRGB565_8u16u_P3C3R, rows(roiSize).myYUV420ToRGB565_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToRGB565Dither_8u16u_P3C3R, rows(roiSize).myYUV420ToRGB565Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToBGR565_8u16u_P3C3R, rows(roiSize).myYUV420ToBGR565_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToBGR565Dither_8u16u_P3C3R, rows(roiSize).myYUV420ToBGR565Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToRGB555_8u16u_P3C3R, rows(roiSize).myYUV420ToRGB555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToRGB555Dither_8u16u_P3C3R, rows(roiSize).myYUV420ToRGB555Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToBGR555_8u16u_P3C3R, rows(roiSize).myYUV420ToBGR555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToBGR555Dither_8u16u_P3C3R, rows(roiSize).myYUV420ToBGR555Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToRGB444_8u16u_P3C3R, rows(roiSize).myYUV420ToRGB444_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToRGB444Dither_8u16u_P3C3R, rows(roiSize).myYUV420ToRGB444Dither_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToBGR444_8u16u_P3C3R, rows(roiSize).myYUV420ToBGR444_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYUV420ToBGR444Dither_8u16u_P3C3R, rows(roiSize).myYUV420ToBGR444Dither_8u16u_P3C3R)

ZORCC_FROM_PLANES(zoriYCbCr411ToBGR555_8u16u_P3C3R, rows().myYCbCr411ToBGR555_8u16u_P3C3R)
ZORCC_FROM_PLANES(zoriYCbCr411ToBGR565_8u16u_P3C3R, rows().myYCbCr411ToBGR565_8u16u_P3C3R)

// ---- from 16 bits ---------------------------------------------------------------------------------------------------

ZorStatus zoriBGR555ToYCbCr422_16u8u_C3C2R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize)
{
    return convert(pairs, rows().myBGR555ToYCbCr422_16u8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGR555ToYCbCr422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(pairs, rows().myBGR555ToYCbCr422_16u8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGR555ToYCbCr411_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().myBGR555ToYCbCr411_16u8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGR555ToYCbCr420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGR555ToYCbCr420_16u8u_C3P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGR555ToYCrCb420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGR555ToYCbCr420_16u8u_C3P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriBGR555ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize)
{
    return convert(evenPlanesFirst, rows(roiSize).myBGR555ToYUV420_16u8u_C3P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGR565ToYCbCr422_16u8u_C3C2R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize)
{
    return convert(pairs, rows().myBGR565ToYCbCr422_16u8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGR565ToYCbCr422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(pairs, rows().myBGR565ToYCbCr422_16u8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGR565ToYCbCr411_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().myBGR565ToYCbCr411_16u8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGR565ToYCbCr420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGR565ToYCbCr420_16u8u_C3P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGR565ToYCrCb420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGR565ToYCbCr420_16u8u_C3P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriBGR565ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize)
{
    return convert(evenPlanesFirst, rows(roiSize).myBGR565ToYUV420_16u8u_C3P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriRGB565ToRGB_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(positiveSteps, rows().myRGB565ToRGB_16u8u_C3R, interleaved(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGR565ToBGR_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(positiveSteps, rows().myRGB565ToRGB_16u8u_C3R, interleaved(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToRGB565_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(positiveSteps, rows().myRGBToRGB565_8u16u_C3R, interleaved(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToBGR565_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(positiveSteps, rows().myRGBToRGB565_8u16u_C3R, interleaved(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}
