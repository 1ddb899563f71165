// SPDX-License-Identifier: MIT
#include "tests/harness/arrangements.h"

#include <cstdlib>

namespace zorcc::test {

std::uint32_t baseSeed()
{
    static const std::uint32_t seed = [] {
        const char* given = std::getenv("ZORCC_TEST_SEED");
        return given ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 0)) : std::random_device{}();
    }();
    return seed;
}

Arrangement Arrangements::any(Steps steps, Edge edge)
{
    const bool upwards = random.below(2), moves = random.below(2);
    if (!moves) return {steps, upwards, edge};
    return {steps, upwards, edge, random.below(64), random.below(interface::maxPlanes + 1) - 1};
}

ZorRect Arrangements::anyRegion(ZorSize size)
{
    if (size.width < 1 || size.height < 1 || random.below(2)) return {0, 0, size.width, size.height};
    const int x = random.below(size.width), y = random.below(size.height);
    return {x, y, 1 + random.below(size.width - x + 3), 1 + random.below(size.height - y + 3)};
}

testing::AssertionResult Arrangements::check(Checker& checker, ZorSize size)
{
    const Contents contentsOfSize = random.anyOf(allContents);
    const std::uint32_t seedOfSize = anySeed();
    for (const Steps steps : ordinarySteps)
        for (const Edge edge : edges) {
            const Arrangement one = any(steps, edge), other = any(random.anyOf(ordinarySteps), random.anyOf(edges));
            for (Trial trial : {Trial{size, one, other, random.anyOf(allContents), anySeed()},
                                Trial{size, other, one, Contents::random, anySeed()}}) {
                if (checker.expected().demosaic) {
                    trial.contents = contentsOfSize;
                    trial.seed = seedOfSize;
                    trial.region = anyRegion(size);
                }
                if (auto result = checker.check(trial); !result) return result;
            }
        }
    return testing::AssertionSuccess();
}

} // namespace zorcc::test
