// SPDX-License-Identifier: MIT
// Exported conversions to, from and between packed 4:2:2 images.
#include "lumachroma/sampled_checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/packed422_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

// ---- packed to planes -----------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2To422_8u_C2P3R));
}

ZorStatus zoriYCrCb422ToYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, packed(pSrc, srcStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2To422_8u_C2P3R));
}

ZorStatus zoriCbYCr422ToYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myUYVYTo422_8u_C2P3R));
}

ZorStatus zoriYCbCr422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2ToYV12422_8u_C2P3R));
}

ZorStatus zoriYCrCb422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2ToYV12422_8u_C2P3R));
}

ZorStatus zoriYCbCr422ToYCrCb420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2ToYV12422_8u_C2P3R));
}

ZorStatus zoriCbYCr422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myUYVYToYV12422_8u_C2P3R));
}

ZorStatus zoriCbYCr422ToYCrCb420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myUYVYToYV12422_8u_C2P3R));
}

ZorStatus zoriYCbCr422ToYCbCr420_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                          uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(myYUY2ToNV12_8u_C2P2R));
}

ZorStatus zoriCbYCr422ToYCbCr420_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                          uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, packed(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(myUYVYToNV12_8u_C2P2R));
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2To411_8u_C2P3R));
}

ZorStatus zoriYCrCb422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, packed(pSrc, srcStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2To411_8u_C2P3R));
}

ZorStatus zoriCbYCr422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myUYVYTo411_8u_C2P3R));
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                          uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, packed(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(myYUY2To411_8u_C2P2R));
}

// ---- planes to packed -----------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr422ToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, crFirst(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(my422ToYUY2_8u_P3C2R));
}

ZorStatus zoriYCrCb420ToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, crFirst(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myYV12ToYUY2420_8u_P3C2R));
}

ZorStatus zoriYCrCb420ToCbYCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, crFirst(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myYV12ToUYVY420_8u_P3C2R));
}

ZorStatus zoriYCbCr420ToYCbCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myNV12ToYUY2_8u_P2C2R));
}

ZorStatus zoriYCbCr420ToCbYCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myNV12ToUYVY_8u_P2C2R));
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, cbFirst(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(my411ToYUY2_8u_P3C2R));
}

ZorStatus zoriYCbCr411ToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, crFirst(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(my411ToYUY2_8u_P3C2R));
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(my411ToYUY2_8u_P2C2R));
}

// ---- packed to packed -----------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr422ToCbYCr422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, packed(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2ToUYVY422_8u_C2R));
}

ZorStatus zoriCbYCr422ToYCbCr422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, packed(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myUYVYToYUY2422_8u_C2R));
}

ZorStatus zoriYCbCr422ToYCrCb422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convertBlocks(pairs, roiSize, packed(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(myYUY2ToYVYU_8u_C2R));
}
