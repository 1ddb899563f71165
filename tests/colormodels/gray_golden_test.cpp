// SPDX-License-Identifier: MIT
// Results worked out by hand; weights that are not meant to be.
#include <gtest/gtest.h>

#include <limits>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const GoldenColours goldens[] = {
    {{"zoriRGBToGray_8u_C3C1R", "zoriRGBToGray_8u_AC4C1R", "zoriColorToGray_8u_C3C1R"}, {255, 0, 0}, {76}}, // 76.26
    {{"zoriRGBToGray_8u_C3C1R"}, {0, 255, 0}, {150}},                                                       // 149.66
    {{"zoriRGBToGray_8u_C3C1R"}, {0, 0, 255}, {29}},                                                        // 29.07
    {{"zoriRGBToGray_8u_C3C1R"}, {255, 255, 255}, {255}},
    {{"zoriRGBToGray_16u_C3C1R"}, {65535, 0, 0}, {19595}}, // 19594.965
    {{"zoriRGBToGray_16u_C3C1R"}, {0, 500, 0}, {294}},     // 293.5, to even
    {{"zoriRGBToGray_16u_AC4C1R"}, {1000, 1000, 1000}, {1000}},
    {{"zoriRGBToGray_16s_C3C1R"}, {-32768, -32768, -32768}, {-32768}},
    {{"zoriRGBToGray_16s_C3C1R"}, {32767, -32768, -32768}, {-13173}}, // 19594.965 - 32768
    {{"zoriRGBToGray_32f_C3C1R"}, {1, 0, 0}, {0.299f}},
    {{"zoriRGBToGray_32f_AC4C1R"}, {-2, 0, 0}, {-0.598f}},
};

TEST(GrayGolden, Colours) { expectGolden(goldens); }

// In units of 1/4096, of which the lower 16 bits count.
TEST(GrayGolden, Weights)
{
    const struct {
        float weights[3];
        Colours colour;
        double gray;
    } cases[] = {
        {{1, 0, 0}, {10, 20, 30}, 10},
        {{0, 0, 1}, {10, 20, 30}, 30},
        {{1.0f / 3, 1.0f / 3, 1.0f / 3}, {255, 255, 255}, 255}, // 3 x 1365: 254.94
        {{1, 1, 0}, {200, 100, 0}, 255},                        // 300
        {{0.0001f, 0, 0}, {8, 8, 8}, 0},                        // 0.4 units
        {{17, 0, 0}, {100, 0, 0}, 100},                         // 17 x 4096 = 65536 + 4096
        {{-0.25f, 0, 0}, {1, 0, 0}, 16},                        // -1023 is 64513: 15.75 + 0.5
        {{std::numeric_limits<float>::infinity(), 0, 0}, {100, 0, 0}, 0},
    };
    for (const auto& c : cases)
        expectGolden({{"zoriColorToGray_8u_C3C1R"}, c.colour, {c.gray}, 48, {.weights = c.weights}});
}

// Of floats, a step that ends between two of them ends at the one nearer to the row's beginning.
TEST(GrayGolden, StepsOfWholeFloats)
{
    const float colours[2][4] = {{1, 1, 1, 9}, {2, 2, 2, 9}};
    float gray[2][2] = {{7, 7}, {7, 7}};
    EXPECT_EQ(zoriRGBToGray_32f_C3C1R(colours[0], 16 + 3, gray[0], 8 + 1, {1, 2}), zorStatusOk);
    EXPECT_FLOAT_EQ(gray[0][0], 1);
    EXPECT_FLOAT_EQ(gray[1][0], 2);
    EXPECT_EQ(gray[0][1], 7);
    EXPECT_EQ(gray[1][1], 7);
}

} // namespace
} // namespace zorcc::test
