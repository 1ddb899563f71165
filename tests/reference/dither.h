// SPDX-License-Identifier: MIT
// Ordered dithering of 8-bit colours to the fields of 16-bit pixels.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// The level, of `bits` bits, that a sample becomes at column x of row y. Where R and B have 4 bits (`outerBits`) the
// thresholds are others.
int ditheredField(int sample, int bits, int outerBits, int x, int y);

// The colours of a formula, dithered.
void dither(void (*formula)(const Pixels& source, Pixels& destination), const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
