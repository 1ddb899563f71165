// SPDX-License-Identifier: MIT
#include <fnmatch.h>

#include <algorithm>
#include <iomanip>
#include <iostream>

#include "commands.h"
#include "error.h"

namespace zorcc::tool {

namespace {

bool matches(const std::string& pattern, std::string_view text)
{
    if (pattern.find_first_of("*?[") == std::string::npos) return text.find(pattern) != std::string_view::npos;
    return fnmatch(pattern.c_str(), std::string(text).c_str(), 0) == 0;
}

} // namespace

void list(const std::string& pattern)
{
    std::vector<const interface::Function*> found;
    std::size_t name = 0, source = 0, destination = 0;
    for (const interface::Function& function : interface::functions()) {
        if (!matches(pattern, function.name) && !matches(pattern, function.family)) continue;
        found.push_back(&function);
        name = std::max(name, function.name.size());
        source = std::max(source, function.source->name.size());
        destination = std::max(destination, function.destination->name.size());
    }
    if (found.empty()) throw Error(pattern, "no function has such a name");
    const auto column = [](std::size_t width) { return std::setw(static_cast<int>(width) + 2); };
    for (const interface::Function* function : found)
        std::cout << std::left << column(name) << function->name << column(source) << function->source->name
                  << column(destination) << function->destination->name << function->family << '\n';
}

} // namespace zorcc::tool
