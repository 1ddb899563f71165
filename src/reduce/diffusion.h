// SPDX-License-Identifier: MIT
// Drivers of error diffusion.
#pragma once

#include "reduce/diffusion_tiles.h"

namespace zorcc::ZORCC_TIER {
namespace {

// What a worker keeps while it goes through its channels; too much for the stack of a small thread.
template <class Weights> struct DiffusionMemory {
    Errors<Weights> errors[maxChannels];
    alignas(64) TileSteps samples, thresholds;
    alignas(64) TileRows rows, rowThresholds;
};

// Converts some neighbouring channels of an image, band by band.
template <class Src, class Dst, class Weights> class Diffusion {
public:
    // `memory` has diffusionFloats floats.
    Diffusion(const Reduction& r, const Noise* n, Channels c, float* memoryOfWorker)
        : reduction(r), noise(n), channels(c), steps(c.steps), formula(r),
          memory(*(DiffusionMemory<Weights>*)memoryOfWorker)
    {
        static_assert(sizeof memory <= diffusionFloats * sizeof(float) && alignof(DiffusionMemory<Weights>) <= 64);
        const float half = 0.5f * r.step(white<Src>);
        for (auto& step : memory.thresholds)
            for (float& threshold : step) threshold = half;
    }

    // `errorRows` are those of all channels of the image.
    void convert(float* errorRows)
    {
        const auto [width, height] = reduction.size;
        const ptrdiff_t rowsOfChannel = rowsAbove<Weights> * (width + ptrdiff_t{2} * errorMargin);
        for (ptrdiff_t y = 0; y < height; y += bandRows) {
            const int rows = height - y < bandRows ? static_cast<int>(height - y) : bandRows;
            for (int c = 0; c < channels.count; ++c)
                memory.errors[c].startBand(errorRows + (channels.first + c) * rowsOfChannel, width);
            for (int64_t s = 0; s < int64_t{width} + lag<Weights> * (rows - 1); s += steps) convertTile(y, rows, s);
        }
    }

private:
    const Reduction& reduction;
    const Noise* const noise;
    const Channels channels;
    const int steps;
    const AboveThreshold<Src, Dst> formula;
    DiffusionMemory<Weights>& memory;

    // The tile that begins with step `first` of the band of `rows` rows from y on.
    void convertTile(ptrdiff_t y, int rows, int64_t first)
    {
        auto& [_, samples, thresholds, row, rowThresholds] = memory;
        const auto columnsFrom = [&](int64_t x) { return Span(x, reduction.size.width, steps); };
        for (int r = 0; r < bandRows; ++r) {
            const int64_t x = first - lag<Weights> * r;
            const Span in = columnsFrom(r < rows ? x : reduction.size.width);
            loadRow((const Src*)reduction.from.row(0, y + r) + x * channels.perPixel, channels, in, row[r]);
            if (noise)
                for (int j = in.begin; j < in.end; ++j) rowThresholds[r][j] = noise->at(x + j, y + r);
        }
        transpose(row, samples, bandRows, steps * channels.count);
        if (noise) transpose(rowThresholds, thresholds, bandRows, steps);

        diffuse(first);

        transpose(samples, row, steps * channels.count, bandRows);
        for (int r = 0; r < rows; ++r) {
            const int64_t x = first - lag<Weights> * r;
            Dst* const dst = (Dst*)reduction.to.row(0, y + r) + x * channels.perPixel;
            storeRow(formula, row[r], channels, columnsFrom(x), dst);
        }
    }

    // Replaces samples by levels. A sample that saturates leaves no error. A function of its own, so that its loop has
    // all registers to itself.
    [[gnu::noinline]] void diffuse(int64_t first)
    {
        // Copies, which the stores below cannot change.
        const AboveThreshold<Src, Dst> quantise = formula;
        Errors<Weights>* const errors = memory.errors;
        TileSteps& samples = memory.samples;
        const TileSteps& thresholds = memory.thresholds;
        const int count = channels.count, end = steps;
        for (int s = 0; s < end; ++s)
            for (int c = 0; c < count; ++c)
                for (int lane = 0; lane < bandRows; lane += lanes) {
                    float* const sample = samples[s * count + c] + lane;
                    const f32v v = load<f32v>(sample) + errors[c].gather(first, s, lane);
                    const auto choice = quantise.choose(v, load<f32v>(thresholds[s] + lane));
                    const s32v bright = v >= white<Src>, inside = (v >= 0.0f) & (v < white<Src>); // neither for NaN
                    store(sample, select(inside, choice.level, select(bright, quantise.whiteLevel(), f32v{})));
                    errors[c].leave(select(inside, choice.error, f32v{}), s, lane);
                }
        for (int c = 0; c < count; ++c) errors[c].endTile(first, end);
    }
};

template <class Src, class Dst, class Weights>
void diffuseChannels(const Reduction& reduction, const Noise* noise, float* errors, float* memory, int workers)
{
    sections(workers, [&](int worker) {
        // Where channels do not divide evenly the first workers have one more.
        const auto firstOf = [&](int w) { return (w * reduction.channels + workers - 1) / workers; };
        const int first = firstOf(worker), count = firstOf(worker + 1) - first;
        const Channels channels = {first, count, reduction.samplesPerPixel};
        Diffusion<Src, Dst, Weights>(reduction, noise, channels, memory + worker * diffusionFloats).convert(errors);
    });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
