// SPDX-License-Identifier: MIT
// Results worked out by hand, and properties that any right result has.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <utility>
#include <vector>

#include "tests/demosaic/mosaic_checker.h"
#include "tests/harness/picture.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

using reference::blue;
using reference::green;
using reference::Mosaic;
using reference::Picture;
using reference::red;
using Rgb = std::array<int, 3>;

// What the library makes of a whole mosaic, on the active tier.
Picture run(const Method& method, const Mosaic& mosaic)
{
    const auto [width, height] = mosaic.size;
    const interface::Function& function = method.function();
    TestImage source, destination;
    source.arrange(*function.source, mosaic.size, mosaic.size, {}, StepArguments::one);
    destination.arrange(*function.destination, mosaic.size, mosaic.size, {}, StepArguments::one);
    reference::Pixels from(*function.source, source.image(), mosaic.size);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) from.put(0, x, y, mosaic(x, y));
    EXPECT_EQ(function(source.image(), destination.image(), mosaic.size, {.grid = mosaic.grid}), zorStatusOk);
    Picture picture{mosaic.size};
    const reference::Pixels to(*function.destination, destination.image(), mosaic.size);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 3; ++c) picture(x, y, c) = to.get(c, x, y);
    return picture;
}

Rgb at(const Picture& picture, int x, int y) { return {picture(x, y, 0), picture(x, y, 1), picture(x, y, 2)}; }

class OnEveryTier : public testing::TestWithParam<Tier> {
protected:
    OnTier chosen{GetParam()};
};

class GradientGolden : public OnEveryTier {
protected:
    const Method& method = methodNamed("zoriCFAToRGB_8u_C1C3R");
};

// Blue at (0, 0).
TEST_P(GradientGolden, Frame)
{
    const Mosaic mosaic{{4, 4},
                        zorBayerBGGR,
                        255,
                        {10, 21, 30, 41, //
                         51, 60, 71, 80, //
                         91, 101, 110, 121, 131, 140, 150, 161}};
    const Picture picture = run(method, mosaic);
    EXPECT_EQ(at(picture, 0, 0), (Rgb{60, 36, 10})); // (2 * 51 + 2 * 21 + 2) / 4
    EXPECT_EQ(at(picture, 1, 0), (Rgb{60, 21, 20}));
    EXPECT_EQ(at(picture, 2, 0), (Rgb{70, 51, 30}));    // (2 * 71 + 21 + 41 + 2) / 4
    EXPECT_EQ(at(picture, 3, 0), (Rgb{80, 41, 30}));    // its blue is that of the left
    EXPECT_EQ(at(picture, 0, 1), (Rgb{60, 51, 51}));    // blue (10 + 91 + 1) / 2
    EXPECT_EQ(at(picture, 1, 1), (Rgb{60, 61, 60}));    // green (21 + 101 + 51 + 71 + 2) / 4; blue 241 / 4
    EXPECT_EQ(at(picture, 3, 3), (Rgb{161, 136, 110})); // green (121 + 150 + 1) / 2
}

// Along the smaller change of the site's own colour.
TEST_P(GradientGolden, Directions)
{
    Mosaic mosaic{{7, 7}, zorBayerRGGB, 255};
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 7; ++x) mosaic(x, y) = 100;
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
        EXPECT_EQ(run(method, mosaic)(2, 2, green), c.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Tiers, GradientGolden, testing::ValuesIn(tiersHere().begin(), tiersHere().end()),
                         [](const auto& tier) { return nameOf(tier.param); });

class AdaptiveGolden : public OnEveryTier {
protected:
    const Method& method = methodNamed("zoriDemosaicAHD_8u_C1C3R");
};

// Rows of one value each have one direction: green is the average of two equal neighbours corrected by nothing, so that
// every row comes out as it went in, whatever lies above and below. So do columns.
TEST_P(AdaptiveGolden, Stripes)
{
    for (const bool columns : {false, true})
        for (const ZorBayerGrid grid : grids) {
            Mosaic mosaic{{40, 40}, grid, 255};
            const auto level = [](int i) { return i / 3 % 2 == 0 ? 40 : 200; };
            for (int y = 0; y < 40; ++y)
                for (int x = 0; x < 40; ++x) mosaic(x, y) = level(columns ? x : y);
            const Picture picture = run(method, mosaic);
            for (int y = 8; y < 32; ++y)
                for (int x = 8; x < 32; ++x) ASSERT_EQ(picture(x, y, green), level(columns ? x : y)) << x << " " << y;
        }
}

// One row of reds and greens, the same in all red rows: (51 + 60) / 2 = 55, rounded down, and (2 * 90 - 83 - 70) / 4
// = 6.
TEST_P(AdaptiveGolden, GreenOfOneDirection)
{
    Mosaic mosaic{{24, 24}, zorBayerRGGB, 255};
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) mosaic(x, y) = 20;
    for (int y = 0; y < 24; ++y) {
        mosaic(11, y) = y % 2 == 0 ? 51 : 30;
        mosaic(12, y) = y % 2 == 0 ? 90 : 51;
        mosaic(13, y) = y % 2 == 0 ? 60 : 30;
        mosaic(10, y) = y % 2 == 0 ? 83 : 44;
        mosaic(14, y) = y % 2 == 0 ? 70 : 44;
    }
    // Down the columns nothing changes: that is the direction, and green the average of the greens above and below.
    EXPECT_EQ(run(method, mosaic)(12, 12, green), 51);
    Mosaic turned{{24, 24}, zorBayerRGGB, 255};
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) turned(x, y) = mosaic(y, x);
    EXPECT_EQ(run(method, turned)(12, 12, green), 51);
}

