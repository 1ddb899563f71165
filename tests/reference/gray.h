// SPDX-License-Identifier: MIT
// Grey of colour, and tone mapping of floats, as they are defined.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

void toGray(const interface::Function& function, const Pixels& source, Pixels& destination,
            const interface::Extra& extra);

void toneMapLinear(const Pixels& source, Pixels& destination);
void toneMapMean(const Pixels& source, Pixels& destination);

// zorStatusNothingDone where they write nothing.
ZorStatus outcomeOfLinear(const Pixels& source);
ZorStatus outcomeOfMean(const Pixels& source);

} // namespace zorcc::reference
