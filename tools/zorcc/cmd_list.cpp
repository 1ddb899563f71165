// SPDX-License-Identifier: MIT
#include <fnmatch.h>
#include <unistd.h>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "commands.h"
#include "error.h"
#include "formats.h"
#include "names.h"
#include "progress.h"

namespace zorcc::tool {

namespace {

// Whether the pattern, in small letters, is in the text or, with * ? [], like it.
bool matches(const std::string& pattern, std::string_view text)
{
    const std::string small = inSmallLetters(std::string(text));
    if (pattern.find_first_of("*?[") == std::string::npos) return small.find(pattern) != std::string::npos;
    return fnmatch(pattern.c_str(), small.c_str(), 0) == 0;
}

void listFormats(const std::string& pattern)
{
    bool found = false;
    for (const std::string& name : formatNames()) {
        if (!matches(pattern, name)) continue;
        std::cout << name << '\n';
        found = true;
    }
    if (!found) throw Error(pattern, "no format has such a name");
}

} // namespace

void list(const ListOptions& options)
{
    const std::string pattern = inSmallLetters(options.pattern);
    if (options.formats) return listFormats(pattern);
    std::vector<const interface::Function*> found;
    std::size_t name = 0, source = 0, destination = 0;
    for (const interface::Function& function : interface::functions()) {
        const std::string_view texts[] = {function.name, function.family, function.source->name,
                                          function.destination->name};
        if (std::none_of(std::begin(texts), std::end(texts), [&](auto text) { return matches(pattern, text); }))
            continue;
        found.push_back(&function);
        name = std::max(name, function.name.size());
        source = std::max(source, function.source->name.size());
        destination = std::max(destination, function.destination->name.size());
    }
    if (found.empty()) throw Error(options.pattern, "no function, format or family has such a name");
    const int width = terminalWidth(STDOUT_FILENO);
    for (const interface::Function* function : found) {
        std::ostringstream line;
        const auto column = [](std::size_t columns) { return std::setw(static_cast<int>(columns) + 2); };
        line << std::left << column(name) << function->name << column(source) << function->source->name
             << column(destination) << function->destination->name << function->family;
        std::cout << line.str().substr(0, width > 0 ? static_cast<std::size_t>(width) : std::string::npos) << '\n';
    }
}

} // namespace zorcc::tool
