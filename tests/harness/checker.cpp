// SPDX-License-Identifier: MIT
#include "tests/harness/checker.h"

#include <cmath>
#include <cstring>
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

// What is not as usual.
std::string describe(const interface::Extra& extra)
{
    std::ostringstream text;
    const interface::Extra usual;
    if (extra.noise != usual.noise || extra.method != usual.method || extra.levels != usual.levels)
        text << "noise " << extra.noise << ", method " << extra.method << ", levels " << extra.levels << ": ";
    if (extra.vMin != usual.vMin || extra.vMax != usual.vMax) text << extra.vMin << " to " << extra.vMax << ": ";
    for (int k = 0; k < 3 && extra.weights; ++k) text << (k > 0 ? ", " : "weights ") << extra.weights[k];
    for (int k = 0; k < 12 && extra.twist != usual.twist; ++k)
        text << (k % 4 > 0 ? " " : k > 0 ? "; " : "twist ") << extra.twist[k / 4][k % 4];
    return text.str();
}

} // namespace

// Where steps are checked they must not be negative.
Arrangement Checker::allowed(Arrangement arrangement) const
{
    arrangement.upwards &= !reference::checksSteps(expectation);
    return arrangement;
}

std::string Checker::heading(const Trial& trial, Tier tier) const
{
    std::ostringstream text;
    text << tested.name << " on " << nameOf(tier) << ", " << trial.size.width << "x" << trial.size.height << ", "
         << describe(trial.contents) << " (seed " << trial.seed << "), source: " << describe(allowed(trial.source))
         << " (" << steps(source) << "), destination: " << describe(allowed(trial.destination)) << " ("
         << steps(trial.inPlace ? source : destination) << "): ";
    if (expectation.demosaic) text << "grid " << extra.grid << ": ";
    if (const auto& r = trial.region)
        text << "region " << r->width << "x" << r->height << " at (" << r->x << ", " << r->y << "): ";
    text << describe(extra);
    return text.str();
}

// Its size is what the functions that need it ask for. Its rows lie as those of the destination do, unless they are
// too long to be isolated.
void Checker::arrangeScratch(Arrangement arrangement, int width)
{
    if (!tested.takesScratch) return;
    const ZorSize bytes{32 * (width + 32), 64};
    const bool fits = static_cast<std::size_t>(bytes.width + arrangement.moved) <= PlaneMemory::isolatedBytes();
    if (arrangement.steps == Steps::huge || !fits) arrangement.steps = Steps::wide;
    arrangement.upwards = false;
    scratch.arrange(interface::formats::grey8, bytes, bytes, arrangement, StepArguments::one);
    scratch.fillPattern(1);
    scratch.copyToShadow();
    extra.scratch = scratch.image().plane[0];
    extra.scratchStep = scratch.image().step[0];
}

// The destination holds what it held before, its shadow what is expected.
AssertionResult Checker::runOn(Tier tier, const Trial& trial)
{
    const OnTier chosen(tier);
    TestImage& to = trial.inPlace ? source : destination;
    const interface::Call call {
        source.image(), to.image(), trial.size, extra
    };
    const auto failure = [&] { return AssertionFailure() << heading(trial, tier); };
    ZorStatus status = 0;
    std::fesetround(trial.roundingMode);
    const auto fault = faultOf([&] { status = tested.bound(call); });
    const int roundingMode = std::fegetround();
    std::fesetround(FE_TONEAREST);
    if (fault) {
        const auto inSource = source.placeOf(*fault), inDestination = to.placeOf(*fault);
        const bool isSource = inSource.distance < inDestination.distance;
        const auto& place = isSource ? inSource : inDestination;
        return failure() << "touches memory outside its images, byte " << place.x << " of row " << place.y << ", plane "
                         << place.plane << " of the " << (isSource ? "source" : "destination");
    }
    if (const ZorStatus wanted = expectedStatus(trial.size); status != wanted)
        return failure() << "status " << status << ", not " << wanted;
    if (roundingMode != trial.roundingMode) return failure() << "the rounding mode has changed";
    if (expectation.defined && !trial.inPlace) expectAsOnFirstTier(tier);
    if (expectation.ulps > 0 || expectation.anyNaN) acceptNearFloats(to);
    if (const auto d = to.difference()) return failure() << *d;
    if (extra.scratch) {
        scratch.acceptRows();
        if (const auto d = scratch.difference()) return failure() << "the scratch memory: " << *d;
    }
    if (trial.inPlace) return AssertionSuccess();
    if (const auto d = source.difference()) return failure() << "the source has changed: " << *d;
    return AssertionSuccess();
}

