// SPDX-License-Identifier: MIT
// Scalar references of RGB, HLS and HSV: one for every formula, in single precision, for samples of every type.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void rgbToHls(const Pixels& source, Pixels& destination);
void hlsToRgb(const Pixels& source, Pixels& destination);
void rgbToHsv(const Pixels& source, Pixels& destination); // 8 bits: truncated in whole blocks of 4, rounded in the rest
void hsvToRgb(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
