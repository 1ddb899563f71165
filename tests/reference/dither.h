// SPDX-License-Identifier: MIT
// Ordered dithering of 8-bit colours to the fields of 16-bit pixels.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// The field of so many bits that a sample becomes at (x, y), in pixels of which R and B have `outerBits`.
int ditheredField(int sample, int bits, int outerBits, int x, int y);

// The colours of a formula, dithered.
void dither(void (*formula)(const Pixels& source, Pixels& destination), const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
