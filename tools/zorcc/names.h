// SPDX-License-Identifier: MIT
// Names that users type.
#pragma once

#include <string>
#include <vector>

namespace zorcc::tool {

std::string inSmallLetters(std::string text);

// "; did you mean a, b or c?" with the known names that are most like the given one; empty where none is.
std::string nearest(const std::string& name, const std::vector<std::string>& known);

// "a, b, c".
std::string joined(const std::vector<std::string>& names, const std::string& separator = ", ");

} // namespace zorcc::tool
