// SPDX-License-Identifier: MIT
#include "tests/harness/arrangements.h"

#include <cstdlib>
#include <iterator>

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
    Arrangement a{steps, heads(), edge};
    if (heads()) {
        a.moved = static_cast<int>(random() % 64);
        a.movedPlane = static_cast<int>(random() % (interface::maxPlanes + 1)) - 1;
    }
    return a;
}

ZorRect Arrangements::anyRegion(ZorSize size)
{
    if (size.width < 1 || size.height < 1 || heads()) return {0, 0, size.width, size.height};
    const int x = below(size.width), y = below(size.height);
    return {x, y, 1 + below(size.width - x + 3), 1 + below(size.height - y + 3)};
}

testing::AssertionResult Arrangements::check(Checker& checker, ZorSize size)
{
    const bool regions = checker.expected().demosaic;
    const Contents contentsOfSize = anyContents();
    const std::uint32_t seedOfSize = anySeed();
    for (const Steps steps : ordinarySteps)
        for (const Edge edge : edges) {
            const Arrangement one = any(steps, edge), other = any(ordinarySteps[below(4)], edges[heads()]);
            for (Trial trial : {Trial{size, one, other, anyContents(), anySeed()},
                                Trial{size, other, one, Contents::random, anySeed()}}) {
                if (regions) {
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
