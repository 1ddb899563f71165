// SPDX-License-Identifier: MIT
// What HLS and HSV share on the way from RGB: which channel is the largest, and by how much. In the samples' own lanes,
// where it costs a quarter or half of what it would in floats, and is exact.
#pragma once

#include "simd/floats.h"
#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Sample> struct Hexcone {
    using V = Vec<Sample>;

    V most, least;
    V chroma; // most - least
    V isRed;  // masks: red is the largest channel; green is, and red is not; otherwise it is blue
    V isGreen;
    V first, second; // the two channels behind the largest, in the order R, G, B, R, ...

    [[gnu::always_inline]] Hexcone(V r, V g, V b)
    {
        most = maximum(maximum(r, g), b);
        least = minimum(minimum(r, g), b);
        chroma = most - least;
        isRed = (V)(most == r);
        isGreen = (V)(most == g) & ~isRed;
        first = isRed ? g : isGreen ? b : r;
        second = isRed ? b : isGreen ? r : g;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
