// SPDX-License-Identifier: MIT
// Gamma correction as it is defined, sample by sample, with powers in extended precision.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// The curves on 0..1.
double gammaForward(double x);
double gammaInverse(double x);

void gammaForward(const interface::Function& function, const Pixels& source, Pixels& destination,
                  const interface::Extra& extra);
void gammaInverse(const interface::Function& function, const Pixels& source, Pixels& destination,
                  const interface::Extra& extra);

} // namespace zorcc::reference
