// SPDX-License-Identifier: MIT
#include "tests/harness/checker.h"

#include <algorithm>
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

} // namespace

// Where steps are checked they must not be negative.
Arrangement Checker::allowed(Arrangement arrangement) const
{
    arrangement.upwards &= expectation.checks != reference::Checks::stepsFirst;
    return arrangement;
}

interface::Extra Checker::argumentsOf(const Trial& trial) const
{
    return expectation.arguments ? expectation.arguments(tested, trial.seed) : interface::Extra {
        .alpha = 0x5a
    };
}

std::string Checker::heading(const Trial& trial, Tier tier) const
{
    std::ostringstream text;
    text << tested.name << " on " << nameOf(tier) << ", " << trial.size.width << "x" << trial.size.height << ", "
         << describe(trial.contents) << " (seed " << trial.seed << "), source: " << describe(allowed(trial.source))
         << " (" << steps(source) << "), destination: " << describe(allowed(trial.destination)) << " ("
         << steps(destination.planes() > 0 ? destination : source) << "): ";
    if (const interface::Extra extra = argumentsOf(trial); expectation.arguments)
        text << "noise " << extra.noise << ", method " << extra.method << ", levels " << extra.levels << ": ";
    return text.str();
}

// `to` holds what it held before, its shadow what is expected.
AssertionResult Checker::runOn(Tier tier, const Trial& trial, const interface::Image& from, TestImage& to)
{
    const OnTier chosen(tier);
    ZorStatus status = 0;
    const auto fault = faultOf([&] { status = tested(from, to.image(), trial.size, argumentsOf(trial)); });
    if (fault) {
        const auto [distance, place] = std::min(source.nearest(*fault), to.nearest(*fault));
        return AssertionFailure() << heading(trial, tier) << "touches memory outside its images, " << place
                                  << " of the "
                                  << (source.nearest(*fault).first == distance ? "source" : "destination");
    }
    if (const ZorStatus expected = reference::statusOf(expectation, trial.size); status != expected)
        return AssertionFailure() << heading(trial, tier) << "status " << status << ", not " << expected;
    if (const auto d = to.difference()) return AssertionFailure() << heading(trial, tier) << describe(*d);
    return AssertionSuccess();
}

AssertionResult Checker::check(const Trial& trial)
{
    return check(trial, [&](TestImage& image) { fill(image, trial.contents, trial.seed); });
}

AssertionResult Checker::check(const Trial& trial, const std::function<void(TestImage& source)>& fillSource)
{
    const ZorSize used = reference::usedSize(expectation, trial.size);
    source.arrange(*tested.source, trial.size, used, allowed(trial.source), sourceSteps(tested.signature));
    source.fillPattern(trial.seed);
    fillSource(source);
    source.copyToShadow();

    destination.arrange(*tested.destination, trial.size, used, allowed(trial.destination),
                        destinationSteps(tested.signature));
    destination.fillPattern(trial.seed + 1);
    destination.copyToShadow();
    reference::convert(expectation, tested, source.image(), destination.shadow(), trial.size, argumentsOf(trial));

    for (const Tier tier : tiersHere()) {
        destination.fillPattern(trial.seed + 1);
        if (auto result = runOn(tier, trial, source.image(), destination); !result) return result;
        if (const auto d = source.difference())
            return AssertionFailure() << heading(trial, tier) << "the source has changed: " << describe(*d);
    }
    return AssertionSuccess();
}

AssertionResult Checker::checkInPlace(const Trial& trial)
{
    const ZorSize used = reference::usedSize(expectation, trial.size);
    source.arrange(*tested.source, trial.size, used, allowed(trial.source), sourceSteps(tested.signature));
    const auto fillSource = [&] {
        source.fillPattern(trial.seed);
        fill(source, trial.contents, trial.seed);
    };
    fillSource();
    source.copyToShadow();
    reference::convert(expectation, tested, source.image(), source.shadow(), trial.size, argumentsOf(trial));
    for (const Tier tier : tiersHere()) {
        fillSource();
        if (auto result = runOn(tier, trial, source.image(), source); !result) return result;
    }
    return AssertionSuccess();
}

} // namespace zorcc::test
