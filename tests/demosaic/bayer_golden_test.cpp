// SPDX-License-Identifier: MIT
// Gradients, worked out by hand.
#include "tests/demosaic/demosaic.h"

namespace zorcc::test {
namespace {

constexpr const char* function = "zoriCFAToRGB_8u_C1C3R";

// Blue at (0, 0).
TEST(BayerGolden, Frame)
{
    const Picture picture = run(function, {{4, 4},
                                           zorBayerBGGR,
                                           255,
                                           {10, 21, 30, 41, //
                                            51, 60, 71, 80, //
                                            91, 101, 110, 121, 131, 140, 150, 161}});
    EXPECT_EQ(at(picture, 0, 0), (Rgb{60, 36, 10})); // (2 * 51 + 2 * 21 + 2) / 4
    EXPECT_EQ(at(picture, 1, 0), (Rgb{60, 21, 20}));
    EXPECT_EQ(at(picture, 2, 0), (Rgb{70, 51, 30}));    // (2 * 71 + 21 + 41 + 2) / 4
    EXPECT_EQ(at(picture, 3, 0), (Rgb{80, 41, 30}));    // its blue is that of the left
    EXPECT_EQ(at(picture, 0, 1), (Rgb{60, 51, 51}));    // blue (10 + 91 + 1) / 2
    EXPECT_EQ(at(picture, 1, 1), (Rgb{60, 61, 60}));    // green (21 + 101 + 51 + 71 + 2) / 4; blue 241 / 4
    EXPECT_EQ(at(picture, 3, 3), (Rgb{161, 136, 110})); // green (121 + 150 + 1) / 2
}

// Along the smaller change of the site's own colour.
TEST(BayerGolden, Directions)
{
    const struct {
        int left, right, above, below; // the red samples around the one at (2, 2)
        int expected;
    } cases[] = {{100, 100, 100, 100, 71},                       // both equal: (201 + 50 + 11 + 20 + 2) / 4
                 {90, 80, 40, 50, 71},     {90, 81, 40, 50, 16}, // (11 + 20 + 1) / 2
                 {90, 80, 40, 49, 126},                          // (201 + 50 + 1) / 2
                 {255, 0, 255, 1, 126},    {0, 255, 255, 0, 71}};
    for (const auto& c : cases) {
        const Mosaic mosaic{{5, 5}, zorBayerRGGB, 255, {100,    100, c.above, 100, 100,     //
                                                        100,    100, 201,     100, 100,     //
                                                        c.left, 11,  100,     20,  c.right, //
                                                        100,    100, 50,      100, 100,     //
                                                        100,    100, c.below, 100, 100}};
        EXPECT_EQ(run(function, mosaic)(2, 2, green), c.expected);
    }
}

} // namespace
} // namespace zorcc::test
