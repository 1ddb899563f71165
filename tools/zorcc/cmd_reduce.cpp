// SPDX-License-Identifier: MIT
#include "commands.h"
#include "error.h"
#include "file_run.h"

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
    const interface::Extra arguments {
        .noise = options.noise, .levels = options.levels, .method = options.dither
    };
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) {
        return Work{functionFor(format), arguments};
    });
}

} // namespace zorcc::tool
