// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas, and what the edges of their ranges give.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "tests/harness/tiers.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

template <class T> using Colour = std::array<T, 3>;
template <class T> using Function = ZorStatus (*)(const T*, int, T*, int, ZorSize);

template <class T> std::vector<Colour<T>> convert(Function<T> function, const std::vector<Colour<T>>& row)
{
    std::vector<Colour<T>> result(row.size());
    const int bytes = static_cast<int>(row.size() * sizeof(Colour<T>));
    EXPECT_EQ(function(row[0].data(), bytes, result[0].data(), bytes, {static_cast<int>(row.size()), 1}), zorStatusOk);
    return result;
}

template <class T> struct Golden {
    Function<T> function;
    Colour<T> source, destination;
    int width = 48;
};

// Rows of one colour.
template <class T> void expectGolden(const std::vector<Golden<T>>& all)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (const Golden<T>& g : all) {
            const std::vector<Colour<T>> expected(static_cast<std::size_t>(g.width), g.destination);
            EXPECT_EQ(convert<T>(g.function, std::vector<Colour<T>>(expected.size(), g.source)), expected)
                << nameOf(tier) << ", case " << &g - all.data();
        }
    }
}

TEST(Golden, Bytes)
{
    expectGolden<std::uint8_t>({
        {zoriRGBToHLS_8u_C3R, {255, 0, 0}, {0, 127, 255}},     // L 127.5
        {zoriRGBToHLS_8u_C3R, {255, 255, 0}, {42, 127, 255}},  // H 42.5
        {zoriRGBToHLS_8u_C3R, {0, 0, 255}, {170, 127, 255}},   //
        {zoriRGBToHLS_8u_C3R, {200, 100, 50}, {14, 125, 153}}, // 20 degrees, 150 / 250
        {zoriRGBToHLS_8u_C3R, {10, 20, 250}, {168, 130, 244}}, // 237.5 degrees, 240 / 250
        {zoriRGBToHLS_8u_C3R, {250, 10, 20}, {253, 130, 244}}, // -2.5 + 360 degrees: 253.2
        {zoriRGBToHLS_8u_C3R, {77, 77, 77}, {0, 77, 0}},
        {zoriRGBToHLS_8u_C3R, {0, 0, 0}, {0, 0, 0}},
        {zoriRGBToHLS_8u_C3R, {255, 255, 255}, {0, 255, 0}},
        {zoriHLSToRGB_8u_C3R, {123, 77, 0}, {77, 77, 77}},
        {zoriHLSToRGB_8u_C3R, {170, 100, 255}, {0, 0, 200}}, // 240.00000 degrees, m2 = 200.00002 / 255
        // S 165.75, H 0.153846 * 42.5 = 6.54: truncated in whole blocks of four, rounded behind them.
        {zoriRGBToHSV_8u_C3R, {200, 90, 70}, {6, 165, 200}},
        {zoriRGBToHSV_8u_C3R, {200, 90, 70}, {7, 166, 200}, 3},
        {zoriRGBToHSV_8u_C3R, {0, 0, 0}, {0, 0, 0}},
        {zoriRGBToHSV_8u_C3R, {9, 9, 9}, {0, 0, 9}},
        {zoriHSVToRGB_8u_C3R, {0, 255, 200}, {200, 0, 0}},
        {zoriHSVToRGB_8u_C3R, {255, 255, 200}, {200, 0, 0}}, // 255 counts as 0
        {zoriHSVToRGB_8u_C3R, {170, 255, 200}, {0, 0, 200}},
        {zoriHSVToRGB_8u_C3R, {99, 0, 200}, {200, 200, 200}},
    });
}

TEST(Golden, BlocksAndTheRestOfARow)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (std::size_t width = 1; width < 140; ++width) {
            const auto row = convert<std::uint8_t>(zoriRGBToHSV_8u_C3R, {width, {200, 90, 70}});
            for (std::size_t x = 0; x < width; ++x)
                ASSERT_EQ(row[x][0], x < width / 4 * 4 ? 6 : 7) << nameOf(tier) << " " << width << " " << x;
        }
    }
}

TEST(Golden, Words)
{
    expectGolden<std::uint16_t>({
        {zoriRGBToHLS_16u_C3R, {65535, 0, 0}, {0, 32767, 65535}},
        {zoriRGBToHLS_16u_C3R, {40000, 20000, 10000}, {3640, 25000, 39321}}, // 20 degrees: 3640.8
        {zoriRGBToHSV_16u_C3R, {40000, 20000, 10000}, {3641, 49151, 40000}}, // 65535 / 18 = 3640.8, * 3 / 4 = 49151.25
        {zoriHSVToRGB_16u_C3R, {65535, 65535, 40000}, {40000, 0, 0}},        // 65535 counts as 0
        {zoriHSVToRGB_16u_C3R, {0, 65535, 40000}, {40000, 0, 0}},
        {zoriHLSToRGB_16u_C3R, {12345, 54321, 0}, {54321, 54321, 54321}},
    });
    expectGolden<std::int16_t>({
        {zoriRGBToHLS_16s_C3R, {1234, 1234, 1234}, {-32768, 1234, -32768}},
        {zoriRGBToHLS_16s_C3R, {32767, -32768, -32768}, {-32768, -1, 32767}},
        {zoriHLSToRGB_16s_C3R, {77, 1234, -32768}, {1234, 1234, 1234}},
    });
}

