// SPDX-License-Identifier: MIT
// Exported conversions between the layouts of video, and deinterlacing of semi-planar 4:2:0, slice by slice.
#include "zorcc/videolayouts.h"
#include "lumachroma/chromasampling_rows.h"
#include "lumachroma/common/blocks.h"
#include "lumachroma/videolayouts_rows.h"

using namespace zorcc;

static constexpr auto& rows = videoLayoutsRows;

namespace {

// Bits of the slice argument.
constexpr int first = 1, middle = 4, last = 16, whole = first | middle | last;

// Where a slice's driver starts that is not the first.
Image twoRowsEarlier(Image image, int planesOfHalfHeight)
{
    for (int p = 0; p < image.planes; ++p)
        image.plane[p] = image.row(p, p >= image.planes - planesOfHalfHeight ? -1 : -2);
    return image;
}

ZorStatus deinterlace(DriverWith<FrameEdges>& driver, const Image& from, const Image& to, ZorSize size, int slice)
{
    const ZorStatus status = check(squares, from, to, size);
    if (status < 0) return status;
    if ((slice & whole) == whole)
        driver(from, to, size, {true, true});
    else if (slice == first)
        driver(from, to, size, {true, false});
    else if (slice == middle || slice == last)
        driver(twoRowsEarlier(from, 1), twoRowsEarlier(to, to.planes - 1), size, {false, slice == last});
    return status;
}

} // namespace

ZorStatus zoriYCbCr422ToCbYCr422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(pairs, rows().myYUY2ToUYVY_8u_C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriCbYCr422ToYCbCr422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(pairs, rows().myUYVYToYUY2_8u_C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriCbYCr422ToYCbCr420_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                          uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(squares, rows().myUYVYToNV12_8u_C2P2R, interleaved(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriCbYCr422ToYCrCb420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, chromaSamplingRows().myUYVYTo420_8u_C2P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCbCr420_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                          uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(squares, rows().myYUY2ToNV12_8u_C2P2R, interleaved(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCbCr422ToYCrCb420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                          const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, chromaSamplingRows().myYUY2To420_8u_C2P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToCbYCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(squares, rows().myNV12ToUYVY_8u_P2C2R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(squares, rows().myNV12ToYUY2_8u_P2C2R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToYCrCb420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                          uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize)
{
    return convert(squares, chromaSamplingRows().my420_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb420ToCbYCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convert(squares, rows().myYV12ToUYVY_8u_P3C2R, planarCrCb(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCrCb420ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                          int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize)
{
    return convert(squares, chromaSamplingRows().my420_8u_P3P2R, planarCrCb(pSrc, srcStep),
                   semiPlanar(pDstY, dstYStep, pDstCbCr, dstCbCrStep), roiSize);
}

ZorStatus zoriYCrCb420ToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                          int dstStep, ZorSize roiSize)
{
    return convert(squares, rows().myYV12ToYUY2_8u_P3C2R, planarCrCb(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                 int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                                 int slice)
{
    return deinterlace(rows().myDeinterlaceToYUY2_8u_P2C2R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                       interleaved(pDst, dstStep), roiSize, slice);
}

ZorStatus zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                 int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                 ZorSize roiSize, int slice)
{
    return deinterlace(rows().myDeinterlaceToYV12_8u_P2P3R, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep),
                       planarCrCb(pDst, dstStep), roiSize, slice);
}
