// SPDX-License-Identifier: MIT
// What HLS and HSV share: the channels by size and the sextant of the hue, from RGB; RGB from these. All of it is
// calculated in the samples' own lanes, where it is exact and costs a quarter or half of what it would in floats.
#pragma once

#include "pixels/rows.h"
#include "simd/lookup.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Sample> struct Hexcone {
    using V = Vec<Sample>;
    using Index = Vec<std::conditional_t<std::is_same_v<Sample, float>, int32_t, Sample>>;

    V largest, middle, smallest;
    V chroma; // largest - smallest
    // Which channels are not below which: 1 where R >= G, 2 where G >= B, 4 where B >= R, added up. An index for
    // constants that depend on the sextant; see bySextant.
    Index order;

    [[gnu::always_inline]] Hexcone(V r, V g, V b)
    {
        const V larger = max(r, g), smaller = min(r, g);
        largest = max(larger, b);
        smallest = min(smaller, b);
        middle = max(smaller, min(larger, b));
        chroma = largest - smallest;
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
ZORCC_INLINE Samples<Sample> fromHexcone(V sextant, V largest, V middle, V smallest)
{
    const V toLargest = smallest ^ largest, toMiddle = smallest ^ middle;
    const auto choose = [&](const Table<uint8_t>& isLargest, const Table<uint8_t>& isMiddle) {
        return smallest ^ (toLargest & lookUp(isLargest, sextant)) ^ (toMiddle & lookUp(isMiddle, sextant));
    };
    return {{{choose(twoSextants(5, 0), twoSextants(1, 4)), choose(twoSextants(1, 2), twoSextants(0, 3)),
              choose(twoSextants(3, 4), twoSextants(2, 5))}}};
}

} // namespace
} // namespace zorcc::ZORCC_TIER

#if defined(ZORCC_TIER_avx512)
    #include "colormodels/common/avx512/byte_hexcone.h"
#endif
