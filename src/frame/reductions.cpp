// SPDX-License-Identifier: MIT
#include "frame/reductions.h"

#include <emmintrin.h>
#include <string.h>

#include "frame/checks.h"
#include "frame/row_at.h"

namespace zorcc {
namespace {

constexpr int blockSamples = 16; // four vectors, so that the latency of an addition does not set the pace

// A reduction takes blocks of samples; `neutral` samples leave it as it is.
struct Maximum {
    static constexpr float neutral = -__builtin_inff();
    __m128 best[4] = {_mm_set1_ps(neutral), _mm_set1_ps(neutral), _mm_set1_ps(neutral), _mm_set1_ps(neutral)};

    // The instruction gives its second operand where one of the two is NaN.
    static __m128 larger(__m128 sample, __m128 before) { return _mm_max_ps(sample, before); }

    void add(const float* block)
    {
        for (int v = 0; v < 4; ++v) best[v] = larger(_mm_loadu_ps(block + 4 * v), best[v]);
    }

    float result() const
    {
        float lane[4];
        _mm_storeu_ps(lane, larger(larger(best[0], best[1]), larger(best[2], best[3])));
        float max = lane[0];
        for (const float l : lane) max = l > max ? l : max;
        return max;
    }
};

struct Sum {
    static constexpr float neutral = 0;
    __m128d low[4] = {}, high[4] = {}; // of the lower and upper halves of the four vectors

    void add(const float* block)
    {
        for (int v = 0; v < 4; ++v) {
            const __m128 samples = _mm_loadu_ps(block + 4 * v);
            low[v] = _mm_add_pd(low[v], _mm_cvtps_pd(samples));
            high[v] = _mm_add_pd(high[v], _mm_cvtps_pd(_mm_movehl_ps(samples, samples)));
        }
    }

    double result() const
    {
        __m128d sum = _mm_setzero_pd();
        for (int v = 0; v < 4; ++v) sum = _mm_add_pd(sum, _mm_add_pd(low[v], high[v]));
        return _mm_cvtsd_f64(sum) + _mm_cvtsd_f64(_mm_unpackhi_pd(sum, sum));
    }
};

template <class Reduction> auto reduce(const float* src, int srcStep, ZorSize roiSize)
{
    Reduction reduction;
    const int whole = roiSize.width - roiSize.width % blockSamples;
    float last[blockSamples];
    for (float& sample : last) sample = Reduction::neutral;

    for (int y = 0; y < roiSize.height; ++y) {
        const float* const row = rowAt(src, srcStep, y);
        for (int x = 0; x < whole; x += blockSamples) reduction.add(row + x);
        if (whole < roiSize.width) {
            memcpy(last, row + whole, sizeof(float) * static_cast<size_t>(roiSize.width - whole));
            reduction.add(last);
        }
    }
    return reduction.result();
}

template <class Result> ZorStatus check(const float* src, const Result* result, ZorSize roiSize)
{
    return checkImages(interleaved(src), interleaved(result), roiSize);
}

} // namespace

ZorStatus zoriMax_32f_C1R(const float* src, int srcStep, ZorSize roiSize, float* max)
{
    if (const ZorStatus s = check(src, max, roiSize); s != zorStatusOk) return s;
    *max = reduce<Maximum>(src, srcStep, roiSize);
    return zorStatusOk;
}

ZorStatus zoriSum_32f_C1R(const float* src, int srcStep, ZorSize roiSize, double* sum)
{
    if (const ZorStatus s = check(src, sum, roiSize); s != zorStatusOk) return s;
    *sum = reduce<Sum>(src, srcStep, roiSize);
    return zorStatusOk;
}

ZorStatus zoriMean_32f_C1R(const float* src, int srcStep, ZorSize roiSize, double* mean)
{
    if (const ZorStatus s = zoriSum_32f_C1R(src, srcStep, roiSize, mean); s != zorStatusOk) return s;
    *mean /= static_cast<double>(roiSize.width) * roiSize.height;
    return zorStatusOk;
}

} // namespace zorcc
