// SPDX-License-Identifier: MIT
#include "function_run.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>

#include "conversion.h"
#include "error.h"
#include "formats.h"

namespace zorcc::tool {

namespace {

std::string statusText(ZorStatus status)
{
    static const std::map<ZorStatus, std::string> texts = {
        {zorStatusBadArgument, "bad argument"},
        {zorStatusBadSize, "the picture is too small for the function"},
        {zorStatusNoMemory, "not enough memory"},
        {zorStatusBadStep, "bad step"},
        {zorStatusDitherLevels, "that many levels are not supported"}};
    const auto found = texts.find(status);
    return found != texts.end() ? found->second : "status " + std::to_string(status);
}

} // namespace

std::string Stats::line() const
{
    char text[160], speed[80] = "";
    if (time > 0) // otherwise nothing was to be done
        std::snprintf(speed, sizeof speed, ", %.1f megapixels/s (best of %d)", megapixels / time, repeat);
    std::snprintf(text, sizeof text, ": %d picture%s of %s%s\n", pictures, pictures == 1 ? "" : "s",
                  sizeName(size).c_str(), speed);
    return names + text;
}

void Stats::add(const std::string& functions, ZorSize extent, double seconds)
{
    const std::lock_guard lock(mutex);
    names = functions;
    size = extent;
    ++pictures;
    megapixels += 1e-6 * size.width * size.height;
    time += seconds;
}

Picture run(const Function& function, const Picture& source, int repeat, double& seconds,
            const interface::Extra& arguments, ZorStatus* status)
{
    using Clock = std::chrono::steady_clock;
    Picture result(*function.destination, source.size(), source.visible());
    if (function.alpha == interface::Alpha::keep) setOpaque(result);
    Clock::duration best = Clock::duration::max();
    for (int i = 0; i < repeat; ++i) {
        const Clock::time_point start = Clock::now();
        const ZorStatus returned = function(source.image(), result.image(), source.size(), arguments);
        best = std::min(best, Clock::now() - start);
        if (returned < 0) throw Cause(std::string(function.name) + ": " + statusText(returned));
        if (status) *status = returned;
    }
    seconds += std::chrono::duration<double>(best).count();
    const Colour colour = colourOf(function.destination->model);
    return std::move(result).takenFor(colour.matrix.empty() ? source.colour() : colour);
}

} // namespace zorcc::tool
