// SPDX-License-Identifier: MIT
// Every function against its reference: sizes, grids, regions, arrangements, contents, thread counts.
#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "tests/demosaic/mosaic_checker.h"
#include "tests/harness/arrangements.h"
#include "zorcore.h"

namespace zorcc::test {
namespace {

class Regions : public testing::TestWithParam<Method> {
protected:
    const Method& method = GetParam();
    MosaicChecker checker{method};
    Arrangements arrangements;
    std::mt19937 random{baseSeed()};
    const testing::ScopedTrace seed{__FILE__, __LINE__, "ZORCC_TEST_SEED=" + std::to_string(baseSeed())};

    int below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    Arrangement anyArrangement()
    {
        constexpr Steps all[] = {Steps::tight, Steps::sample, Steps::wide, Steps::isolated};
        return arrangements.any(all[below(4)], edges[below(2)]);
    }
    void useAny(ZorSize size, Contents contents = Contents::random)
    {
        checker.use(size, grids[below(4)], anyArrangement(), contents, arrangements.anySeed());
    }
    testing::AssertionResult checkAny(ZorRect region) { return checker.check(region, anyArrangement(), below(200)); }
};

TEST_P(Regions, EverySize)
{
    for (int width = method.minSize; width <= 200; ++width)
        for (int height = method.minSize; height < method.minSize + 5; ++height) {
            useAny({width, height}, allContents[below(std::size(allContents))]);
            for (const Steps steps : {Steps::tight, Steps::wide, Steps::isolated})
                for (const Edge edge : edges)
                    ASSERT_TRUE(checker.check({0, 0, width, height}, arrangements.any(steps, edge), below(200)));
        }
    for (int height = method.minSize; height <= 40; ++height) {
        useAny({method.minSize, height});
        ASSERT_TRUE(checkAny({0, 0, method.minSize, height}));
    }
}

// All regions of a small image, those that reach over its edges, and those outside.
TEST_P(Regions, EveryRegionOfSmallImages)
{
    for (const ZorSize size : {ZorSize{method.minSize, method.minSize}, {7, 6}, {11, 5}})
        for (const ZorBayerGrid grid : grids) {
            checker.use(size, grid, anyArrangement(), Contents::random, arrangements.anySeed());
            for (int x0 = -2; x0 <= size.width; ++x0)
                for (int x1 = x0; x1 <= size.width + 2; ++x1)
                    for (int y0 = -1; y0 <= size.height; ++y0)
                        for (int y1 = y0; y1 <= size.height + 1; y1 += 1 + below(2))
                            ASSERT_TRUE(checkAny({x0, y0, x1 - x0, y1 - y0}));
        }
}

TEST_P(Regions, Any)
{
    for (int i = 0; i < 20; ++i) {
        const ZorSize size{method.minSize + below(330), method.minSize + below(60)};
        useAny(size);
        for (int k = 0; k < 20; ++k) {
            const int x = below(size.width), y = below(size.height);
            ASSERT_TRUE(checkAny({x, y, 1 + below(size.width - x + 3), 1 + below(size.height - y + 3)}));
        }
    }
}

// Region arithmetic beyond 32 bits, and empty regions.
TEST_P(Regions, FarOut)
{
    useAny({20, 12});
    const ZorRect regions[] = {{5, 3, INT_MAX, INT_MAX},
                               {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                               {INT_MAX, INT_MAX, INT_MAX, INT_MAX},
                               {-30, -30, INT_MAX, INT_MAX},
                               {3, 3, -1, 4},
                               {3, 3, 4, INT_MIN},
                               {3, 3, 0, 4},
                               {20, 0, 4, 4},
                               {-4, 0, 4, 4}};
    for (const ZorRect& region : regions) ASSERT_TRUE(checkAny(region));
}

TEST_P(Regions, Contents)
{
    for (const Contents contents : allContents)
        for (const ZorBayerGrid grid : grids) {
            checker.use({83, 29}, grid, {}, contents, arrangements.anySeed());
            ASSERT_TRUE(checker.checkAll()) << describe(contents);
        }
}

TEST_P(Regions, LongRows)
{
    for (const int width : {255, 256, 257, 511, 512, 513, 640, 641, 1300}) {
        useAny({width, method.minSize + 4});
        ASSERT_TRUE(checker.check({0, 0, width, method.minSize + 4}, {Steps::wide}));
    }
}

// Row times step passes what an int can hold.
TEST_P(Regions, HugeSteps)
{
    for (const bool upwards : {false, true}) {
        const Arrangement near{Steps::sample}, far{Steps::huge, upwards};
        checker.use({90, 7}, grids[below(4)], far, Contents::random, arrangements.anySeed());
        ASSERT_TRUE(checker.check({0, 0, 90, 7}, near));
        useAny({90, 7});
        ASSERT_TRUE(checker.check({0, 0, 90, 7}, far));
    }
}

class Threads : public Regions {
protected:
    const int before = ownGetNumThreads();
    ~Threads() override { static_cast<void>(zorSetNumThreads(before)); }
};

// Both sides of the threshold of 192 x 192 pixels, of which the gradient method does not count the frame.
TEST_P(Threads, AnyNumber)
{
    for (const ZorSize size : {ZorSize{196, 196}, {191, 300}, {300, 191}, {197, 203}, {401, 211}}) {
        useAny(size);
        for (int threads = 1; threads <= 8; ++threads) {
            ASSERT_EQ(zorSetNumThreads(threads), zorStatusOk);
            ASSERT_TRUE(checker.check({0, 0, size.width, size.height}, {Steps::sample}, below(100)))
                << threads << " threads";
            ASSERT_TRUE(checker.check({below(3), below(3), size.width - below(4), size.height - below(4)},
                                      {Steps::sample, true}, below(100)))
                << threads << " threads";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Functions, Regions, testing::ValuesIn(methods().begin(), methods().end()), nameOfMethod);
INSTANTIATE_TEST_SUITE_P(Functions, Threads, testing::ValuesIn(methods().begin(), methods().end()), nameOfMethod);

} // namespace
} // namespace zorcc::test
