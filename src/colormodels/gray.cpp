// SPDX-License-Identifier: MIT
// Exported conversions of colour to grey.
#include "zorcc/gray.h"

#include "colormodels/gray_rows.h"
#include "simd/float_mode.h"

namespace zorcc {
namespace {

constexpr auto& rows = grayRows;

// The lower 16 bits of a weight in units of 1/4096; 0 of what no 64-bit integer holds.
int inUnits(float weight)
{
    const double units = weight * 4096.0 + 0.5;
    return units > -0x1p63 && units < 0x1p63 ? static_cast<uint16_t>(static_cast<int64_t>(units)) : 0;
}

// Those of ITU-R BT.601 luma where the caller gives none.
GrayWeights weightsFrom(const float* weights)
{
    return weights ? GrayWeights{{weights[0], weights[1], weights[2]}} : GrayWeights{{0.299f, 0.587f, 0.114f}};
}

ByteGrayWeights inUnits(const GrayWeights& weights)
{
    return {{inUnits(weights.of[0]), inUnits(weights.of[1]), inUnits(weights.of[2])}};
}

template <class Sample>
ZorStatus toGray(DriverWith<GrayWeights>& driver, const Sample* src, int srcStep, Sample* dst, int dstStep,
                 ZorSize size, const float* weights = nullptr)
{
    const DefaultFloatMode mode;
    if constexpr (sizeof(Sample) == sizeof(float)) {
        srcStep = wholeFloats(srcStep);
        dstStep = wholeFloats(dstStep);
    }
    return convert(driver, interleaved(src, srcStep), interleaved(dst, dstStep), size, weightsFrom(weights));
}

ZorStatus toGray(DriverWith<ByteGrayWeights>& driver, const uint8_t* src, int srcStep, uint8_t* dst, int dstStep,
                 ZorSize size, const float* weights = nullptr)
{
    return convert(driver, interleaved(src, srcStep), interleaved(dst, dstStep), size, inUnits(weightsFrom(weights)));
}

} // namespace
} // namespace zorcc

using namespace zorcc;

// All of them have the same parameters, but for the type of samples; the second one has weights, too.
#define ZORCC_RGB_TO_GRAY(name, Sample, driver)                                                                        \
    ZorStatus name(const Sample* pSrc, int srcStep, Sample* pDst, int dstStep, ZorSize roiSize)                        \
    {                                                                                                                  \
        return toGray(rows().driver, pSrc, srcStep, pDst, dstStep, roiSize);                                           \
    }
#define ZORCC_COLOR_TO_GRAY(name, Sample, driver)                                                                      \
    ZorStatus name(const Sample* pSrc, int srcStep, Sample* pDst, int dstStep, ZorSize roiSize, const float coeffs[3]) \
    {                                                                                                                  \
        return toGray(rows().driver, pSrc, srcStep, pDst, dstStep, roiSize, coeffs);                                   \
    }

ZORCC_RGB_TO_GRAY(zoriRGBToGray_8u_C3C1R, uint8_t, myRGBToGray_8u_C3C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_8u_AC4C1R, uint8_t, myRGBToGray_8u_AC4C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_16u_C3C1R, uint16_t, myRGBToGray_16u_C3C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_16u_AC4C1R, uint16_t, myRGBToGray_16u_AC4C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_16s_C3C1R, int16_t, myRGBToGray_16s_C3C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_16s_AC4C1R, int16_t, myRGBToGray_16s_AC4C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_32f_C3C1R, float, myRGBToGray_32f_C3C1R)
ZORCC_RGB_TO_GRAY(zoriRGBToGray_32f_AC4C1R, float, myRGBToGray_32f_AC4C1R)

ZORCC_COLOR_TO_GRAY(zoriColorToGray_8u_C3C1R, uint8_t, myRGBToGray_8u_C3C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_8u_AC4C1R, uint8_t, myRGBToGray_8u_AC4C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_16u_C3C1R, uint16_t, myRGBToGray_16u_C3C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_16u_AC4C1R, uint16_t, myRGBToGray_16u_AC4C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_16s_C3C1R, int16_t, myRGBToGray_16s_C3C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_16s_AC4C1R, int16_t, myRGBToGray_16s_AC4C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_32f_C3C1R, float, myRGBToGray_32f_C3C1R)
ZORCC_COLOR_TO_GRAY(zoriColorToGray_32f_AC4C1R, float, myRGBToGray_32f_AC4C1R)
