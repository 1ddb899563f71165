// SPDX-License-Identifier: MIT
#include <cstring>
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

void copyAlpha(const Picture& from, const Picture& to)
{
    const Channel source = channelOf(from, 'A', from.visible()), destination = channelOf(to, 'A', to.visible());
    const auto bytes = static_cast<std::size_t>(interface::sampleBytes(from.format().sample));
    for (int y = 0; y < source.height; ++y)
        for (int x = 0; x < source.width; ++x)
            std::memcpy(destination.first + destination.step * y + destination.stride * x,
                        source.first + source.step * y + source.stride * x, bytes);
}

} // namespace

void reduce(const ReduceOptions& options)
{
    const auto reader = openReader(options.in);
    const auto writer = openWriter(options.out, reader->tags());
    const interface::Extra arguments {
        .noise = options.noise, .levels = options.levels, .method = options.dither
    };
    Progress progress(*reader);
    Stats stats;
    ZorSize size{};
    const Function* function = nullptr;
    while (const auto picture = reader->next()) {
        size = picture->visible();
        writer->write(naming(reader->path(), [&] {
            function = &functionFor(picture->format());
            ZorStatus status = zorStatusOk;
            Picture result = run(*function, *picture, options.timing.repeat, stats, status, arguments);
            if (function->alpha == interface::Alpha::keep) copyAlpha(*picture, result);
            return result;
        }));
        progress.update();
    }
    writer->commit();
    if (options.timing.stats) std::cout << stats.line(std::string(function->name), size, options.timing.repeat);
}

} // namespace zorcc::tool
