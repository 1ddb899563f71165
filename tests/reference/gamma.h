// SPDX-License-Identifier: MIT
// Gamma correction as it is defined, sample by sample, with the powers of the C library.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void gammaForward(const interface::Function& function, const Pixels& source, Pixels& destination,
                  const interface::Extra& extra);
void gammaInverse(const interface::Function& function, const Pixels& source, Pixels& destination,
                  const interface::Extra& extra);

} // namespace zorcc::reference
