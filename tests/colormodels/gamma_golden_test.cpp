// SPDX-License-Identifier: MIT
// Bytes and words worked out by hand and from the curve, all of them; both ways to words; ranges of floats.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "tests/harness/family_test.h"
#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const GoldenColours goldens[] = {
    {{"zoriGammaFwd_8u_C3R", "zoriGammaFwd_8u_P3R", "zoriGammaFwd_8u_C3IR"}, {1, 2, 3}, {4, 9, 14}}, // 4.5, 13.5: even
    {{"zoriGammaFwd_8u_C3R", "zoriGammaFwd_8u_AC4R"}, {4, 5, 255}, {18, 23, 255}},
    {{"zoriGammaFwd_8u_C3R"}, {6, 7, 8}, {27, 30, 34}},
    {{"zoriGammaFwd_8u_C3R"}, {250, 251, 254}, {253, 253, 255}},
    {{"zoriGammaInv_8u_C3R", "zoriGammaInv_8u_AC4IR"}, {0, 2, 3}, {0, 0, 1}},
    {{"zoriGammaInv_8u_C3R", "zoriGammaInv_8u_IP3R"}, {7, 11, 12}, {2, 2, 3}},
    {{"zoriGammaInv_8u_C3R"}, {250, 254, 255}, {245, 253, 255}},
    {{"zoriGammaFwd_16u_C3R"}, {1, 3, 5}, {4, 14, 22}}, // 4.5, 13.5 and 22.5: even
    {{"zoriGammaFwd_16u_C3R", "zoriGammaFwd_16u_IP3R"}, {0, 65535, 1000}, {0, 65535, 4500}},
    {{"zoriGammaInv_16u_C3R"}, {0, 65535, 4500}, {0, 65535, 1000}},
    {{"zoriGammaFwd_32f_C3R"}, {0, 1, 0x1p-7}, {0, 1, 0x1.2p-5}},
    {{"zoriGammaInv_32f_C3R"}, {0, 1, -4.5f}, {0, 1, -1}},
};

TEST(GammaGolden, Colours) { expectGolden(goldens); }

// One sample through all tiers.
float ofFloat(bool inverse, float v, float vMin = 0, float vMax = 1)
{
    float results[3][3];
    std::vector<Tier> tiers(tiersHere().begin(), tiersHere().end());
    for (std::size_t t = 0; t < tiers.size(); ++t) {
        const OnTier chosen(tiers[t]);
        const float pixel[] = {v, v, v};
        EXPECT_EQ(
            (inverse ? zoriGammaInv_32f_C3R : zoriGammaFwd_32f_C3R)(pixel, 12, results[t], 12, {1, 1}, vMin, vMax),
            zorStatusOk);
        EXPECT_EQ(std::memcmp(results[t], results[0], sizeof results[0]), 0) << v << " on " << nameOf(tiers[t]);
    }
    return results[0][0];
}

TEST(GammaGolden, FloatsOfEveryKind)
{
    constexpr float infinity = std::numeric_limits<float>::infinity(), most = std::numeric_limits<float>::max();
    for (const bool inverse : {false, true}) {
        EXPECT_EQ(ofFloat(inverse, infinity), infinity);
        EXPECT_EQ(ofFloat(inverse, -infinity), -infinity);
        EXPECT_TRUE(std::isnan(ofFloat(inverse, std::nanf(""))));
        EXPECT_EQ(ofFloat(inverse, 20, 10, 20), 20);
        EXPECT_EQ(ofFloat(inverse, 10, 10, 20), 10);
        EXPECT_EQ(ofFloat(inverse, most, 0, 1e-45f), inverse ? infinity : ofFloat(inverse, most, 0, 1e-45f));
    }
    EXPECT_FLOAT_EQ(ofFloat(false, 100), 1.099f * 7.943282f - 0.099f); // beyond the range; 100^0.45
    EXPECT_FLOAT_EQ(ofFloat(false, -2), -9);
    EXPECT_FLOAT_EQ(ofFloat(true, 1.099f * 7.943282f - 0.099f), 100);
    EXPECT_FLOAT_EQ(ofFloat(true, 0.0811f), 0.0811f / 4.5f); // the inverse changes over at 0.0812
    EXPECT_NE(ofFloat(true, 0.0813f), 0.0813f / 4.5f);
}

// All words, in images on both sides of the size from which on there is a table.
TEST(GammaWords, AllBothWays)
{
    const ZorSize sizes[] = {{21845, 1}, {21846, 1}, {16384, 4}}; // 65535, 65538, 196608 samples
    for (const reference::Case& c : casesOf("gamma")) {
        if (functionOf(c).source->sample != interface::Sample::u16) continue;
        Checker checker(c, functionOf(c));
        for (const ZorSize size : sizes)
            for (const int first : {0, 32768, 65534})
                ASSERT_TRUE(checker.check({size}, [&](TestImage& image) {
                    reference::Pixels pixels(image.format(), image.image(), size);
                    reference::eachPixel(size, [&](int x, int y) {
                        for (int k = 0; k < 3; ++k)
                            pixels.put(k, x, y, (first + 3 * (y * size.width + x) + k) & 0xffff);
                    });
                }));
    }
}

class Gamma : public FamilyTest {};

// A million floats in and around each range, against powers of the C library.
TEST_P(Gamma, FloatsAreWithinOneUnitInTheLastPlace)
{
    if (function.source->sample != interface::Sample::f32) GTEST_SKIP() << "of integers";
    constexpr ZorSize size{1024, 64};
    for (std::uint32_t range = 0; range < 6; ++range)
        ASSERT_TRUE(checker.check(
            {.size = size, .seed = range},
            [&](TestImage& image) {
                const interface::Extra extra = GetParam().arguments(function, range);
                reference::Pixels pixels(image.format(), image.image(), size);
                reference::eachPixel(size, [&](int x, int y) {
                    for (int c = 0; c < 3; ++c) {
                        const double unit = (3 * (y * size.width + x) + c) / (3.0 * size.width * size.height);
                        pixels.put(c, x, y, extra.vMin + (unit * 1.2 - 0.1) * (double{extra.vMax} - extra.vMin));
                    }
                });
            }))
            << "range " << range;
}

ZORCC_FOR_EVERY_FUNCTION(Gamma);

} // namespace
} // namespace zorcc::test
