// SPDX-License-Identifier: MIT
// Exported tone mapping.
#include "zorcc/tonemap.h"

#include <limits>

#include "colormodels/tonemap_rows.h"
#include "frame/fill_copy.h"
#include "frame/reductions.h"
#include "simd/float_mode.h"

using namespace zorcc;

namespace {

constexpr auto& rows = tonemapRows;

// Makes the number that a reduction finds in the source, times `multiple`, 255: calculates the factor in that number's
// own precision. NaN counts as no more than the least.
template <class Number>
ZorStatus toneMap(ZorStatus (&reduction)(const float*, int, ZorSize, Number*), Number multiple,
                  DriverWith<float>& driver, const float* src, int srcStep, uint8_t* dst, int dstStep, ZorSize size)
{
    const DefaultFloatMode mode;
    srcStep = wholeFloats(srcStep);
    const Image from = interleaved(src, srcStep), to = interleaved(dst, dstStep);
    if (const ZorStatus status = check(Checks{}, from, to, size); status < 0) return status;
    Number white;
    const ZorStatus status = reduction(src, srcStep, size, &white);
    if (status < 0) return status;
    white *= multiple;
    if (white < 0) return zorStatusNothingDone;
    if (!(white > Number{std::numeric_limits<float>::min()})) return zoriSet_8u_C1R(0, dst, dstStep, size);
    driver(from, to, size, static_cast<float>(255 / white));
    return status;
}

} // namespace

ZorStatus zoriToneMapLinear_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return toneMap(zoriMax_32f_C1R, 1.0f, rows().myToneMapLinear_32f8u_C1R, pSrc, srcStep, pDst, dstStep, roiSize);
}

ZorStatus zoriToneMapMean_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return toneMap(zoriMean_32f_C1R, 2.0, rows().myToneMapMean_32f8u_C1R, pSrc, srcStep, pDst, dstStep, roiSize);
}
