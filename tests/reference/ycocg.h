// SPDX-License-Identifier: MIT
// Scalar references of the YCoCg conversions, whatever the types of samples.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void rgbToYCoCg(const Pixels& source, Pixels& destination);
void rgbToYCoCgReversible(const Pixels& source, Pixels& destination);
void yCoCgToRgb(const Pixels& source, Pixels& destination);
void yCoCgReversibleToRgb(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
