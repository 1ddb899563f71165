// SPDX-License-Identifier: MIT
// The command line.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zorcc::tool {

// What the command line asks for, which may throw, or what is to be printed in its place: help, the version. Throws
// UsageError, and std::bad_alloc. `--quiet`, `--threads` and `--max-pixels` hold from here on.
struct Request {
    std::function<void()> command;
    std::string text;
};
Request parse(const std::vector<std::string>& arguments);

} // namespace zorcc::tool
