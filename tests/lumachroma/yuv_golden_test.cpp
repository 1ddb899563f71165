// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "tests/harness/test_image.h"
#include "tests/harness/tiers.h"
#include "tests/reference/pixels.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using interface::Function;
using reference::Pixels;
using Colour = std::array<int, 3>;

// An image of one colour gives an image of one colour.
struct Golden {
    std::vector<const char*> functions;
    Colour source, destination;
    int width = 48;
};

// Functions of one formula.
const std::vector<const char*> toYuv = {"zoriRGBToYUV_8u_C3R", "zoriRGBToYUV_8u_AC4R", "zoriRGBToYUV_8u_AC4P4R",
                                        "zoriRGBToYUV_8u_C3P3R"};
const std::vector<const char*> toYuvMatrix = {"zoriRGBToYUV_8u_P3R"};
const std::vector<const char*> toPairs = {"zoriRGBToYUV422_8u_C3C2R", "zoriRGBToYUV422_8u_C3P3R",
                                          "zoriRGBToYUV422_8u_C3P3", "zoriRGBToYUV422_8u_P3R", "zoriRGBToYUV422_8u_P3"};
const std::vector<const char*> toBlocksQ14 = {"zoriRGBToYUV420_8u_C3P3R", "zoriRGBToYUV420_8u_C3P3"};
const std::vector<const char*> toBlocksQ16 = {"zoriRGBToYUV420_8u_P3R", "zoriRGBToYUV420_8u_P3",
                                              "zoriBGRToYUV420_8u_AC4P3R"};
const std::vector<const char*> from565 = {"zoriRGB565ToYUV420_16u8u_C3P3R", "zoriRGB565ToYUV422_16u8u_C3P3R"};
const std::vector<const char*> toRgb = {
    "zoriYUVToRGB_8u_C3R",     "zoriYUVToRGB_8u_AC4R",   "zoriYUV422ToRGB_8u_C2C3R", "zoriYUV422ToRGB_8u_P3C3R",
    "zoriYUV422ToRGB_8u_P3C3", "zoriYUV422ToRGB_8u_P3R", "zoriYUV422ToRGB_8u_P3",    "zoriYUV420ToRGB_8u_P3C3R",
    "zoriYUV420ToRGB_8u_P3C3", "zoriYUV420ToRGB_8u_P3R", "zoriYUV420ToRGB_8u_P3",    "zoriYUV420ToBGR_8u_P3C3R"};
const std::vector<const char*> toRgbPlanarWeights = {"zoriYUVToRGB_8u_P3C3R", "zoriYUVToRGB_8u_P3R"};
const std::vector<const char*> toRgbRounded = {"zoriYUV422ToRGB_8u_P3AC4R", "zoriYUV420ToRGB_8u_P3AC4R"};

const Golden goldenColours[] = {
    {toYuv, {255, 255, 255}, {255, 128, 128}},
    {toYuv, {0, 0, 0}, {0, 128, 128}},
    {toYuv, {0, 0, 255}, {29, 239, 102}},
    {toYuv, {255, 0, 0}, {76, 90, 255}}, // V 284 saturates
    {toYuv, {0, 255, 0}, {149, 54, 0}},  // V -4 saturates
    // Luma 2883580 / 65536 = 43.9995, at 14 bits 720920 / 16384 = 44.001. B - Y is 136.5 on one pixel, 273.0003 on two,
    // 546.0001 on four with rounding: U 66.9, 67.2, 67.2 above 128.
    {toYuv, {0, 40, 180}, {43, 194, 89}},
    {toPairs, {0, 40, 180}, {43, 195, 89}},
    {toBlocksQ14, {0, 40, 180}, {44, 194, 89}},
    {toBlocksQ16, {0, 40, 180}, {43, 195, 89}},
    {toBlocksQ14, {255, 255, 255}, {255, 128, 128}},
    {toBlocksQ16, {255, 255, 255}, {255, 128, 128}},
    {toPairs, {255, 255, 255}, {255, 128, 128}},
    // Of green 115 and blue 250, luma in blocks of 16: (17280 + 7295) >> 8 = 95; in one sum: 6291685 >> 16 = 96.
    {toYuvMatrix, {0, 115, 250}, {95, 203, 43}, 48},
    {toYuvMatrix, {0, 115, 250}, {96, 203, 43}, 15},
    {toYuvMatrix, {255, 255, 255}, {254, 128, 128}},
    // White is 248, 252, 248: luma 16406808 / 65536 = 250.3.
    {from565, {255, 255, 255}, {250, 127, 126}},
    {from565, {248, 0, 0}, {74, 91, 255}},
    {from565, {0, 252, 0}, {147, 55, 0}},
    {from565, {0, 0, 248}, {28, 236, 103}},

    {toRgb, {0, 0, 0}, {0, 124, 0}},
    {toRgb, {128, 128, 128}, {128, 128, 128}},
    {toRgb, {255, 255, 255}, {255, 131, 255}},
    // Green: 25821 * 46 + 38076 * 17 = 1835058, 18 above 28 * 65536; with weights less by one it is 45 below.
    {toRgb, {100, 174, 145}, {119, 71, 193}},
    {toRgbPlanarWeights, {100, 174, 145}, {119, 72, 193}},
    {toRgbPlanarWeights, {0, 0, 0}, {0, 124, 0}},
    {toRgbRounded, {0, 0, 0}, {0, 125, 0}}, // 124.6
    {toRgbRounded, {100, 129, 127}, {99, 100, 102}},
    {toRgb, {100, 129, 127}, {98, 100, 102}}, // red 98.86
};

