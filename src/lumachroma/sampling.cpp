// SPDX-License-Identifier: MIT
// Exported changes of chroma sampling between planar and semi-planar images.
#include "lumachroma/sampled_checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/sampling_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

// The vertical filter wants rows in eights.
constexpr Blocks filtered = {{2, 8}};

// ---- rows of chroma -------------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr422ToYCbCr420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my422To420_8u_P3R));
}

ZorStatus zoriYCbCr422ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, cbFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(my422To420_8u_P3P2R));
}

ZorStatus zoriYCbCr420ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_8u_P3R));
}

ZorStatus zoriYCrCb420ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, crFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_8u_P3R));
}

ZorStatus zoriYCbCr420ToYCbCr422_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_8u_P2P3R));
}

ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                               uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(filtered, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_Filter_8u_P3R));
}

ZorStatus zoriYCrCb420ToYCbCr422_Filter_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                               uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(filtered, roiSize, crFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_Filter_8u_P3R));
}

ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                 int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                 ZorSize roiSize)
{
    return convertBlocks(filtered, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_Filter_8u_P2P3R));
}

// ---- columns of chroma ----------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr422ToYCbCr411_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my422To411_8u_P3R));
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, cbFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(my422To411_8u_P3P2R));
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411To422_8u_P3R));
}

ZorStatus zoriYCbCr411ToYCrCb422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, cbFirst(pSrc, srcStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411To422_8u_P3R));
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411To422_8u_P2P3R));
}

// ---- both -----------------------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr411ToYCbCr420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411To420_8u_P3R));
}

ZorStatus zoriYCbCr411ToYCbCr420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411To420_8u_P2P3R));
}

ZorStatus zoriYCbCr411ToYCrCb420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411To420_8u_P2P3R));
}

ZorStatus zoriYCbCr411ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, cbFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(my411To420_8u_P3P2R));
}

ZorStatus zoriYCbCr420ToYCbCr411_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To411_8u_P2P3R));
}

ZorStatus zoriYCbCr420ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, cbFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(my420To411_8u_P3P2R));
}

ZorStatus zoriYCrCb420ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(quadPairs, roiSize, crFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(my420To411_8u_P3P2R));
}

// ---- order of planes alone ------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr411_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my411_8u_P2P3R));
}

ZorStatus zoriYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY, int dstYStep,
                                uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(quads, roiSize, cbFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(my411_8u_P3P2R));
}

ZorStatus zoriYCbCr420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myNV12ToYV12_8u_P2P3R));
}

ZorStatus zoriYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY, int dstYStep,
                                uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, cbFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(myYV12ToNV12_8u_P3P2R));
}

ZorStatus zoriYCbCr420ToYCrCb420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), crFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myNV12ToYV12_8u_P2P3R));
}

ZorStatus zoriYCrCb420ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convertBlocks(squares, roiSize, crFirst(pSrc, srcStep), semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep),
                         ZORCC_ON_TIER(myYV12ToNV12_8u_P3P2R));
}
