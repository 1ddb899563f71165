// SPDX-License-Identifier: MIT
// Errors, as zorcc.Error with a status and a text.
#pragma once

#include <string>

#include "zorcc/types.h"

namespace zorcc::python {

[[noreturn]] void fail(ZorStatus status, const std::string& text);

// With the text that the headers have for the status.
[[noreturn]] void failWithStatus(const std::string& what, ZorStatus status);

// The same as a warning, zorcc.StatusWarning.
void warnOfStatus(const std::string& what, ZorStatus status);

} // namespace zorcc::python
