// SPDX-License-Identifier: MIT
#include <iostream>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "formats.h"
#include "io/writer.h"

namespace zorcc::tool {

namespace {

struct Method {
    const Function *u8, *u16;

    explicit Method(const std::string& operation)
        : u8(interface::findFunction(operation + "_8u_C1C3R")), u16(interface::findFunction(operation + "_16u_C1C3R"))
    {
    }
};

} // namespace

void demosaic(const DemosaicOptions& options)
{
    const Method method(options.gradient ? "zoriCFAToRGB" : "zoriDemosaicAHD");
    const auto reader = openReader(options.in);
    const auto writer = openWriter(options.out);
    Stats stats;
    ZorSize size{};
    const Function* function = nullptr;
    while (auto picture = reader->next())
        writer->write(naming(reader->path(), [&] {
            const Format& format = picture->format();
            if (!isGrey(format) || format.sample == Sample::f32)
                throw Cause("the file holds " + std::string(format.name) +
                            ", but a mosaic is a grey PGM or PNG file of 8 or 16 bits");
            function = format.sample == Sample::u8 ? method.u8 : method.u16;
            size = picture->visible();
            ZorStatus status = zorStatusOk;
            return run(*function, rearranged(std::move(*picture), *function->source, size), options.timing.repeat,
                       stats, status, {.alpha = 255, .grid = options.grid});
        }));
    writer->commit();
    if (options.timing.stats) std::cout << stats.line(std::string(function->name), size, options.timing.repeat);
}

} // namespace zorcc::tool
