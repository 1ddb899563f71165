// SPDX-License-Identifier: MIT
// Ways to lay out images, drawn at random: every step mode and both edges for every size.
#pragma once

#include "tests/harness/checker.h"
#include "tests/harness/random.h"

namespace zorcc::test {

// The seed of every random choice in the tests; it changes from run to run unless ZORCC_TEST_SEED is set. Failures
// print it.
std::uint32_t baseSeed();

// Those that any function with steps takes.
inline constexpr Steps ordinarySteps[] = {Steps::tight, Steps::sample, Steps::wide, Steps::isolated};

class Arrangements {
public:
    Arrangement any(Steps steps, Edge edge);
    std::uint32_t anySeed() { return random(); }

    // A rectangle with pixels inside the image, which may reach over its right and lower edges; sometimes all of it.
    ZorRect anyRegion(ZorSize size);

    // Each way to lay out the source, then the destination, from both edges; contents change from trial to trial,
    // those of mosaics, whose reference takes long, from size to size.
    [[nodiscard]] testing::AssertionResult check(Checker& checker, ZorSize size);

private:
    Random random{baseSeed()};
};

} // namespace zorcc::test
