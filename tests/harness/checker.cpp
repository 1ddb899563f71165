// SPDX-License-Identifier: MIT
#include "tests/harness/checker.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "tests/harness/fault_trap.h"

namespace zorcc::test {

using testing::AssertionFailure;
using testing::AssertionResult;
using testing::AssertionSuccess;

namespace {

std::string steps(const TestImage& image)
{
    std::ostringstream text;
    for (int p = 0; p < image.format().planes; ++p) text << (p > 0 ? "/" : "") << image.image().step[p];
    return text.str();
}

// Scratch memory as the functions that need it ask for it, and what it holds before a call.
constexpr int scratchRows = 64;
constexpr int scratchRowBytes(int width) { return 32 * (width + 32); }
constexpr std::uint8_t untouched = 0xa5;

// Whether nothing was written beside the rows of the scratch memory.
bool onlyRows(const PlaneMemory& memory, int rowBytes, std::ptrdiff_t step)
{
    for (const auto piece : memory.pieces())
        for (std::size_t i = 0; i < piece.size(); ++i) {
            if (piece[i] == untouched) continue;
            const std::ptrdiff_t offset = piece.data() + i - memory.firstRow(), row = offset / step;
            if (offset < 0 || row >= scratchRows || offset - row * step >= rowBytes) return false;
        }
    return true;
}

} // namespace

// Where steps are checked they must not be negative.
Arrangement Checker::allowed(Arrangement arrangement) const
{
    arrangement.upwards &= expectation.checks != reference::Checks::stepsFirst;
    return arrangement;
}

std::string Checker::heading(const Trial& trial, Tier tier) const
{
    std::ostringstream text;
    text << tested.name << " on " << nameOf(tier) << ", " << trial.size.width << "x" << trial.size.height << ", "
         << describe(trial.contents) << " (seed " << trial.seed << "), source: " << describe(allowed(trial.source))
         << " (" << steps(source) << "), destination: " << describe(allowed(trial.destination)) << " ("
         << steps(destination.planes() > 0 ? destination : source) << "): ";
    if (expectation.demosaic) text << "grid " << extra.grid << ": ";
    if (const auto& r = trial.region)
        text << "region " << r->width << "x" << r->height << " at (" << r->x << ", " << r->y << "): ";
    if (expectation.imageReference)
        text << "noise " << extra.noise << ", method " << extra.method << ", levels " << extra.levels << ": ";
    return text.str();
}

void Checker::arrangeSource(const Trial& trial)
{
    extra = expectation.arguments ? expectation.arguments(tested, trial.seed) : interface::Extra {
        .alpha = 0x5a
    };
    extra.region = trial.region;
    source.arrange(*tested.source, trial.size, reference::usedSize(expectation, trial.size), allowed(trial.source),
                   sourceSteps(tested.signature));
}

// As the destination lies.
void Checker::arrangeScratch(const Arrangement& arrangement, int width)
{
    if (!tested.takesScratch) return;
    const std::size_t rowBytes = static_cast<std::size_t>(scratchRowBytes(width));
    const bool isolated = arrangement.steps == Steps::isolated && rowBytes <= RowPages::pageBytes();
    extra.scratchStep = static_cast<int>(isolated ? 2 * RowPages::pageBytes()
                                                  : rowBytes + (arrangement.steps == Steps::tight ? 0 : 67));
    const int moved = isolated ? 0 : arrangement.moved;
    scratch.arrange(
        {scratchRows, rowBytes, extra.scratchStep, arrangement.edge, static_cast<std::size_t>(moved), isolated});
    extra.scratch = scratch.firstRow();
}

// `to` holds what it held before, its shadow what is expected.
AssertionResult Checker::runOn(Tier tier, const Trial& trial, TestImage& to)
{
    const OnTier chosen(tier);
    const interface::Call call {
        source.image(), to.image(), trial.size, extra
    };
    if (extra.scratch)
        for (const auto piece : scratch.pieces()) std::fill(piece.begin(), piece.end(), untouched);
    ZorStatus status = 0;
    const auto fault = faultOf([&] { status = tested.bound(call); });
    if (fault) {
        const auto [distance, place] = std::min(source.nearest(*fault), to.nearest(*fault));
        return AssertionFailure() << heading(trial, tier) << "touches memory outside its images, " << place
                                  << " of the "
                                  << (source.nearest(*fault).first == distance ? "source" : "destination");
    }
    if (const ZorStatus expected = reference::statusOf(expectation, trial.size); status != expected)
        return AssertionFailure() << heading(trial, tier) << "status " << status << ", not " << expected;
    if (expectation.defined && &to == &destination) expectAsOnFirstTier(tier);
    if (const auto d = to.difference()) return AssertionFailure() << heading(trial, tier) << describe(*d);
    if (extra.scratch && !onlyRows(scratch, scratchRowBytes(to.size().width), extra.scratchStep))
        return AssertionFailure() << heading(trial, tier) << "writes beside the rows of the scratch memory";
    return AssertionSuccess();
}

// Pixels of floats for which the formula gives nothing must still be the same on all tiers, but for the bits of what is
// no number: they depend on the order in which a compiler puts operands.
void Checker::expectAsOnFirstTier(Tier tier)
{
    if (tested.source->sample != interface::Sample::f32) return;
    const reference::Pixels from(*tested.source, source.shadow(), source.usedSize()),
        result(*tested.destination, destination.image(), source.usedSize());
    reference::Pixels wanted(*tested.destination, destination.shadow(), source.usedSize());
    for (int y = 0; y < from.height(); ++y)
        for (int x = 0; x < from.width(); ++x) {
            const float pixel[] = {from.getFloat(0, x, y), from.getFloat(1, x, y), from.getFloat(2, x, y)};
            if (expectation.defined(pixel)) continue;
            for (int c = 0; c < 3; ++c) {
                const float value = result.getFloat(c, x, y);
                if (tier == tiersHere()[0] || (std::isnan(value) && std::isnan(wanted.getFloat(c, x, y))))
                    wanted.putFloat(c, x, y, value);
            }
        }
}

AssertionResult Checker::check(const Trial& trial)
{
    return check(trial, [&](TestImage& image) { fill(image, trial.contents, trial.seed); });
}

AssertionResult Checker::check(const Trial& trial, const std::function<void(TestImage& source)>& fillSource)
{
    arrangeSource(trial);
    source.fillPattern(trial.seed);
    fillSource(source);
    source.copyToShadow();

    const auto [whole, used] = reference::destinationSize(expectation, trial.size, extra);
    destination.arrange(*tested.destination, whole, used, allowed(trial.destination),
                        destinationSteps(tested.signature));
    destination.fillPattern(trial.seed + 1);
    destination.copyToShadow();
    reference::convert(expectation, tested, source.image(), destination.shadow(), trial.size, extra);
    arrangeScratch(trial.destination, whole.width);

    for (const Tier tier : tiersHere()) {
        destination.fillPattern(trial.seed + 1);
        if (auto result = runOn(tier, trial, destination); !result) return result;
        if (const auto d = source.difference())
            return AssertionFailure() << heading(trial, tier) << "the source has changed: " << describe(*d);
    }
    return AssertionSuccess();
}

AssertionResult Checker::checkInPlace(const Trial& trial)
{
    arrangeSource(trial);
    const auto fillSource = [&] {
        source.fillPattern(trial.seed);
        fill(source, trial.contents, trial.seed);
    };
    fillSource();
    source.copyToShadow();
    reference::convert(expectation, tested, source.image(), source.shadow(), trial.size, extra);
    for (const Tier tier : tiersHere()) {
        fillSource();
        if (auto result = runOn(tier, trial, source); !result) return result;
    }
    return AssertionSuccess();
}

} // namespace zorcc::test
