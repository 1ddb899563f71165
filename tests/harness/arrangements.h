// SPDX-License-Identifier: MIT
// Ways to lay out images, drawn at random: every step mode and both edges for every size.
#pragma once

#include <random>

#include "tests/harness/checker.h"

namespace zorcc::test {

// Of every random choice in the tests: changes from run to run unless ZORCC_TEST_SEED is set. Failures print it.
std::uint32_t baseSeed();

class Arrangements {
public:
    Arrangement any(Steps steps, Edge edge);
    std::uint32_t anySeed() { return static_cast<std::uint32_t>(random()); }

    // Each way to lay out the source, then the destination, from both edges; contents change from trial to trial.
    [[nodiscard]] testing::AssertionResult check(Checker& checker, ZorSize size);

private:
    std::mt19937 random{baseSeed()};

    bool heads() { return random() % 2 != 0; }
};

} // namespace zorcc::test