TEST(YuvGolden, Colours)
{
    for (const Golden& golden : goldenColours)
        for (const char* name : golden.functions) {
            const Function* function = interface::findFunction(name);
            ASSERT_TRUE(function) << name;
            const ZorSize size{golden.width, 2};
            const ZorSize used{golden.width & (function->destination->log2Y() > 0 ? ~1 : ~0), 2};
            TestImage source, destination;
            source.arrange(*function->source, size, used, {}, sourceSteps(function->signature));
            Pixels from(*function->source, source.image(), used);
            for (int y = 0; y < used.height; ++y)
                for (int x = 0; x < used.width; ++x)
                    for (int c = 0; c < 3; ++c)
                        if (from.has(c, x, y)) from.put(c, x, y, golden.source[c]);
            for (const Tier tier : tiersHere()) {
                const OnTier chosen(tier);
                destination.arrange(*function->destination, size, used, {}, destinationSteps(function->signature));
                destination.fillPattern(1);
                ASSERT_EQ((*function)(source.image(), destination.image(), size), zorStatusOk) << name;
                const Pixels to(*function->destination, destination.image(), used);
                for (int y = 0; y < used.height; ++y)
                    for (int x = 0; x < used.width; ++x)
                        for (int c = 0; c < 3; ++c) {
                            if (!to.has(c, x, y)) continue;
                            ASSERT_EQ(to.get(c, x, y), golden.destination[c])
                                << name << " on " << nameOf(tier) << ", channel " << c << ", (" << x << ", " << y
                                << ")";
                        }
            }
        }
}

// The tests below write memory out byte by byte, so that they say what the formats are.
constexpr std::uint8_t kept = 0xee;
template <std::size_t count> using Bytes = std::array<std::uint8_t, count>;

class YuvBytes : public testing::TestWithParam<Tier> {
protected:
    OnTier chosen{GetParam()};
};

// Blue and black as a pair: B - Y is 226.9, U 55.6 above 128; R - Y is -28.07 so -29, V 12.7 below. Red alone.
TEST_P(YuvBytes, PackedPairsWithOddEnd)
{
    const Bytes<9> rgb = {0, 0, 255, 0, 0, 0, 255, 0, 0};
    Bytes<8> yuv;
    yuv.fill(kept);
    EXPECT_EQ(zoriRGBToYUV422_8u_C3C2R(rgb.data(), 9, yuv.data(), 8, {3, 1}), zorStatusOk);
    EXPECT_EQ(yuv, (Bytes<8>{29, 183, 0, 115, 76, 90, kept, kept}));
}

TEST_P(YuvBytes, PlanarPairsWithOddEnd)
{
    const Bytes<9> rgb = {0, 0, 255, 0, 0, 0, 255, 0, 0};
    Bytes<4> y, u, v;
    y.fill(kept);
    u.fill(kept);
    v.fill(kept);
    std::uint8_t* const planes[] = {y.data(), u.data(), v.data()};
    const int steps[] = {4, 4, 4};
    EXPECT_EQ(zoriRGBToYUV422_8u_C3P3R(rgb.data(), 9, planes, steps, {3, 1}), zorStatusOk);
    EXPECT_EQ(y, (Bytes<4>{29, 0, 76, kept}));
    EXPECT_EQ(u, (Bytes<4>{183, kept, kept, kept}));
    EXPECT_EQ(v, (Bytes<4>{115, kept, kept, kept}));
}

// The last pixel takes its own U, 1, and the V of the pair before, 17: green 5880487 / 65536 = 89.7.
TEST_P(YuvBytes, FromPackedPairsWithOddEnd)
{
    const Bytes<6> yuv = {100, 174, 100, 145, 100, 129};
    Bytes<12> rgb;
    rgb.fill(kept);
    EXPECT_EQ(zoriYUV422ToRGB_8u_C2C3R(yuv.data(), 6, rgb.data(), 12, {3, 1}), zorStatusOk);
    EXPECT_EQ(rgb, (Bytes<12>{119, 71, 193, 119, 71, 193, 119, 89, 102, kept, kept, kept}));
}

// One byte of chroma serves as U and V: green (6553600 - 63897) / 65536 = 99.02.
TEST_P(YuvBytes, FromPackedPairsOneWide)
{
    const Bytes<4> yuv = {100, 129, 100, 127};
    Bytes<6> rgb;
    EXPECT_EQ(zoriYUV422ToRGB_8u_C2C3R(yuv.data(), 2, rgb.data(), 3, {1, 2}), zorStatusOk);
    EXPECT_EQ(rgb, (Bytes<6>{101, 99, 102, 98, 100, 97}));
}

