// SPDX-License-Identifier: MIT
// Results worked out by hand, statuses and their order, and what methods leave alone.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "tests/harness/arrangements.h"
#include "tests/harness/cases.h"
#include "tests/harness/tiers.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using Bytes = std::vector<std::uint8_t>;
using interface::Extra;

constexpr ZorDitherMethod methods[] = {zorDitherMethodNone, zorDitherMethodFloydSteinberg,
                                       zorDitherMethodJarvisJudiceNinke, zorDitherMethodStucki, zorDitherMethodOrdered};

Bytes reduced(const Bytes& source, ZorSize size, ZorDitherMethod method, int levels, int noise = 0)
{
    Bytes result(source.size());
    EXPECT_EQ(zoriReduceBits_8u_C1R(source.data(), size.width, result.data(), size.width, size, noise, method, levels),
              zorStatusOk);
    return result;
}

class ReduceGolden : public testing::TestWithParam<Tier> {
protected:
    OnTier chosen{GetParam()};
};

TEST_P(ReduceGolden, Plain)
{
    EXPECT_EQ(reduced({0, 127, 128, 255}, {4, 1}, zorDitherMethodNone, 2), (Bytes{0, 0, 255, 255}));
    // A half step is 42.5.
    EXPECT_EQ(reduced({42, 43, 127, 128, 212, 213}, {6, 1}, zorDitherMethodNone, 4), (Bytes{0, 85, 85, 170, 170, 255}));
    EXPECT_EQ(reduced({42, 43, 127, 128, 212, 213}, {6, 1}, zorDitherMethodNone, 4, 100),
              (Bytes{0, 85, 85, 170, 170, 255}));
}

TEST_P(ReduceGolden, AllLevelsAreTheIdentity)
{
    Bytes ramp(256);
    for (int i = 0; i < 256; ++i) ramp[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i);
    EXPECT_EQ(reduced(ramp, {256, 1}, zorDitherMethodNone, 256), ramp);
}

// 17 n is the threshold of two levels; what equals it goes down.
TEST_P(ReduceGolden, Ordered)
{
    EXPECT_EQ(reduced(Bytes(16, 128), {4, 4}, zorDitherMethodOrdered, 2),
              (Bytes{255, 0, 255, 0, 0, 255, 0, 255, 255, 0, 255, 0, 0, 255, 0, 255}));
    EXPECT_EQ(reduced(Bytes(16, 255), {4, 4}, zorDitherMethodOrdered, 2), Bytes(16, 255));
    // Just below white all but row 3, column 0 go up.
    Bytes nearWhite(16, 255);
    nearWhite[12] = 0;
    EXPECT_EQ(reduced(Bytes(16, 254), {4, 4}, zorDitherMethodOrdered, 2), nearWhite);
}

// 100: up to 127.5 goes down. Errors along the row 100, then v = 100 + 43.75 up, -111.25; 100 - 48.67 down, 51.33;
// 100 + 22.46 down.
TEST_P(ReduceGolden, FloydSteinbergAlongARow)
{
    EXPECT_EQ(reduced(Bytes(4, 100), {4, 1}, zorDitherMethodFloydSteinberg, 2), (Bytes{0, 255, 0, 0}));
}

// Errors of the first row: 100, -111.25. Below: 100 + (5 * 100 - 3 * 111.25) / 16 = 110.4 down, 110.4;
// 100 + (7 * 110.4 + 100 - 5 * 111.25) / 16 = 119.8 down.
TEST_P(ReduceGolden, FloydSteinbergFromAbove)
{
    EXPECT_EQ(reduced(Bytes(4, 100), {2, 2}, zorDitherMethodFloydSteinberg, 2), (Bytes{0, 255, 0, 0}));
}

// One column: 100; 100 + 7/48 * 100 = 114.6; 100 + (7 * 114.6 + 5 * 100) / 48 = 127.1; 100 + (7 * 127.1 + 5 * 114.6) /
// 48 = 130.5 up. Stucki: 8/42: 119.0; 100 + (8 * 119.0 + 4 * 100) / 42 = 132.2 up.
TEST_P(ReduceGolden, WiderWeightsDownAColumn)
{
    EXPECT_EQ(reduced(Bytes(4, 100), {1, 4}, zorDitherMethodJarvisJudiceNinke, 2), (Bytes{0, 0, 0, 255}));
    EXPECT_EQ(reduced(Bytes(3, 100), {1, 3}, zorDitherMethodStucki, 2), (Bytes{0, 0, 255}));
}

TEST_P(ReduceGolden, BlackAndWhiteStay)
{
    for (const ZorDitherMethod method : methods)
        for (const int levels : {2, 4, 256}) {
            EXPECT_EQ(reduced(Bytes(70 * 40, 0), {70, 40}, method, levels), Bytes(70 * 40, 0));
            EXPECT_EQ(reduced(Bytes(70 * 40, 255), {70, 40}, method, levels), Bytes(70 * 40, 255));
        }
}

