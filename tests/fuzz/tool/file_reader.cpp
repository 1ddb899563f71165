// SPDX-License-Identifier: MIT
// Files of every kind with a header, which their first byte tells.
#include "reader_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace zorcc::tool;
    return readBytes(data, size, [](const std::string& path) { readAll(*openReader(path)); });
}
