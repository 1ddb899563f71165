// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "error.h"
#include "io/reader.h"

namespace zorcc::tool {

// A line on a terminal's stderr that shows how much of a file of many pictures is done; it is erased at the end.
class Progress {
public:
    explicit Progress(const Reader& reader);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void update(); // after each picture

private:
    const Reader& from;
    bool terminal, shown = false;
    std::chrono::steady_clock::time_point last;
};

// Writes what `make` makes of each picture of a file.
template <class Output, class Make> void writeAll(Reader& reader, Output& output, Make make)
{
    Progress progress(reader);
    while (auto picture = reader.next()) {
        output.write(naming(reader.path(), [&] { return make(std::move(*picture)); }));
        progress.update();
    }
    output.commit();
}

} // namespace zorcc::tool
