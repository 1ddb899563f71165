// SPDX-License-Identifier: MIT
#include "conversion.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <map>

#include "error.h"

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

// Chroma is shared by (1 << x) x (1 << y) pixels on one side of the function.
ZorSize wholeBlocksOf(const Function& function, ZorSize size)
{
    return wholeBlocks(size, std::max(function.source->log2X(), function.destination->log2X()),
                       std::max(function.source->log2Y(), function.destination->log2Y()));
}

// Changes chroma sampling and layout alone.
bool movesSamples(const Function& function)
{
    return function.source->model == interface::Model::anyYcc &&
           function.destination->model == interface::Model::anyYcc;
}

// Whether luma and chroma of the function may be by the given matrix.
bool isOf(const Function& function, std::optional<interface::Model> matrix)
{
    if (!matrix) return true;
    for (const interface::Model model : {function.source->model, function.destination->model})
        if (interface::isYcc(model) && model != interface::Model::anyYcc && model != *matrix) return false;
    return true;
}

// Does it in a way that has to be asked for.
bool isVariant(const Function& function) { return function.variant == "Filter" || function.variant == "Interlace"; }

// Takes linear light, which no format says of itself.
bool appliesCurve(const Function& function) { return function.variant == "Gamma"; }

// Whether a picture would pass through pixels of 16 bits that neither begins nor ends there.
bool losesBits(const Format& end, const Format& between) { return between.fieldBits != 0 && end.fieldBits == 0; }

} // namespace

std::string Stats::line() const
{
    char text[160];
    std::snprintf(text, sizeof text, ": %d picture%s of %s, %.1f megapixels/s (best of %d)\n", pictures,
                  pictures == 1 ? "" : "s", sizeName(size).c_str(), megapixels / std::max(seconds, 1e-9), repeat);
    return std::string(function->name) + text;
}

void Stats::add(const Function& ran, const Picture& picture, std::chrono::duration<double> time)
{
    const std::lock_guard lock(mutex);
    function = &ran;
    size = picture.visible();
    ++pictures;
    megapixels += 1e-6 * picture.size().width * picture.size().height;
    seconds += time.count();
}

namespace {

Picture runInto(Picture destination, const Function& function, const Picture& source, Stats& stats,
                const interface::Extra& arguments, ZorStatus* status)
{
    using Clock = std::chrono::steady_clock;
    if (function.alpha == interface::Alpha::keep) setOpaque(destination);
    Clock::duration best = Clock::duration::max();
    for (int i = 0; i < stats.repeat; ++i) {
        const Clock::time_point start = Clock::now();
        const ZorStatus result = function(source.image(), destination.image(), source.size(), arguments);
        best = std::min(best, Clock::now() - start);
        if (result < 0) throw Cause(std::string(function.name) + ": " + statusText(result));
        if (status) *status = result;
    }
    stats.add(function, source, best);
    return destination;
}

} // namespace

Picture run(const Function& function, const Picture& source, Stats& stats, const interface::Extra& arguments,
            ZorStatus* status)
{
    return runInto(Picture(*function.destination, source.size(), source.visible()), function, source, stats, arguments,
                   status);
}

Picture Conversion::operator()(Picture picture, Stats& stats) const
{
    if (!function) {
        const ZorSize size = wholeBlocks(picture.visible(), *target);
        return rearranged(std::move(picture), *target, size);
    }
    const ZorSize size = wholeBlocksOf(*function, picture.visible());
    const Picture source = rearranged(std::move(picture), *function->source, size);
    Picture result(*function->destination, size, source.visible(), Contents::any); // whole blocks: all is written
    return rearranged(runInto(std::move(result), *function, source, stats, opaque, nullptr), *target, size);
}

Conversion findConversion(const Format& from, const Format& to, std::optional<interface::Model> matrix, bool dither)
{
    const auto plain = dither ? std::nullopt : rearrangementCost(from, to);
    const bool packsBits = from.layout != to.layout && (from.fieldBits != 0 || to.fieldBits != 0);
    const Function* found = nullptr;
    int lowest = plain ? 16 * *plain : INT_MAX;
    for (const Function& function : interface::functions()) {
        if (movesSamples(function) ? !isSameModel(from.model, to.model) || isVariant(function) : plain && !packsBits)
            continue;
        if (appliesCurve(function)) continue;
        if (function.dithers != dither || losesBits(from, *function.source) || losesBits(to, *function.destination))
            continue;
        const auto before = rearrangementCost(from, *function.source);
        const auto after = rearrangementCost(*function.destination, to);
        if (!before || !after || !isOf(function, matrix)) continue;
        // Among ways of equal cost the one that computes with more bits is preferred.
        const int cost =
            16 * (*before + *after) + 8 * !function.signature.steps - interface::sampleBytes(function.source->sample);
        if (cost < lowest) lowest = cost, found = &function;
    }
    if (!found && !plain)
        throw Cause("no function converts " + std::string(from.name) + " to " + std::string(to.name) +
                    (dither ? " with dithering" : "") + " (zorcc list shows what there is)");
    return {found, &to};
}

Conversion findDeinterlacing(const Format& from, const Format& to)
{
    const bool fullHeight = !isRgb(to) && to.log2X() == 1 && to.log2Y() == 0;
    for (const Function& function : interface::functions())
        if (function.takesSlice && (function.destination->log2Y() == 0) == fullHeight &&
            rearrangementCost(from, *function.source))
            return {&function, function.destination};
    throw Cause("deinterlacing takes 4:2:0, and the picture is " + std::string(from.name));
}

} // namespace zorcc::tool
