// SPDX-License-Identifier: MIT
#include "tests/demosaic/mosaic_checker.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <stdexcept>

#include "tests/harness/fault_trap.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {

using testing::AssertionFailure;
using testing::AssertionResult;
using testing::AssertionSuccess;

namespace {

constexpr std::uint8_t untouched = 0xa5;

// Whether only rows of the memory were written to.
bool onlyRows(const PlaneMemory& memory, int rows, std::size_t rowBytes, std::ptrdiff_t step)
{
    for (const auto piece : memory.pieces())
        for (std::size_t i = 0; i < piece.size(); ++i) {
            if (piece[i] == untouched) continue;
            const std::ptrdiff_t offset = piece.data() + i - memory.firstRow();
            const std::ptrdiff_t row = offset / step;
            if (offset < 0 || row >= rows || offset - row * step >= static_cast<std::ptrdiff_t>(rowBytes)) return false;
        }
    return true;
}

} // namespace

const Method& methodNamed(std::string_view name)
{
    for (const Method& method : methods())
        if (method.name == name) return method;
    throw std::logic_error("no such method: " + std::string(name));
}

ZorRect inside(ZorRect rect, ZorSize size)
{
    const int x0 = std::max(rect.x, 0), y0 = std::max(rect.y, 0);
    const auto x1 = std::min<std::int64_t>(size.width, std::int64_t{rect.x} + rect.width);
    const auto y1 = std::min<std::int64_t>(size.height, std::int64_t{rect.y} + rect.height);
    if (x0 >= x1 || y0 >= y1) return {};
    return {x0, y0, static_cast<int>(x1 - x0), static_cast<int>(y1 - y0)};
}

void MosaicChecker::use(ZorSize imageSize, ZorBayerGrid imageGrid, const Arrangement& arrangement, Contents contents,
                        std::uint32_t seed)
{
    size = imageSize;
    grid = imageGrid;
    source.arrange(*function.source, size, size, arrangement, StepArguments::one);
    source.fillPattern(seed);
    fill(source, contents, seed);
    keepReference();
}

void MosaicChecker::use(const reference::Mosaic& mosaic, const Arrangement& arrangement)
{
    size = mosaic.size;
    grid = mosaic.grid;
    source.arrange(*function.source, size, size, arrangement, StepArguments::one);
    source.fillPattern(1);
    reference::Pixels samples(*function.source, source.image(), size);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) samples.put(0, x, y, mosaic(x, y));
    keepReference();
}

void MosaicChecker::keepReference()
{
    source.copyToShadow();
    reference::Mosaic mosaic{size, grid, (1 << method.bits) - 1};
    const reference::Pixels samples(*function.source, source.image(), size);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) mosaic(x, y) = samples.get(0, x, y);
    whole = method.reference(mosaic);
}

AssertionResult MosaicChecker::check(ZorRect region, const Arrangement& arrangement, int moved)
{
    const ZorRect part = inside(region, size);
    destination.arrange(*function.destination, {part.width, part.height}, {part.width, part.height}, arrangement,
                        StepArguments::one);
    destination.fillPattern(2);
    destination.copyToShadow();
    reference::Pixels result(*function.destination, destination.shadow(), {part.width, part.height});
    for (int y = 0; y < part.height; ++y)
        for (int x = 0; x < part.width; ++x)
            for (int c = 0; c < 3; ++c) result.put(c, x, y, whole(part.x + x, part.y + y, c));

    const std::size_t rowBytes = static_cast<std::size_t>(scratchRowBytes(part.width));
    const bool isolated = arrangement.steps == Steps::isolated && rowBytes <= RowPages::pageBytes();
    const int step = static_cast<int>(isolated ? 2 * RowPages::pageBytes()
                                               : rowBytes + (arrangement.steps == Steps::tight ? 0 : 67));
    scratch.arrange(
        {scratchRows, rowBytes, step, arrangement.edge, isolated ? 0 : static_cast<std::size_t>(moved), isolated});

    const interface::Call call {
        source.image(), destination.image(), size,
        {
            .grid = grid, .interpolation = 77, .region = region, .scratch = scratch.firstRow(), .scratchStep = step
        }
    };
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        std::ostringstream heading;
        heading << method.name << " on " << nameOf(tier) << ", " << size.width << "x" << size.height << ", grid "
                << grid << ", region " << region.width << "x" << region.height << " at (" << region.x << ", "
                << region.y << "), destination: " << describe(arrangement) << ": ";
        destination.fillPattern(2);
        for (const auto piece : scratch.pieces()) std::fill(piece.begin(), piece.end(), untouched);
        ZorStatus status = 0;
        const auto fault = faultOf([&] { status = function.bound(call); });
        if (fault)
            return AssertionFailure() << heading.str() << "touches memory outside its images: "
                                      << std::min(source.nearest(*fault), destination.nearest(*fault)).second;
        if (status != zorStatusOk) return AssertionFailure() << heading.str() << "status " << status;
        if (const auto d = destination.difference()) return AssertionFailure() << heading.str() << describe(*d);
        if (const auto d = source.difference())
            return AssertionFailure() << heading.str() << "the source has changed: " << describe(*d);
        if (!onlyRows(scratch, scratchRows, rowBytes, step))
            return AssertionFailure() << heading.str() << "writes beside the rows of the scratch memory";
    }
    return AssertionSuccess();
}

} // namespace zorcc::test
