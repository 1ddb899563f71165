// SPDX-License-Identifier: MIT
// Names of files of one picture each, with the place of a number in them: "frame_%d.png", or padded "frame_%03d.png".
#pragma once

#include <optional>
#include <string>

namespace zorcc::tool {

class SequenceName {
public:
    // Nothing where the path has no place for a number.
    static std::optional<SequenceName> in(const std::string& path);

    std::string at(int number) const;

private:
    std::string path;
    std::size_t start = 0, length = 0, digits = 0;
};

} // namespace zorcc::tool
