// SPDX-License-Identifier: MIT
// Properties that any right picture of a mosaic has.
#include <cstdlib>
#include <random>

#include "tests/demosaic/demosaic.h"

namespace zorcc::test {
namespace {

int maximumOf(const reference::Case& c) { return functionOf(c).source->sample == interface::Sample::u8 ? 255 : 65535; }

Mosaic anyMosaic(ZorSize size, ZorBayerGrid grid, int maximum)
{
    static std::mt19937 random(1);
    return mosaicOf(size, grid, maximum, [&](int, int) { return static_cast<int>(random()) & maximum; });
}

TEST(DemosaicProperties, FlatStaysFlat)
{
    for (const reference::Case& c : familyCases())
        for (const ZorBayerGrid grid : grids)
            for (const int level : {0, 1, 2, 77, maximumOf(c) / 2, maximumOf(c) - 1, maximumOf(c)})
                EXPECT_EQ(run(c.name, mosaicOf({37, 23}, grid, maximumOf(c), [&](int, int) { return level; })).samples,
                          std::vector<int>(37 * 23 * 3, level))
                    << c.name << ", grid " << grid;
}

// Without its first column a BGGR mosaic is a GBRG one, without its first row a GRBG one; far from the edges no pixel
// knows.
TEST(DemosaicProperties, GridMovesWithTheImage)
{
    const struct {
        int x, y;
        ZorBayerGrid grid;
    } cuts[] = {{1, 0, zorBayerGBRG}, {0, 1, zorBayerGRBG}, {1, 1, zorBayerRGGB}};
    for (const reference::Case& c : familyCases()) {
        const Mosaic whole = anyMosaic({70, 60}, zorBayerBGGR, maximumOf(c));
        const Picture expected = run(c.name, whole);
        for (const auto& cut : cuts) {
            const Picture picture = run(c.name, mosaicOf({70 - cut.x, 60 - cut.y}, cut.grid, whole.maximum,
                                                         [&](int x, int y) { return whole(x + cut.x, y + cut.y); }));
            for (int y = 10; y < 50; ++y)
                for (int x = 10; x < 59; ++x) ASSERT_EQ(at(picture, x, y), at(expected, x + cut.x, y + cut.y));
        }
    }
}

TEST(DemosaicProperties, SitesKeepTheirSamples)
{
    for (const reference::Case& c : familyCases())
        for (const ZorBayerGrid grid : grids) {
            const Mosaic mosaic = anyMosaic({45, 31}, grid, maximumOf(c));
            const Picture picture = run(c.name, mosaic);
            for (int y = 0; y < 31; ++y)
                for (int x = 0; x < 45; ++x) ASSERT_EQ(picture(x, y, mosaic.colour(x, y)), mosaic(x, y)) << c.name;
        }
}

// But for the rounding to 8 bits, by up to half of 257.
TEST(DemosaicProperties, SameOf8And16Bits)
{
    for (const ZorBayerGrid grid : grids) {
        const Mosaic bytes = anyMosaic({301, 97}, grid, 255);
        const auto asWord = [&](int x, int y) { return 257 * bytes(x, y); };
        const Picture a = run(familyCases()[0].name, bytes),
                      b = run(familyCases()[1].name, mosaicOf(bytes.size, grid, 65535, asWord));
        for (std::size_t i = 0; i < a.samples.size(); ++i)
            ASSERT_LE(std::abs(b.samples[i] - 257 * a.samples[i]), 129) << "sample " << i;
    }
}

} // namespace
} // namespace zorcc::test
