// SPDX-License-Identifier: MIT
// Exported deinterlacing conversions of semi-planar 4:2:0, slice by slice.
#include "lumachroma/frame_edges.h"
#include "lumachroma/sampled_checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/deinterlace_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

namespace {

// Bits of the slice argument.
constexpr int first = 1, middle = 4, last = 16, whole = first | middle | last;

// A slice that is not the first takes up what the one before it had to leave: it starts two rows of luma earlier.
template <class Byte> SampledImage<Byte> twoRowsEarlier(SampledArgument<Byte> argument, int planesOfHalfHeight)
{
    SampledImage<Byte>& image = argument.image;
    for (int p = 0; p < argument.planes; ++p)
        image.plane[p] -= (p >= argument.planes - planesOfHalfHeight ? 1 : 2) * image.step[p];
    return image;
}

using Driver = void(const SampledSource& from, const SampledDestination& to, ZorSize size, FrameEdges edges);

ZorStatus deinterlace(int slice, ZorSize roiSize, const SampledArgument<const uint8_t>& from,
                      const SampledArgument<uint8_t>& to, Driver driver)
{
    if (from.missing() || to.missing()) return zorStatusNullPointer;
    if (auto s = checkSize(roiSize, squares.block.width, squares.block.height); s != zorStatusOk) return s;
    const ZorSize size = squares.within(roiSize);
    if ((slice & whole) == whole)
        driver(from.image, to.image, size, {true, true});
    else if (slice == first)
        driver(from.image, to.image, size, {true, false});
    else if (slice == middle || slice == last)
        driver(twoRowsEarlier(from, 1), twoRowsEarlier(to, to.planes - 1), {size.width, size.height + 2},
               {false, slice == last});
    return zorStatusOk;
}

} // namespace

ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                 int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                                 int slice)
{
    return deinterlace(slice, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), packed(pDst, dstStep),
                       ZORCC_ON_TIER(my420To422_Deinterlace_8u_P2C2R));
}

ZorStatus zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                 int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                 ZorSize roiSize, int slice)
{
    return deinterlace(slice, roiSize, semiPlanar(pSrcY, srcYStep, pSrcCbCr, srcCbCrStep), crFirst(pDst, dstStep),
                       ZORCC_ON_TIER(my420To420_Deinterlace_8u_P2P3R));
}
