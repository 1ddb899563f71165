// SPDX-License-Identifier: MIT
// What every function of the library must do, by families of functions, which are those of src.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "tests/reference/case.h"

namespace zorcc::test {

// Every function of the table that has this title is a case of one of its families: by the first rule whose name, in
// which * stands for anything, fits its own.
struct Family {
    std::string_view name, title;
    std::span<const reference::Case> rules;
};

std::span<const Family> families();

// Which rule a function's case is made by; null pointers where there is none.
struct Rule {
    const Family* family = nullptr;
    const reference::Case* expected = nullptr;
};
Rule ruleOf(const interface::Function& function);

std::vector<reference::Case> casesOf(std::string_view family);

// The family that a test program is for: each defines it, in a file that is generated.
extern const char* const testedFamily;
inline const std::vector<reference::Case>& familyCases()
{
    static const std::vector<reference::Case> cases = casesOf(testedFamily);
    return cases;
}

// The interface's row of a case.
const interface::Function& functionOf(const reference::Case& c);

// Names tests by the exported function.
template <class Info> std::string caseName(const Info& info) { return std::string(info.param.name); }

} // namespace zorcc::test

// So that googletest does not print a case byte by byte.
namespace zorcc::reference {
inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }
} // namespace zorcc::reference
