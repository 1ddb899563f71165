// SPDX-License-Identifier: MIT
// Statuses and their order; nothing is written after a failing check.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "tests/demosaic/mosaic_checker.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

TEST(DemosaicCoverage, EveryFunctionOfTheFamilyHasAMethod)
{
    std::set<std::string_view> family, tested;
    for (const interface::Function& function : interface::functions())
        if (function.family == "Demosaicing") family.insert(function.name);
    for (const Method& method : methods()) tested.insert(method.name);
    EXPECT_EQ(family, tested);
}

class DemosaicArguments : public testing::TestWithParam<Method> {
protected:
    static constexpr int side = 12;
    const Method& method = GetParam();
    std::vector<std::uint16_t> source = std::vector<std::uint16_t>(side * side, 7);
    std::vector<std::uint16_t> destination = std::vector<std::uint16_t>(3 * side * side, 0xabcd);
    std::vector<std::uint8_t> scratch = std::vector<std::uint8_t>(scratchRows * scratchRowBytes(side));

    const interface::Call sound {
        {{source.data()}, {2 * side}}, {{destination.data()}, {6 * side}}, {side, side},
        {
            .scratch = scratch.data(), .scratchStep = scratchRowBytes(side)
        }
    };

    ZorStatus call(const interface::Call& arguments) const { return method.function().bound(arguments); }

    bool untouched() const
    {
        return std::all_of(destination.begin(), destination.end(), [](int value) { return value == 0xabcd; });
    }
};

TEST_P(DemosaicArguments, FirstFailingCheckDecides)
{
    const int tooSmall = method.minSize - 1;
    for (const bool noSource : {false, true})
        for (const bool noDestination : {false, true})
            for (const ZorSize size : {ZorSize{side, side}, {tooSmall, side}, {side, tooSmall}, {0, side}, {side, -3}})
                for (const int grid : {0, 3, 4, -1}) {
                    const bool badSize = std::min(size.width, size.height) < method.minSize;
                    const bool badGrid = grid < 0 || grid > 3;
                    const ZorStatus expected = noSource || noDestination ? zorStatusNullPointer
                                               : badSize                 ? zorStatusBadSize
                                               : badGrid                 ? zorStatusBadArgument
                                                                         : zorStatusOk;
                    if (expected == zorStatusOk) continue;
                    interface::Call faulty = sound;
                    if (noSource) faulty.source.plane[0] = nullptr;
                    if (noDestination) faulty.destination.plane[0] = nullptr;
                    faulty.size = size;
                    faulty.extra.grid = grid;
                    EXPECT_EQ(call(faulty), expected);
                    ASSERT_TRUE(untouched());
                }
}

TEST_P(DemosaicArguments, SmallestImage)
{
    interface::Call smallest = sound;
    smallest.size = {method.minSize, method.minSize};
    EXPECT_EQ(call(smallest), zorStatusOk);
    EXPECT_FALSE(untouched());
}

TEST_P(DemosaicArguments, EmptyRegionsAreNoError)
{
    const ZorRect regions[] = {{side, 0, 4, 4}, {0, side, 4, 4}, {-4, 0, 4, 4},
                               {0, -9, 4, 4},   {2, 2, 0, 4},    {2, 2, 4, -1}};
    for (const ZorRect& region : regions) {
        interface::Call empty = sound;
        empty.extra.region = region;
        EXPECT_EQ(call(empty), zorStatusOk);
    }
    EXPECT_TRUE(untouched());
}

INSTANTIATE_TEST_SUITE_P(Functions, DemosaicArguments, testing::ValuesIn(methods().begin(), methods().end()),
                         nameOfMethod);

} // namespace
} // namespace zorcc::test
