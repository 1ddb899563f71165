// SPDX-License-Identifier: MIT
#include "commands.h"
#include "error.h"
#include "file_run.h"

namespace zorcc::tool {

void tonemap(const TonemapOptions& options)
{
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) -> Work {
        if (!isGrey(format) || format.sample != Sample::f32)
            throw Cause("the file holds " + std::string(format.name) + ", but tone mapping takes a grey PFM file");
        return {*interface::findFunction(options.mean ? "zoriToneMapMean_32f8u_C1R" : "zoriToneMapLinear_32f8u_C1R")};
    });
}

} // namespace zorcc::tool
