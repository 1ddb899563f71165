// SPDX-License-Identifier: MIT
#include "tests/fuzz/interface_calls.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>

#include "tests/harness/arrangements.h"
#include "tests/harness/cases.h"
#include "zorcore.h"

namespace zorcc::test {
namespace {

Arrangement arrangementOf(const std::uint8_t (&bytes)[3], bool takesSteps)
{
    constexpr Steps steps[] = {Steps::tight, Steps::sample, Steps::wide, Steps::isolated, Steps::huge};
    Arrangement a;
    if (takesSteps) a.steps = steps[bytes[0] % std::size(steps)];
    a.upwards = bytes[0] & 0x80;
    a.edge = bytes[0] & 0x40 ? Edge::start : Edge::end;
    a.moved = bytes[1] % 64;
    a.movedPlane = bytes[2] % (interface::maxPlanes + 1) - 1;
    return a;
}

// Wide images are low: references take a microsecond for a pixel. Isolated rows have limited memory.
ZorSize sizeOf(const CallInput& input, bool isIsolated)
{
    constexpr int maxPixels = 1 << 15, maxIsolatedWidth = 512;
    const int width = 1 + input.width % (isIsolated ? maxIsolatedWidth : 4096);
    return {width, 1 + std::min<int>(input.height, maxPixels / width)};
}

Checker& checkerOf(const interface::Function& function)
{
    static std::map<std::string_view, std::unique_ptr<Checker>> checkers; // whose images' memory can be used again
    if (checkers.size() > 64) checkers.clear();                           // rows gigabytes apart take addresses
    auto& checker = checkers[function.name];
    if (!checker) {
        reference::Case c = *ruleOf(function).expected;
        c.name = function.name;
        checker = std::make_unique<Checker>(c, function);
    }
    return *checker;
}

} // namespace

int Calls::functionCount() { return static_cast<int>(interface::functions().size()); }

bool Calls::run(std::span<const std::uint8_t> bytes, std::uint8_t (&visited)[interests])
{
    CallInput input{};
    std::memcpy(&input, bytes.data(), std::min(bytes.size(), sizeof input));
    const auto functions = interface::functions();
    const std::size_t index = input.function % functions.size();
    const interface::Function& function = functions[index];
    Checker& checker = checkerOf(function);

    Trial trial{};
    trial.source = arrangementOf(input.source, function.signature.steps);
    trial.destination = arrangementOf(input.destination, function.signature.steps);
    trial.contents = allContents[input.contents % std::size(allContents)];
    trial.seed = input.seed;
    trial.inPlace = input.inPlace % 2 && hasImagesOfOneShape(function) && !checker.expected().demosaic;
    // Where the formula says nothing the tiers are compared with each other, for which the source must be left.
    trial.inPlace = trial.inPlace && !(checker.expected().defined && trial.contents == Contents::anyFloats);
    if (trial.inPlace) trial.destination = trial.source;
    const bool isIsolated = trial.source.steps >= Steps::isolated || trial.destination.steps >= Steps::isolated;
    trial.size = sizeOf(input, isIsolated);
    if (isIsolated) trial.size.height = std::min(trial.size.height, 16);
    if (checker.expected().demosaic) {
        const int x = input.region[0] % trial.size.width, y = input.region[1] % trial.size.height;
        trial.region = ZorRect{x, y, 1 + input.region[2], 1 + input.region[3]};
    }

    const int threads = 1 + input.threads % 8;
    static_cast<void>(zorSetNumThreads(threads));
    // The function with what may matter to it: how many pixels are left of a vector, steps, threads.
    for (const std::size_t about :
         {trial.size.width % 64 / 4 * 1u, 16u + static_cast<unsigned>(trial.source.steps), 24u + trial.source.upwards,
          26u + static_cast<unsigned>(trial.destination.steps), 34u + trial.destination.upwards,
          36u + (trial.size.width > 128) + 2u * (trial.size.height > 128), 40u + (threads > 1) + 2u * trial.inPlace,
          44u + static_cast<unsigned>(trial.contents)})
        visited[(index * 64 + about) % interests] = 1;

    const auto result = checker.check(trial);
    if (!result) std::fprintf(stderr, "%s, %d threads\n", result.message(), threads);
    return static_cast<bool>(result);
}

} // namespace zorcc::test
