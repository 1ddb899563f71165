// SPDX-License-Identifier: MIT
// Three channels of a pixel as levels, for references that calculate in single precision.
#pragma once

#include <array>
#include <cmath>

#include "tests/reference/pixels.h"

namespace zorcc::reference {

using Three = std::array<float, 3>;

inline Three levelsOf(int a, int b, int c)
{
    return {static_cast<float>(a), static_cast<float>(b), static_cast<float>(c)};
}

// Stores convert(pixel, column) for every pixel; integers are truncated.
template <class Convert> void eachColour(const Pixels& source, Pixels& destination, Convert convert)
{
    eachPixel(source.size(), [&](int x, int y) {
        const Three from{source.level(0, x, y), source.level(1, x, y), source.level(2, x, y)};
        const Three to = convert(from, x);
        for (int c = 0; c < 3; ++c) destination.putLevel(c, x, y, to[c]);
    });
}

// Ties to even.
inline Three rounded(const Three& v) { return {std::nearbyint(v[0]), std::nearbyint(v[1]), std::nearbyint(v[2])}; }

// What is no number becomes 0.
inline Three withinUnit(const Three& v)
{
    Three limited;
    for (int c = 0; c < 3; ++c) limited[c] = !(v[c] > 0) ? 0 : v[c] > 1 ? 1 : v[c];
    return limited;
}

// Whether floats are numbers no larger than this, so that formulas do not overflow.
inline bool areWithin(const float* pixel, float most)
{
    return std::abs(pixel[0]) <= most && std::abs(pixel[1]) <= most && std::abs(pixel[2]) <= most;
}

} // namespace zorcc::reference
