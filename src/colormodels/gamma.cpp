// SPDX-License-Identifier: MIT
// Exported gamma correction.
#include "zorcc/gamma.h"

#include "colormodels/gamma_rows.h"
#include "frame/memory.h"
#include "simd/float_mode.h"

namespace zorcc {
namespace {

constexpr auto& rows = gammaRows;

// Words: a table pays where there are more samples than it has entries.
struct WordDrivers {
    Driver& direct;
    DriverWith<WordTable>& lookUp;
    void (&fillTable)(uint16_t* table);
};

ZorStatus corrected(Driver& driver, const Image& from, const Image& to, ZorSize size)
{
    return convert(pointersSizeSteps, driver, from, to, size);
}

ZorStatus corrected(const WordDrivers& drivers, const Image& from, const Image& to, ZorSize size)
{
    const DefaultFloatMode mode;
    if (const ZorStatus status = check(pointersSizeSteps, from, to, size); status < 0) return status;
    if (int64_t{3} * size.width * size.height <= wordCount) {
        drivers.direct(from, to, size);
        return zorStatusOk;
    }
    const Owned<uint16_t> table(zorsMalloc_16u(wordCount));
    if (!table) return zorStatusNoMemory;
    drivers.fillTable(table.get());
    drivers.lookUp(from, to, size, table.get());
    return zorStatusOk;
}

ZorStatus corrected(DriverWith<ValueRange>& driver, const Image& from, const Image& to, ZorSize size, float vMin,
                    float vMax)
{
    if (!(vMax > vMin)) return zorStatusBadRange;
    const DefaultFloatMode mode;
    return convert(pointersSizeSteps, driver, from, to, size, ValueRange{vMin, vMax});
}

} // namespace
} // namespace zorcc

using namespace zorcc;

// All of one layout have the same parameters, but for the type of samples; those of floats have a range, too.
#define ZORCC_GAMMA(name, Sample, ...)                                                                                 \
    ZorStatus name(const Sample* pSrc, int srcStep, Sample* pDst, int dstStep, ZorSize roiSize)                        \
    {                                                                                                                  \
        return corrected(__VA_ARGS__, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);                \
    }
#define ZORCC_GAMMA_IN_PLACE(name, Sample, ...)                                                                        \
    ZorStatus name(Sample* pSrcDst, int srcDstStep, ZorSize roiSize)                                                   \
    {                                                                                                                  \
        const Image image = interleaved(pSrcDst, srcDstStep);                                                          \
        return corrected(__VA_ARGS__, image, image, roiSize);                                                          \
    }
#define ZORCC_GAMMA_PLANES(name, Sample, ...)                                                                          \
    ZorStatus name(const Sample* const pSrc[3], int srcStep, Sample* const pDst[3], int dstStep, ZorSize roiSize)      \
    {                                                                                                                  \
        return corrected(__VA_ARGS__, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);                    \
    }
#define ZORCC_GAMMA_PLANES_IN_PLACE(name, Sample, ...)                                                                 \
    ZorStatus name(Sample* const pSrcDst[3], int srcDstStep, ZorSize roiSize)                                          \
    {                                                                                                                  \
        const Image image = planar<3>(pSrcDst, srcDstStep);                                                            \
        return corrected(__VA_ARGS__, image, image, roiSize);                                                          \
    }

ZORCC_GAMMA(zoriGammaFwd_8u_C3R, uint8_t, rows().myGammaFwd_8u_C3R)
ZORCC_GAMMA_IN_PLACE(zoriGammaFwd_8u_C3IR, uint8_t, rows().myGammaFwd_8u_C3R)
ZORCC_GAMMA(zoriGammaFwd_8u_AC4R, uint8_t, rows().myGammaFwd_8u_AC4R)
ZORCC_GAMMA_IN_PLACE(zoriGammaFwd_8u_AC4IR, uint8_t, rows().myGammaFwd_8u_AC4R)
ZORCC_GAMMA_PLANES(zoriGammaFwd_8u_P3R, uint8_t, rows().myGammaFwd_8u_P3R)
ZORCC_GAMMA_PLANES_IN_PLACE(zoriGammaFwd_8u_IP3R, uint8_t, rows().myGammaFwd_8u_P3R)

ZORCC_GAMMA(zoriGammaFwd_16u_C3R, uint16_t,
            WordDrivers{rows().myGammaFwd_16u_C3R, rows().myLookUp_16u_C3R, rows().fillGammaFwd_16u})
ZORCC_GAMMA_IN_PLACE(zoriGammaFwd_16u_C3IR, uint16_t,
                     WordDrivers{rows().myGammaFwd_16u_C3R, rows().myLookUp_16u_C3R, rows().fillGammaFwd_16u})
ZORCC_GAMMA(zoriGammaFwd_16u_AC4R, uint16_t,
            WordDrivers{rows().myGammaFwd_16u_AC4R, rows().myLookUp_16u_AC4R, rows().fillGammaFwd_16u})
ZORCC_GAMMA_IN_PLACE(zoriGammaFwd_16u_AC4IR, uint16_t,
                     WordDrivers{rows().myGammaFwd_16u_AC4R, rows().myLookUp_16u_AC4R, rows().fillGammaFwd_16u})
ZORCC_GAMMA_PLANES(zoriGammaFwd_16u_P3R, uint16_t,
                   WordDrivers{rows().myGammaFwd_16u_P3R, rows().myLookUp_16u_P3R, rows().fillGammaFwd_16u})
ZORCC_GAMMA_PLANES_IN_PLACE(zoriGammaFwd_16u_IP3R, uint16_t,
                            WordDrivers{rows().myGammaFwd_16u_P3R, rows().myLookUp_16u_P3R, rows().fillGammaFwd_16u})

