// SPDX-License-Identifier: MIT
// What every kernel of the bit-depth reduction is told, whatever its method. Row files of all tiers include this, so
// functions are always inline.
#pragma once

#include <stdint.h>

#include "reduce/noise.h"
#include "zortypes.h"

namespace zorcc {

// Sample types of source and destination. Signed samples stand for 0..65535, moved down by 32768; floats for 0..1.
enum class ReduceTypes { u8, u16, u16u8, s16, s16u8, f32u8, f32u16, f32s16 };

// How the samples of a row belong to pixels, by the codes that the kernels know them under.
enum class ReduceLayout { C1 = 1, C3 = 3, AC4 = 4, C4 = 5 };

[[gnu::always_inline]] constexpr int samplesPerPixel(ReduceLayout layout)
{
    return layout == ReduceLayout::C4 ? 4 : static_cast<int>(layout);
}

// Channels that are converted: the fourth of AC4 is neither read nor written.
[[gnu::always_inline]] constexpr int colourChannels(ReduceLayout layout)
{
    return layout == ReduceLayout::AC4 ? 3 : samplesPerPixel(layout);
}

struct Reduction {
    const void* src;
    int srcStep;
    void* dst;
    int dstStep;
    ZorSize size;
    ReduceTypes types;
    ReduceLayout layout;
    int intervals; // levels - 1: the quantisation steps between black and white
};

// How the value of a source sample reaches from 0 to white, and likewise in a destination.
template <class Sample> inline constexpr float fullScale = 65535;
template <> inline constexpr float fullScale<uint8_t> = 255;
template <> inline constexpr float fullScale<float> = 1;

// What a quantisation step is worth in the source's scale, and how many of them a unit holds; both rounded once.
struct StepSize {
    float step, inverse;

    [[gnu::always_inline]] StepSize(float scale, int intervals)
        : step(scale / static_cast<float>(intervals)), inverse(static_cast<float>(intervals) / scale)
    {
    }
};

// Calls work(Src{}, Dst{}).
template <class Work> [[gnu::always_inline]] inline void withTypes(ReduceTypes types, const Work& work)
{
    switch (types) {
    case ReduceTypes::u8:
        return work(uint8_t{}, uint8_t{});
    case ReduceTypes::u16:
        return work(uint16_t{}, uint16_t{});
    case ReduceTypes::u16u8:
        return work(uint16_t{}, uint8_t{});
    case ReduceTypes::s16:
        return work(int16_t{}, int16_t{});
    case ReduceTypes::s16u8:
        return work(int16_t{}, uint8_t{});
    case ReduceTypes::f32u8:
        return work(float{}, uint8_t{});
    case ReduceTypes::f32u16:
        return work(float{}, uint16_t{});
    case ReduceTypes::f32s16:
        return work(float{}, int16_t{});
    }
}

} // namespace zorcc
