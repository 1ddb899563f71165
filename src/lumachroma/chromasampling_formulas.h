// SPDX-License-Identifier: MIT
// Filters of the chroma sampling conversions, over rows of chroma samples.
#pragma once

#include "lumachroma/common/chroma_moves.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- twice the rows, with a cubic filter ----------------------------------------------------------------------------

// Row k, then (9 (C[k] + C[k + 1]) - C[k - 1] - C[k + 2] + 8) / 16, of the rows C[k - 1] .. C[k + 2].
struct FilterOddRow {
    static u8v between(u8v above, u8v upper, u8v lower, u8v below)
    {
        const auto weigh = [](u8v nearPair, u8v farPair) {
            // -510 + 8 to 4590 + 8
            return (mulAddPairs(nearPair, fillPair8(9, 9)) + mulAddPairs(farPair, fillPair8(-1, -1)) + 8) >> 4;
        };
        return packUnsigned(weigh(zipLow(upper, lower), zipLow(above, below)),
                            weigh(zipHigh(upper, lower), zipHigh(above, below)));
    }

    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& s) const
    {
        constexpr int row = n / 4;
        return concat(slice<row, row>(s), collect<row>([&](auto k) {
                          return between(s.v[k], s.v[row + k], s.v[2 * row + k], s.v[3 * row + k]);
                      }));
    }
};

// ---- averages of neighbours -----------------------------------------------------------------------------------------

// From samples and their right neighbours: each, and its average with the neighbour.
template <class Rounding> struct DoubleColumns {
    [[gnu::always_inline]] Vectors<2> operator()(const Vectors<2>& s) const
    {
        return zip(firstHalf(s), Vectors<1>{{Rounding::average(s.v[0], s.v[1])}});
    }
};

// The row halfway between two such.
template <class Rounding> struct DoubleColumnsBetween {
    [[gnu::always_inline]] Vectors<2> operator()(const Vectors<4>& s) const
    {
        const DoubleColumns<Rounding> doubled;
        const Vectors<2> upper = doubled(firstHalf(s)), lower = doubled(secondHalf(s));
        return {{Rounding::average(upper.v[0], lower.v[0]), Rounding::average(upper.v[1], lower.v[1])}};
    }
};

// The even columns of the row halfway between two.
template <class Rounding> struct EvenColumnsBetween {
    [[gnu::always_inline]] Vectors<1> operator()(const Vectors<4>& s) const
    {
        const Vectors<2> rows = OnBoth<EvenColumns>{}(s);
        return {{Rounding::average(rows.v[0], rows.v[1])}};
    }
};

// ---- rows of one field ----------------------------------------------------------------------------------------------

// (upper a + lower b) / 2^shift, rounded, of two rows; a + b is 2^shift.
template <int a, int b, int shift> struct Mix {
    static_assert(a + b == 1 << shift && shift <= 3); // so that 16 bits and signed coefficients of 8 are enough
    static u8v mix(u8v upper, u8v lower)
    {
        const auto weigh = [](u8v both) {
            return (mulAddPairs(both, fillPair8(a, b)) + static_cast<int16_t>(1 << (shift - 1))) >> shift;
        };
        return packUnsigned(weigh(zipLow(upper, lower)), weigh(zipHigh(upper, lower)));
    }

    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& rows) const
    {
        return collect<n / 2>([&](auto k) { return mix(rows.v[k], rows.v[n / 2 + k]); });
    }
};

// Two packed rows to two rows of luma and one of chroma.
template <class Formula> struct UnpackMixed {
    [[gnu::always_inline]] Vectors<6> operator()(const Vectors<8>& s) const
    {
        const Vectors<4> upper = lumaAndPairs<UYVY>(firstHalf(s)), lower = lumaAndPairs<UYVY>(secondHalf(s));
        const Vectors<4> pairs = concat(secondHalf(upper), secondHalf(lower));
        return concat(concat(firstHalf(upper), firstHalf(lower)), Unzip{}(Formula{}(pairs)));
    }
};

// Luma and two rows of each chroma plane to a packed row.
template <class Formula> struct PackMixed {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<6>& s) const
    {
        return Pack<UYVY, ChromaForm::planes>{}(
            concat(slice<0, 2>(s), concat(Formula{}(slice<2, 2>(s)), Formula{}(slice<4, 2>(s)))));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
