// SPDX-License-Identifier: MIT
// RGB bytes in the pairs that products of bytes take, whatever layout they come from: a formula that is written on
// pairs takes planes, too.
#pragma once

#include <concepts>

#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {
namespace {

// (R, G) and (B, G) of the next pixels of one row or two: per block those of the lower eight, and of the upper.
template <int rows> struct RgbPairs {
    u8v rg[rows][2], bg[rows][2];
};

ZORCC_INLINE RgbPairs<2> stack(const RgbPairs<1>& upper, const RgbPairs<1>& lower)
{
    RgbPairs<2> both;
    for (int half = 0; half < 2; ++half) {
        both.rg[0][half] = upper.rg[0][half];
        both.rg[1][half] = lower.rg[0][half];
        both.bg[0][half] = upper.bg[0][half];
        both.bg[1][half] = lower.bg[0][half];
    }
    return both;
}

template <class T, int rows>
concept RgbBytes = std::same_as<T, Pixels<3, rows>> || std::same_as<T, RgbPairs<rows>>;

template <int rows> ZORCC_INLINE RgbPairs<rows> inPairs(const Pixels<3, rows>& rgb)
{
    RgbPairs<rows> pairs;
    for (int row = 0; row < rows; ++row) {
        const auto [r, g, b] = rgb.c[row];
        pairs.rg[row][0] = zipLow(r, g);
        pairs.rg[row][1] = zipHigh(r, g);
        pairs.bg[row][0] = zipLow(b, g);
        pairs.bg[row][1] = zipHigh(b, g);
    }
    return pairs;
}
template <int rows> ZORCC_INLINE const RgbPairs<rows>& inPairs(const RgbPairs<rows>& rgb) { return rgb; }

ZORCC_INLINE const Pixels<3>& inPlanes(const Pixels<3>& rgb) { return rgb; }
ZORCC_INLINE Pixels<3> inPlanes(const RgbPairs<1>& rgb)
{
    const auto &rg = rgb.rg[0], &bg = rgb.bg[0];
    return {{{packUnsigned(firstOfPairs(rg[0]), firstOfPairs(rg[1])),
              packUnsigned(secondOfPairs(rg[0]), secondOfPairs(rg[1])),
              packUnsigned(firstOfPairs(bg[0]), firstOfPairs(bg[1]))}}};
}

// Sums over pairs of columns, and over both rows where there are two, in the same pairs of 16-bit elements.
struct ColumnSums {
    s16v rg[2], bg[2];
};

template <int rows> ZORCC_INLINE ColumnSums sumColumns(const Pixels<3, rows>& rgb)
{
    s16v sum[3] = {};
    for (int row = 0; row < rows; ++row)
        for (int c = 0; c < 3; ++c) sum[c] += mulAddPairs(rgb.c[row][c], fillPair8(1, 1));
    const auto [r, g, b] = sum;
    return {{zipLow(r, g), zipHigh(r, g)}, {zipLow(b, g), zipHigh(b, g)}};
}

// Of two neighbouring pairs the first elements, then the second ones.
constexpr Block sortedPairs = {{0, 2, 1, 3, 4, 6, 5, 7, 8, 10, 9, 11, 12, 14, 13, 15}};

template <int rows> ZORCC_INLINE ColumnSums sumColumns(const RgbPairs<rows>& rgb)
{
    const auto sum = [](const u8v(&pairs)[rows][2], int half) __attribute__((always_inline))
    {
        s16v of = {};
        for (int row = 0; row < rows; ++row) of += mulAddPairs(shuffle(pairs[row][half], sortedPairs), fillPair8(1, 1));
        return of;
    };
    return {{sum(rgb.rg, 0), sum(rgb.rg, 1)}, {sum(rgb.bg, 0), sum(rgb.bg, 1)}};
}

} // namespace
} // namespace zorcc::ZORCC_TIER

#if !defined(ZORCC_TIER_avx512) // whose planes come from two permutations each

namespace zorcc::ZORCC_TIER {
namespace {

// Four pixels from a block of memory that they begin at byte `start` of: the pairs (R, G), then (B, G).
constexpr Block pairsOfFour(int bytes, int start, Order order)
{
    const int r = order == Order::asStored ? 0 : 2, b = 2 - r;
    Block pairs{};
    for (int i = 0; i < 4; ++i) {
        const int pixel = start + bytes * i, bytesOfPairs[4] = {pixel + r, pixel + 1, pixel + b, pixel + 1};
        for (int k = 0; k < 4; ++k) pairs.byte[8 * (k / 2) + 2 * i + k % 2] = static_cast<uint8_t>(bytesOfPairs[k]);
    }
    return pairs;
}

// Interleaved channels that are loaded as pairs.
template <int perPixel, Order order> struct InPairs : Interleaved<uint8_t, perPixel, 3, order> {
    [[gnu::always_inline]] RgbPairs<1> load(int x) const
    {
        static constexpr Block usual = pairsOfFour(perPixel, 0, order),
                               last = pairsOfFour(perPixel, firstOfFour<perPixel>(3), order);
        u64v four[4];
        for (int k = 0; k < 4; ++k)
            four[k] = (u64v)shuffle(loadFours<perPixel>(this->at(0, x), k), k == 3 ? last : usual);
        return {{{(u8v)zipLow(four[0], four[1]), (u8v)zipLow(four[2], four[3])}},
                {{(u8v)zipHigh(four[0], four[1]), (u8v)zipHigh(four[2], four[3])}}};
    }
};

template <class Formula> constexpr bool takesPairs = Takes<Formula, RgbPairs<1>> || Takes<Formula, RgbPairs<2>>;
template <int pixels, class Blocks, class Rest>
constexpr bool takesPairs<InBlocks<pixels, Blocks, Rest>> = takesPairs<Blocks>&& takesPairs<Rest>;

template <int perPixel, Order order, class By, class To>
requires(takesPairs<By>) struct OnThisTier<Interleaved<uint8_t, perPixel, 3, order>, By, To> {
    using Source = InPairs<perPixel, order>;
    using Formula = By;
    using Destination = To;
};

} // namespace
} // namespace zorcc::ZORCC_TIER

#endif
