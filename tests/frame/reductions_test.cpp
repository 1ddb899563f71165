// SPDX-License-Identifier: MIT
#include "frame/reductions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "image_statuses.h"
#include "tests/harness/guarded.h"

namespace zorcc::test {
namespace {

using Samples = std::vector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float most = std::numeric_limits<float>::max();

// All three reductions of an image are as given, with any NaN as good as another.
testing::AssertionResult reduces(const float* first, int step, ZorSize size, float max, double sum)
{
    float gotMax = 12345;
    double gotSum = 12345, gotMean = 12345;
    EXPECT_EQ(zoriMax_32f_C1R(first, step, size, &gotMax), zorStatusOk);
    EXPECT_EQ(zoriSum_32f_C1R(first, step, size, &gotSum), zorStatusOk);
    EXPECT_EQ(zoriMean_32f_C1R(first, step, size, &gotMean), zorStatusOk);
    const auto same = [](double got, double want) { return got == want || (std::isnan(got) && std::isnan(want)); };
    if (same(gotMax, max) && same(gotSum, sum) && same(gotMean, sum / (double{1} * size.width * size.height)))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << size.width << " x " << size.height << ": max " << gotMax << ", not " << max
                                       << ", sum " << gotSum << ", not " << sum << ", or mean " << gotMean;
}

testing::AssertionResult reduces(const Samples& row, float max, double sum)
{
    const int width = static_cast<int>(row.size());
    return reduces(row.data(), 4 * width, {width, 1}, max, sum);
}

// Whole numbers up to 1000, so that sums are exact in any order. Between the rows lie numbers that would show.
TEST(Reductions, EveryWidthWithAnySteps)
{
    for (int width = 1; width <= 70; ++width)
        for (const int height : {1, 2, 3, 17})
            for (const int padding : {0, 1, 13})
                for (const bool upwards : {false, true}) {
                    const int pitch = width + padding, step = upwards ? -pitch : pitch;
                    Samples samples(static_cast<size_t>(pitch) * height, 1e30f);
                    float* const first = samples.data() + (upwards ? pitch * (height - 1) : 0);
                    float max = -infinity;
                    double sum = 0;
                    for (int y = 0; y < height; ++y)
                        for (int x = 0; x < width; ++x) {
                            const float sample = static_cast<float>((x * 389 + y * 577) % 1999 - 1000);
                            first[step * y + x] = sample;
                            max = std::max(max, sample);
                            sum += sample;
                        }
                    ASSERT_TRUE(reduces(first, 4 * step, {width, height}, max, sum));
                }
}

TEST(Reductions, StayInsideTheirPages)
{
    for (const Edge edge : edges)
        for (int width = 1; width <= 40; ++width) {
            const GuardedBuffer buffer(sizeof(float) * width, edge);
            float* const samples = reinterpret_cast<float*>(buffer.data());
            for (int x = 0; x < width; ++x) samples[x] = static_cast<float>(x + 1);
            EXPECT_TRUE(reduces(samples, 4 * width, {width, 1}, static_cast<float>(width), width * (width + 1) / 2));
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
        for (int width = 2; width <= 60; ++width)
            for (int x = 0; x < width; ++x) {
                Samples samples(width, c.others);
                samples[x] = c.one;
                ASSERT_TRUE(reduces(samples, c.max, double{c.one} + (width - 1) * double{c.others})) << "at " << x;
            }
}

TEST(Reductions, Extremes)
{
    EXPECT_TRUE(reduces({1, infinity, -infinity}, infinity, nan));
    EXPECT_TRUE(reduces({-infinity, -infinity}, -infinity, -infinity));
    EXPECT_TRUE(reduces({-infinity, -most}, -most, -infinity));
    EXPECT_TRUE(reduces(Samples(37, nan), -infinity, nan));
    EXPECT_TRUE(reduces(Samples(8, most), most, 8 * double{most}));
    // More samples than an int counts: every row is the same one.
    EXPECT_TRUE(reduces(Samples(70000, 3).data(), 0, {70000, 40000}, 3, 3 * 2.8e9));
}

TEST(Reductions, StatusesInTheirOrder)
{
    const float samples[4] = {};
    float max = 12345;
    double sum = 12345;
    for (const auto& c : imageStatuses) {
        const float* const src = c.first ? samples : nullptr;
        EXPECT_EQ(zoriMax_32f_C1R(src, 8, c.size, c.second ? &max : nullptr), c.status);
        EXPECT_EQ(zoriSum_32f_C1R(src, 8, c.size, c.second ? &sum : nullptr), c.status);
        EXPECT_EQ(zoriMean_32f_C1R(src, 8, c.size, c.second ? &sum : nullptr), c.status);
    }
    EXPECT_TRUE(max == 12345 && sum == 12345);
}

} // namespace
} // namespace zorcc::test
