// SPDX-License-Identifier: MIT
// What source images hold.
#pragma once

#include <cstdint>

#include "tests/harness/test_image.h"

namespace zorcc::test {

enum class Contents {
    random,      // every sample on its own
    zeros,       //
    maximum,     //
    extremes,    // every sample the least or the greatest, at random
    alternating, // greatest, least, greatest, ...
    ramp,        // neighbours differ by one step
    runs,        // equal samples, from 1 to 40 of them
    nearGrey,    // a level for all planes of a row, give or take one: differences of channels about zero
    anyFloats    // in and out of range, tiny, huge, infinite or no number; random samples of other types
};

inline constexpr Contents allContents[] = {Contents::random,   Contents::zeros,       Contents::maximum,
                                           Contents::extremes, Contents::alternating, Contents::ramp,
                                           Contents::runs,     Contents::nearGrey,    Contents::anyFloats};

const char* describe(Contents contents);

// Fills the used rows; the same seed gives the same samples.
void fill(TestImage& image, Contents contents, std::uint32_t seed);

// Steps of `count`, a power of two, by an odd number reach every value, and neighbours have little in common.
constexpr int scattered(int i, int count)
{
    return static_cast<int>((static_cast<unsigned>(i) * 0x9e3779b1u) & (count - 1u));
}

// All colours of three bytes, from number `first` on: one for each pixel.
inline constexpr int colours = 1 << 24;
void fillColours(TestImage& image, int first);

} // namespace zorcc::test
