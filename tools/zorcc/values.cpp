// SPDX-License-Identifier: MIT
#include "values.h"

#include <algorithm>

#include "names.h"
#include "zorcc.h"

namespace zorcc::tool {

namespace {

constexpr TwistMatrix identity, swapped{{{0, 0, 1, 0}, {0, 1, 0, 0}, {1, 0, 0, 0}, {0, 0, 0, 1}}},
    sepia{{{0.393f, 0.769f, 0.189f, 0}, {0.349f, 0.686f, 0.168f, 0}, {0.272f, 0.534f, 0.131f, 0}, {0, 0, 0, 1}}};

// From grey, by the luma of ITU-R BT.601, at 0 to the colours as they are at 1, and beyond.
TwistMatrix saturation(float s)
{
    constexpr float luma[] = {0.299f, 0.587f, 0.114f};
    TwistMatrix matrix;
    for (std::size_t k = 0; k < 3; ++k)
        for (std::size_t j = 0; j < 3; ++j) matrix.rows[k][j] = s * identity.rows[k][j] + (1 - s) * luma[j];
    return matrix;
}

} // namespace

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    do {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0 || separator != ' ') parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    } while (!text.empty());
    return parts;
}

const Choices ditherMethods = {{"none", zorDitherMethodNone},
                               {"ordered", zorDitherMethodOrdered},
                               {"fs", zorDitherMethodFloydSteinberg},
                               {"jjn", zorDitherMethodJarvisJudiceNinke},
                               {"stucki", zorDitherMethodStucki}};
const Choices bayerGrids = {
    {"bggr", zorBayerBGGR}, {"rggb", zorBayerRGGB}, {"gbrg", zorBayerGBRG}, {"grbg", zorBayerGRBG}};

int choiceOf(const std::string& option, const std::string& text, const Choices& choices)
{
    std::vector<std::string> names;
    for (const auto& [name, number] : choices) {
        if (name == inSmallLetters(text)) return number;
        names.push_back(name);
    }
    throw UsageError(option + ": " + quoted(text) + " is none of " + joined(names));
}

TwistMatrix parseTwist(const std::string& option, const std::string& text)
{
    constexpr std::string_view saturationIs = "saturation=";
    const std::string name = inSmallLetters(text);
    if (name == "identity") return identity;
    if (name == "swap") return swapped;
    if (name == "sepia") return sepia;
    if (name.starts_with(saturationIs)) return saturation(number<float>(option, name.substr(saturationIs.size())));
    const std::vector<std::string_view> rows = split(text, ';');
    if (rows.size() != 3 && rows.size() != 4)
        throw UsageError(option + ": " + quoted(text) +
                         " is none of sepia, swap, identity, saturation=S, and has no three rows with ; between them");
    TwistMatrix matrix;
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const std::vector<std::string_view> row = split(rows[k], ' ');
        if (row.size() != 4) throw UsageError(option + ": " + quoted(std::string(rows[k])) + " has no four numbers");
        for (std::size_t j = 0; j < 4; ++j) matrix.rows[k][j] = number<float>(option, row[j]);
    }
    return matrix;
}

} // namespace zorcc::tool
