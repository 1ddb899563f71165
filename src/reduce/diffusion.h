// SPDX-License-Identifier: MIT
// Drivers of error diffusion. Channels are shared out among threads. A thread that has all of a pixel's channels reads
// and writes images; several write planes of levels, and those with less to do put them together, a band of rows later.
#pragma once

#include "frame/parallel.h"
#include "pixels/layouts.h"
#include "reduce/diffusion_tiles.h"

namespace zorcc::ZORCC_TIER {
namespace {

// What a worker keeps while it goes through its channels; too much for the stack of a small thread.
template <class Weights> struct Workspace {
    Errors<Weights> errors[maxChannels];
    alignas(64) TileSteps samples, thresholds;
    alignas(64) TileRows rows, rowThresholds;
};

// Converts some neighbouring channels of an image, band by band.
template <class Src, class Dst, class Weights> class Diffusion {
public:
    // `errors` are those of all channels of the image.
    Diffusion(const Reduction& r, const Noise* n, const Channels& c, float* errors, float* workspace)
        : reduction(r), noise(n), channels(c), formula(r), errorRows(errors), memory(*(Workspace<Weights>*)workspace)
    {
        static_assert(sizeof memory <= workspaceFloats * sizeof(float) && alignof(Workspace<Weights>) <= 64);
        const float half = 0.5f * r.step(white<Src>);
        for (auto& step : memory.thresholds)
            for (float& threshold : step) threshold = half;
    }

    // The band of `rows` rows from y on, to rows of `to` from toY on. Bands follow each other.
    void convertBand(ptrdiff_t y, int rows, const Image& to, ptrdiff_t toY)
    {
        const int width = reduction.size.width;
        const ptrdiff_t rowsOfChannel = rowsAbove<Weights> * (width + ptrdiff_t{2} * errorMargin);
        for (int c = 0; c < channels.count; ++c)
            memory.errors[c].startBand(errorRows + (channels.first + c) * rowsOfChannel, width);
        for (int64_t s = 0; s < int64_t{width} + lag<Weights> * (rows - 1); s += channels.steps)
            convertTile(y, rows, s, to, toY);
    }

private:
    const Reduction& reduction;
    const Noise* const noise;
    const Channels channels;
    const AboveThreshold<Src, Dst> formula;
    float* const errorRows;
    Workspace<Weights>& memory;

    // The tile that begins with step `first`.
    void convertTile(ptrdiff_t y, int rows, int64_t first, const Image& to, ptrdiff_t toY)
    {
        auto& [_, samples, thresholds, row, rowThresholds] = memory;
        const int width = reduction.size.width, steps = channels.steps;
        for (int r = 0; r < bandRows; ++r) {
            const int64_t x = first - lag<Weights> * r;
            const Span in(r < rows ? x : width, width, steps);
            loadRow((const Src*)reduction.from.row(0, y + r) + x * channels.perPixel, channels, in, row[r]);
            if (noise)
                for (int j = in.begin; j < in.end; ++j) rowThresholds[r][j] = noise->at(x + j, y + r);
        }
        transpose(row, samples, bandRows, steps * channels.inTile);
        if (noise) transpose(rowThresholds, thresholds, bandRows, steps);

        diffuse(first);

        transpose(samples, row, steps * channels.inTile, bandRows);
        for (int r = 0; r < rows; ++r) {
            const int64_t x = first - lag<Weights> * r;
            storeRow(formula, row[r], channels, Span(x, width, steps), to, toY + r, x);
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
        const Channels of = channels;
        for (int s = 0; s < of.steps; ++s)
            for (int c = 0; c < of.count; ++c)
                for (int lane = 0; lane < bandRows; lane += lanes) {
                    float* const sample = samples[of.sample(s, c)] + lane;
                    const f32v v = load<f32v>(sample) + errors[c].gather(first, s, lane);
                    const auto choice = quantise.choose(v, load<f32v>(thresholds[s] + lane));
                    const s32v bright = v >= white<Src>, inside = (v >= 0.0f) & (v < white<Src>); // neither for NaN
                    store(sample, select(inside, choice.level, select(bright, quantise.whiteLevel(), f32v{})));
                    errors[c].leave(select(inside, choice.error, f32v{}), s, lane);
                }
        for (int c = 0; c < of.count; ++c) errors[c].endTile(first, of.steps);
    }
};

// The channels of each member of a team. Where they do not divide evenly the first members have one more.
struct SharedChannels {
    int channels, members;

    int first(int member) const { return (member * channels + members - 1) / members; }
    int count(int member) const { return first(member + 1) - first(member); }

    // The first of those that have fewest.
    int firstOfFewest() const { return channels % members; }
};

// Levels of two bands in turn as planes, and how they become pixels.
template <class Dst> class LevelBands {
public:
    LevelBands(const Reduction& r, float* memory) : reduction(r)
    {
        const ptrdiff_t step = levelsStep(r.size.width);
        for (int b = 0; b < 2; ++b)
            for (int c = 0; c < r.channels; ++c) {
                band[b].plane[c] = (uint8_t*)memory + (b * r.channels + c) * bandRows * step;
                band[b].step[c] = step;
            }
    }

    const Image& of(ptrdiff_t y) const { return band[y / bandRows % 2]; }

    // Part `part` of `parts` of the band of `rows` rows from y on.
    void putTogether(ptrdiff_t y, int rows, int part, int parts) const
    {
        const int first = part * rows / parts, count = (part + 1) * rows / parts - first;
        Image from = of(y), to = reduction.to;
        for (int c = 0; c < reduction.channels; ++c) from.plane[c] = from.row(c, first);
        to.plane[0] = to.row(0, y + first);
        const auto interleave = reduction.samplesPerPixel == 3 ? zorcc::ZORCC_TIER::rows<P3<Dst>, Unchanged, C3<Dst>>
                                : reduction.channels == 4      ? zorcc::ZORCC_TIER::rows<AP4<Dst>, Unchanged, C4<Dst>>
                                                               : zorcc::ZORCC_TIER::rows<P3<Dst>, Unchanged, AC4<Dst>>;
        interleave(from, to, {reduction.size.width, count});
    }

private:
    const Reduction& reduction;
    Image band[2];
};

template <class Src, class Dst, class Weights>
void diffuseChannels(const Reduction& reduction, const Noise* noise, const DiffusionMemory& memory, int workers)
{
    team(workers, [&](const Member& member) {
        const bool alone = member.count == 1;
        const SharedChannels shares = {reduction.channels, member.count};
        const Channels channels = {shares.first(member.index), shares.count(member.index), reduction.samplesPerPixel,
                                   !alone};
        Diffusion<Src, Dst, Weights> diffusion(reduction, noise, channels, memory.errors,
                                               memory.workspaces + member.index * workspaceFloats);
        const LevelBands<Dst> levels(reduction, memory.levels);
        const int firstFree = shares.firstOfFewest();
        const auto putTogether = [&](ptrdiff_t y, int rows, int begin) {
            if (member.index >= begin) levels.putTogether(y, rows, member.index - begin, member.count - begin);
        };
        const ptrdiff_t height = reduction.size.height;
        for (ptrdiff_t y = 0; y < height; y += bandRows) {
            const int rows = static_cast<int>(std::min<ptrdiff_t>(height - y, bandRows));
            if (alone) {
                diffusion.convertBand(y, rows, reduction.to, y);
                continue;
            }
            if (y > 0) putTogether(y - bandRows, bandRows, firstFree);
            diffusion.convertBand(y, rows, levels.of(y), 0);
            member.waitForOthers();
            if (y + rows == height) putTogether(y, rows, 0);
        }
    });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
