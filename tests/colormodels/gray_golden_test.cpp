// SPDX-License-Identifier: MIT
// Results worked out by hand; every colour of bytes; weights that are not meant to be.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/harness/cases.h"
#include "tests/harness/checker.h"
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

// Every red, green and blue, on every tier. Not a golden test, as those run in the emulator, too.
TEST(GrayColours, SameAsReference)
{
    constexpr ZorSize band{4096, 16};
    const std::vector<reference::Case> cases = casesOf("gray");
    for (const reference::Case& c : cases) {
        if (c.name != "zoriRGBToGray_8u_C3C1R") continue;
        Checker checker(c, functionOf(c));
        for (int first = 0; first < 1 << 24; first += band.width * band.height)
            ASSERT_TRUE(checker.check({band}, [&](TestImage& image) {
                reference::Pixels pixels(image.format(), image.image(), band);
                reference::eachPixel(band, [&](int x, int y) {
                    for (int k = 0; k < 3; ++k) pixels.put(k, x, y, (first + y * band.width + x) >> 8 * k & 255);
                });
            }));
    }
}

std::uint8_t grayOf(std::vector<std::uint8_t> colour, std::vector<float> weights)
{
    std::uint8_t gray = 0;
    EXPECT_EQ(zoriColorToGray_8u_C3C1R(colour.data(), 3, &gray, 1, {1, 1}, weights.data()), zorStatusOk);
    return gray;
}

// In units of 1/4096, of which the lower 16 bits count.
TEST(GrayGolden, Weights)
{
    EXPECT_EQ(grayOf({10, 20, 30}, {1, 0, 0}), 10);
    EXPECT_EQ(grayOf({10, 20, 30}, {0, 0, 1}), 30);
    EXPECT_EQ(grayOf({255, 255, 255}, {1.0f / 3, 1.0f / 3, 1.0f / 3}), 255); // 3 x 1365: 254.94
    EXPECT_EQ(grayOf({200, 100, 0}, {1, 1, 0}), 255);                        // 300
    EXPECT_EQ(grayOf({8, 8, 8}, {0.0001f, 0, 0}), 0);                        // 0.4 units
    EXPECT_EQ(grayOf({100, 0, 0}, {17, 0, 0}), 100);                         // 17 x 4096 = 65536 + 4096
    EXPECT_EQ(grayOf({1, 0, 0}, {-0.25f, 0, 0}), 16);                        // -1023 is 64513: 15.75 + 0.5
    EXPECT_EQ(grayOf({100, 0, 0}, {std::numeric_limits<float>::infinity(), 0, 0}), 0);
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
