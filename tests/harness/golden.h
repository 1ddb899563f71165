// SPDX-License-Identifier: MIT
// Calls with results that are worked out outside the program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "interface/call.h"

namespace zorcc::test {

using Bytes = std::vector<std::uint8_t>;

// What the destination holds before the call.
inline constexpr std::uint8_t kept = 0xee;

// Images that are written out plane by plane, so that a test says what a format is. Rows follow each other without
// gaps. A plane may be longer than its rows.
struct GoldenCall {
    std::string_view function;
    ZorSize size;
    std::vector<Bytes> source, destination; // planes
    ZorStatus status = zorStatusOk;
    interface::Extra extra = {};
};

// On every tier.
void expectGolden(const GoldenCall& golden);

using Colours = std::vector<double>;
using Names = std::vector<std::string_view>;

// Functions of one formula, whatever their formats, on an image of one colour, or of one pair of pixels (of a row) or
// block (of two rows) that is repeated. The channels of the pixels follow each other in the order of their meaning, R,
// G, B or Y, Cb, Cr; of a destination whose pixels share chroma there is the luma of each, then Cb and Cr.
struct GoldenColours {
    Names functions;
    Colours source, destination;
    int width = 48;
    interface::Extra extra = {};
};

void expectGolden(const GoldenColours& golden);

template <class Golden, std::size_t count> void expectGolden(const Golden (&goldens)[count])
{
    for (const Golden& golden : goldens) expectGolden(golden);
}

} // namespace zorcc::test
