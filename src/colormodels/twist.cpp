// SPDX-License-Identifier: MIT
// Exported colour twists.
#include "zorcc/twist.h"

#include "colormodels/twist_rows.h"
#include "simd/float_mode.h"

namespace zorcc {
namespace {

constexpr auto& rows = twistRows;

ZorStatus twisted(TwistDriver& driver, const Image& from, const Image& to, ZorSize size, TwistMatrix matrix)
{
    if (!matrix) return zorStatusNullPointer;
    const DefaultFloatMode mode;
    return convert(pointersSizeSteps, driver, from, to, size, matrix);
}

ZorStatus twisted(TwistDriver& driver, const Image& inPlace, ZorSize size, TwistMatrix matrix)
{
    return twisted(driver, inPlace, inPlace, size, matrix);
}

} // namespace
} // namespace zorcc

using namespace zorcc;

// All of one layout have the same parameters, but for the type of samples.
#define ZORCC_TWIST(name, Sample, driver, rowsOfMatrix)                                                                \
    ZorStatus name(const Sample* pSrc, int srcStep, Sample* pDst, int dstStep, ZorSize roiSize,                        \
                   const float twist[rowsOfMatrix][4])                                                                 \
    {                                                                                                                  \
        return twisted(rows().driver, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize, twist);         \
    }
#define ZORCC_TWIST_IN_PLACE(name, Sample, driver)                                                                     \
    ZorStatus name(Sample* pSrcDst, int srcDstStep, ZorSize roiSize, const float twist[3][4])                          \
    {                                                                                                                  \
        return twisted(rows().driver, interleaved(pSrcDst, srcDstStep), roiSize, twist);                               \
    }
#define ZORCC_TWIST_PLANES(name, Sample, driver)                                                                       \
    ZorStatus name(const Sample* const pSrc[3], int srcStep, Sample* const pDst[3], int dstStep, ZorSize roiSize,      \
                   const float twist[3][4])                                                                            \
    {                                                                                                                  \
        return twisted(rows().driver, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize, twist);             \
    }
#define ZORCC_TWIST_PLANES_IN_PLACE(name, Sample, driver)                                                              \
    ZorStatus name(Sample* const pSrcDst[3], int srcDstStep, ZorSize roiSize, const float twist[3][4])                 \
    {                                                                                                                  \
        return twisted(rows().driver, planar<3>(pSrcDst, srcDstStep), roiSize, twist);                                 \
    }

ZORCC_TWIST(zoriColorTwist32f_8u_C3R, uint8_t, myColorTwist32f_8u_C3R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_8u_C3IR, uint8_t, myColorTwist32f_8u_C3R)
ZORCC_TWIST(zoriColorTwist32f_8u_AC4R, uint8_t, myColorTwist32f_8u_AC4R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_8u_AC4IR, uint8_t, myColorTwist32f_8u_AC4R)
ZORCC_TWIST_PLANES(zoriColorTwist32f_8u_P3R, uint8_t, myColorTwist32f_8u_P3R)
ZORCC_TWIST_PLANES_IN_PLACE(zoriColorTwist32f_8u_IP3R, uint8_t, myColorTwist32f_8u_P3R)
ZORCC_TWIST(zoriColorTwist32f_8s_C3R, int8_t, myColorTwist32f_8s_C3R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_8s_C3IR, int8_t, myColorTwist32f_8s_C3R)
ZORCC_TWIST(zoriColorTwist32f_8s_AC4R, int8_t, myColorTwist32f_8s_AC4R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_8s_AC4IR, int8_t, myColorTwist32f_8s_AC4R)
ZORCC_TWIST_PLANES(zoriColorTwist32f_8s_P3R, int8_t, myColorTwist32f_8s_P3R)
ZORCC_TWIST_PLANES_IN_PLACE(zoriColorTwist32f_8s_IP3R, int8_t, myColorTwist32f_8s_P3R)
ZORCC_TWIST(zoriColorTwist32f_16u_C3R, uint16_t, myColorTwist32f_16u_C3R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_16u_C3IR, uint16_t, myColorTwist32f_16u_C3R)
ZORCC_TWIST(zoriColorTwist32f_16u_AC4R, uint16_t, myColorTwist32f_16u_AC4R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_16u_AC4IR, uint16_t, myColorTwist32f_16u_AC4R)
ZORCC_TWIST_PLANES(zoriColorTwist32f_16u_P3R, uint16_t, myColorTwist32f_16u_P3R)
ZORCC_TWIST_PLANES_IN_PLACE(zoriColorTwist32f_16u_IP3R, uint16_t, myColorTwist32f_16u_P3R)
ZORCC_TWIST(zoriColorTwist32f_16s_C3R, int16_t, myColorTwist32f_16s_C3R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_16s_C3IR, int16_t, myColorTwist32f_16s_C3R)
ZORCC_TWIST(zoriColorTwist32f_16s_AC4R, int16_t, myColorTwist32f_16s_AC4R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist32f_16s_AC4IR, int16_t, myColorTwist32f_16s_AC4R)
ZORCC_TWIST_PLANES(zoriColorTwist32f_16s_P3R, int16_t, myColorTwist32f_16s_P3R)
ZORCC_TWIST_PLANES_IN_PLACE(zoriColorTwist32f_16s_IP3R, int16_t, myColorTwist32f_16s_P3R)
ZORCC_TWIST(zoriColorTwist_32f_C3R, float, myColorTwist_32f_C3R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist_32f_C3IR, float, myColorTwist_32f_C3R)
ZORCC_TWIST(zoriColorTwist_32f_AC4R, float, myColorTwist_32f_AC4R, 3)
ZORCC_TWIST_IN_PLACE(zoriColorTwist_32f_AC4IR, float, myColorTwist_32f_AC4R)
ZORCC_TWIST_PLANES(zoriColorTwist_32f_P3R, float, myColorTwist_32f_P3R)
ZORCC_TWIST_PLANES_IN_PLACE(zoriColorTwist_32f_IP3R, float, myColorTwist_32f_P3R)
ZORCC_TWIST(zoriColorTwist_32f_C4R, float, myColorTwist_32f_C4R, 4)
