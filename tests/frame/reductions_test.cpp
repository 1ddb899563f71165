// SPDX-License-Identifier: MIT
#include "frame/reductions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/harness/guarded.h"

namespace zorcc::test {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

struct Image {
    const float* first;
    int step;
    ZorSize size;
};

float maxOf(const Image& image)
{
    float max = 12345;
    EXPECT_EQ(zoriMax_32f_C1R(image.first, image.step, image.size, &max), zorStatusOk);
    return max;
}
double sumOf(const Image& image)
{
    double sum = 12345;
    EXPECT_EQ(zoriSum_32f_C1R(image.first, image.step, image.size, &sum), zorStatusOk);
    return sum;
}
double meanOf(const Image& image)
{
    double mean = 12345;
    EXPECT_EQ(zoriMean_32f_C1R(image.first, image.step, image.size, &mean), zorStatusOk);
    return mean;
}

Image rowOf(const std::vector<float>& samples)
{
    const int width = static_cast<int>(samples.size());
    return {samples.data(), 4 * width, {width, 1}};
}

// Whole numbers below 1000, so that sums are exact in any order.
float sampleAt(int x, int y) { return static_cast<float>((x * 389 + y * 577) % 1999 - 1000); }

// Between the rows lie numbers that would show in every result.
TEST(Reductions, EveryWidthWithAnySteps)
{
    for (int width = 1; width <= 70; ++width)
        for (const int height : {1, 2, 3, 17})
            for (const int padding : {0, 1, 13})
                for (const bool upwards : {false, true}) {
                    const int pitch = width + padding;
                    std::vector<float> samples(static_cast<size_t>(pitch) * height, 1e30f);
                    float max = -infinity;
                    double sum = 0;
                    for (int y = 0; y < height; ++y)
                        for (int x = 0; x < width; ++x) {
                            const float sample = sampleAt(x, y);
                            samples[static_cast<size_t>(y) * pitch + x] = sample;
                            max = std::max(max, sample);
                            sum += sample;
                        }
                    const float* const lastRow = samples.data() + static_cast<size_t>(pitch) * (height - 1);
                    const Image image = {
                        upwards ? lastRow : samples.data(), (upwards ? -4 : 4) * pitch, {width, height}};
                    ASSERT_EQ(maxOf(image), max) << width << " x " << height;
                    ASSERT_EQ(sumOf(image), sum) << width << " x " << height;
                    ASSERT_EQ(meanOf(image), sum / (width * height)) << width << " x " << height;
                }
}

TEST(Reductions, StayInsideTheirPages)
{
    for (const Edge edge : edges)
        for (int width = 1; width <= 40; ++width) {
            const GuardedBuffer buffer(sizeof(float) * width, edge);
            float* const samples = reinterpret_cast<float*>(buffer.data());
            for (int x = 0; x < width; ++x) samples[x] = static_cast<float>(x + 1);
            const Image image = {samples, 4 * width, {width, 1}};
            EXPECT_EQ(maxOf(image), static_cast<float>(width));
            EXPECT_EQ(sumOf(image), width * (width + 1) / 2);
        }
}

TEST(Max, FoundAtEveryPosition)
{
    for (int width = 1; width <= 40; ++width)
        for (int x = 0; x < width; ++x) {
            std::vector<float> samples(width, -7.5f);
            samples[x] = -7.25f;
            ASSERT_EQ(maxOf(rowOf(samples)), -7.25f) << x << " of " << width;
        }
}

TEST(Max, PassesOverNan)
{
    for (int width = 2; width <= 40; ++width)
        for (int x = 0; x < width; ++x) {
            std::vector<float> others(width, nan);
            others[x] = -3;
            ASSERT_EQ(maxOf(rowOf(others)), -3) << x << " of " << width;
            std::vector<float> one(width, -3);
            one[x] = nan;
            ASSERT_EQ(maxOf(rowOf(one)), -3) << x << " of " << width;
        }
    EXPECT_EQ(maxOf(rowOf(std::vector<float>(37, nan))), -infinity);
}

TEST(Max, Infinities)
{
    EXPECT_EQ(maxOf(rowOf({1, infinity, -infinity})), infinity);
    EXPECT_EQ(maxOf(rowOf({-infinity, -infinity})), -infinity);
    EXPECT_EQ(maxOf(rowOf({-infinity, -std::numeric_limits<float>::max()})), -std::numeric_limits<float>::max());
}

TEST(Sum, IsDoublePrecision)
{
    for (int width = 2; width <= 60; ++width) {
        std::vector<float> samples(width, 1); // each would vanish beside 2^30 in a float
        samples[width / 3] = 0x1p30f;
        ASSERT_EQ(sumOf(rowOf(samples)), 0x1p30 + (width - 1));
        ASSERT_EQ(meanOf(rowOf(samples)), (0x1p30 + (width - 1)) / width);
    }
    const float most = std::numeric_limits<float>::max();
    EXPECT_EQ(sumOf(rowOf(std::vector<float>(8, most))), 8 * static_cast<double>(most));
}

TEST(Sum, NanAndInfinities)
{
    for (int width = 1; width <= 40; ++width)
        for (int x = 0; x < width; ++x) {
            std::vector<float> samples(width, 2);
            samples[x] = nan;
            ASSERT_TRUE(std::isnan(sumOf(rowOf(samples)))) << x << " of " << width;
            samples[x] = -infinity;
            ASSERT_EQ(meanOf(rowOf(samples)), -infinity) << x << " of " << width;
        }
    EXPECT_TRUE(std::isnan(sumOf(rowOf({infinity, -infinity}))));
}

// More samples than an int counts: every row is the same one.
TEST(Mean, CountsBeyondAnInt)
{
    const std::vector<float> row(70000, 3);
    EXPECT_EQ(meanOf({row.data(), 0, {70000, 40000}}), 3);
}

template <class Result> using Reduction = ZorStatus (*)(const float*, int, ZorSize, Result*);

template <class Result> void expectStatuses(Reduction<Result> reduction)
{
    const float samples[4] = {};
    Result result = 12345;
    const struct {
        const float* samples;
        ZorSize size;
        Result* result;
        ZorStatus status;
    } cases[] = {
        {nullptr, {2, 2}, &result, zorStatusNullPointer}, {samples, {2, 2}, nullptr, zorStatusNullPointer},
        {samples, {0, 2}, &result, zorStatusBadSize},     {samples, {2, 0}, &result, zorStatusBadSize},
        {samples, {-1, 2}, &result, zorStatusBadSize},    {samples, {2, INT_MIN}, &result, zorStatusBadSize},
        {nullptr, {0, 2}, &result, zorStatusNullPointer}, {samples, {2, 0}, nullptr, zorStatusNullPointer},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(reduction(c.samples, 8, c.size, c.result), c.status);
        EXPECT_EQ(result, Result{12345});
    }
}

TEST(Reductions, StatusesInTheirOrder)
{
    expectStatuses<float>(zoriMax_32f_C1R);
    expectStatuses<double>(zoriSum_32f_C1R);
    expectStatuses<double>(zoriMean_32f_C1R);
}

} // namespace
} // namespace zorcc::test
