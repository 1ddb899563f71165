// SPDX-License-Identifier: MIT
#include "file_run.h"

#include "conversion.h"
#include "error.h"
#include "pipeline.h"

namespace zorcc::tool {

void runOnFile(const std::string& in, const OutputPath& out, const Timing& timing,
               const std::function<Work(const Format& format)>& choose)
{
    const auto reader = openReader(in);
    const auto writer = openWriter(out, reader->tags());
    Stats stats(timing.repeat);
    writeAll(
        *reader, *writer,
        [&](Picture picture) {
            const auto [function, arguments] = choose(picture.format());
            const ZorSize size = picture.visible();
            double seconds = 0;
            Picture source = *asSource(std::move(picture), *function.source); // files hold what can be
            Picture result = run(function, source, timing.repeat, seconds, arguments);
            stats.add(std::string(function.name), size, seconds);
            if (function.alpha == interface::Alpha::keep)
                copyAlpha(rearranged(std::move(source), *function.destination), result);
            return result;
        },
        timing.isWanted());
    if (timing.stats) printStats(stats.line(), {out.path});
}

std::string sampleType(const Format& format)
{
    return format.sample == Sample::f32 ? "32f" : format.sample == Sample::u16 ? "16u" : "8u";
}

const Function& colourFunction(const std::string& operation, const Format& format, const std::string& result)
{
    const std::string layout = hasAlpha(format) ? "AC4" : "C3";
    const Function* const function =
        interface::findFunction("zori" + operation + "_" + sampleType(format) + "_" + layout + result + "R");
    if (!function || !isRgb(format)) throw Cause("the file holds " + std::string(format.name) + ": convert it to RGB");
    return *function;
}

} // namespace zorcc::tool
