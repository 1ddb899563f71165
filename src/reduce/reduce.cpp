// SPDX-License-Identifier: MIT
#include <limits.h>
#include <string.h>

#include "frame/checks.h"
#include "frame/memory.h"
#include "frame/parallel.h"
#include "reduce/reduction.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "reduce/reduce_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

namespace {

constexpr int maxNoise = 100;

int maxLevels(ReduceTypes types) { return types == ReduceTypes::u16 || types == ReduceTypes::s16 ? 65536 : 256; }

// White in the scale of the source.
float whiteOf(ReduceTypes types)
{
    float white = 0;
    withTypes(types, [&]<class Src, class Dst>(Src, Dst) { white = fullScale<Src>; });
    return white;
}

ZorStatus ordered(const Reduction& job, int noise)
{
    if (noise == 0) {
        ZORCC_ON_TIER(ownReduceBits_bayer)(job, nullptr);
        return zorStatusOk;
    }
    // In quantisation steps.
    const float most = static_cast<float>(noise) / 100.0f;
    Noise thresholds;
    if (const ZorStatus s = thresholds.create(-most, most); s != zorStatusOk) return s;
    ZORCC_ON_TIER(ownReduceBits_bayer)(job, &thresholds);
    return zorStatusOk;
}

// Rows of errors, all 0, that are freed with it.
class ErrorRows {
public:
    ErrorRows(int64_t count, int width)
    {
        const int64_t floats = count * width;
        if (floats > INT_MAX) return;
        errors = zorsMalloc_32f(static_cast<int>(floats));
        if (errors) memset(errors, 0, static_cast<size_t>(floats) * sizeof(float));
    }
    ~ErrorRows() { zorsFree(errors); }
    ErrorRows(const ErrorRows&) = delete;
    ErrorRows& operator=(const ErrorRows&) = delete;

    float* get() const { return errors; }

private:
    float* errors = nullptr;
};

ZorStatus diffuse(const Reduction& job, int noise, ZorDitherMethod method)
{
    const int channels = colourChannels(job.layout), threads = threadsHere();
    const int workers = threads < channels ? threads : channels;
    const int rowsAbove = method == zorDitherMethodFloydSteinberg ? 1 : 2;
    const ErrorRows errors(int64_t{channels} * rowsAbove, job.size.width);
    if (!errors.get()) return zorStatusNoMemory;

    Noise thresholds;
    if (noise != 0) {
        // Half a step, give or take noise percent of a step.
        const float step = StepSize(whiteOf(job.types), job.intervals).step;
        const ZorStatus s = thresholds.create(static_cast<float>(50 - noise) * step / 100.0f,
                                              static_cast<float>(50 + noise) * step / 100.0f);
        if (s != zorStatusOk) return s;
    }
    const Noise* const noisy = noise != 0 ? &thresholds : nullptr;
    if (method == zorDitherMethodFloydSteinberg)
        ZORCC_ON_TIER(ownReduceBits_fs)(job, noisy, errors.get(), workers);
    else
        ZORCC_ON_TIER(ownReduceBits_st_jj)(job, noisy, errors.get(), workers, method);
    return zorStatusOk;
}

template <class Src, class Dst>
ZorStatus reduceBits(ReduceTypes types, ReduceLayout layout, const Src* src, int srcStep, Dst* dst, int dstStep,
                     ZorSize size, int noise, ZorDitherMethod method, int levels)
{
    if (auto s = checkImages(interleaved(src), interleaved(dst), size); s != zorStatusOk) return s;
    if (noise < 0 || noise > maxNoise) return zorStatusNoiseRange;
    if (levels < 2 || levels > maxLevels(types)) return zorStatusDitherLevels;
    const Reduction job{src, srcStep, dst, dstStep, size, types, layout, levels - 1};
    switch (method) {
    case zorDitherMethodNone:
        ZORCC_ON_TIER(ownNo_PX)(job);
        return zorStatusOk;
    case zorDitherMethodFloydSteinberg:
    case zorDitherMethodJarvisJudiceNinke:
    case zorDitherMethodStucki:
        return diffuse(job, noise, method);
    case zorDitherMethodOrdered:
        return ordered(job, noise);
    }
    return zorStatusOk; // an unknown method does nothing
}

} // namespace

ZorStatus zoriReduceBits_8u_C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u8, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u8, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_8u_C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u8, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u8, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_C4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                  int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16u8u_C1R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16u8, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16u8, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16u8u_C4R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16u8, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16u8u_AC4R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::u16u8, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16s_C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_C4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                  int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16s8u_C1R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16u8, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16s8u_C3R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16u8, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16s8u_C4R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16u8, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_16s8u_AC4R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::s16u8, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u8, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f8u_C3R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u8, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f8u_C4R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u8, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f8u_AC4R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u8, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16u_C1R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u16, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16u_C3R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u16, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16u_C4R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u16, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16u_AC4R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                     int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32u16, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16s_C1R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32s16, ReduceLayout::C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16s_C3R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32s16, ReduceLayout::C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16s_C4R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32s16, ReduceLayout::C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}

ZorStatus zoriReduceBits_32f16s_AC4R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                     int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(ReduceTypes::f32s16, ReduceLayout::AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method,
                      levels);
}
