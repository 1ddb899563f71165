// SPDX-License-Identifier: MIT
// Floats to integer samples.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// To nearest, ties to even, saturated to the sample's range; NaN becomes its least value.
inline void putSaturated(Pixels& to, int channel, int x, int y, float value)
{
    const double range[] = {
        withType(to.sample(), [](auto s) { return double{std::numeric_limits<decltype(s)>::min()}; }),
        withType(to.sample(), [](auto s) { return double{std::numeric_limits<decltype(s)>::max()}; })};
    to.put(channel, x, y, std::isnan(value) ? range[0] : std::nearbyint(std::clamp(double{value}, range[0], range[1])));
}

} // namespace zorcc::reference
