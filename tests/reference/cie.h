// SPDX-License-Identifier: MIT
// Scalar references of linear RGB and CIE XYZ, L*u*v* and L*a*b*, in single precision, in the order in which formulas
// are written. Only the definition of the cube root is the library's own.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void rgbToXyz(const Pixels& source, Pixels& destination); // 8 bits: weights of blocks of 8 pixels, and of the rest
void xyzToRgb(const Pixels& source, Pixels& destination);
void rgbToLuv(const Pixels& source, Pixels& destination);
void luvToRgb(const Pixels& source, Pixels& destination);
void rgbToLab(const Pixels& source, Pixels& destination);
void labToRgb(const Pixels& source, Pixels& destination);

// Whether the formulas of floats say what becomes of a pixel: they do where no operation overflows or meets what is no
// number. Beyond that there is what the operations give, the same on all tiers.
bool isLinear(const float* pixel);
bool isLuv(const float* luv);

} // namespace zorcc::reference