TEST_P(ReduceGolden, AlphaIsKeptOrConverted)
{
    const Bytes source(4 * 9, 200), before(4 * 9, 77);
    for (const ZorDitherMethod method : methods) {
        Bytes kept = before, converted = before;
        EXPECT_EQ(zoriReduceBits_8u_AC4R(source.data(), 36, kept.data(), 36, {9, 1}, 0, method, 2), zorStatusOk);
        EXPECT_EQ(zoriReduceBits_8u_C4R(source.data(), 36, converted.data(), 36, {9, 1}, 0, method, 2), zorStatusOk);
        for (std::size_t i = 0; i < kept.size(); ++i) {
            EXPECT_EQ(kept[i], i % 4 == 3 ? 77 : converted[i]);
            EXPECT_EQ(converted[i], converted[i / 4 * 4]); // all channels are alike
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Tiers, ReduceGolden, testing::ValuesIn(tiersHere().begin(), tiersHere().end()),
                         [](const auto& tier) { return nameOf(tier.param); });

class ReduceBits : public testing::TestWithParam<reference::Case> {};

// Rows are converted in bands, and pixels with the noise of 1024 columns.
TEST_P(ReduceBits, AcrossBandsAndNoise)
{
    Checker checker(GetParam(), functionOf(GetParam()));
    Arrangements arrangements;
    const testing::ScopedTrace seed(__FILE__, __LINE__, "ZORCC_TEST_SEED=" + std::to_string(baseSeed()));
    for (const int height : {31, 32, 33, 65, 97})
        for (const int width : {1, 2, 15, 33, 64, 129})
            for (int trial = 0; trial < 2; ++trial)
                ASSERT_TRUE(checker.check({{width, height},
                                           {Steps::sample},
                                           {Steps::sample},
                                           trial == 0 ? Contents::runs : Contents::random,
                                           arrangements.anySeed()}));
    for (const int width : {1024, 1025, 2049})
        for (int trial = 0; trial < 2; ++trial)
            ASSERT_TRUE(checker.check({{width, 3}, {Steps::sample}, {}, Contents::random, arrangements.anySeed()}));
}

// Nulls and sizes come first, as everywhere; then noise, levels; an unknown method is no error.
TEST_P(ReduceBits, Statuses)
{
    const interface::Function& function = functionOf(GetParam());
    const bool words = interface::sampleBytes(function.source->sample) == 2 &&
                       interface::sampleBytes(function.destination->sample) == 2;
    const int most = words ? 65536 : 256;
    struct {
        Extra extra;
        ZorStatus status;
        bool writes;
    } const cases[] = {
        {{.noise = 0, .levels = 2, .method = zorDitherMethodNone}, zorStatusOk, true},
        {{.noise = 100, .levels = most, .method = zorDitherMethodOrdered}, zorStatusOk, true},
        {{.noise = 101, .levels = 2, .method = zorDitherMethodNone}, zorStatusNoiseRange, false},
        {{.noise = -1, .levels = 2, .method = zorDitherMethodStucki}, zorStatusNoiseRange, false},
        {{.noise = 101, .levels = 1, .method = static_cast<ZorDitherMethod>(7)}, zorStatusNoiseRange, false},
        {{.noise = 0, .levels = 1, .method = zorDitherMethodNone}, zorStatusDitherLevels, false},
        {{.noise = 0, .levels = most + 1, .method = zorDitherMethodNone}, zorStatusDitherLevels, false},
        {{.noise = 0, .levels = INT_MIN, .method = zorDitherMethodOrdered}, zorStatusDitherLevels, false},
        {{.noise = 0, .levels = 1, .method = static_cast<ZorDitherMethod>(7)}, zorStatusDitherLevels, false},
        {{.noise = 0, .levels = 2, .method = static_cast<ZorDitherMethod>(5)}, zorStatusOk, false},
        {{.noise = 50, .levels = 2, .method = static_cast<ZorDitherMethod>(7)}, zorStatusOk, false},
    };
    constexpr ZorSize size{20, 3};
    TestImage source, destination;
    source.arrange(*function.source, size, size, {}, sourceSteps(function.signature));
    fill(source, Contents::random, 1);
    destination.arrange(*function.destination, size, size, {}, destinationSteps(function.signature));
    for (const auto& c : cases) {
        destination.fillPattern(1);
        destination.copyToShadow();
        EXPECT_EQ(function(source.image(), destination.image(), size, c.extra), c.status);
        EXPECT_EQ(destination.difference().has_value(), c.writes) << c.extra.noise << ", " << c.extra.levels;
        interface::Image null = destination.image();
        null.plane[0] = nullptr;
        EXPECT_EQ(function(source.image(), null, {0, 0}, c.extra), zorStatusNullPointer);
        EXPECT_EQ(function(source.image(), destination.image(), {0, 3}, c.extra), zorStatusBadSize);
    }
}

INSTANTIATE_TEST_SUITE_P(Functions, ReduceBits, testing::ValuesIn(familyCases().begin(), familyCases().end()),
                         caseName<testing::TestParamInfo<reference::Case>>);

} // namespace
} // namespace zorcc::test
