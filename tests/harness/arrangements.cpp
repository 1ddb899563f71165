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

testing::AssertionResult Arrangements::check(Checker& checker, ZorSize size)
{
    constexpr Steps ways[] = {Steps::tight, Steps::sample, Steps::wide, Steps::isolated};
    for (const Steps steps : ways)
        for (const Edge edge : edges) {
            const Arrangement one = any(steps, edge), other = any(ways[random() % std::size(ways)], edges[heads()]);
            const Contents contents = allContents[random() % std::size(allContents)];
            for (const Trial& trial :
                 {Trial{size, one, other, contents, anySeed()}, Trial{size, other, one, Contents::random, anySeed()}})
                if (auto result = checker.check(trial); !result) return result;
        }
    return testing::AssertionSuccess();
}

} // namespace zorcc::test
