// SPDX-License-Identifier: MIT
// Which kinds of pictures a plan connects. The conversion layer is asked once for each pair, when it is first needed.
#pragma once

#include <string>

#include "formats.h"

namespace zorcc::gstreamer {

bool connects(const Kind& from, const Kind& to);

// Whether colours can be computed from and to it, and not just moved.
bool isConvertible(const Kind& kind);

// The conversion layer's words about a pair that no plan connects.
std::string whyNot(const Kind& from, const Kind& to);

} // namespace zorcc::gstreamer
