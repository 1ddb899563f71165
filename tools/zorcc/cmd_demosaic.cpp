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
        return {*interface::findFunction(operation + "_" + sampleType(format) + "_C1C3R"),
                {.alpha = 255, .grid = options.grid}};
    });
}

} // namespace zorcc::tool
