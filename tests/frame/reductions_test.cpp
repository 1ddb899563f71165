// SPDX-License-Identifier: MIT
#include "frame/reductions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "image_arguments.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

using Samples = std::vector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float most = std::numeric_limits<float>::max();

bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

// All three reductions of an image are as given on every tier, with any NaN as good as another.
void expectReduced(const float* first, int step, ZorSize size, float max, double sum)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        float gotMax = 12345;
        double gotSum = 12345, gotMean = 12345;
        EXPECT_EQ(zoriMax_32f_C1R(first, step, size, &gotMax), zorStatusOk);
        EXPECT_EQ(zoriSum_32f_C1R(first, step, size, &gotSum), zorStatusOk);
        EXPECT_EQ(zoriMean_32f_C1R(first, step, size, &gotMean), zorStatusOk);
        EXPECT_PRED2(same, gotMax, max) << nameOf(tier) << ", " << size.width << " x " << size.height;
        EXPECT_PRED2(same, gotSum, sum) << nameOf(tier) << ", " << size.width << " x " << size.height;
        EXPECT_PRED2(same, gotMean, sum / (double{1} * size.width * size.height)) << nameOf(tier);
    }
}

void expectReduced(const Samples& row, float max, double sum)
{
    const int width = static_cast<int>(row.size());
    expectReduced(row.data(), 4 * width, {width, 1}, max, sum);
}

// Whole numbers up to 1000, so that sums are exact in any order. What lies beside the rows would show, or is
// inaccessible.
TEST(Reductions, SizesWithAnySteps)
{
    TestImage image;
    for (const Arrangement& arrangement : everyArrangement())
        for (int width = 1; width <= 70; ++width)
            for (const int height : {1, 2, 3, 17}) {
                image.arrange(interface::formats::greyf32, {width, height}, {width, height}, arrangement,
                              StepArguments::one);
                image.fillPattern(1);
                float max = -infinity;
                double sum = 0;
                image.eachRow([&](uint8_t* row, int, int, int y) {
                    for (int x = 0; x < width; ++x) {
                        const float sample = static_cast<float>((x * 389 + y * 577) % 1999 - 1000);
                        reinterpret_cast<float*>(row)[x] = sample;
                        max = std::max(max, sample);
                        sum += sample;
                    }
                });
                expectReduced(static_cast<float*>(image.image().plane[0]), image.image().step[0], {width, height}, max,
                              sum);
            }
}

TEST(Reductions, OneSampleAtEveryPosition)
{
    const struct {
        float one, others, max;
    } cases[] = {
        {-7.25f, -7.5f, -7.25f}, {-3, nan, -3},         {nan, -3, -3},
        {-infinity, 2, 2},       {0x1p30f, 1, 0x1p30f}, // beside which each of the others would vanish in a float
    };
    for (const auto& c : cases)
        for (int width = 2; width <= 140; width += 3) // more than two blocks
            for (int x = 0; x < width; ++x) {
                Samples samples(width, c.others);
                samples[x] = c.one;
                expectReduced(samples, c.max, double{c.one} + (width - 1) * double{c.others});
            }
}

TEST(Reductions, Extremes)
{
    expectReduced({1, infinity, -infinity}, infinity, nan);
    expectReduced({-infinity, -infinity}, -infinity, -infinity);
    expectReduced({-infinity, -most}, -most, -infinity);
    expectReduced(Samples(37, nan), -infinity, nan);
    expectReduced(Samples(8, most), most, 8 * double{most});
    // More samples than an int counts: every row is the same one.
    expectReduced(Samples(70000, 3).data(), 0, {70000, 31000}, 3, 3 * 2.17e9);
}

TEST(Reductions, StatusesInTheirOrder)
{
    const float samples[4] = {};
    float max = 12345;
    double sum = 12345;
    for (const auto& c : faultyArguments) {
        const float* const src = c.first ? samples : nullptr;
        EXPECT_EQ(zoriMax_32f_C1R(src, 8, c.size, c.second ? &max : nullptr), c.status);
        EXPECT_EQ(zoriSum_32f_C1R(src, 8, c.size, c.second ? &sum : nullptr), c.status);
        EXPECT_EQ(zoriMean_32f_C1R(src, 8, c.size, c.second ? &sum : nullptr), c.status);
    }
    EXPECT_TRUE(max == 12345 && sum == 12345);
}

} // namespace
} // namespace zorcc::test
