// SPDX-License-Identifier: MIT
#include "function_run.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <map>

#include "conversion.h"
#include "error.h"
#include "formats.h"
#include "io/file_kind.h"

namespace zorcc::tool {

namespace {

std::string statusText(ZorStatus status)
{
    static const std::map<ZorStatus, std::string> texts = {
        {zorStatusBadArgument, "bad argument"},
        {zorStatusBadSize, "the picture is too small for the function"},
        {zorStatusNoMemory, "not enough memory"},
        {zorStatusBadStep, "bad step"},
        {zorStatusDitherLevels, "this number of levels is not supported"}};
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

void printStats(const std::string& lines, const std::vector<std::string>& results)
{
    (std::any_of(results.begin(), results.end(), isStandardStream) ? std::cerr : std::cout) << lines;
}

Picture run(const Function& function, const Picture& source, int repeat, double& seconds,
            const interface::Extra& arguments, ZorStatus* status)
{
    Picture result(*function.destination, source.size(), source.visible());
    if (function.alpha == interface::Alpha::keep) setOpaque(result);
    seconds += fastestRun(repeat, [&] {
        const ZorStatus returned = function(source.image(), result.image(), source.size(), arguments);
        if (returned < 0) throw Cause(std::string(function.name) + ": " + statusText(returned));
        if (status) *status = returned;
    });
    const Colour colour = colourOf(function.destination->model);
    return std::move(result).takenFor(colour.matrix.empty() ? source.colour() : colour);
}

} // namespace zorcc::tool
