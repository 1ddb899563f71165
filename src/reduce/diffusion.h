// SPDX-License-Identifier: MIT
// Drivers of error diffusion.
#pragma once

#include "reduce/diffusion_tiles.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Converts some neighbouring channels of an image, band by band.
template <class Src, class Dst, class Weights> class Diffusion {
public:
    // `above` holds the errors of the rows above a band: for each channel one row of zeros, or two, the upper one last.
    Diffusion(const Image& from, const Image& to, ZorSize imageSize, const Reduction& reduction, const Weights& w,
              const Noise* n, Channels c, float* above)
        : size(imageSize), weights(w), noise(n), channels(c.count), steps(tileSteps(c.count)), errorRows(above),
          step(white<Src>, reduction.intervals), quantise{fillFloat(white<Src>), fillFloat(step.step),
                                                          fillFloat(step.inverse),
                                                          fillFloat(static_cast<float>(reduction.intervals))},
          tileRow(from, to, imageSize.width, c)
    {
        for (auto& thresholds : tile.thresholds)
            for (float& threshold : thresholds) threshold = 0.5f * step.step;
    }

    void convert()
    {
        for (int y = 0; y < size.height; y += bandRows) convertBand(y);
    }

private:
    static constexpr bool levelNumbers = !sameScale<Src, Dst>;
    static constexpr int lag = Errors<Weights>::lag, ahead = Weights::ahead;

    const ZorSize size;
    const Weights& weights;
    const Noise* const noise;
    const int channels, steps;
    float* const errorRows;
    const StepSize step;
    const Quantiser quantise;
    const TileRow<Src, Dst> tileRow;

    Errors<Weights> errors[maxChannels];
    Tile tile;
    alignas(64) TileRows rows; // the tile's samples, row by row
    alignas(64) TileRows rowThresholds;

    void convertBand(int y)
    {
        const int left = size.height - y, height = left < bandRows ? left : bandRows;
        const int64_t end = int64_t{size.width} + lag * (height - 1);
        for (int c = 0; c < channels; ++c) startBand(c);
        for (int64_t s = 0; s < end; s += steps) {
            loadTile(y, height, s);
            for (int c = 0; c < channels; ++c) receive(c, s);
            diffuse<levelNumbers>(tile, steps, channels, errors, weights, quantise);
            for (int c = 0; c < channels; ++c) {
                if (height == bandRows) handOver(c, s);
                errors[c].nextTile(steps);
            }
            storeTile(y, height, s);
        }
    }

    // The tile that begins with step s of the band.
    void loadTile(int y, int height, int64_t s)
    {
        for (int r = 0; r < bandRows; ++r) {
            const int64_t x = s - lag * r;
            const Span in = r < height ? tileRow.inImage(x) : Span{0, 0};
            tileRow.load(y + r, x, in, rows[r]);
            if (noise)
                for (int j = in.begin; j < in.end; ++j) rowThresholds[r][j] = noise->at(static_cast<int>(x + j), y + r);
        }
        transposeRows(rows, tile.samples, steps * channels);
        if (noise) transposeRows(rowThresholds, tile.thresholds, steps);
    }

    void storeTile(int y, int height, int64_t s)
    {
        const auto fromFloats = [&](const float* row, int samples, Dst* dst) {
            for (int i = 0; i < samples; i += lanes) {
                const f32v v = load<f32v>(row + i);
                storeSamples(dst + i, levelNumbers ? levelValue<Dst>(v, quantise.intervals) : truncate(v));
            }
        };
        transposeSteps(tile.samples, rows, steps * channels);
        for (int r = 0; r < height; ++r) {
            const int64_t x = s - lag * r;
            tileRow.store(y + r, x, tileRow.inImage(x), rows[r], fromFloats);
        }
    }

    // ---- errors from one band to the next ---------------------------------------------------------------------------

    float* errorRow(int c, int n) const { return errorRows + ptrdiff_t{c * Weights::rowsAbove + n} * size.width; }

    // What row n + 1 above the band has left in column x.
    float received(int c, int n, int64_t x) const { return x < size.width ? errorRow(c, n)[x] : 0; }

    // Nothing has been passed down yet, but the first columns above the first row.
    void startBand(int c)
    {
        errors[c].clear();
        for (int n = 0; n < Weights::rowsAbove; ++n)
            for (int x = 0; x < ahead; ++x) errors[c].above[n][ahead + x][0] = received(c, n, x);
    }

    void receive(int c, int64_t s)
    {
        const int64_t x = s + ahead;
        const int end = tileRow.inImage(x).end;
        for (int n = 0; n < Weights::rowsAbove; ++n) {
            float* const incoming = errors[c].incoming[n];
            __builtin_memcpy(incoming, errorRow(c, n) + x, static_cast<size_t>(end) * sizeof(float));
            for (int j = end; j < steps; ++j) incoming[j] = 0;
        }
    }

    // From the last rows of the band, to be received by the next one, which comes much later.
    void handOver(int c, int64_t s)
    {
        for (int n = 0; n < Weights::rowsAbove; ++n) {
            const int r = bandRows - 1 - n;
            const int64_t x = s - lag * r;
            const Span in = tileRow.inImage(x);
            for (int j = in.begin; j < in.end; ++j) errorRow(c, n)[x + j] = errors[c].own[j + 2][r];
        }
    }
};

// `weights` is a variable of static storage.
template <class Src, class Dst, auto& weights>
void diffuseChannels(const Image& from, const Image& to, ZorSize size, const Reduction& reduction,
                     const DiffusionNeeds& needs)
{
    using Weights = std::remove_cvref_t<decltype(weights)>;
    const int channels = colourChannels(reduction.layout);
    sections(needs.workers, [&](int worker) {
        // Where channels do not divide evenly the first workers have one more.
        const auto firstOf = [&](int w) { return (w * channels + needs.workers - 1) / needs.workers; };
        const int first = firstOf(worker);
        const Channels share = {first, firstOf(worker + 1) - first, samplesPerPixel(reduction.layout)};
        Diffusion<Src, Dst, Weights>(from, to, size, reduction, weights, needs.noise, share,
                                     needs.errors + ptrdiff_t{first * Weights::rowsAbove} * size.width)
            .convert();
    });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