TEST_P(YuvBytes, FromPlanarPairsWithOddEnd)
{
    const Bytes<3> y = {100, 100, 100};
    const std::uint8_t u = 174, v = 145;
    const std::uint8_t* const planes[] = {y.data(), &u, &v};
    const int steps[] = {3, 1, 1};
    Bytes<9> rgb;
    EXPECT_EQ(zoriYUV422ToRGB_8u_P3C3R(planes, steps, rgb.data(), 9, {3, 1}), zorStatusOk);
    EXPECT_EQ(rgb, (Bytes<9>{119, 71, 193, 119, 71, 193, 119, 71, 193}));
    EXPECT_EQ(zoriYUV422ToRGB_8u_P3C3R(planes, steps, rgb.data(), 9, {1, 1}), zorStatusOk);
    EXPECT_EQ(rgb, (Bytes<9>{100, 100, 100, 119, 71, 193, 119, 71, 193}));
}

// Of 5 x 3 pixels the 4 x 2 in whole blocks.
TEST_P(YuvBytes, BlocksOfOddImage)
{
    Bytes<45> rgb;
    rgb.fill(255);
    Bytes<15> y;
    Bytes<6> u, v;
    y.fill(kept);
    u.fill(kept);
    v.fill(kept);
    std::uint8_t* const planes[] = {y.data(), u.data(), v.data()};
    EXPECT_EQ(zoriRGBToYUV420_8u_C3P3(rgb.data(), planes, {5, 3}), zorStatusOddSize);
    EXPECT_EQ(y, (Bytes<15>{255, 255, 255, 255, kept, 255, 255, 255, 255, kept, kept, kept, kept, kept, kept}));
    EXPECT_EQ(u, (Bytes<6>{128, 128, kept, kept, kept, kept}));
    EXPECT_EQ(v, (Bytes<6>{128, 128, kept, kept, kept, kept}));
}

// Red in the lowest bits.
TEST_P(YuvBytes, Words565)
{
    const std::array<std::uint16_t, 6> words = {0x001f, 0x001f, 0x07e0, 0x07e0, 0xf800, 0xf800};
    Bytes<6> y;
    Bytes<3> u, v;
    std::uint8_t* const planes[] = {y.data(), u.data(), v.data()};
    const int steps[] = {6, 3, 3};
    EXPECT_EQ(zoriRGB565ToYUV422_16u8u_C3P3R(words.data(), 12, planes, steps, {6, 1}), zorStatusOk);
    EXPECT_EQ(y, (Bytes<6>{74, 74, 147, 147, 28, 28}));
    EXPECT_EQ(u, (Bytes<3>{91, 55, 236}));
    EXPECT_EQ(v, (Bytes<3>{255, 0, 103}));
}

TEST_P(YuvBytes, ChannelsAndAlpha)
{
    const Bytes<4> blue = {0, 0, 255, 77};
    Bytes<4> yuva = {kept, kept, kept, kept};
    EXPECT_EQ(zoriRGBToYUV_8u_AC4R(blue.data(), 4, yuva.data(), 4, {1, 1}), zorStatusOk);
    EXPECT_EQ(yuva, (Bytes<4>{29, 239, 102, kept}));

    Bytes<4> planar = {kept, kept, kept, kept};
    std::uint8_t* const planes[] = {&planar[0], &planar[1], &planar[2], &planar[3]};
    EXPECT_EQ(zoriRGBToYUV_8u_AC4P4R(blue.data(), 4, planes, 1, {1, 1}), zorStatusOk);
    EXPECT_EQ(planar, (Bytes<4>{29, 239, 102, 77}));

    const Bytes<4> y = {100, 100, 100, 100};
    const std::uint8_t u = 174, v = 145;
    const std::uint8_t* const yuv[] = {y.data(), &u, &v};
    const int steps[] = {2, 1, 1};
    Bytes<16> rgba;
    rgba.fill(kept);
    EXPECT_EQ(zoriYUV420ToRGB_8u_P3AC4R(yuv, steps, rgba.data(), 8, {2, 2}), zorStatusOk);
    EXPECT_EQ(rgba, (Bytes<16>{119, 72, 193, 0, 119, 72, 193, 0, 119, 72, 193, 0, 119, 72, 193, 0}));
    Bytes<12> bgr;
    EXPECT_EQ(zoriYUV420ToBGR_8u_P3C3R(yuv, steps, bgr.data(), 6, {2, 2}), zorStatusOk);
    EXPECT_EQ(bgr, (Bytes<12>{193, 71, 119, 193, 71, 119, 193, 71, 119, 193, 71, 119}));
}

INSTANTIATE_TEST_SUITE_P(Tiers, YuvBytes, testing::ValuesIn(tiersHere().begin(), tiersHere().end()),
                         [](const auto& tier) { return nameOf(tier.param); });

} // namespace
} // namespace zorcc::test
