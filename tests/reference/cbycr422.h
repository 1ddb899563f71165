// SPDX-License-Identifier: MIT
// Scalar references of RGB to packed 4:2:2 with chroma first, and with Cr before Cb (ITU-R BT.601).
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void rgbToCbYCr(const Pixels& source, Pixels& destination);
void rgbToYCrCb(const Pixels& source, Pixels& destination);

// Chroma of a pair around its first pixel.
void rgbToBt601Filtered(const Pixels& source, Pixels& destination);
void linearRgbToBt601Filtered(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
