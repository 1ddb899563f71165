// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

namespace zorcc::test {

// Every byte the same at first, and then random bytes, of which in every second round most are extreme: signs, zeros,
// and the ends of ranges.
void fillInputs(std::span<std::uint8_t> bytes, int round);

} // namespace zorcc::test
