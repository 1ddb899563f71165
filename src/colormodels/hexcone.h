// SPDX-License-Identifier: MIT
// What HLS and HSV share, in the samples' own lanes, where it is exact and costs a quarter or half of what it would in
// floats: the channels by size and the sextant of the hue, from RGB; RGB from these.
#pragma once

#include "simd/layout.h"
#include "simd/lookup.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Sample> struct Hexcone {
    using V = Vec<Sample>;
    using Index = Vec<std::conditional_t<std::is_same_v<Sample, float>, int32_t, Sample>>;

    V most, middle, least;
    V chroma; // most - least
    // Which channels are not below which: 1 where R >= G, 2 where G >= B, 4 where B >= R, added up. An index for
    // constants that depend on the sextant; see bySextant.
    Index order;

    [[gnu::always_inline]] Hexcone(V r, V g, V b)
    {
        const V larger = maximum(r, g), smaller = minimum(r, g);
        most = maximum(larger, b);
        least = minimum(smaller, b);
        middle = maximum(smaller, minimum(larger, b));
        chroma = most - least;
        order = ((Index)(r >= g) & 1) | ((Index)(g >= b) & 2) | ((Index)(b >= r) & 4);
    }
};

// A table by Hexcone::order of what belongs to the six sextants, from red by yellow, green, cyan and blue to magenta,
// and to grey. In the even ones the middle channel's share grows with the hue, in the odd ones it falls. On a border
// between two either will do. No colour has the order 0.
template <class T> constexpr Table<T> bySextant(const T (&s)[6], T grey = 0)
{
    return {{0, s[5], s[1], s[0], s[3], s[4], s[2], grey}};
}
// Odd sextants as masks, by order and by number.
constexpr Table<uint8_t> oddByOrder = bySextant<uint8_t>({0, 255, 0, 255, 0, 255});
constexpr Table<uint8_t> oddSextants = {{0, 255, 0, 255, 0, 255}};

// The two sextants as a mask.
constexpr Table<uint8_t> twoSextants(int one, int other)
{
    Table<uint8_t> table{};
    table.of[one] = table.of[other] = 255;
    return table;
}

// RGB from the sextant's number and the channels by size.
template <class Sample, class V = Vec<Sample>>
ZORCC_INLINE Samples<Sample> fromHexcone(V sextant, V most, V middle, V least)
{
    const V toMost = least ^ most, toMiddle = least ^ middle;
    const auto choose = [&](const Table<uint8_t>& isMost, const Table<uint8_t>& isMiddle) {
        return least ^ (toMost & lookUp(isMost, sextant)) ^ (toMiddle & lookUp(isMiddle, sextant));
    };
    return {{{choose(twoSextants(5, 0), twoSextants(1, 4)), choose(twoSextants(1, 2), twoSextants(0, 3)),
              choose(twoSextants(3, 4), twoSextants(2, 5))}}};
}

} // namespace
} // namespace zorcc::ZORCC_TIER
