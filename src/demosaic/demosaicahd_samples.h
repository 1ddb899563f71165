// SPDX-License-Identifier: MIT
// From rows of the mosaic to lines of floats, and from lines to rows of the result.
#pragma once

#include "demosaic/mosaic.h"
#include "simd/interleave.h"
#include "simd/order.h"
#include "simd/samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

// `count` samples of a row of `width`, from column x on, which like the last may lie outside.
template <class Sample> void loadLine(const Sample* row, int width, ptrdiff_t x, int count, float* line)
{
    int i = 0;
    for (; i < count && x + i < 0; ++i) line[i] = row[mirrored(x + i, width)];
    for (; i <= count - lanes && x + i <= width - lanes; i += lanes)
        store(line + i, toFloat(loadIntegers(row + x + i)));
    for (; i < count; ++i) line[i] = row[mirrored(x + i, width)];
}

// Rounded to nearest (halves up) and saturated.
ZORCC_INLINE s32v rounded(const float* p) { return truncate(load<f32v>(p) + 0.5f); }

template <class V> ZORCC_INLINE V loadRounded(const float* p)
{
    constexpr int n = lanes;
    if constexpr (sizeof(V{}[0]) == 1)
        return orderQuarters(narrow<uint8_t>({{rounded(p), rounded(p + n), rounded(p + 2 * n), rounded(p + 3 * n)}}));
    else
        return orderHalves(narrow<uint16_t>({{rounded(p), rounded(p + n)}}));
}

// Pixels i .. i + vectorBytes / sizeof(Sample) - 1 from a line for each channel.
template <class Sample> ZORCC_INLINE void storeVector(const float* const (&channel)[3], int i, Sample* dst)
{
    Vec<Sample> rgb[3];
    for (int c = 0; c < 3; ++c) rgb[c] = loadRounded<Vec<Sample>>(channel[c] + i);
    interleave<Columns::inOrder>((uint8_t*)dst, rgb);
}

// The first `count` pixels. What follows them in the lines is not read: there may be no memory for a vector.
template <class Sample> void storePixels(const float* const (&channel)[3], int count, Sample* dst)
{
    constexpr int perVector = vectorBytes / sizeof(Sample);
    int i = 0;
    for (; i <= count - perVector; i += perVector) storeVector(channel, i, dst + 3 * i);
    if (i == count) return;
    float staged[3][perVector] = {};
    Sample result[3 * perVector];
    for (int c = 0; c < 3; ++c)
        __builtin_memcpy(staged[c], channel[c] + i, static_cast<size_t>(count - i) * sizeof(float));
    storeVector({staged[0], staged[1], staged[2]}, 0, result);
    __builtin_memcpy(dst + 3 * i, result, 3 * static_cast<size_t>(count - i) * sizeof(Sample));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
