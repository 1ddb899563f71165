// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iostream>

#include "commands.h"
#include "error.h"
#include "formats.h"
#include "names.h"

namespace zorcc::tool {

std::unique_ptr<Reader> openInput(const Input& input, const Format* usual, OddSizes oddSizes)
{
    if (!input.size) {
        if (!input.format.empty()) throw UsageError("--format is for headerless files, with --size WxH");
        return openReader(input.path);
    }
    if (input.format.empty() && !usual) throw UsageError(input.path + ": a headerless file needs --format NAME");
    const PictureKind kind = input.format.empty() ? PictureKind{usual} : formatNamed(input.format);
    return openReader(input.path, Headerless{kind, *input.size, oddSizes});
}

void printStats(const std::string& lines, const std::vector<std::string>& results)
{
    (std::any_of(results.begin(), results.end(), isStandardStream) ? std::cerr : std::cout) << lines;
}

int choiceOf(const std::string& what, const std::string& text, const std::vector<std::pair<std::string, int>>& choices)
{
    std::vector<std::string> names;
    for (const auto& [name, number] : choices) {
        if (name == inSmallLetters(text)) return number;
        names.push_back(name);
    }
    throw UsageError(what + ": " + quoted(text) + " is none of " + joined(names));
}

} // namespace zorcc::tool
