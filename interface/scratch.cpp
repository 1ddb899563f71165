// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "interface/functions.h"

namespace zorcc::interface {

Extra Function::withScratch(Extra extra, ZorSize size) const
{
    if (takesScratch) { // what the demosaicing functions ask for
        thread_local std::vector<std::uint8_t> memory;
        constexpr int rows = 64;
        extra.scratchStep = 32 * (size.width + 32);
        memory.resize(std::max(memory.size(), static_cast<std::size_t>(rows) * extra.scratchStep));
        extra.scratch = memory.data();
    }
    return extra;
}

} // namespace zorcc::interface
