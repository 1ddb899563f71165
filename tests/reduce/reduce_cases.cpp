// SPDX-License-Identifier: MIT
#include <iterator>
#include <random>

#include "tests/harness/cases.h"
#include "tests/reference/reduce.h"

namespace zorcc::test {

using namespace reference;
using interface::Extra;

namespace {

int maxLevels(const interface::Function& function)
{
    const bool words = interface::sampleBytes(function.source->sample) == 2 &&
                       interface::sampleBytes(function.destination->sample) == 2;
    return words ? 65536 : 256;
}

// Every method; levels that divide white and that do not, few and many.
Extra anyArguments(const interface::Function& function, std::uint32_t seed)
{
    std::minstd_rand random(seed + 1);
    const auto below = [&](int count) { return static_cast<int>(random() / 7 % static_cast<unsigned>(count)); };
    constexpr int usual[] = {2, 3, 4, 5, 6, 8, 15, 16, 17, 18, 52, 86, 103, 255, 256};
    constexpr int noises[] = {1, 37, 50, 99, 100};
    Extra extra;
    extra.method = static_cast<ZorDitherMethod>(below(zorDitherMethodOrdered + 1));
    extra.noise = below(2) ? 0 : noises[below(static_cast<int>(std::size(noises)))];
    extra.levels = below(2) ? usual[below(static_cast<int>(std::size(usual)))] : 2 + below(maxLevels(function) - 1);
    return extra;
}

constexpr Case rules[] = {{.name = "zoriReduceBits_*", .imageReference = reduceBits, .arguments = anyArguments}};

} // namespace

Family family() { return {"Bit-depth reduction", rules}; }

} // namespace zorcc::test
