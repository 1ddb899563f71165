// SPDX-License-Identifier: MIT
// Error diffusion: images to tiles of the wavefront and back, compiled once for every tier.
#include "frame/parallel.h"
#include "frame/row_at.h"
#include "reduce/diffusion.h"
#include "reduce/quantise.h"

namespace zorcc::ZORCC_TIER {

#include "reduce/reduce_rows.h"

namespace {

ZORCC_INLINE float sampleValue(uint8_t s) { return s; }
ZORCC_INLINE float sampleValue(uint16_t s) { return s; }
ZORCC_INLINE float sampleValue(int16_t s) { return static_cast<float>(s + signedBias); }
ZORCC_INLINE float sampleValue(float s) { return s; }

// Rows become the steps of a tile, or back: `columns` of them, a multiple of the lanes.
void transposeTo(float (*steps)[bandRows], const float (*rows)[tileSamples], int columns)
{
    for (int r = 0; r < bandRows; r += lanes)
        for (int x = 0; x < columns; x += lanes) {
            f32v v[lanes];
            for (int i = 0; i < lanes; ++i) v[i] = load<f32v>(rows[r + i] + x);
            transpose(v);
            for (int i = 0; i < lanes; ++i) store(steps[x + i] + r, v[i]);
        }
}

void transposeBack(float (*rows)[tileSamples], const float (*steps)[bandRows], int columns)
{
    for (int r = 0; r < bandRows; r += lanes)
        for (int x = 0; x < columns; x += lanes) {
            f32v v[lanes];
            for (int i = 0; i < lanes; ++i) v[i] = load<f32v>(steps[x + i] + r);
            transpose(v);
            for (int i = 0; i < lanes; ++i) store(rows[r + i] + x, v[i]);
        }
}

// Converts some neighbouring channels of an image.
template <class Src, class Dst, class Weights> class Diffusion {
public:
    // `above` holds the errors of the rows above a band: for each channel one row of zeros, or two, the upper one last.
    Diffusion(const Reduction& reduction, const Weights& w, const Noise* n, int firstChannel, int endChannel,
              float* above)
        : job(reduction), weights(w), noise(n), first(firstChannel), channels(endChannel - firstChannel),
          stride(samplesPerPixel(job.layout)), steps(tileSteps(channels)), errorRows(above)
    {
        for (auto& step : tile.thresholds)
            for (float& threshold : step) threshold = 0.5f * size.step;
    }

    void convert()
    {
        for (int y = 0; y < job.size.height; y += bandRows) convertBand(y);
    }

private:
    static constexpr bool levelNumbers = !sameScale<Src, Dst>;
    static constexpr int lag = Errors<Weights>::lag, ahead = Weights::ahead;
    static constexpr int prefetchBytes = 128;

    const Reduction& job;
    const Weights& weights;
    const Noise* const noise;
    const int first, channels, stride, steps;
    float* const errorRows;
    const StepSize size{fullScale<Src>, job.intervals};
    const Quantiser quantise{fillFloat(fullScale<Src>), fillFloat(size.step), fillFloat(size.inverse),
                             fillFloat(static_cast<float>(job.intervals))};

    Errors<Weights> errors[maxChannels];
    Tile tile;
    alignas(64) float rows[bandRows][tileSamples]; // the tile's samples row by row
    alignas(64) float rowThresholds[bandRows][tileSamples];

    void convertBand(int y)
    {
        const int left = job.size.height - y;
        const int height = left < bandRows ? left : bandRows;
        const int64_t end = int64_t{job.size.width} + lag * (height - 1);
        for (int c = 0; c < channels; ++c) start(c);
        for (int64_t step = 0; step < end; step += steps) {
            for (int r = 0; r < bandRows; ++r) {
                const int64_t x = step - lag * r;
                fetch(r, y + r, x, r < height ? inImage(x) : Span{0, 0});
            }
            transposeTo(tile.samples, rows, steps * channels);
            if (noise) transposeTo(tile.thresholds, rowThresholds, steps);
            for (int c = 0; c < channels; ++c) receive(c, step);
            diffuse<levelNumbers>(tile, steps, channels, errors, weights, quantise);
            for (int c = 0; c < channels; ++c) {
                if (height == bandRows) handOver(c, step);
                errors[c].nextTile(steps);
            }
            transposeBack(rows, tile.samples, steps * channels);
            for (int r = 0; r < height; ++r) put(r, y + r, step - lag * r);
        }
    }

    // Which of a tile's columns, the first of which is x, lie in the image.
    struct Span {
        int begin, end;
    };
    Span inImage(int64_t x) const
    {
        const auto clamped = [&](int64_t j) { return static_cast<int>(j < 0 ? 0 : j > steps ? steps : j); };
        return {clamped(-x), clamped(job.size.width - x)};
    }

    // Some columns of row y of the image, from column x on, to row r of the tile.
    void fetch(int r, int y, int64_t x, Span in)
    {
        float* const row = rows[r];
        const Src* const src = rowAt(static_cast<const Src*>(job.src), job.srcStep, y);
        const int count = (in.end - in.begin) * channels;
        if (count == steps * stride) {
            // So many rows at a time are more than a processor foresees. A prefetch may point behind the row.
            __builtin_prefetch(reinterpret_cast<const char*>(src + x * stride) + prefetchBytes);
            toFloats(src + x * stride, row);
        } else if (channels == stride) {
            Src copy[tileSamples] = {};
            if (count > 0)
                __builtin_memcpy(copy + in.begin * stride, src + (x + in.begin) * stride, count * sizeof(Src));
            toFloats(copy, row);
        } else {
            for (int j = in.begin; j < in.end; ++j)
                for (int c = 0; c < channels; ++c)
                    row[j * channels + c] = sampleValue(src[(x + j) * stride + first + c]);
        }
        for (int i = 0; i < in.begin * channels; ++i) row[i] = outside;
        for (int i = in.end * channels; i < steps * channels; ++i) row[i] = outside;
        if (noise)
            for (int j = in.begin; j < in.end; ++j) rowThresholds[r][j] = noise->at(static_cast<int>(x + j), y);
    }

    void toFloats(const Src* src, float* row) const
    {
        for (int i = 0; i < steps * channels; i += lanes) store(row + i, loadSamples(src + i));
    }

    // What becomes of them, to the image.
    void put(int r, int y, int64_t x)
    {
        const Span in = inImage(x);
        const int count = (in.end - in.begin) * channels;
        Dst* const dst = rowAt(static_cast<Dst*>(job.dst), job.dstStep, y);
        if (count == 0) return;
        if (count == steps * stride) {
            fromFloats(rows[r], dst + x * stride);
            return;
        }
        Dst copy[tileSamples];
        fromFloats(rows[r], copy);
        if (channels == stride) {
            __builtin_memcpy(dst + (x + in.begin) * stride, copy + in.begin * stride, count * sizeof(Dst));
            return;
        }
        for (int j = in.begin; j < in.end; ++j)
            for (int c = 0; c < channels; ++c) dst[(x + j) * stride + first + c] = copy[j * channels + c];
    }

    void fromFloats(const float* row, Dst* dst) const
    {
        for (int i = 0; i < steps * channels; i += lanes) {
            const f32v v = load<f32v>(row + i);
            storeSamples(dst + i, levelNumbers ? levelValue<Dst>(v, quantise.intervals) : truncate(v));
        }
    }

    float* errorRow(int c, int n) const { return errorRows + ptrdiff_t{c * Weights::rowsAbove + n} * job.size.width; }

    // What row n + 1 above the band has left in column x.
    float received(int c, int n, int64_t x) const { return x < job.size.width ? errorRow(c, n)[x] : 0; }

    // Nothing has been handed down yet, but the first columns above the first row.
    void start(int c)
    {
        errors[c].clear();
        for (int n = 0; n < Weights::rowsAbove; ++n)
            for (int x = 0; x < ahead; ++x) errors[c].above[n][ahead + x][0] = received(c, n, x);
    }

    void receive(int c, int64_t step)
    {
        for (int n = 0; n < Weights::rowsAbove; ++n)
            for (int j = 0; j < steps; ++j) errors[c].incoming[n][j] = received(c, n, step + j + ahead);
    }

    // From the last rows of the band, to be received by the next one, which is far behind.
    void handOver(int c, int64_t step)
    {
        for (int n = 0; n < Weights::rowsAbove; ++n) {
            const int r = bandRows - 1 - n;
            const int64_t x = step - lag * r;
            const Span in = inImage(x);
            for (int j = in.begin; j < in.end; ++j) errorRow(c, n)[x + j] = errors[c].own[j + 2][r];
        }
    }
};

template <class Weights>
void diffuseChannels(const Reduction& job, const Noise* noise, float* errors, int workers, const Weights& weights)
{
    const int channels = colourChannels(job.layout);
    withTypes(job.types, [&]<class Src, class Dst>(Src, Dst) {
        sections(workers, [&](int worker) {
            // Neighbouring channels; where they do not divide evenly the first workers have one more.
            const auto firstOf = [&](int w) { return (w * channels + workers - 1) / workers; };
            const int first = firstOf(worker);
            Diffusion<Src, Dst, Weights>(job, weights, noise, first, firstOf(worker + 1),
                                         errors + ptrdiff_t{first * Weights::rowsAbove} * job.size.width)
                .convert();
        });
    });
}

} // namespace

void ownReduceBits_fs(const Reduction& job, const Noise* noise, float* errors, int workers)
{
    diffuseChannels(job, noise, errors, workers, FloydSteinberg{});
}

void ownReduceBits_st_jj(const Reduction& job, const Noise* noise, float* errors, int workers, ZorDitherMethod method)
{
    diffuseChannels(job, noise, errors, workers, method == zorDitherMethodStucki ? stucki : jarvisJudiceNinke);
}

} // namespace zorcc::ZORCC_TIER
