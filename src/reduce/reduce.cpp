// SPDX-License-Identifier: MIT
// Exported bit-depth reductions.
#include "zorcc/reduce.h"

#include <limits.h>
#include <string.h>

#include "frame/memory.h"
#include "frame/parallel.h"
#include "reduce/reduce_rows.h"

namespace zorcc {
namespace {

constexpr int maxNoise = 100;

struct Layout {
    int samplesPerPixel, channels; // of which the first are converted
};
constexpr Layout C1 = {1, 1}, C3 = {3, 3}, C4 = {4, 4}, AC4 = {4, 3};

ZorStatus quantiseOrdered(const ReduceDrivers& drivers, const Reduction& reduction, int noise)
{
    const float most = static_cast<float>(noise) / 100.0f; // in quantisation steps
    Noise thresholds;
    if (noise != 0)
        if (const ZorStatus s = thresholds.create(-most, most); s != zorStatusOk) return s;
    drivers.ordered(reduction, noise != 0 ? &thresholds : nullptr);
    return zorStatusOk;
}

ZorStatus diffuse(DiffusionDriver& driver, int rowsAbove, const Reduction& reduction, float step, int noise)
{
    const int channels = reduction.channels, threads = threadsHere();
    const int64_t count = (int64_t{reduction.size.width} + 2 * errorMargin) * rowsAbove * channels;
    const Owned<float> errors(count > INT_MAX ? nullptr : zorsMalloc_32f(static_cast<int>(count)));
    if (!errors) return zorStatusNoMemory;
    memset(errors.get(), 0, static_cast<size_t>(count) * sizeof(float));

    Noise thresholds; // half a step, give or take noise percent of a step
    const float low = static_cast<float>(50 - noise) * step / 100.0f,
                high = static_cast<float>(50 + noise) * step / 100.0f;
    if (noise != 0)
        if (const ZorStatus s = thresholds.create(low, high); s != zorStatusOk) return s;
    driver(reduction, noise != 0 ? &thresholds : nullptr, errors.get(), threads < channels ? threads : channels);
    return zorStatusOk;
}

// The checks in their order, then the method that was asked for.
ZorStatus reduceBits(const ReduceDrivers& drivers, Layout layout, const Image& from, const Image& to, ZorSize size,
                     int noise, ZorDitherMethod method, int levels)
{
    if (const ZorStatus status = check(Checks{}, from, to, size); status < 0) return status;
    if (noise < 0 || noise > maxNoise) return zorStatusNoiseRange;
    if (levels < 2 || levels > drivers.maxLevels) return zorStatusDitherLevels;

    const Reduction reduction = {from, to, size, layout.samplesPerPixel, layout.channels, levels - 1};
    const float step = reduction.step(drivers.whiteOfSource);
    switch (method) {
    case zorDitherMethodNone:
        drivers.plain(reduction);
        return zorStatusOk;
    case zorDitherMethodFloydSteinberg:
        return diffuse(drivers.floydSteinberg, 1, reduction, step, noise);
    case zorDitherMethodJarvisJudiceNinke:
        return diffuse(drivers.jarvisJudiceNinke, 2, reduction, step, noise);
    case zorDitherMethodStucki:
        return diffuse(drivers.stucki, 2, reduction, step, noise);
    case zorDitherMethodOrdered:
        return quantiseOrdered(drivers, reduction, noise);
    }
    return zorStatusOk; // an unknown method does nothing
}

} // namespace
} // namespace zorcc

using namespace zorcc;

// Four functions for each pair of sample types, whose names and parameters zorcc.h declares.
#define ZORCC_REDUCE_BITS_LAYOUT(types, Src, Dst, layout)                                                              \
    ZorStatus zoriReduceBits_##types##_##layout##R(const Src* pSrc, int srcStep, Dst* pDst, int dstStep,               \
                                                   ZorSize roiSize, int noise, ZorDitherMethod method, int levels)     \
    {                                                                                                                  \
        return reduceBits(reduceRows().my##types, layout, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),      \
                          roiSize, noise, method, levels);                                                             \
    }
#define ZORCC_REDUCE_BITS(types, Src, Dst)                                                                             \
    ZORCC_REDUCE_BITS_LAYOUT(types, Src, Dst, C1)                                                                      \
    ZORCC_REDUCE_BITS_LAYOUT(types, Src, Dst, C3)                                                                      \
    ZORCC_REDUCE_BITS_LAYOUT(types, Src, Dst, C4)                                                                      \
    ZORCC_REDUCE_BITS_LAYOUT(types, Src, Dst, AC4)

ZORCC_REDUCE_BITS(8u, uint8_t, uint8_t)
ZORCC_REDUCE_BITS(16u, uint16_t, uint16_t)
ZORCC_REDUCE_BITS(16u8u, uint16_t, uint8_t)
ZORCC_REDUCE_BITS(16s, int16_t, int16_t)
ZORCC_REDUCE_BITS(16s8u, int16_t, uint8_t)
ZORCC_REDUCE_BITS(32f8u, float, uint8_t)
ZORCC_REDUCE_BITS(32f16u, float, uint16_t)
ZORCC_REDUCE_BITS(32f16s, float, int16_t)
