// SPDX-License-Identifier: MIT
#include <iostream>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "formats.h"
#include "io/writer.h"
#include "progress.h"

namespace zorcc::tool {

void demosaic(const DemosaicOptions& options)
{
    const std::string operation = options.gradient ? "zoriCFAToRGB" : "zoriDemosaicAHD";
    const auto reader = openReader(options.in);
    const auto writer = openWriter(options.out);
    Stats stats{options.timing.repeat};
    writeAll(*reader, *writer, [&](Picture picture) {
        const Format& format = picture.format();
        if (!isGrey(format) || format.sample == Sample::f32)
            throw Cause("the file holds " + std::string(format.name) +
                        ", but a mosaic is a grey PGM or PNG file of 8 or 16 bits");
        const Function& function =
            *interface::findFunction(operation + (format.sample == Sample::u8 ? "_8u_C1C3R" : "_16u_C1C3R"));
        const ZorSize size = picture.visible();
        return run(function, rearranged(std::move(picture), *function.source, size), stats,
                   {.alpha = 255, .grid = options.grid});
    });
    if (options.timing.stats) std::cout << stats.line();
}

} // namespace zorcc::tool
