// SPDX-License-Identifier: MIT
// Gradients, worked out by hand.
#include "tests/demosaic/demosaic.h"

namespace zorcc::test {
namespace {

class BayerGolden : public OnEveryTier {
protected:
    const interface::Function& function = *interface::findFunction("zoriCFAToRGB_8u_C1C3R");
};

// Blue at (0, 0).
TEST_P(BayerGolden, Frame)
{
    const Mosaic mosaic{{4, 4},
                        zorBayerBGGR,
                        255,
                        {10, 21, 30, 41, //
                         51, 60, 71, 80, //
                         91, 101, 110, 121, 131, 140, 150, 161}};
    const Picture picture = run(function, mosaic);
    EXPECT_EQ(at(picture, 0, 0), (Rgb{60, 36, 10})); // (2 * 51 + 2 * 21 + 2) / 4
    EXPECT_EQ(at(picture, 1, 0), (Rgb{60, 21, 20}));
    EXPECT_EQ(at(picture, 2, 0), (Rgb{70, 51, 30}));    // (2 * 71 + 21 + 41 + 2) / 4
    EXPECT_EQ(at(picture, 3, 0), (Rgb{80, 41, 30}));    // its blue is that of the left
    EXPECT_EQ(at(picture, 0, 1), (Rgb{60, 51, 51}));    // blue (10 + 91 + 1) / 2
    EXPECT_EQ(at(picture, 1, 1), (Rgb{60, 61, 60}));    // green (21 + 101 + 51 + 71 + 2) / 4; blue 241 / 4
    EXPECT_EQ(at(picture, 3, 3), (Rgb{161, 136, 110})); // green (121 + 150 + 1) / 2
}

// Along the smaller change of the site's own colour.
TEST_P(BayerGolden, Directions)
{
    Mosaic mosaic = mosaicOf({7, 7}, zorBayerRGGB, 255, [](int, int) { return 100; });
    mosaic(2, 1) = 201; // above
    mosaic(2, 3) = 50;  // below
    mosaic(1, 2) = 11;  // left
    mosaic(3, 2) = 20;  // right
    struct {
        int left, right, above, below; // the red samples around the one at (2, 2)
        int expected;
    } const cases[] = {{100, 100, 100, 100, 71},                       // both equal: (201 + 50 + 11 + 20 + 2) / 4
                       {90, 80, 40, 50, 71},     {90, 81, 40, 50, 16}, // (11 + 20 + 1) / 2
                       {90, 80, 40, 49, 126},                          // (201 + 50 + 1) / 2
                       {255, 0, 255, 1, 126},    {0, 255, 255, 0, 71}};
    for (const auto& c : cases) {
        mosaic(0, 2) = c.left;
        mosaic(4, 2) = c.right;
        mosaic(2, 0) = c.above;
        mosaic(2, 4) = c.below;
        EXPECT_EQ(run(function, mosaic)(2, 2, green), c.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Tiers, BayerGolden, testing::ValuesIn(tiersHere().begin(), tiersHere().end()),
                         [](const auto& tier) { return nameOf(tier.param); });

} // namespace
} // namespace zorcc::test