INSTANTIATE_TEST_SUITE_P(Tiers, AdaptiveGolden, testing::ValuesIn(tiersHere().begin(), tiersHere().end()),
                         [](const auto& tier) { return nameOf(tier.param); });

class DemosaicProperties : public testing::TestWithParam<Method> {
protected:
    const Method& method = GetParam();
    std::mt19937 random{1};

    Mosaic anyMosaic(ZorSize size)
    {
        Mosaic mosaic{size, zorBayerRGGB, (1 << method.bits) - 1};
        for (int& sample : mosaic.samples) sample = static_cast<int>(random() & static_cast<unsigned>(mosaic.maximum));
        return mosaic;
    }
};

TEST_P(DemosaicProperties, FlatStaysFlat)
{
    const int maximum = (1 << method.bits) - 1;
    for (const ZorBayerGrid grid : grids)
        for (const int level : {0, 1, 2, 77, maximum / 2, maximum - 1, maximum}) {
            Mosaic mosaic{{37, 23}, grid, maximum};
            for (int& sample : mosaic.samples) sample = level;
            const Picture picture = run(method, mosaic);
            for (const int sample : picture.samples) ASSERT_EQ(sample, level) << "grid " << grid;
        }
}

// Without its first column a BGGR mosaic is a GBRG one, without its first row a GRBG one; far from the edges no pixel
// knows.
TEST_P(DemosaicProperties, GridMovesWithTheImage)
{
    Mosaic whole = anyMosaic({70, 60});
    whole.grid = zorBayerBGGR;
    const Picture expected = run(method, whole);
    struct {
        int x, y;
        ZorBayerGrid grid;
    } const cuts[] = {{1, 0, zorBayerGBRG}, {0, 1, zorBayerGRBG}, {1, 1, zorBayerRGGB}};
    for (const auto& cut : cuts) {
        Mosaic part{{70 - cut.x, 60 - cut.y}, cut.grid, whole.maximum};
        for (int y = 0; y < part.size.height; ++y)
            for (int x = 0; x < part.size.width; ++x) part(x, y) = std::as_const(whole)(x + cut.x, y + cut.y);
        const Picture picture = run(method, part);
        for (int y = 10; y < 50; ++y)
            for (int x = 10; x < 59; ++x) ASSERT_EQ(at(picture, x, y), at(expected, x + cut.x, y + cut.y));
    }
}

// Sites keep their value.
TEST_P(DemosaicProperties, SamplesAreKept)
{
    for (const ZorBayerGrid grid : grids) {
        Mosaic mosaic = anyMosaic({45, 31});
        mosaic.grid = grid;
        const Picture picture = run(method, mosaic);
        for (int y = 0; y < 31; ++y)
            for (int x = 0; x < 45; ++x) ASSERT_EQ(picture(x, y, mosaic.colour(x, y)), std::as_const(mosaic)(x, y));
    }
}

INSTANTIATE_TEST_SUITE_P(Functions, DemosaicProperties, testing::ValuesIn(methods().begin(), methods().end()),
                         nameOfMethod);

void expectSameAt16Bits(const char* name8, const char* name16, const Mosaic& mosaic)
{
    Mosaic wide = mosaic;
    wide.maximum = 65535;
    for (int& sample : wide.samples) sample *= 257;
    const Picture a = run(methodNamed(name8), mosaic), b = run(methodNamed(name16), wide);
    for (std::size_t i = 0; i < a.samples.size(); ++i)
        ASSERT_LE(std::abs(b.samples[i] - 257 * a.samples[i]), 2 * 257) << name8 << ", sample " << i;
}

TEST(DemosaicDepths, SameOf8And16Bits)
{
    std::mt19937 random(2);
    for (const ZorBayerGrid grid : grids) {
        Mosaic mosaic{{301, 97}, grid, 255};
        for (int& sample : mosaic.samples) sample = static_cast<int>(random() & 255);
        expectSameAt16Bits("zoriCFAToRGB_8u_C1C3R", "zoriCFAToRGB_16u_C1C3R", mosaic);
        expectSameAt16Bits("zoriDemosaicAHD_8u_C1C3R", "zoriDemosaicAHD_16u_C1C3R", mosaic);
    }
}

// Mosaics of real pictures, on which other things happen than on noise.
TEST(DemosaicPictures, AgainstTheReference)
{
    const std::string folder = ZORCC_PICTURES;
    if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no pictures in " << folder;
    for (const char* name : {"parrots_768x512", "chelsea_451x300", "coffee_599x399"}) {
        const test::Picture picture = readPng(folder + "/" + name + ".png");
        Mosaic mosaic{picture.size, zorBayerRGGB, 255};
        for (int y = 0; y < mosaic.size.height; ++y)
            for (int x = 0; x < mosaic.size.width; ++x)
                mosaic(x, y) =
                    picture.rgba[4 * (static_cast<std::size_t>(y) * mosaic.size.width + x) + mosaic.colour(x, y)];
        expectSameAt16Bits("zoriDemosaicAHD_8u_C1C3R", "zoriDemosaicAHD_16u_C1C3R", mosaic);
        for (const Method& method : methods()) {
            Mosaic scaled = mosaic;
            scaled.maximum = (1 << method.bits) - 1;
            for (int& sample : scaled.samples) sample = sample * scaled.maximum / 255;
            MosaicChecker checker(method);
            checker.use(scaled);
            EXPECT_TRUE(checker.checkAll()) << name;
        }
    }
}

} // namespace
} // namespace zorcc::test
