// SPDX-License-Identifier: MIT
#include "commands.h"
#include "file_run.h"

namespace zorcc::tool {

void gamma(const GammaOptions& options)
{
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) {
        return Work{colourFunction(options.inverse ? "GammaInv" : "GammaFwd", format)};
    });
}

} // namespace zorcc::tool
