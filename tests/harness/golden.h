// SPDX-License-Identifier: MIT
// Calls with images that are written out plane by plane, so that a test says what a format is, and what a formula
// gives.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "zorcc.h"

namespace zorcc::test {

using Bytes = std::vector<std::uint8_t>;

// What the destination holds before the call.
inline constexpr std::uint8_t kept = 0xee;

// Rows follow each other without gaps. A plane may be longer than its rows.
struct GoldenCall {
    std::string_view function;
    ZorSize size;
    std::vector<Bytes> source, destination; // planes
    ZorStatus status = zorStatusOk;
};

// On every tier.
void expectGolden(const GoldenCall& golden);

} // namespace zorcc::test
