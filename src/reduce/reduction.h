// SPDX-License-Identifier: MIT
// What every kernel of the bit-depth reduction gets, whatever its method. Row files of all tiers include this, so that
// functions are always inline.
#pragma once

#include "frame/convert.h"
#include "reduce/noise.h"

namespace zorcc {

// How the samples of a row belong to pixels.
enum class ReduceLayout { C1, C3, C4, AC4 };

[[gnu::always_inline]] constexpr int samplesPerPixel(ReduceLayout layout)
{
    return layout == ReduceLayout::C1 ? 1 : layout == ReduceLayout::C3 ? 3 : 4;
}

// Channels that are converted: the fourth of AC4 is neither read nor written.
[[gnu::always_inline]] constexpr int colourChannels(ReduceLayout layout)
{
    return layout == ReduceLayout::AC4 ? 3 : samplesPerPixel(layout);
}

struct Reduction {
    ReduceLayout layout;
    int intervals; // levels - 1: the quantisation steps between black and white
};

// The greatest value of a source sample, which stands for white, and likewise of a destination's. Signed samples stand
// for 0..65535, less 32768; floats for 0..1.
template <class Sample> inline constexpr float white = 65535;
template <> inline constexpr float white<uint8_t> = 255;
template <> inline constexpr float white<float> = 1;

// What a quantisation step is worth in the source's scale, and how many of them a unit holds; both rounded once.
struct StepSize {
    float step, inverse;

    [[gnu::always_inline]] StepSize(float whiteOfSource, int intervals)
        : step(whiteOfSource / static_cast<float>(intervals)), inverse(static_cast<float>(intervals) / whiteOfSource)
    {
    }
};

} // namespace zorcc
