// SPDX-License-Identifier: MIT
#include "tests/harness/argument_checks.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cmath>
#include <functional>
#include <vector>

#include "tests/harness/contents.h"

namespace zorcc::test {

using interface::Call;
using interface::Function;
using reference::Checks;
using testing::AssertionFailure;
using testing::AssertionResult;

namespace {

constexpr ZorSize goodSize{40, 16}; // whole blocks of every function

struct Fault {
    ZorStatus status;
    std::function<void(Call& call, ZorSize badSize)> spoil;
};

// The faults of a function in the order of its checks.
std::vector<Fault> faultsOf(const reference::Case& c, const Function& function)
{
    std::vector<Fault> faults;
    const auto addImage = [&](interface::Image Call::*image, bool array) {
        faults.push_back({zorStatusNullPointer, [=](Call& call, ZorSize) {
                              if (array)
                                  call.nullArrays[image == &Call::destination] = true;
                              else
                                  (call.*image).plane[0] = nullptr;
                          }});
    };
    // The first of separate pointers stands for the image.
    const auto addPlanes = [&](interface::Image Call::*image, bool array, int planes) {
        for (int p = !array; p < planes; ++p)
            faults.push_back({zorStatusNullPointer, [=](Call& call, ZorSize) { (call.*image).plane[p] = nullptr; }});
    };
    const auto addStep = [&](interface::Image Call::*image) {
        faults.push_back({zorStatusBadStep,
                          [=](Call& call, ZorSize bad) { (call.*image).step[0] = std::min(bad.width, bad.height); }});
    };
    const auto addSize = [&] {
        faults.push_back({zorStatusBadSize, [](Call& call, ZorSize bad) { call.size = bad; }});
    };

    const auto& signature = function.signature;
    if (function.takesRange)
        faults.push_back(
            {zorStatusBadRange, [](Call& call, ZorSize bad) {
                 call.extra.vMax = bad.width < 0 ? NAN : bad.height < 1 ? call.extra.vMin - 1 : call.extra.vMin;
             }});
    if (!signature.inPlace) addImage(&Call::source, signature.sourceArray);
    if (c.checks == Checks::stepsFirst) addPlanes(&Call::source, signature.sourceArray, function.source->planes);
    addImage(&Call::destination, signature.destinationArray);
    if (c.checks == Checks::sizeFirst || c.checks == Checks::stepsLast) addSize();
    if (c.checks != Checks::stepsFirst && !signature.inPlace)
        addPlanes(&Call::source, signature.sourceArray, function.source->planes);
    addPlanes(&Call::destination, signature.destinationArray, function.destination->planes);
    if (function.takesTwist)
        faults.push_back({zorStatusNullPointer, [](Call& call, ZorSize) { call.extra.twist = nullptr; }});
    if (c.checks == Checks::pointersSizeSteps) addSize();
    if (reference::checksSteps(c)) {
        if (!signature.inPlace) addStep(&Call::source);
        addStep(&Call::destination);
    }
    if (c.checks == Checks::pointersFirst || c.checks == Checks::stepsFirst) addSize();
    if (c.demosaic)
        faults.push_back(
            {zorStatusBadArgument, [](Call& call, ZorSize bad) { call.extra.grid = bad.width < 0 ? -1 : 4; }});
    return faults;
}

Images filled(const Function& function)
{
    Images images(function, goodSize);
    fill(images.source, Contents::random, 1);
    images.source.copyToShadow();
    images.destination.fillPattern(2);
    images.destination.copyToShadow();
    return images;
}

} // namespace

AssertionResult checkFaultyArguments(const reference::Case& c, const Function& function)
{
    const Images images = filled(function);
    const std::vector<Fault> faults = faultsOf(c, function);
    const ZorSize badSizes[] = {{0, 4},
                                {40, 0},
                                {-1, 4},
                                {40, -1},
                                {0, 0},
                                {INT_MIN, 4},
                                {40, INT_MIN},
                                {c.minimum.width - 1, 16},
                                {40, c.minimum.height - 1}};
    for (unsigned chosen = 1; chosen < 1u << faults.size(); ++chosen)
        for (const ZorSize badSize : badSizes) {
            Call call{images.source.image(), images.destination.image(), goodSize, function.withScratch({}, goodSize)};
            for (std::size_t i = 0; i < faults.size(); ++i)
                if (chosen >> i & 1) faults[i].spoil(call, badSize);
            const ZorStatus status = function.bound(call);
            const ZorStatus expected = faults[static_cast<std::size_t>(std::countr_zero(chosen))].status;
            auto failure = AssertionFailure() << function.name << ", faults (bits, in the order of checks) " << chosen
                                              << ", bad size " << badSize.width << "x" << badSize.height << ": ";
            if (status != expected) return failure << "status " << status << ", not " << expected;
            if (const auto d = images.destination.difference())
                return failure << "written in spite of the error: " << *d;
            if (const auto d = images.source.difference()) return failure << "source changed: " << *d;
        }
    return testing::AssertionSuccess();
}

AssertionResult checkOddSizes(const reference::Case& c, const Function& function)
{
    const Images images = filled(function);
    for (int width : {40, 39, 38, 36, 4, 3, 2, 1})
        for (int height : {16, 15, 12, 9, 8, 7, 6, 4, 3, 2, 1}) {
            const ZorStatus status = function(images.source.image(), images.destination.image(), {width, height});
            if (status != reference::statusOf(c, {width, height}))
                return AssertionFailure() << function.name << ", " << width << "x" << height << ": status " << status;
        }
    return testing::AssertionSuccess();
}

} // namespace zorcc::test
