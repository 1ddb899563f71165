// SPDX-License-Identifier: MIT
#include <iostream>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "io/writer.h"
#include "progress.h"

namespace zorcc::tool {

namespace {

// The function for pictures as files hold them: bytes and words stay what they are, floats become words.
const Function& functionFor(const Format& format)
{
    const std::string types = format.sample == Sample::f32 ? "32f16u" : format.sample == Sample::u16 ? "16u" : "8u";
    const std::string layout = isGrey(format) ? "C1" : hasAlpha(format) ? "AC4" : "C3";
    const Function* const function = interface::findFunction("zoriReduceBits_" + types + "_" + layout + "R");
    if (!function || !isRgb(format)) throw Cause("cannot reduce " + std::string(format.name) + ": convert it to RGB");
    return *function;
}

} // namespace

void reduce(const ReduceOptions& options)
{
    const auto reader = openReader(options.in);
    const auto writer = openWriter(options.out, reader->tags());
    const interface::Extra arguments {
        .noise = options.noise, .levels = options.levels, .method = options.dither
    };
    Stats stats{options.timing.repeat};
    writeAll(*reader, *writer, [&](const Picture& picture) {
        const Function& function = functionFor(picture.format());
        Picture result = run(function, picture, stats, arguments);
        if (function.alpha == interface::Alpha::keep) copyAlpha(picture, result);
        return result;
    });
    if (options.timing.stats) std::cout << stats.line();
}

} // namespace zorcc::tool
