// SPDX-License-Identifier: MIT
// Properties that any right picture of a mosaic has.
#include <cstdlib>
#include <random>

#include "tests/demosaic/demosaic.h"

namespace zorcc::test {
namespace {

class DemosaicProperties : public testing::TestWithParam<reference::Case> {
protected:
    const interface::Function& function = functionOf(GetParam());
    const int maximum = function.source->sample == interface::Sample::u8 ? 255 : 65535;
    std::mt19937 random{1};

    Mosaic anyMosaic(ZorSize size, ZorBayerGrid grid)
    {
        return mosaicOf(size, grid, maximum,
                        [&](int, int) { return static_cast<int>(random() & static_cast<unsigned>(maximum)); });
    }
};

TEST_P(DemosaicProperties, FlatStaysFlat)
{
    for (const ZorBayerGrid grid : grids)
        for (const int level : {0, 1, 2, 77, maximum / 2, maximum - 1, maximum}) {
            const Picture picture = run(function, mosaicOf({37, 23}, grid, maximum, [&](int, int) { return level; }));
            for (const int sample : picture.samples) ASSERT_EQ(sample, level) << "grid " << grid;
        }
}

// Without its first column a BGGR mosaic is a GBRG one, without its first row a GRBG one; far from the edges no pixel
// knows.
TEST_P(DemosaicProperties, GridMovesWithTheImage)
{
    const Mosaic whole = anyMosaic({70, 60}, zorBayerBGGR);
    const Picture expected = run(function, whole);
    struct {
        int x, y;
        ZorBayerGrid grid;
    } const cuts[] = {{1, 0, zorBayerGBRG}, {0, 1, zorBayerGRBG}, {1, 1, zorBayerRGGB}};
    for (const auto& cut : cuts) {
        const Picture picture = run(function, mosaicOf({70 - cut.x, 60 - cut.y}, cut.grid, maximum,
                                                       [&](int x, int y) { return whole(x + cut.x, y + cut.y); }));
        for (int y = 10; y < 50; ++y)
            for (int x = 10; x < 59; ++x) ASSERT_EQ(at(picture, x, y), at(expected, x + cut.x, y + cut.y));
    }
}

TEST_P(DemosaicProperties, SitesKeepTheirSamples)
{
    for (const ZorBayerGrid grid : grids) {
        const Mosaic mosaic = anyMosaic({45, 31}, grid);
        const Picture picture = run(function, mosaic);
        for (int y = 0; y < 31; ++y)
            for (int x = 0; x < 45; ++x) ASSERT_EQ(picture(x, y, mosaic.colour(x, y)), mosaic(x, y));
    }
}

INSTANTIATE_TEST_SUITE_P(Functions, DemosaicProperties, testing::ValuesIn(familyCases().begin(), familyCases().end()),
                         caseName<testing::TestParamInfo<reference::Case>>);

TEST(DemosaicDepths, SameOf8And16Bits)
{
    std::mt19937 random(2);
    const interface::Function &bytes = functionOf(familyCases()[0]), &words = functionOf(familyCases()[1]);
    for (const ZorBayerGrid grid : grids) {
        const Mosaic mosaic =
            mosaicOf({301, 97}, grid, 255, [&](int, int) { return static_cast<int>(random() & 255); });
        const Picture a = run(bytes, mosaic),
                      b = run(words,
                              mosaicOf(mosaic.size, grid, 65535, [&](int x, int y) { return 257 * mosaic(x, y); }));
        for (std::size_t i = 0; i < a.samples.size(); ++i)
            ASSERT_LE(std::abs(b.samples[i] - 257 * a.samples[i]), 2 * 257) << "sample " << i;
    }
}

} // namespace
} // namespace zorcc::test
