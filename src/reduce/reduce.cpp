// SPDX-License-Identifier: MIT
// Exported bit-depth reductions.
#include "zorcc/reduce.h"

#include <limits.h>
#include <string.h>

#include <algorithm>

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
    const int width = reduction.size.width, channels = reduction.channels;
    const int64_t errors = ((int64_t{width} + int64_t{2} * errorMargin) * rowsAbove * channels + 15) & -16;
    const auto floatsFor = [&](int workers) {
        const int64_t levels =
            workers > 1 ? int64_t{2} * bandRows * channels * (levelsStep(width) / int64_t{sizeof(float)}) : 0;
        return errors + workers * workspaceFloats + levels;
    };
    int workers = std::min(threadsHere(), channels);
    if (floatsFor(workers) > INT_MAX) workers = 1;
    const int64_t count = floatsFor(workers);
    const Owned<float> floats(count > INT_MAX ? nullptr : zorsMalloc_32f(static_cast<int>(count)));
    if (!floats) return zorStatusNoMemory;
    float* const workspaces = floats.get() + errors;
    memset(floats.get(), 0, static_cast<size_t>(errors) * sizeof(float));

    Noise thresholds; // half a step, give or take noise percent of a step
    const float low = static_cast<float>(50 - noise) * step / 100.0f,
                high = static_cast<float>(50 + noise) * step / 100.0f;
    if (noise != 0)
        if (const ZorStatus s = thresholds.create(low, high); s != zorStatusOk) return s;
    driver(reduction, noise != 0 ? &thresholds : nullptr,
           {floats.get(), workspaces, workspaces + workers * workspaceFloats}, workers);
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

// All of them have the same parameters, but for the types of samples.
#define ZORCC_REDUCE_BITS(name, Src, Dst, drivers, layout)                                                             \
    ZorStatus name(const Src* pSrc, int srcStep, Dst* pDst, int dstStep, ZorSize roiSize, int noise,                   \
                   ZorDitherMethod method, int levels)                                                                 \
    {                                                                                                                  \
        return reduceBits(reduceRows().drivers, layout, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),        \
                          roiSize, noise, method, levels);                                                             \
    }

ZORCC_REDUCE_BITS(zoriReduceBits_8u_C1R, uint8_t, uint8_t, my8u, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_8u_C3R, uint8_t, uint8_t, my8u, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_8u_C4R, uint8_t, uint8_t, my8u, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_8u_AC4R, uint8_t, uint8_t, my8u, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_16u_C1R, uint16_t, uint16_t, my16u, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_16u_C3R, uint16_t, uint16_t, my16u, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_16u_C4R, uint16_t, uint16_t, my16u, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_16u_AC4R, uint16_t, uint16_t, my16u, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_16u8u_C1R, uint16_t, uint8_t, my16u8u, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_16u8u_C3R, uint16_t, uint8_t, my16u8u, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_16u8u_C4R, uint16_t, uint8_t, my16u8u, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_16u8u_AC4R, uint16_t, uint8_t, my16u8u, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_16s_C1R, int16_t, int16_t, my16s, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_16s_C3R, int16_t, int16_t, my16s, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_16s_C4R, int16_t, int16_t, my16s, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_16s_AC4R, int16_t, int16_t, my16s, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_16s8u_C1R, int16_t, uint8_t, my16s8u, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_16s8u_C3R, int16_t, uint8_t, my16s8u, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_16s8u_C4R, int16_t, uint8_t, my16s8u, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_16s8u_AC4R, int16_t, uint8_t, my16s8u, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_32f8u_C1R, float, uint8_t, my32f8u, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_32f8u_C3R, float, uint8_t, my32f8u, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_32f8u_C4R, float, uint8_t, my32f8u, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_32f8u_AC4R, float, uint8_t, my32f8u, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16u_C1R, float, uint16_t, my32f16u, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16u_C3R, float, uint16_t, my32f16u, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16u_C4R, float, uint16_t, my32f16u, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16u_AC4R, float, uint16_t, my32f16u, AC4)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16s_C1R, float, int16_t, my32f16s, C1)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16s_C3R, float, int16_t, my32f16s, C3)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16s_C4R, float, int16_t, my32f16s, C4)
ZORCC_REDUCE_BITS(zoriReduceBits_32f16s_AC4R, float, int16_t, my32f16s, AC4)
