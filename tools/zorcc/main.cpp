// SPDX-License-Identifier: MIT
// zorcc: the library's functions on files.
#include <cerrno>
#include <iostream>
#include <new>

#include "command_line.h"
#include "error.h"
#include "messages.h"
#include "process.h"

namespace {

using namespace zorcc::tool;

constexpr int failed = 1, badUsage = 2;

int run(int argc, char** argv)
{
    prepareProcess();
    const Request request = parse(std::vector<std::string>(argv + 1, argv + argc));
    if (request.command)
        request.command();
    else
        std::cout << request.text;
    errno = 0;
    if (std::cout.flush()) return 0;
    if (errno != EPIPE) say("standard output: cannot write"); // who closes a pipe has read enough
    return failed;
}

} // namespace

// Whatever goes wrong is one line.
int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const UsageError& error) {
        say(error.what());
        return badUsage;
    } catch (const std::bad_alloc&) {
        say("not enough memory");
    } catch (const std::exception& error) {
        say(error.what());
    }
    return failed;
}
