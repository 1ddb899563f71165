// SPDX-License-Identifier: MIT
#include "commands.h"
#include "error.h"
#include "file_run.h"

namespace zorcc::tool {

namespace {

// The function for pictures as files hold them: bytes and words stay what they are unless the user gives the depth, and
// floats become words.
const Function& functionFor(const Format& format, int depth)
{
    if (!isRgb(format)) throw Cause("cannot reduce " + std::string(format.name) + ": convert it to RGB");
    const std::string source = sampleType(format);
    if (depth == 16 && source == "8u") throw Cause("a picture of 8 bits cannot be reduced to 16");
    const std::string result = depth == 8 || source == "8u" ? "8u" : "16u";
    const std::string layout = isGrey(format) ? "C1" : hasAlpha(format) ? "AC4" : "C3";
    return *interface::findFunction("zoriReduceBits_" + source + (source == result ? "" : result) + "_" + layout + "R");
}

} // namespace

void reduce(const ReduceOptions& options)
{
    const interface::Extra arguments {
        .noise = options.noise, .levels = options.levels, .method = options.dither
    };
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) {
        return Work{functionFor(format, options.depth), arguments};
    });
}

} // namespace zorcc::tool
