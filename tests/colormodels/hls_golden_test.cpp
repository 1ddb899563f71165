// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas, and what the edges of their ranges give.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/harness/golden.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

constexpr double epsilon = 1.1920929e-7f, least = std::numeric_limits<float>::denorm_min();

const GoldenColours goldens[] = {
    {{"zoriRGBToHLS_8u_C3R"}, {255, 0, 0}, {0, 127, 255}},     // L 127.5
    {{"zoriRGBToHLS_8u_C3R"}, {255, 255, 0}, {42, 127, 255}},  // H 42.5
    {{"zoriRGBToHLS_8u_C3R"}, {0, 0, 255}, {170, 127, 255}},   //
    {{"zoriRGBToHLS_8u_C3R"}, {200, 100, 50}, {14, 125, 153}}, // 20 degrees, 150 / 250
    {{"zoriRGBToHLS_8u_C3R"}, {10, 20, 250}, {168, 130, 244}}, // 237.5 degrees, 240 / 250
    {{"zoriRGBToHLS_8u_C3R"}, {250, 10, 20}, {253, 130, 244}}, // -2.5 + 360 degrees: 253.2
    {{"zoriRGBToHLS_8u_C3R"}, {77, 77, 77}, {0, 77, 0}},
    {{"zoriRGBToHLS_8u_C3R"}, {0, 0, 0}, {0, 0, 0}},
    {{"zoriRGBToHLS_8u_C3R"}, {255, 255, 255}, {0, 255, 0}},
    {{"zoriHLSToRGB_8u_C3R"}, {123, 77, 0}, {77, 77, 77}},
    {{"zoriHLSToRGB_8u_C3R"}, {170, 100, 255}, {0, 0, 200}}, // 240.00000 degrees, m2 = 200.00002 / 255
    {{"zoriRGBToHLS_16u_C3R"}, {65535, 0, 0}, {0, 32767, 65535}},
    {{"zoriRGBToHLS_16u_C3R"}, {40000, 20000, 10000}, {3640, 25000, 39321}}, // 20 degrees: 3640.8
    {{"zoriHLSToRGB_16u_C3R"}, {12345, 54321, 0}, {54321, 54321, 54321}},
    {{"zoriRGBToHLS_16s_C3R"}, {1234, 1234, 1234}, {-32768, 1234, -32768}},
    {{"zoriRGBToHLS_16s_C3R"}, {32767, -32768, -32768}, {-32768, -1, 32767}},
    {{"zoriHLSToRGB_16s_C3R"}, {77, 1234, -32768}, {1234, 1234, 1234}},
    {{"zoriRGBToHLS_32f_C3R"}, {1, 0, 0}, {0, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {0, 0, 1}, {240.0f / 360, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {0.75f, 0.25f, 0.5f}, {330.0f / 360, 0.5f, 0.5f}},
    {{"zoriRGBToHLS_32f_C3R"}, {epsilon, 0, 0}, {0, epsilon / 2, 0}}, // still grey
    {{"zoriRGBToHLS_32f_C3R"}, {2 * epsilon, 0, 0}, {0, epsilon, 1}},
    // Hues of half and of one and a half times the least float are rounded to even.
    {{"zoriRGBToHLS_32f_C3R"}, {1, 3 * least, 0}, {0, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {1, 9 * least, 0}, {2 * least, 0.5f, 1}},
    // Digits of a quotient next to the least normal float, and sixty times a sample that is too large for that.
    {{"zoriRGBToHLS_32f_C3R"}, {1, 0x1.8001p-124, 0}, {0x1.0000aap-126, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {0x1p127, 0x1p126, 0}, {std::numeric_limits<double>::infinity(), 0x1p126, -1}},
    {{"zoriHLSToRGB_32f_C3R"}, {0, 0.5f, 1}, {1, 0, 0}},
    {{"zoriHLSToRGB_32f_C3R"}, {1, 0.5f, 1}, {1, 0, 0}}, // 480 degrees for red are 120
    {{"zoriHLSToRGB_32f_C3R"}, {0.3f, 0.7f, 0}, {0.7f, 0.7f, 0.7f}},
    {{"zoriHLSToRGB_32f_C3R"}, {0.5f, 0.25f, 0.5f}, {0.125f, 0.375f, 0.375f}},
};

TEST(HlsGolden, Colours)
{
    for (const GoldenColours& golden : goldens) expectGolden(golden);
}

using Colour = std::array<float, 3>;

std::vector<Colour> toRgb(const std::vector<Colour>& row)
{
    std::vector<Colour> result(row.size());
    const int bytes = static_cast<int>(row.size() * sizeof(Colour));
    EXPECT_EQ(zoriHLSToRGB_32f_C3R(row[0].data(), bytes, result[0].data(), bytes, {static_cast<int>(row.size()), 1}),
              zorStatusOk);
    return result;
}

// Fall and rise of a channel may be divided by 60 or multiplied by 1/60: two units in the last place at most.
TEST(HlsFloats, RampsByDivision)
{
    std::vector<Colour> row;
    for (int i = 0; i < 200000; ++i)
        row.push_back({static_cast<float>(i % 60) / 360 + static_cast<float>(i) * 1e-9f,
                       static_cast<float>(i * 7 % 1000) / 1000, static_cast<float>(i * 13 % 1000) / 1000});
    const auto result = toRgb(row);
    for (std::size_t i = 0; i < row.size(); ++i) {
        const auto [h, l, s] = row[i];
        const float high = l <= 0.5f ? l * (1 + s) : l + s - l * s, low = 2 * l - high;
        const float green = low + (high - low) * (h * 360) / 60; // in the first 60 degrees
        const float unit = std::nextafter(green, 2.0f) - green;
        ASSERT_LE(std::abs(result[i][1] - green), 2 * unit) << h << " " << l << " " << s;
    }
}

// At 60, 180 and 300 degrees, on every tier.
TEST(HlsFloats, HighWhereAChannelBeginsToFall)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            std::vector<Colour> row;
            for (int i = 0; i < 2000; ++i)
                row.push_back({(1 + 2 * static_cast<float>(channel)) / 6, static_cast<float>(i * 7 % 1000) / 1000,
                               static_cast<float>(i * 13 % 1000) / 1000});
            const auto result = toRgb(row);
            for (std::size_t i = 0; i < row.size(); ++i) {
                const auto [h, l, s] = row[i];
                ASSERT_EQ(result[i][channel], l <= 0.5f ? l * (1 + s) : l + s - l * s) << nameOf(tier) << " " << i;
            }
        }
    }
}

} // namespace
} // namespace zorcc::test
