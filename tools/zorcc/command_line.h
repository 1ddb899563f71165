// SPDX-License-Identifier: MIT
// The command line.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zorcc::tool {

// The command that the command line asks for, which may throw; if empty, a text to print: help, the version. parse()
// throws UsageError and std::bad_alloc; `--quiet`, `--threads` and `--max-pixels` take effect in it.
struct Request {
    std::function<void()> command;
    std::string text;
};
Request parse(const std::vector<std::string>& arguments);

} // namespace zorcc::tool
