// SPDX-License-Identifier: MIT
#include "conversion.h"

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdio>

#include "error.h"

namespace zorcc::tool {

namespace {

constexpr std::uint8_t opaque = 255;

std::string statusText(ZorStatus status)
{
    switch (status) {
    case zorStatusBadArgument:
        return "bad argument";
    case zorStatusBadSize:
        return "the picture is too small for the function";
    case zorStatusNoMemory:
        return "not enough memory";
    case zorStatusBadStep:
        return "bad step";
    default:
        return "status " + std::to_string(status);
    }
}

// Chroma is shared by (1 << x) x (1 << y) pixels on one side of the function.
ZorSize wholeBlocksOf(const Function& function, ZorSize size)
{
    return wholeBlocks(size, std::max(function.source->log2X(), function.destination->log2X()),
                       std::max(function.source->log2Y(), function.destination->log2Y()));
}

} // namespace

std::string Stats::line(const std::string& what, ZorSize size, int repeat) const
{
    char text[160];
    std::snprintf(text, sizeof text, ": %d picture%s of %s, %.1f megapixels/s (best of %d)\n", pictures,
                  pictures == 1 ? "" : "s", sizeName(size).c_str(), megapixels / std::max(seconds, 1e-9), repeat);
    return what + text;
}

Picture run(const Function& function, const Picture& source, int repeat, Stats& stats, ZorStatus& status,
            ZorBayerGrid grid)
{
    using Clock = std::chrono::steady_clock;
    Picture destination(*function.destination, source.size(), source.visible());
    if (function.alpha == interface::Alpha::keep) setOpaque(destination);
    Clock::duration best = Clock::duration::max();
    for (int i = 0; i < repeat; ++i) {
        const Clock::time_point start = Clock::now();
        status = function(source.image(), destination.image(), source.size(), {.alpha = opaque, .grid = grid});
        best = std::min(best, Clock::now() - start);
        if (status < 0) throw Cause(std::string(function.name) + ": " + statusText(status));
    }
    ++stats.pictures;
    stats.megapixels += 1e-6 * source.size().width * source.size().height;
    stats.seconds += std::chrono::duration<double>(best).count();
    return destination;
}

Picture Conversion::operator()(Picture picture, int repeat, Stats& stats) const
{
    if (!function) {
        const ZorSize size = wholeBlocks(picture.visible(), *target);
        return rearranged(std::move(picture), *target, size);
    }
    const ZorSize size = wholeBlocksOf(*function, picture.visible());
    ZorStatus status = zorStatusOk;
    picture = run(*function, rearranged(std::move(picture), *function->source, size), repeat, stats, status);
    return rearranged(std::move(picture), *target, size);
}

Conversion findConversion(const Format& from, const Format& to)
{
    if (rearrangementCost(from, to)) return {nullptr, &to};
    const Function* found = nullptr;
    int lowest = INT_MAX;
    for (const Function& function : interface::functions()) {
        const auto before = rearrangementCost(from, *function.source);
        const auto after = rearrangementCost(*function.destination, to);
        if (!before || !after) continue;
        const int cost = 2 * (*before + *after) + !function.signature.steps;
        if (cost < lowest) lowest = cost, found = &function;
    }
    if (!found)
        throw Cause("no function converts " + std::string(from.name) + " to " + std::string(to.name) +
                    " (zorcc list shows what there is)");
    return {found, &to};
}

} // namespace zorcc::tool
