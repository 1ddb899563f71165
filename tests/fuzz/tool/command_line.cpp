// SPDX-License-Identifier: MIT
// Words of a command line, one a line of the input. They are parsed and nothing is run.
#include <cstdint>
#include <sstream>

#include "tools/zorcc/command_line.h"
#include "tools/zorcc/error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace zorcc::tool;
    std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
    std::vector<std::string> words;
    for (std::string word; std::getline(lines, word);) words.push_back(word);
    try {
        parse(words);
    } catch (const UsageError&) {
    }
    return 0;
}
