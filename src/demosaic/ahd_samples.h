// SPDX-License-Identifier: MIT
// From rows of the mosaic to lines of floats, and from lines to rows of the result.
#pragma once

#include "demosaic/mosaic.h"
#include "simd/interleave.h"
#include "simd/widening_loads.h"

namespace zorcc::ZORCC_TIER {
namespace {

// `count` samples of a row of `width`, from column x on, which like the last may lie outside.
template <class Sample> void loadLine(const Sample* row, int width, int x, int count, float* line)
{
    int i = 0;
    for (; i < count && x + i < 0; ++i) line[i] = row[mirrored(x + i, width)];
    for (; i <= count - floatsPerVector && x + i <= width - floatsPerVector; i += floatsPerVector)
        store(line + i, toFloat(loadIntegers(row + x + i)));
    for (; i < count; ++i) line[i] = row[mirrored(x + i, width)];
}

// Rounded to nearest (halves up) and saturated.
ZORCC_INLINE s32v rounded(const float* p) { return truncate(load<f32v>(p) + 0.5f); }

template <class V> ZORCC_INLINE V loadRounded(const float* p)
{
    constexpr int n = floatsPerVector;
    if constexpr (sizeof(V{}[0]) == 1) {
        const u8v v = narrowToU8({{rounded(p), rounded(p + n), rounded(p + 2 * n), rounded(p + 3 * n)}});
#if defined(ZORCC_TIER_avx512)
        return (u8v)_mm512_permutexvar_epi32(_mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15),
                                             reg(v));
#elif defined(ZORCC_TIER_avx2)
        return (u8v)_mm256_permutevar8x32_epi32(reg(v), _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
#else
        return v;
#endif
    } else {
        return orderHalves(narrowToU16({{rounded(p), rounded(p + n)}}));
    }
}

// Pixels i .. i + vectorBytes / sizeof(Sample) - 1 from a line for each channel.
template <class Sample> ZORCC_INLINE void storeVector(const float* const (&channel)[3], int i, Sample* dst)
{
    Vec<Sample> rgb[3];
    for (int c = 0; c < 3; ++c) rgb[c] = loadRounded<Vec<Sample>>(channel[c] + i);
    interleave3<Columns::inOrder>((uint8_t*)dst, rgb);
}

// The first `count` pixels. What lies behind them in the lines is not read: there may be no memory for a vector.
template <class Sample> void storePixels(const float* const (&channel)[3], int count, Sample* dst)
{
    constexpr int lanes = vectorBytes / sizeof(Sample);
    int i = 0;
    for (; i <= count - lanes; i += lanes) storeVector(channel, i, dst + 3 * i);
    if (i == count) return;
    float staged[3][lanes] = {};
    Sample result[3 * lanes];
    for (int c = 0; c < 3; ++c)
        __builtin_memcpy(staged[c], channel[c] + i, static_cast<size_t>(count - i) * sizeof(float));
    storeVector({staged[0], staged[1], staged[2]}, 0, result);
    __builtin_memcpy(dst + 3 * i, result, 3 * static_cast<size_t>(count - i) * sizeof(Sample));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
