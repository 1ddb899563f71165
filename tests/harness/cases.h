// SPDX-License-Identifier: MIT
// The cases of one family of functions; each family's test program defines them.
#pragma once

#include <span>
#include <string>

#include "tests/reference/case.h"

namespace zorcc::test {

std::span<const reference::Case> familyCases();

// The interface's row of a case; throws when there is none.
const interface::Function& functionOf(const reference::Case& c);

// Names tests by the exported function.
template <class Info> std::string caseName(const Info& info) { return std::string(info.param.name); }

} // namespace zorcc::test

// So that googletest does not print a case byte by byte.
namespace zorcc::reference {
inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }
} // namespace zorcc::reference
