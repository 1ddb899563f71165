// SPDX-License-Identifier: MIT
#include "commands.h"
#include "error.h"
#include "file_run.h"

namespace zorcc::tool {

void demosaic(const DemosaicOptions& options)
{
    const std::string operation = options.gradient ? "zoriCFAToRGB" : "zoriDemosaicAHD";
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) -> Work {
        if (!isGrey(format) || format.sample == Sample::f32)
            throw Cause("the file holds " + std::string(format.name) +
                        ", but a mosaic is a grey PGM or PNG file of 8 or 16 bits");
        const std::string type = format.sample == Sample::u8 ? "_8u_C1C3R" : "_16u_C1C3R";
        return {*interface::findFunction(operation + type), {.alpha = 255, .grid = options.grid}};
    });
}

} // namespace zorcc::tool