TEST(Golden, Floats)
{
    const float epsilon = 1.1920929e-7f, least = std::numeric_limits<float>::denorm_min();
    expectGolden<float>({
        {zoriRGBToHLS_32f_C3R, {1, 0, 0}, {0, 0.5f, 1}},
        {zoriRGBToHLS_32f_C3R, {0, 0, 1}, {240.0f / 360, 0.5f, 1}},
        {zoriRGBToHLS_32f_C3R, {0.75f, 0.25f, 0.5f}, {330.0f / 360, 0.5f, 0.5f}},
        {zoriRGBToHLS_32f_C3R, {epsilon, 0, 0}, {0, epsilon / 2, 0}}, // still grey
        {zoriRGBToHLS_32f_C3R, {2 * epsilon, 0, 0}, {0, epsilon, 1}},
        // Hues of half and of one and a half times the least float are rounded to even.
        {zoriRGBToHLS_32f_C3R, {1, 3 * least, 0}, {0, 0.5f, 1}},
        {zoriRGBToHLS_32f_C3R, {1, 9 * least, 0}, {2 * least, 0.5f, 1}},
        {zoriHLSToRGB_32f_C3R, {0, 0.5f, 1}, {1, 0, 0}},
        {zoriHLSToRGB_32f_C3R, {1, 0.5f, 1}, {1, 0, 0}}, // 480 degrees for red are 120
        {zoriHLSToRGB_32f_C3R, {0.3f, 0.7f, 0}, {0.7f, 0.7f, 0.7f}},
        {zoriHLSToRGB_32f_C3R, {0.5f, 0.25f, 0.5f}, {0.125f, 0.375f, 0.375f}},
    });
}

// Colours outside the range, as wide gamuts and overshoots have them, and back.
TEST(Floats, SameOnEveryTierOutsideTheRange)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<float> value(-2, 3);
    std::vector<Colour<float>> colours(5000);
    for (Colour<float>& colour : colours)
        for (float& channel : colour) channel = value(random);
    std::vector<std::vector<Colour<float>>> results;
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        const auto hls = convert<float>(zoriRGBToHLS_32f_C3R, colours);
        const auto rgb = convert<float>(zoriHLSToRGB_32f_C3R, hls);
        for (const auto& result : {hls, rgb}) results.push_back(result);
        EXPECT_EQ(results[results.size() - 2], results[0]) << nameOf(tier);
        EXPECT_EQ(results.back(), results[1]) << nameOf(tier);
        for (std::size_t i = 0; i < colours.size(); ++i) {
            if (std::abs(hls[i][2]) > 100) continue; // a sum near 0 or 2 has lost the digits
            for (std::size_t c = 0; c < 3; ++c)
                ASSERT_NEAR(rgb[i][c], colours[i][c], 2e-4f) << nameOf(tier) << ", colour " << i;
        }
    }
}

// What is no number stays in its pixel.
TEST(Floats, NotANumber)
{
    const float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (const auto function : {zoriRGBToHLS_32f_C3R, zoriHLSToRGB_32f_C3R})
            for (const float bad : {nan, infinity, -infinity})
                for (std::size_t width : {1u, 7u, 40u})
                    for (std::size_t at = 0; at < width; ++at) {
                        std::vector<Colour<float>> row(width, {0.25f, 0.5f, 0.75f});
                        const auto clean = convert<float>(function, row);
                        row[at] = {bad, 0.5f, bad};
                        const auto result = convert<float>(function, row);
                        for (std::size_t x = 0; x < width; ++x) {
                            if (x == at) continue;
                            ASSERT_EQ(result[x], clean[x]) << nameOf(tier) << ", pixel " << x;
                        }
                    }
    }
}

// Fall and rise of a channel may be divided by 60 or multiplied by 1/60: two units in the last place at most.
TEST(Floats, RampsByDivision)
{
    std::vector<Colour<float>> row;
    for (int i = 0; i < 200000; ++i)
        row.push_back({static_cast<float>(i % 60) / 360 + static_cast<float>(i) * 1e-9f,
                       static_cast<float>(i * 7 % 1000) / 1000, static_cast<float>(i * 13 % 1000) / 1000});
    const auto result = convert<float>(zoriHLSToRGB_32f_C3R, row);
    for (std::size_t i = 0; i < row.size(); ++i) {
        const auto [h, l, s] = row[i];
        const float high = l <= 0.5f ? l * (1 + s) : l + s - l * s, low = 2 * l - high;
        const float green = low + (high - low) * (h * 360) / 60; // in the first 60 degrees
        const float unit = std::nextafter(green, 2.0f) - green;
        ASSERT_LE(std::abs(result[i][1] - green), 2 * unit) << h << " " << l << " " << s;
    }
}

// At 60, 180 and 300 degrees, on every tier.
TEST(Floats, HighWhereAChannelBeginsToFall)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            std::vector<Colour<float>> row;
            for (int i = 0; i < 2000; ++i)
                row.push_back({(1 + 2 * static_cast<float>(channel)) / 6, static_cast<float>(i * 7 % 1000) / 1000,
                               static_cast<float>(i * 13 % 1000) / 1000});
            const auto result = convert<float>(zoriHLSToRGB_32f_C3R, row);
            for (std::size_t i = 0; i < row.size(); ++i) {
                const auto [h, l, s] = row[i];
                ASSERT_EQ(result[i][channel], l <= 0.5f ? l * (1 + s) : l + s - l * s) << nameOf(tier) << " " << i;
            }
        }
    }
}

} // namespace
} // namespace zorcc::test
