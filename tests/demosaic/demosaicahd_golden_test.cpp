// SPDX-License-Identifier: MIT
// Choices of a direction, worked out by hand.
#include "tests/demosaic/demosaic.h"

namespace zorcc::test {
namespace {

constexpr const char* function = "zoriDemosaicAHD_8u_C1C3R";

// Rows of one value each have one direction: green is the average of two equal neighbours corrected by nothing, so that
// every row comes out as it went in, whatever lies above and below. So do columns.
TEST(DemosaicahdGolden, Stripes)
{
    for (const bool columns : {false, true})
        for (const ZorBayerGrid grid : grids) {
            const auto level = [&](int x, int y) { return (columns ? x : y) / 3 % 2 == 0 ? 40 : 200; };
            const Picture picture = run(function, mosaicOf({40, 40}, grid, 255, level));
            for (int y = 8; y < 32; ++y)
                for (int x = 8; x < 32; ++x) ASSERT_EQ(picture(x, y, green), level(x, y)) << x << " " << y;
        }
}

// Down the columns nothing changes: that is the direction, and green the average of the greens above and below, not
// that of the row, (51 + 60) / 2 and (2 * 90 - 83 - 70) / 4, limited to 60. The same with rows for columns.
TEST(DemosaicahdGolden, GreenOfOneDirection)
{
    constexpr int redRow[] = {83, 51, 90, 60, 70}, blueRow[] = {44, 30, 51, 30, 44};
    for (const bool turned : {false, true}) {
        const auto sample = [&](int x, int y) {
            if (turned) std::swap(x, y);
            return x < 10 || x > 14 ? 20 : y % 2 == 0 ? redRow[x - 10] : blueRow[x - 10];
        };
        EXPECT_EQ(run(function, mosaicOf({24, 24}, zorBayerRGGB, 255, sample))(12, 12, green), 51);
    }
}

// Both candidates have the green around a single brighter site, 120 less than its red, and zeros elsewhere. On its
// diagonal, red at the blue site is 120 x 4^2 / (4^2 + 124^2) / 2 = 0.06 above green; at the green pixels beside it
// half of (120 + 0) / 2 and half of that. The median of the site and its neighbours is these 30.03, so that its green
// is 180 - (120 - 3/4 x 89.97); that of the green pixels is 0.06, so that 60 + 30.03 - 3/4 x 29.97 is left of red.
TEST(DemosaicahdGolden, OneBrightSite)
{
    const auto sample = [](int x, int y) { return x == 12 && y == 12 ? 180 : 60; };
    const Picture picture = run(function, mosaicOf({24, 24}, zorBayerRGGB, 255, sample));
    EXPECT_EQ(at(picture, 12, 12), (Rgb{180, 127, 127}));
    for (const int side : {-1, 1}) {
        EXPECT_EQ(at(picture, 12 + side, 12), (Rgb{68, 60, 60}));
        EXPECT_EQ(at(picture, 12, 12 + side), (Rgb{68, 60, 60}));
        EXPECT_EQ(at(picture, 12 + side, 12 + side), (Rgb{60, 60, 60}));
        EXPECT_EQ(at(picture, 12 + side, 12 - side), (Rgb{60, 60, 60}));
    }
}

} // namespace
} // namespace zorcc::test
