// SPDX-License-Identifier: MIT
// Averages that round up in the whole blocks of a row and down behind them: formulas take the rounding as a parameter,
// and a row is converted in two parts.
#pragma once

#include "lumachroma/sampled_rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int roundedBlock = 8; // samples

struct Up {
    static u8v average(u8v a, u8v b) { return averageUp(a, b); }

    // Of a sample and its neighbours, weights 1, 2, 1.
    static u8v lowPass(u8v before, u8v sample, u8v after)
    {
        return averageUp(averageUp(before, sample), averageUp(sample, after));
    }
};

struct Down {
    static u8v average(u8v a, u8v b) { return averageDown(a, b); }

    static u8v lowPass(u8v before, u8v sample, u8v after)
    {
        const auto weigh = [](u8v neighbours, u8v twice) {
            return (mulAddPairs(neighbours, fillPair8(1, 1)) + mulAddPairs(twice, fillPair8(1, 1))) >> 2;
        };
        return packUnsigned(weigh(zipLow(before, after), zipLow(sample, sample)),
                            weigh(zipHigh(before, after), zipHigh(sample, sample)));
    }
};

// The first `whole` of `width` pixels round up.
template <template <class> class Formula, class Source, class Destination>
ZORCC_INLINE void convertRounded(const Source& source, const Destination& destination, int width, int whole)
{
    convertRow(source, Formula<Up>{}, destination, whole);
    convertRow(from(source, whole), Formula<Down>{}, from(destination, whole), width - whole);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
