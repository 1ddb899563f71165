// SPDX-License-Identifier: MIT
// The cases of one family of functions.
#pragma once

#include <span>
#include <string>

#include "tests/reference/case.h"

namespace zorcc::test {

// Every function of the family is a case, by the first rule whose name, in which * stands for anything, fits its own.
struct Family {
    std::string_view title;
    std::span<const reference::Case> rules;
};

// Each family's test program defines its own.
Family family();

// Throws where a function has no rule, or a rule no function.
std::span<const reference::Case> familyCases();

// The interface's row of a case.
const interface::Function& functionOf(const reference::Case& c);

// Names tests by the exported function.
template <class Info> std::string caseName(const Info& info) { return std::string(info.param.name); }

} // namespace zorcc::test

// So that googletest does not print a case byte by byte.
namespace zorcc::reference {
inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }
} // namespace zorcc::reference
