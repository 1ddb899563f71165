// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

#include "io/reader.h"

namespace zorcc::tool {

// Columns of the terminal that a file descriptor leads to; 0 where it leads elsewhere.
int terminalWidth(int descriptor);

// A line on a terminal's stderr that shows how much of a file of many pictures is done; it is erased at the end.
class Progress {
public:
    explicit Progress(const Reader& reader);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void update(int pictures); // after each picture

private:
    std::string line(int pictures, double seconds) const;

    const Reader& from;
    bool terminal, shown = false;
    std::chrono::steady_clock::time_point begin, last;
};

} // namespace zorcc::tool
