// SPDX-License-Identifier: MIT
// Scalar references of RGB, HLS and HSV: one for every formula, in single precision, for samples of every type.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void rgbToHls(const Pixels& source, Pixels& destination);
void hlsToRgb(const Pixels& source, Pixels& destination);
void rgbToHsv(const Pixels& source, Pixels& destination); // 8 bits: truncated in whole blocks of 4, rounded in the rest
void hsvToRgb(const Pixels& source, Pixels& destination);

// Whether the formulas of floats say what becomes of a pixel. They do where no operation overflows or meets what is no
// number, which no comparison orders, where a hue is within its range, and but for the sign of zero: black may be plus
// or minus zero, and a hue so little below red that it becomes zero may be either end of the range.
bool hasHls(const float* rgb);
bool isHls(const float* hls);

} // namespace zorcc::reference
