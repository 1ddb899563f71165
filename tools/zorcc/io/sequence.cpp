// SPDX-License-Identifier: MIT
#include "sequence.h"

#include <cctype>

namespace zorcc::tool {

std::optional<SequenceName> SequenceName::in(const std::string& path)
{
    for (std::size_t start = path.find('%'); start != path.npos; start = path.find('%', start + 1)) {
        std::size_t end = start + 1;
        while (end < path.size() && std::isdigit(static_cast<unsigned char>(path[end]))) ++end;
        const std::string width = path.substr(start + 1, end - start - 1);
        if (end == path.size() || path[end] != 'd' || width.size() > 2 || (!width.empty() && width[0] != '0')) continue;
        SequenceName name;
        name.path = path;
        name.start = start;
        name.length = end + 1 - start;
        name.digits = width.empty() ? 0 : static_cast<std::size_t>(std::stoi(width));
        return name;
    }
    return {};
}

std::string SequenceName::at(int number) const
{
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return std::string(path).replace(start, length, text);
}

} // namespace zorcc::tool
