// SPDX-License-Identifier: MIT
// Values of options and arguments, as users type them. All throw UsageError, which names the option.
#pragma once

#include <charconv>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "error.h"

namespace zorcc::tool {

// The parts of a text between separators; several blanks are one.
std::vector<std::string_view> split(std::string_view text, char separator);

// The number that the text is, apart from blanks around it.
template <class T> T number(const std::string& option, std::string_view text)
{
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        throw UsageError(option + ": " + quoted(std::string(text)) + " is no number");
    return value;
}

// "1,2,3".
template <class T> std::vector<T> numbers(const std::string& option, std::string_view text)
{
    std::vector<T> all;
    for (std::string_view part : split(text, ',')) all.push_back(number<T>(option, part));
    return all;
}

// Words in place of the numbers by which the functions of the library take a choice.
using Choices = std::vector<std::pair<std::string, int>>;
extern const Choices ditherMethods, bayerGrids;

// The number of a choice, in small or capital letters. The error lists the choices.
int choiceOf(const std::string& option, const std::string& text, const Choices& choices);

// The rows of a colour twist, which make R, G and B (and a fourth channel) of R, G, B and a constant, of which 1 is
// white: "a b c d; ..." with three or four rows, or a name: sepia, swap, identity, saturation=S.
struct TwistMatrix {
    float rows[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
};
TwistMatrix parseTwist(const std::string& option, const std::string& text);

} // namespace zorcc::tool
