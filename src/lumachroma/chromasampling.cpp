// SPDX-License-Identifier: MIT
// Exported changes of chroma sampling and plane order.
#include "zorcc/chromasampling.h"
#include "lumachroma/chromasampling_rows.h"
#include "lumachroma/common/blocks.h"

using namespace zorcc;

static constexpr auto& rows = chromaSamplingRows;

namespace {

using OddSize = Checks::OddSize;

// The vertical filter takes rows in eights.
constexpr Checks filtered = wholeBlocks({2, 8});

// Sizes of broken blocks are refused.
constexpr Checks wholeFours = wholeBlocks({4, 4}, OddSize::refused),
                 wholeQuadPairs = wholeBlocks({4, 2}, OddSize::refused);

// Two rows of each field.
constexpr Checks fieldRows = wholeBlocks({2, 4}, OddSize::warned);

} // namespace

ZorStatus zoriYCbCr422ToYCbCr420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().my422To420_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(squares, rows().my422To420_8u_P3P2R, planar(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().myYUY2To420_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().myYUY2To420_8u_C2P3R, interleaved(pSrc, srcStep), planarCrCb(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().my420To422_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr422_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().my420To422_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb420ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().my420To422_8u_P3R, planarCrCb(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                               uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(filtered, rows().my420To422_Filter_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                 int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                 ZorSize roiSize)
{
    return convert(filtered, rows().my420To422_Filter_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb420ToYCbCr422_Filter_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                               uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(filtered, rows().my420To422_Filter_8u_P3R, planarCrCb(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().my422To411_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(quads, rows().my422To411_8u_P3P2R, planar(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().myYUY2To411_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr411_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                          uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(quads, rows().myYUY2To411_8u_C2P2R, interleaved(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCrCb422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().myYUY2To411_8u_C2P3R, interleaved(pSrc, srcStep), planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriCbYCr422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().myUYVYTo411_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().my411To422_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().my411To422_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convert(quads, rows().my411ToYUY2_8u_P3C2R, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(quads, rows().my411ToYUY2_8u_P2C2R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCrCb422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().my411To422_8u_P3R, planar(pSrc, srcStep), planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convert(quads, rows().my411ToYUY2_8u_P3C2R, planarCrCb(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                        const int dstStep[3], ZorSize roiSize)
{
    return convert(quadPairs, rows().my411To420_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(quadPairs, rows().my411To420_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(quadPairs, rows().my411To420_8u_P3P2R, planar(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr411ToYCrCb420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(quadPairs, rows().my411To420_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr411_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(quadPairs, rows().my420To411_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(quadPairs, rows().my420To411_8u_P3P2R, planar(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCrCb420ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(quadPairs, rows().my420To411_8u_P3P2R, planarCrCb(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr411_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(quads, rows().my411_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY, int dstYStep,
                                uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(quads, rows().my411_8u_P3P2R, planar(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().my420_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY, int dstYStep,
                                uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(squares, rows().my420_8u_P3P2R, planar(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                ZorSize roiSize)
{
    return convert(pairs, rows().myYUY2To422_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb422ToYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(pairs, rows().myYUY2To422_8u_C2P3R, interleaved(pSrc, srcStep), planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriCbYCr422ToYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(pairs, rows().myUYVYTo422_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCrCb422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(pairs, rows().myYUY2ToYVYU_8u_C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convert(pairs, rows().my422ToYUY2_8u_P3C2R, planarCrCb(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriCbYCr422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, rows().myUYVYTo420_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420To1620_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                    const int dstStep[3], ZorSize roiSize)
{
    return convert(wholeFours, rows().my420To1620_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr1620To420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                    const int dstStep[3], ZorSize roiSize)
{
    return convert(wholeFours, rows().my1620To420_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411To420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                   const int dstStep[3], ZorSize roiSize)
{
    return convert(wholeFours, rows().my411To420_Average_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420To411_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                   const int dstStep[3], ZorSize roiSize)
{
    return convert(wholeQuadPairs, rows().my420To411_Average_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                    const int dstStep[3], ZorSize roiSize)
{
    return convert(fieldRows, rows().myUYVYTo420_Interlace_8u_C2P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr422To420_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    return convert(fieldRows, rows().my422To420_Interlace_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr420To422_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    return convert(fieldRows, rows().my420To422_Interlace_8u_P3R, planar(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                    int dstStep, ZorSize roiSize)
{
    return convert(fieldRows, rows().my420ToUYVY_Interlace_8u_P3C2R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}