ZORCC_GAMMA(zoriGammaInv_8u_C3R, uint8_t, rows().myGammaInv_8u_C3R)
ZORCC_GAMMA_IN_PLACE(zoriGammaInv_8u_C3IR, uint8_t, rows().myGammaInv_8u_C3R)
ZORCC_GAMMA(zoriGammaInv_8u_AC4R, uint8_t, rows().myGammaInv_8u_AC4R)
ZORCC_GAMMA_IN_PLACE(zoriGammaInv_8u_AC4IR, uint8_t, rows().myGammaInv_8u_AC4R)
ZORCC_GAMMA_PLANES(zoriGammaInv_8u_P3R, uint8_t, rows().myGammaInv_8u_P3R)
ZORCC_GAMMA_PLANES_IN_PLACE(zoriGammaInv_8u_IP3R, uint8_t, rows().myGammaInv_8u_P3R)

ZORCC_GAMMA(zoriGammaInv_16u_C3R, uint16_t,
            WordDrivers{rows().myGammaInv_16u_C3R, rows().myLookUp_16u_C3R, rows().fillGammaInv_16u})
ZORCC_GAMMA_IN_PLACE(zoriGammaInv_16u_C3IR, uint16_t,
                     WordDrivers{rows().myGammaInv_16u_C3R, rows().myLookUp_16u_C3R, rows().fillGammaInv_16u})
ZORCC_GAMMA(zoriGammaInv_16u_AC4R, uint16_t,
            WordDrivers{rows().myGammaInv_16u_AC4R, rows().myLookUp_16u_AC4R, rows().fillGammaInv_16u})
ZORCC_GAMMA_IN_PLACE(zoriGammaInv_16u_AC4IR, uint16_t,
                     WordDrivers{rows().myGammaInv_16u_AC4R, rows().myLookUp_16u_AC4R, rows().fillGammaInv_16u})
ZORCC_GAMMA_PLANES(zoriGammaInv_16u_P3R, uint16_t,
                   WordDrivers{rows().myGammaInv_16u_P3R, rows().myLookUp_16u_P3R, rows().fillGammaInv_16u})
ZORCC_GAMMA_PLANES_IN_PLACE(zoriGammaInv_16u_IP3R, uint16_t,
                            WordDrivers{rows().myGammaInv_16u_P3R, rows().myLookUp_16u_P3R, rows().fillGammaInv_16u})

#define ZORCC_GAMMA_OF_FLOATS(name, driver)                                                                            \
    ZorStatus name(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize, float vMin, float vMax)  \
    {                                                                                                                  \
        return corrected(rows().driver, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize, vMin, vMax);  \
    }
#define ZORCC_GAMMA_OF_FLOATS_IN_PLACE(name, driver)                                                                   \
    ZorStatus name(float* pSrcDst, int srcDstStep, ZorSize roiSize, float vMin, float vMax)                            \
    {                                                                                                                  \
        const Image image = interleaved(pSrcDst, srcDstStep);                                                          \
        return corrected(rows().driver, image, image, roiSize, vMin, vMax);                                            \
    }
#define ZORCC_GAMMA_OF_FLOAT_PLANES(name, driver)                                                                      \
    ZorStatus name(const float* const pSrc[3], int srcStep, float* const pDst[3], int dstStep, ZorSize roiSize,        \
                   float vMin, float vMax)                                                                             \
    {                                                                                                                  \
        return corrected(rows().driver, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize, vMin, vMax);      \
    }
#define ZORCC_GAMMA_OF_FLOAT_PLANES_IN_PLACE(name, driver)                                                             \
    ZorStatus name(float* const pSrcDst[3], int srcDstStep, ZorSize roiSize, float vMin, float vMax)                   \
    {                                                                                                                  \
        const Image image = planar<3>(pSrcDst, srcDstStep);                                                            \
        return corrected(rows().driver, image, image, roiSize, vMin, vMax);                                            \
    }

ZORCC_GAMMA_OF_FLOATS(zoriGammaFwd_32f_C3R, myGammaFwd_32f_C3R)
ZORCC_GAMMA_OF_FLOATS_IN_PLACE(zoriGammaFwd_32f_C3IR, myGammaFwd_32f_C3R)
ZORCC_GAMMA_OF_FLOATS(zoriGammaFwd_32f_AC4R, myGammaFwd_32f_AC4R)
ZORCC_GAMMA_OF_FLOATS_IN_PLACE(zoriGammaFwd_32f_AC4IR, myGammaFwd_32f_AC4R)
ZORCC_GAMMA_OF_FLOAT_PLANES(zoriGammaFwd_32f_P3R, myGammaFwd_32f_P3R)
ZORCC_GAMMA_OF_FLOAT_PLANES_IN_PLACE(zoriGammaFwd_32f_IP3R, myGammaFwd_32f_P3R)
ZORCC_GAMMA_OF_FLOATS(zoriGammaInv_32f_C3R, myGammaInv_32f_C3R)
ZORCC_GAMMA_OF_FLOATS_IN_PLACE(zoriGammaInv_32f_C3IR, myGammaInv_32f_C3R)
ZORCC_GAMMA_OF_FLOATS(zoriGammaInv_32f_AC4R, myGammaInv_32f_AC4R)
ZORCC_GAMMA_OF_FLOATS_IN_PLACE(zoriGammaInv_32f_AC4IR, myGammaInv_32f_AC4R)
ZORCC_GAMMA_OF_FLOAT_PLANES(zoriGammaInv_32f_P3R, myGammaInv_32f_P3R)
ZORCC_GAMMA_OF_FLOAT_PLANES_IN_PLACE(zoriGammaInv_32f_IP3R, myGammaInv_32f_P3R)
