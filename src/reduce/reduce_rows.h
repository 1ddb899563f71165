// SPDX-License-Identifier: MIT
// Row drivers of the bit-depth reduction, one for each method and pair of sample types, and what they get. Row files of
// all tiers include this, so that functions are always inline.
#pragma once

#include "frame/convert.h"
#include "reduce/noise.h"
#include "simd/tier.h"

namespace zorcc {

inline constexpr int maxChannels = 4;

struct Reduction {
    const Image &from, &to;
    ZorSize size;
    int samplesPerPixel, channels; // the first `channels` samples of a pixel are converted
    int intervals;                 // levels - 1: the quantisation steps between black and white

    // What a quantisation step is worth in the source's scale, and how many of them a unit holds; both rounded once.
    [[gnu::always_inline]] float step(float whiteOfSource) const
    {
        return whiteOfSource / static_cast<float>(intervals);
    }
    [[gnu::always_inline]] float stepsPerUnit(float whiteOfSource) const
    {
        return static_cast<float>(intervals) / whiteOfSource;
    }
};

// The greatest value of a source sample, which stands for white, and likewise of a destination's. Signed samples stand
// for 0..65535, less 32768; floats for 0..1.
template <class Sample> inline constexpr float white = 65535;
template <> inline constexpr float white<uint8_t> = 255;
template <> inline constexpr float white<float> = 1;

// What error diffusion works in, on 64-byte boundaries. `errors` holds, for every channel that is converted, as many
// rows of zeros as the method looks up. A row has a margin on both sides of its columns: samples there, which a band of
// rows passes on its way, leave no error and may be read and written. Every worker has workspaceFloats floats of
// `workspaces` for itself. Several workers need `levels`: the planes of two bands.
struct DiffusionMemory {
    float *errors, *workspaces, *levels;
};
inline constexpr int errorMargin = 160, bandRows = 32;
inline constexpr ptrdiff_t workspaceFloats = ptrdiff_t{136} * 256;

// Bytes from row to row of a band's plane, whose samples have up to 16 bits. No two rows share a cache line.
constexpr ptrdiff_t levelsStep(int width) { return (width * ptrdiff_t{2} + 63) & ptrdiff_t{-64}; }

// No noise if that is null. `workers` threads share out the channels.
using DiffusionDriver = void(const Reduction&, const Noise* noise, const DiffusionMemory&, int workers);

struct ReduceDrivers {
    void (&plain)(const Reduction&);
    void (&ordered)(const Reduction&, const Noise*); // with noise unless it is null
    DiffusionDriver &floydSteinberg, &jarvisJudiceNinke, &stucki;
    float whiteOfSource;
    int maxLevels;
};

struct ReduceRows {
    ReduceDrivers my8u, my16u, my16u8u, my16s, my16s8u, my32f8u, my32f16u, my32f16s;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(ReduceRows, reduceRows)
