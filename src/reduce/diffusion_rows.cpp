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
template <int stride> void transposeTo(float (*steps)[bandRows], const float (*rows)[stride], int columns)
{
    for (int r = 0; r < bandRows; r += lanes)
        for (int x = 0; x < columns; x += lanes) {
            f32v v[lanes];
            for (int i = 0; i < lanes; ++i) v[i] = load<f32v>(rows[r + i] + x);
            transpose(v);
            for (int i = 0; i < lanes; ++i) store(steps[x + i] + r, v[i]);
        }
}

template <int stride> void transposeBack(float (*rows)[stride], const float (*steps)[bandRows], int columns)
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
          stride(samplesPerPixel(job.layout)), errorRows(above)
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

    const Reduction& job;
    const Weights& weights;
    const Noise* const noise;
    const int first, channels, stride;
    float* const errorRows;
    const StepSize size{fullScale<Src>, job.intervals};
    const Quantiser quantise{fillFloat(fullScale<Src>), fillFloat(size.step), fillFloat(size.inverse),
                             fillFloat(static_cast<float>(job.intervals))};

    Errors<Weights> errors[maxChannels];
    Tile tile;
    alignas(64) float rows[bandRows][tileSteps * maxChannels]; // the tile's samples row by row
    alignas(64) float rowThresholds[bandRows][tileSteps];

    void convertBand(int y)
    {
        const int left = job.size.height - y;
        const int height = left < bandRows ? left : bandRows;
        const int64_t steps = int64_t{job.size.width} + lag * (height - 1);
        for (int c = 0; c < channels; ++c) start(c);
        for (int64_t s = 0; s < steps; s += tileSteps) {
            for (int r = 0; r < bandRows; ++r) fetch(r, y + r, s - lag * r, r < height);
            transposeTo(tile.samples, rows, tileSteps * channels);
            if (noise) transposeTo(tile.thresholds, rowThresholds, tileSteps);
            for (int c = 0; c < channels; ++c) receive(c, s);
            diffuse<levelNumbers>(tile, channels, errors, weights, quantise);
            for (int c = 0; c < channels; ++c) handOver(c, s, height);
            transposeBack(rows, tile.samples, tileSteps * channels);
            for (int r = 0; r < height; ++r) put(r, y + r, s - lag * r);
        }
    }

    bool contains(int64_t x) const { return x >= 0 && x < job.size.width; }

    // Whether the tile's columns from x on lie in the image, and hold no channel of others.
    bool whole(int64_t x) const { return channels == stride && contains(x) && contains(x + tileSteps - 1); }

    // Row y of the image from column x on, to row r of the tile.
    void fetch(int r, int y, int64_t x, bool exists)
    {
        float* const row = rows[r];
        const Src* const src = rowAt(static_cast<const Src*>(job.src), job.srcStep, y) + first;
        if (exists && whole(x)) {
            for (int i = 0; i < tileSteps * channels; i += lanes) store(row + i, loadSamples(src + x * stride + i));
        } else {
            for (int j = 0; j < tileSteps; ++j)
                for (int c = 0; c < channels; ++c)
                    row[j * channels + c] =
                        exists && contains(x + j) ? sampleValue(src[(x + j) * stride + c]) : outside;
        }
        if (noise)
            for (int j = 0; j < tileSteps; ++j)
                rowThresholds[r][j] = contains(x + j) ? noise->at(static_cast<int>(x + j), y) : 0;
    }

    // What becomes of them, to the image.
    void put(int r, int y, int64_t x)
    {
        Dst* const dst = rowAt(static_cast<Dst*>(job.dst), job.dstStep, y) + first;
        const bool atOnce = whole(x);
        Dst values[tileSteps * maxChannels];
        Dst* const to = atOnce ? dst + x * stride : values;
        for (int i = 0; i < tileSteps * channels; i += lanes) {
            const f32v v = load<f32v>(rows[r] + i);
            storeSamples(to + i, levelNumbers ? levelValue<Dst>(v, quantise.intervals) : truncate(v));
        }
        if (atOnce) return;
        for (int j = 0; j < tileSteps; ++j)
            for (int c = 0; c < channels; ++c)
                if (contains(x + j)) dst[(x + j) * stride + c] = values[j * channels + c];
    }

    float* errorRow(int c, int n) const { return errorRows + ptrdiff_t{c * Weights::rowsAbove + n} * job.size.width; }

    // What row n + 1 above the band has left in column x.
    float received(int c, int n, int64_t x) const { return contains(x) ? errorRow(c, n)[x] : 0; }

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
            for (int j = 0; j < tileSteps; ++j) errors[c].incoming[n][j] = received(c, n, step + j + ahead);
    }

    // From the last rows of the band, to be received by the next one, which is far behind.
    void handOver(int c, int64_t step, int height)
    {
        for (int n = 0; n < Weights::rowsAbove && height == bandRows; ++n)
            for (int j = 0; j < tileSteps; ++j) {
                const int r = bandRows - 1 - n;
                const int64_t x = step + j - lag * r;
                if (contains(x)) errorRow(c, n)[x] = errors[c].own[j + 2][r];
            }
        errors[c].nextTile();
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
