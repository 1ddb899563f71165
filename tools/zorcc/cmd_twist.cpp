// SPDX-License-Identifier: MIT
#include <charconv>

#include "commands.h"
#include "error.h"
#include "file_run.h"
#include "names.h"

namespace zorcc::tool {

namespace {

// A row for each of R, G and B; the last column is a constant, of which 1 is white.
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

// The number that the text is, but for blanks around it.
float number(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    float value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        throw UsageError("--matrix: '" + std::string(text) + "' is no number");
    return value;
}

// The parts of a text between separators; several blanks are one.
std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0 || separator != ' ') parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

} // namespace

TwistMatrix parseTwist(const std::string& text)
{
    constexpr std::string_view saturationIs = "saturation=";
    const std::string name = inSmallLetters(text);
    if (name == "identity") return identity;
    if (name == "swap") return swapped;
    if (name == "sepia") return sepia;
    if (name.starts_with(saturationIs)) return saturation(number(std::string_view(name).substr(saturationIs.size())));
    const std::vector<std::string_view> rows = split(text, ';');
    if (rows.size() != 3 && rows.size() != 4)
        throw UsageError("--matrix: " + quoted(text) +
                         " is none of sepia, swap, identity, saturation=S, and has no three rows with ; between them");
    TwistMatrix matrix;
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const std::vector<std::string_view> numbers = split(rows[k], ' ');
        if (numbers.size() != 4) throw UsageError("--matrix: " + quoted(std::string(rows[k])) + " has no four numbers");
        for (std::size_t j = 0; j < 4; ++j) matrix.rows[k][j] = number(numbers[j]);
    }
    return matrix;
}

void twist(const TwistOptions& options)
{
    const TwistMatrix matrix = parseTwist(options.matrix);
    TwistMatrix scaled[3];
    constexpr float whites[] = {1, 255, 65535};
    for (std::size_t i = 0; i < 3; ++i) {
        scaled[i] = matrix;
        for (auto& row : scaled[i].rows) row[3] *= whites[i];
    }
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) {
        const bool isFloat = format.sample == Sample::f32;
        const TwistMatrix& used = scaled[isFloat ? 0 : format.sample == Sample::u16 ? 2 : 1];
        return Work{colourFunction(isFloat ? "ColorTwist" : "ColorTwist32f", format),
                    {.alpha = 255, .twist = used.rows}};
    });
}

} // namespace zorcc::tool
