// SPDX-License-Identifier: MIT
#include "commands.h"
#include "file_run.h"

namespace zorcc::tool {

void grey(const GreyOptions& options)
{
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) -> Work {
        if (options.weights.empty()) return {colourFunction("RGBToGray", format, "C1")};
        return {colourFunction("ColorToGray", format, "C1"), {.weights = options.weights.data()}};
    });
}

} // namespace zorcc::tool
