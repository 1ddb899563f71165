// SPDX-License-Identifier: MIT
// Regions of mosaics, which the tests of all families draw at random: all of them in small images, those that 32 bits
// do not hold, and in several bands.
#include <gtest/gtest.h>

#include <climits>

#include "tests/harness/family_test.h"
#include "tests/harness/thread_count.h"

namespace zorcc::test {
namespace {

class Regions : public FamilyTest {
protected:
    testing::AssertionResult check(ZorSize size, std::uint32_t seedOfImage, ZorRect region)
    {
        const auto any = [&] {
            return arrangements.any(ordinarySteps[arrangements.anySeed() % 4], edges[arrangements.anySeed() % 2]);
        };
        return checker.check({size, any(), any(), Contents::random, seedOfImage, region});
    }
};

// All regions of a small image, those that reach over its edges, and those outside, with every grid.
TEST_P(Regions, EveryOneOfSmallImages)
{
    for (const ZorSize size : {GetParam().minimum, ZorSize{7, 6}, {11, 5}})
        for (std::uint32_t grid = 0; grid < 4; ++grid)
            for (int x0 = -2; x0 <= size.width; ++x0)
                for (int x1 = x0; x1 <= size.width + 2; ++x1)
                    for (int y0 = -1; y0 <= size.height; ++y0)
                        for (int y1 = y0; y1 <= size.height + 1; ++y1)
                            ASSERT_TRUE(check(size, grid, {x0, y0, x1 - x0, y1 - y0}));
}

// Region arithmetic beyond 32 bits, and empty regions.
TEST_P(Regions, FarOut)
{
    constexpr int most = INT_MAX, least = INT_MIN;
    for (const ZorRect& region : {ZorRect{5, 3, most, most},
                                  {least, least, most, most},
                                  {most, most, most, most},
                                  {-30, -30, most, most},
                                  {3, 3, -1, 4},
                                  {3, 3, 4, least},
                                  {3, 3, 0, 4},
                                  {20, 0, 4, 4},
                                  {-4, 0, 4, 4}})
        ASSERT_TRUE(check({20, 12}, 1, region));
}

// Both sides of the threshold for threads, 192 x 192 pixels; the gradient method does not count those at the edges.
TEST_P(Regions, AnyNumberOfThreads)
{
    for (const ZorSize size : {ZorSize{196, 196}, {191, 300}, {300, 191}, {197, 203}, {401, 211}})
        for (int threads = 1; threads <= 8; ++threads) {
            const OnThreads chosen(threads);
            for (const int cut : {0, 2})
                ASSERT_TRUE(check(size, 1, {cut / 2, cut / 2, size.width - cut, size.height - cut}))
                    << threads << " threads";
        }
}

ZORCC_FOR_EVERY_FUNCTION(Regions);

} // namespace
} // namespace zorcc::test