// Pixels of floats for which the formula gives nothing must still be the same on all tiers, but for the bits of what is
// no number: they depend on the order in which a compiler puts operands.
void Checker::expectAsOnFirstTier(Tier tier)
{
    if (tested.source->sample != interface::Sample::f32) return;
    const ZorSize used = source.usedSize();
    const reference::Pixels from(*tested.source, source.shadow(), used),
        result(*tested.destination, destination.image(), used), wanted(*tested.destination, destination.shadow(), used);
    reference::eachPixel(used, [&](int x, int y) {
        const float pixel[] = {from.level(0, x, y), from.level(1, x, y), from.level(2, x, y)};
        for (int c = 0; c < 3 && !expectation.defined(pixel); ++c)
            if (tier == tiersHere()[0] ||
                (std::isnan(result.get<double>(c, x, y)) && std::isnan(wanted.get<double>(c, x, y))))
                std::memcpy(wanted.at(c, x, y), result.at(c, x, y), sizeof(float));
    });
}

// Takes over floats that are near enough to what is expected, so that the tiers after the first must give the same.
void Checker::acceptNearFloats(const TestImage& image)
{
    if (tested.destination->sample != interface::Sample::f32) return;
    image.eachRow([&](const std::uint8_t* row, int samples, int plane, int y) {
        std::uint8_t* const wantedRow = rowOf(image.shadow(), plane, y);
        for (int i = 0; i < samples; ++i) {
            float is, wanted;
            std::memcpy(&is, row + i * sizeof is, sizeof is);
            std::memcpy(&wanted, wantedRow + i * sizeof is, sizeof is);
            const bool isNear =
                std::abs(wanted - is) <=
                static_cast<float>(expectation.ulps) * (std::nextafter(std::abs(wanted), INFINITY) - std::abs(wanted));
            if (isNear || (expectation.anyNaN && std::isnan(is) && std::isnan(wanted)))
                std::memcpy(wantedRow + i * sizeof is, &is, sizeof is);
        }
    });
}

ZorStatus Checker::expectedStatus(ZorSize size) const
{
    const ZorStatus status = reference::statusOf(expectation, size);
    if (status != zorStatusOk || !expectation.outcome) return status;
    return expectation.outcome(reference::Pixels(*tested.source, source.shadow(), source.usedSize()));
}

AssertionResult Checker::check(const Trial& trial)
{
    return check(trial, [&](TestImage& image) { fill(image, trial.contents, trial.seed); });
}

AssertionResult Checker::check(const Trial& asked, const std::function<void(TestImage& source)>& fillSource)
{
    Trial trial = asked;
    trial.inPlace |= tested.signature.inPlace;
    extra = expectation.arguments ? expectation.arguments(tested, trial.seed) : interface::Extra {
        .alpha = 0x5a
    };
    extra.region = trial.region;
    source.arrange(*tested.source, trial.size, reference::usedSize(expectation, trial.size), allowed(trial.source),
                   sourceSteps(tested.signature));
    const auto [whole, used] = reference::destinationSize(expectation, trial.size, extra);
    destination.arrange(*tested.destination, whole, used, allowed(trial.destination),
                        destinationSteps(tested.signature));
    arrangeScratch(trial.destination, whole.width);
    const auto fillAgain = [&](TestImage& image) {
        image.fillPattern(&image == &source ? trial.seed : trial.seed + 1); // so that no copied gap goes unseen
        if (&image == &source) fillSource(source);
    };
    for (TestImage* const image : {&source, &destination}) {
        fillAgain(*image);
        image->copyToShadow();
    }
    const TestImage& to = trial.inPlace ? source : destination;
    reference::convert(expectation, tested, source.image(), to.shadow(), trial.size, extra);
    for (const Tier tier : tiersHere()) {
        fillAgain(trial.inPlace ? source : destination);
        if (auto result = runOn(tier, trial); !result) return result;
    }
    return AssertionSuccess();
}

} // namespace zorcc::test
