// SPDX-License-Identifier: MIT
// Scalar references of RGB and PhotoYCC: bytes in integers, other samples in single precision.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void rgbToPhotoYcc(const Pixels& source, Pixels& destination);
void photoYccToRgb(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
