// SPDX-License-Identifier: MIT
// Results worked out by hand, statuses and their order, and what methods leave alone.
#include <gtest/gtest.h>

#include <climits>

#include "tests/harness/family_test.h"
#include "tests/harness/golden.h"
#include "tests/reduce/methods.h"

namespace zorcc::test {
namespace {

void expectReduced(const Bytes& source, ZorSize size, ZorDitherMethod method, int levels, const Bytes& wanted,
                   int noise = 0)
{
    expectGolden({"zoriReduceBits_8u_C1R",
                  size,
                  {source},
                  {wanted},
                  zorStatusOk,
                  {.noise = noise, .levels = levels, .method = method}});
}

TEST(ReduceGolden, ByHand)
{
    const struct {
        ZorDitherMethod method;
        int levels;
        ZorSize size;
        Bytes source, wanted;
    } cases[] = {
        {plain, 2, {4, 1}, {0, 127, 128, 255}, {0, 0, 255, 255}},
        // A half step is 42.5.
        {plain, 4, {6, 1}, {42, 43, 127, 128, 212, 213}, {0, 85, 85, 170, 170, 255}},
        // 17 n is the threshold of two levels; what equals it goes down.
        {ordered, 2, {4, 4}, Bytes(16, 128), {255, 0, 255, 0, 0, 255, 0, 255, 255, 0, 255, 0, 0, 255, 0, 255}},
        {ordered, 2, {4, 4}, Bytes(16, 255), Bytes(16, 255)},
        // Just below white all but row 3, column 0 go up.
        {ordered,
         2,
         {4, 4},
         Bytes(16, 254),
         {255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 0, 255, 255, 255}},
        // 100: up to 127.5 goes down. Errors along the row 100, then v = 100 + 43.75 up, -111.25; 100 - 48.67 down,
        // 51.33; 100 + 22.46 down.
        {floydSteinberg, 2, {4, 1}, Bytes(4, 100), {0, 255, 0, 0}},
        // Errors of the first row: 100, -111.25. Below: 100 + (5 * 100 - 3 * 111.25) / 16 = 110.4 down, 110.4;
        // 100 + (7 * 110.4 + 100 - 5 * 111.25) / 16 = 119.8 down.
        {floydSteinberg, 2, {2, 2}, Bytes(4, 100), {0, 255, 0, 0}},
        // One column: 100; 100 + 7/48 * 100 = 114.6; 100 + (7 * 114.6 + 5 * 100) / 48 = 127.1; 100 + (7 * 127.1 +
        // 5 * 114.6) / 48 = 130.5 up. Stucki: 8/42: 119.0; 100 + (8 * 119.0 + 4 * 100) / 42 = 132.2 up.
        {jarvis, 2, {1, 4}, Bytes(4, 100), {0, 0, 0, 255}},
        {stucki, 2, {1, 3}, Bytes(3, 100), {0, 0, 255}},
    };
    for (const auto& c : cases) expectReduced(c.source, c.size, c.method, c.levels, c.wanted);
    expectReduced({42, 43, 212}, {3, 1}, plain, 4, {0, 85, 170}, 100); // takes no noise
}

TEST(ReduceGolden, BlackAndWhiteStay)
{
    for (const ZorDitherMethod method : methods)
        for (const int levels : {2, 4, 256})
            for (const Bytes& image : {Bytes(70 * 40, 0), Bytes(70 * 40, 255)})
                expectReduced(image, {70, 40}, method, levels, image);
}

class ReduceBits : public FamilyTest {};

// Rows are converted in bands, and pixels with the noise of 1024 columns.
TEST_P(ReduceBits, AcrossBandsAndNoise)
{
    const auto check = [&](ZorSize size, Contents contents) {
        return checker.check({size, {Steps::sample}, {Steps::sample}, contents, arrangements.anySeed()});
    };
    for (const Contents contents : {Contents::runs, Contents::random}) {
        for (const int height : {31, 32, 33, 65, 97})
            for (const int width : {1, 2, 15, 33, 64, 129}) ASSERT_TRUE(check({width, height}, contents));
        for (const int width : {1024, 1025, 2049}) ASSERT_TRUE(check({width, 3}, contents));
    }
}

// Nulls and sizes come first, as everywhere; then noise, levels; an unknown method is no error.
TEST_P(ReduceBits, Statuses)
{
    const bool words = interface::sampleBytes(function.source->sample) == 2 &&
                       interface::sampleBytes(function.destination->sample) == 2;
    const int most = words ? 65536 : 256;
    const struct {
        int noise, levels, method;
        ZorStatus status;
    } cases[] = {{0, 2, 0, zorStatusOk},
                 {100, most, 4, zorStatusOk},
                 {0, 2, 5, zorStatusOk},
                 {50, 2, 7, zorStatusOk},
                 {0, 2, -1, zorStatusOk},
                 {0, 2, INT_MIN, zorStatusOk},
                 {101, 2, 0, zorStatusNoiseRange},
                 {-1, 2, 3, zorStatusNoiseRange},
                 {101, 1, 7, zorStatusNoiseRange},
                 {0, 1, 0, zorStatusDitherLevels},
                 {0, 1, 7, zorStatusDitherLevels},
                 {0, most + 1, 0, zorStatusDitherLevels},
                 {0, INT_MIN, 4, zorStatusDitherLevels}};
    constexpr ZorSize size{20, 3};
    auto [source, destination] = Images(function, size);
    fill(source, Contents::random, 1);
    for (const auto& c : cases) {
        const interface::Extra extra {
            .noise = c.noise, .levels = c.levels, .method = static_cast<ZorDitherMethod>(c.method)
        };
        destination.fillPattern(1);
        destination.copyToShadow();
        EXPECT_EQ(function(source.image(), destination.image(), size, extra), c.status);
        const bool isMethod = c.method >= zorDitherMethodNone && c.method <= zorDitherMethodOrdered;
        EXPECT_EQ(destination.difference().has_value(), c.status == zorStatusOk && isMethod)
            << c.noise << ", " << c.levels << ", " << c.method;
        interface::Image null = destination.image();
        null.plane[0] = nullptr;
        EXPECT_EQ(function(source.image(), null, {0, 0}, extra), zorStatusNullPointer);
        EXPECT_EQ(function(source.image(), destination.image(), {0, 3}, extra), zorStatusBadSize);
    }
}

ZORCC_FOR_EVERY_FUNCTION(ReduceBits);

} // namespace
} // namespace zorcc::test
