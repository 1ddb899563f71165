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
// that of the row, (51 + 60) / 2 = 55, rounded down, and (2 * 90 - 83 - 70) / 4 = 6. The same with rows for columns.
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

} // namespace
} // namespace zorcc::test
