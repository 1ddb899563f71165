// SPDX-License-Identifier: MIT
// Plain quantisation and ordered dithering, compiled once for every tier.
#include "frame/parallel.h"
#include "frame/row_at.h"
#include "reduce/quantise.h"
#include "reduce/staircase.h"

namespace zorcc::ZORCC_TIER {

#include "reduce/reduce_rows.h"

namespace {

template <bool keepAlpha, class Dst> ZORCC_INLINE void put(Dst* dst, s32v v)
{
    if constexpr (keepAlpha)
        storeColours(dst, v);
    else
        storeSamples(dst, v);
}

template <bool keepAlpha, class Src, class Dst>
void innerNo_PX(const Src* src, Dst* dst, ptrdiff_t samples, const Nearest<Src, Dst>& nearest)
{
    convertSamples<lanes>(src, dst, samples, [&](const Src* from, Dst* to, ptrdiff_t) {
        put<keepAlpha>(to, nearest(loadSamples(from), f32v{}));
    });
}

// `thresholds` holds those of the first `period` samples, after which they repeat.
template <bool keepAlpha, class Src, class Dst>
void innerReduceBits_bayer(const Src* src, Dst* dst, ptrdiff_t samples, const AboveThreshold<Src, Dst>& above,
                           const float* thresholds, ptrdiff_t period)
{
    for (ptrdiff_t start = 0; start < samples; start += period) {
        const ptrdiff_t left = samples - start;
        convertSamples<lanes>(src + start, dst + start, left < period ? left : period,
                              [&](const Src* from, Dst* to, ptrdiff_t i) {
                                  put<keepAlpha>(to, above(loadSamples(from), load<f32v>(thresholds + i)));
                              });
    }
}

// An image of one pair of types and one layout.
template <class Src, class Dst, bool keepAlpha> class Rows {
public:
    explicit Rows(const Reduction& reduction) : job(reduction), channels(samplesPerPixel(job.layout)) {}

    void plain() const
    {
        const Nearest<Src, Dst> nearest(job.intervals);
        constexpr float anyThreshold[bayerSide][bayerSide] = {};
        const auto serially = [&](auto row) {
            for (int y = 0; y < job.size.height; ++y) row(y);
        };
        if (byStaircases(nearest, anyThreshold, serially)) return;
        serially([&](int y) { innerNo_PX<keepAlpha>(src(y), dst(y), samples(), nearest); });
    }

    void ordered() const
    {
        const AboveThreshold<Src, Dst> above(job.intervals, size);
        float threshold[bayerSide][bayerSide];
        for (int y = 0; y < bayerSide; ++y)
            for (int x = 0; x < bayerSide; ++x) threshold[y][x] = bayer_thresh[y][x] * size.step;
        const auto inParallel = [&](auto row) { rowsAlways(job.size.height, row); };
        if (byStaircases(above, threshold, inParallel)) return;
        constexpr int period = 64; // a multiple of the matrix's side and of the lanes
        RowThresholds<period> row[bayerSide];
        for (int y = 0; y < bayerSide; ++y)
            row[y].fill(period, channels, [&](int x) { return threshold[y][x % bayerSide]; });
        inParallel([&](int y) {
            innerReduceBits_bayer<keepAlpha>(src(y), dst(y), samples(), above, row[y % bayerSide].of,
                                             period * channels);
        });
    }

    void noisy(const Noise& noise) const
    {
        const AboveThreshold<Src, Dst> above(job.intervals, size);
        rowsAlways(job.size.height, [&](int y) {
            constexpr int period = Noise::period, least = vectorBytes; // a row is read in whole vectors
            RowThresholds<period> row;
            const int width = job.size.width;
            row.fill(width > period  ? period
                     : width < least ? least
                                     : width,
                     channels,
                     [&](int x) { return (noise.at(x, y) + bayer_thresh[y % bayerSide][x % bayerSide]) * size.step; });
            innerReduceBits_bayer<keepAlpha>(src(y), dst(y), samples(), above, row.of, period * channels);
        });
    }

private:
    const Reduction& job;
    const int channels;
    const StepSize size{fullScale<Src>, job.intervals};

    const Src* src(int y) const { return rowAt(static_cast<const Src*>(job.src), job.srcStep, y); }
    Dst* dst(int y) const { return rowAt(static_cast<Dst*>(job.dst), job.dstStep, y); }
    ptrdiff_t samples() const { return ptrdiff_t{job.size.width} * channels; }

    // False where it is left to the formula.
    template <class Formula, class EachRow>
    bool byStaircases(const Formula& formula, const float (&threshold)[bayerSide][bayerSide], EachRow eachRow) const
    {
        if constexpr (sizeof(Src) == 1) {
            if (samples() * job.size.height < Staircases::minSamples) return false;
            Staircases staircases;
            if (!staircases.build(formula, threshold)) return false;
            staircases.spread(channels);
            eachRow([&](int y) { staircases.convertRow<keepAlpha>(src(y), dst(y), samples(), y); });
            return true;
        } else {
            return false;
        }
    }
};

template <class Work> void withRows(const Reduction& job, const Work& work)
{
    withTypes(job.types, [&]<class Src, class Dst>(Src, Dst) {
        if (job.layout == ReduceLayout::AC4)
            work(Rows<Src, Dst, true>(job));
        else
            work(Rows<Src, Dst, false>(job));
    });
}

} // namespace

void ownNo_PX(const Reduction& job)
{
    withRows(job, [](const auto& rows) { rows.plain(); });
}

void ownReduceBits_bayer(const Reduction& job, const Noise* noise)
{
    withRows(job, [&](const auto& rows) {
        if (noise)
            rows.noisy(*noise);
        else
            rows.ordered();
    });
}

} // namespace zorcc::ZORCC_TIER
