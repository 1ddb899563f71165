// SPDX-License-Identifier: MIT
// What ends the tool: one line on stderr and an exit code.
#pragma once

#include <stdexcept>
#include <string>

namespace zorcc::tool {

// Text from a file or a command line, made safe for a terminal.
inline std::string quoted(std::string text)
{
    for (char& c : text)
        if (c < ' ' || c > '~') c = '?';
    return "'" + text + "'";
}

// Why something with a file or a picture failed. naming() adds the name of the file where it is known.
class Cause : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// "FILE: cause"; exit code 1.
class Error : public std::runtime_error {
public:
    Error(const std::string& file, const std::string& cause) : std::runtime_error(file + ": " + cause) {}
};

// A command line that makes no sense; exit code 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Runs `body`; a Cause that it throws becomes an Error with the name of the file.
template <class Body> auto naming(const std::string& file, Body body)
{
    try {
        return body();
    } catch (const Cause& cause) {
        throw Error(file, cause.what());
    }
}

} // namespace zorcc::tool
