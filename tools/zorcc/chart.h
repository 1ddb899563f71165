// SPDX-License-Identifier: MIT
#pragma once

#include "picture.h"

namespace zorcc::tool {

// The project's test picture in rgb24, for any size: colour bars, hues, a zone plate, a star and checks of saturated
// colours, ramps, text and gratings. Integer arithmetic: the same bytes everywhere.
Picture drawChart(ZorSize size);

} // namespace zorcc::tool
