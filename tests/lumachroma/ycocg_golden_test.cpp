// SPDX-License-Identifier: MIT
// Results worked out by hand, sizes below 1, and the reversible form both ways.
#include <gtest/gtest.h>

#include <climits>

#include "tests/harness/family_test.h"
#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names plain = {"zoriBGRToYCoCg_8u16s_C3P3R", "zoriBGRToYCoCg_8u16s_C4P3R", "zoriSBGRToYCoCg_16s_C3P3R",
                     "zoriSBGRToYCoCg_16s32s_C3P3R"},
            reversible = {"zoriBGRToYCoCg_Rev_8u16s_C3P3R", "zoriSBGRToYCoCg_Rev_16s_C4P3R",
                          "zoriSBGRToYCoCg_Rev_16s32s_C4P3R"};
const Names words = {"zoriSBGRToYCoCg_16s_C4P3R"}, wide = {"zoriSBGRToYCoCg_16s32s_C4P3R"},
            reversibleWords = {"zoriSBGRToYCoCg_Rev_16s_C3P3R"}, reversibleWide = {"zoriSBGRToYCoCg_Rev_16s32s_C3P3R"};
const Names bytes = {"zoriRGBToYCoCg_8u_C3P3R"}, fromBytes = {"zoriYCoCgToRGB_8u_P3C3R"};
const Names toBytes = {"zoriYCoCgToBGR_16s8u_P3C3R", "zoriYCoCgToBGR_16s8u_P3C4R"},
            toWords = {"zoriYCoCgToSBGR_16s_P3C3R", "zoriYCoCgToSBGR_32s16s_P3C4R"},
            reversibleToWords = {"zoriYCoCgToSBGR_Rev_16s_P3C4R", "zoriYCoCgToSBGR_Rev_32s16s_P3C3R"};

const GoldenColours goldens[] = {
    {plain, {1, 0, 0}, {0, 1, 0}}, // (1 + 2) >> 2, (1 + 1) >> 1, (-1 + 2) >> 2
    {plain, {77, 77, 77}, {77, 0, 0}},
    {plain, {255, 0, 0}, {64, 128, -64}},
    {plain, {0, 255, 0}, {128, 0, 128}},
    {plain, {0, 0, 255}, {64, -127, -64}},
    {plain, {200, 100, 51}, {113, 75, -13}},
    {reversible, {1, 0, 0}, {0, 1, 0}},
    {reversible, {0, 0, 255}, {63, -255, -127}},
    {reversible, {200, 100, 51}, {112, 149, -25}},
    {words, {32767, -32768, -32768}, {-16384, -32768, -16384}}, // Co 32768 wraps
    {wide, {32767, -32768, -32768}, {-16384, 32768, -16384}},
    {reversibleWords, {32767, -32768, -32768}, {32767, -1, 1}}, // Co 65535 and Cg -65535 wrap
    {reversibleWide, {32767, -32768, -32768}, {-16385, 65535, -32767}},
    {bytes, {255, 0, 0}, {64, 255, 64}}, // Co 128 + 128 saturates
    {bytes, {0, 0, 255}, {64, 1, 64}},
    {bytes, {200, 100, 51}, {113, 203, 115}},
    {fromBytes, {113, 203, 115}, {201, 100, 51}},
    {fromBytes, {250, 255, 0}, {255, 122, 251}},
    {toBytes, {0, 1, 0}, {1, 0, 0}},          // B -1 saturates
    {toBytes, {32767, 1, -1}, {0, 255, 255}}, // R 32769 wraps
    {toWords, {0, 1, 0}, {1, 0, -1}},
    {toWords, {32767, 1, -1}, {-32767, 32766, 32767}},
    {reversibleToWords, {112, 149, -25}, {200, 100, 51}},
};

TEST(YCoCgGolden, Colours) { expectGolden(goldens); }

// Sizes below 1 convert nothing.
TEST(YCoCgGolden, EmptyImages)
{
    constexpr ZorSize size{20, 4};
    for (const reference::Case& c : familyCases()) {
        const interface::Function& function = functionOf(c);
        Images images(function, size);
        images.destination.fillPattern(1);
        images.destination.copyToShadow();
        for (const ZorSize empty : {ZorSize{0, 4}, {20, 0}, {-1, 4}, {20, -4}, {-20, -4}, {INT_MIN, INT_MIN}}) {
            EXPECT_EQ(function(images.source.image(), images.destination.image(), empty), zorStatusOk);
            EXPECT_FALSE(images.destination.difference()) << function.name;
        }
    }
}

class Reversible : public testing::TestWithParam<std::pair<const char*, const char*>> {};

// All colours of bytes, and random words.
TEST_P(Reversible, ComesBack)
{
    constexpr ZorSize size{4096, 16};
    const interface::Function &there = *interface::findFunction(GetParam().first),
                              &back = *interface::findFunction(GetParam().second);
    Images images(there, size);
    TestImage result;
    result.arrange(*back.destination, size, size, {}, destinationSteps(back.signature));
    const reference::Pixels before(*there.source, images.source.image(), size),
        after(*back.destination, result.image(), size);
    const bool hasBytes = there.source->sample == interface::Sample::u8;
    constexpr int count = size.width * size.height;
    for (int first = 0; first < (hasBytes ? colours : 8 * count) && !HasFailure(); first += count) {
        if (hasBytes)
            fillColours(images.source, first);
        else
            fill(images.source, first % (2 * count) == 0 ? Contents::random : Contents::extremes, baseSeed() + first);
        ASSERT_EQ(there(images.source.image(), images.destination.image(), size), zorStatusOk);
        ASSERT_EQ(back(images.destination.image(), result.image(), size), zorStatusOk);
        reference::eachPixel(size, [&](int x, int y) {
            for (int c = 0; c < 3; ++c)
                ASSERT_EQ(after.get(c, x, y), before.get(c, x, y)) << "channel " << c << ", (" << x << ", " << y << ")";
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, Reversible,
                         testing::Values(std::pair{"zoriBGRToYCoCg_Rev_8u16s_C3P3R", "zoriYCoCgToBGR_Rev_16s8u_P3C3R"},
                                         std::pair{"zoriSBGRToYCoCg_Rev_16s_C3P3R", "zoriYCoCgToSBGR_Rev_16s_P3C3R"},
                                         std::pair{"zoriSBGRToYCoCg_Rev_16s32s_C4P3R",
                                                   "zoriYCoCgToSBGR_Rev_32s16s_P3C4R"}),
                         [](const auto& pair) { return std::string(pair.param.first); });

} // namespace
} // namespace zorcc::test
