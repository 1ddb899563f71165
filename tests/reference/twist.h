// SPDX-License-Identifier: MIT
// Colour twist as it is defined, pixel by pixel.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// Identity, a permutation, a grey, rows that saturate at both ends, negatives, halves (for ties), no numbers on the
// way.
inline constexpr std::uint32_t twistCount = 8;
inline constexpr float twists[twistCount][4][4] = {
    {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}},
    {{0, 0, 1, 0}, {1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 0, 1}},
    {{0.299f, 0.587f, 0.114f, 0}, {0.299f, 0.587f, 0.114f, 0}, {0.299f, 0.587f, 0.114f, 0}, {0, 0, 0, 1}},
    {{3, 1, 1, 0}, {-2, -1, -3, 20}, {100, -200, 99, -1e6f}, {1, 1, 1, 1}},
    {{-1, 0, 0, 255}, {0, -1, 0, 65535}, {0, 0, -1, -1}, {0, 0, 0, -1}},
    {{0.5f, 0, 0, 0}, {0, 0.5f, 0, 0.5f}, {0.5f, 0.5f, 0.5f, -0.6f}, {0.25f, 0.25f, 0.25f, 0.25f}},
    {{1e9f, 1e9f, -1e9f, 1e9f}, {-4e9f, 0, 0, 3e9f}, {0, 1e-30f, 0, 254.5f}, {0, 0, 1e30f, 0}},
    {{3e38f, -3e38f, 3e38f, 0}, {-3e38f, 3e38f, 1, 0}, {__builtin_inff(), 0, 1, 0}, {3e38f, 0, 0, 3e38f}},
};

void twist(const interface::Function& function, const Pixels& source, Pixels& destination,
           const interface::Extra& extra);

} // namespace zorcc::reference
