// SPDX-License-Identifier: MIT
// What HLS and HSV share on the way from RGB: the channels by size, and the sextant of the hue. In the samples' own
// lanes, where it is exact and costs a quarter or half of what it would in floats.
#pragma once

#include "simd/layout.h"
#include "simd/lookup.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Sample> struct Hexcone {
    using V = Vec<Sample>;

    V most, middle, least;
    V chroma; // most - least
    // Which channels are not below which: 1 where R >= G, 2 where G >= B, 4 where B >= R, added up. An index for
    // constants that depend on the sextant; see bySextant.
    V order;

    [[gnu::always_inline]] Hexcone(V r, V g, V b)
    {
        const V larger = maximum(r, g), smaller = minimum(r, g);
        most = maximum(larger, b);
        least = minimum(smaller, b);
        middle = maximum(smaller, minimum(larger, b));
        chroma = most - least;
        order = ((V)(r >= g) & 1) | ((V)(g >= b) & 2) | ((V)(b >= r) & 4);
    }
};

// A table by Hexcone::order of what belongs to the six sextants, from red by yellow, green, cyan and blue to magenta.
// In the even ones the middle channel's share grows with the hue, in the odd ones it falls. On a border between two
// either will do. Grey is put with the first, and no colour has the order 0.
template <class T> constexpr Table<T> bySextant(T s0, T s1, T s2, T s3, T s4, T s5)
{
    return {{s0, s5, s1, s0, s3, s4, s2, s0}};
}
// Odd sextants as masks, by order and by number.
constexpr Table<uint8_t> oddByOrder = bySextant<uint8_t>(0, 255, 0, 255, 0, 255);
constexpr Table<uint8_t> oddSextants = {{0, 255, 0, 255, 0, 255}};

} // namespace
} // namespace zorcc::ZORCC_TIER
