// SPDX-License-Identifier: MIT
// Results worked out by hand; every byte along every axis through each of the usual matrices.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/harness/family_test.h"
#include "tests/reference/twist.h"

namespace zorcc::test {
namespace {

// One pixel, and many of it, so that whole vectors are tested, too.
template <class Sample, class Function>
void expectPixel(Function function, const float (&matrix)[3][4], std::vector<Sample> pixel, std::vector<Sample> wanted)
{
    for (const Tier tier : tiersHere())
        for (const int width : {1, 64}) {
            const OnTier chosen(tier);
            std::vector<Sample> source, expected, result(pixel.size() * static_cast<std::size_t>(width));
            for (int x = 0; x < width; ++x) {
                source.insert(source.end(), pixel.begin(), pixel.end());
                expected.insert(expected.end(), wanted.begin(), wanted.end());
            }
            const int step = static_cast<int>(source.size() * sizeof(Sample));
            EXPECT_EQ(function(source.data(), step, result.data(), step, ZorSize{width, 1}, matrix), zorStatusOk);
            EXPECT_EQ(result, expected) << nameOf(tier);
        }
}

TEST(TwistGolden, Pixels)
{
    const float halves[3][4] = {{0, 0, 0, -0.6f}, {0, 0, 0, 255.4f}, {0.5f, 0, 0, 0}};
    expectPixel<std::uint8_t>(zoriColorTwist32f_8u_C3R, halves, {1, 1, 1}, {0, 255, 0});
    expectPixel<std::uint8_t>(zoriColorTwist32f_8u_C3R, halves, {3, 1, 1}, {0, 255, 2});
    const float ties[3][4] = {{0, 0, 0, 254.5f}, {0, 0, 0, 255.5f}, {0, 0, 0, -0.5f}};
    expectPixel<std::uint8_t>(zoriColorTwist32f_8u_C3R, ties, {1, 1, 1}, {254, 255, 0});
    const float yuv[3][4] = {{0.299f, 0.587f, 0.114f, 0}, {-0.147f, -0.289f, 0.436f, 0}, {0.615f, -0.515f, -0.1f, 0}};
    expectPixel<std::int8_t>(zoriColorTwist32f_8s_C3R, yuv, {100, 50, -128}, {45, -85, 49}); // 44.658 -84.958 48.55
    expectPixel<std::int8_t>(zoriColorTwist32f_8s_C3R, {{2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 1, 0.5f}}, {100, -100, 1},
                             {127, -128, 2});
    expectPixel<std::uint16_t>(zoriColorTwist32f_16u_C3R, {{2, 0, 0, 0}, {0, -1, 0, 0}, {0, 0, 1, 1e10f}},
                               {40000, 40000, 0}, {65535, 0, 65535});
    expectPixel<std::int16_t>(zoriColorTwist32f_16s_C3R, {{2, 0, 0, 0}, {0, -1, 0, 0}, {0, 0, 1, -1e10f}},
                              {-20000, -32768, 0}, {-32768, 32767, -32768});
    expectPixel<float>(zoriColorTwist_32f_C3R, {{2, 0, 0, 1}, {0, -1, 0.5f, 0}, {0, 0, 1e10f, 0}}, {1, 2, 3},
                       {3, -0.5f, 3e10f});
}

// (constant + first) + (third + second): the other order of the last two sums would give 0 for the first row, and 1 in
// place of 0 for the second.
TEST(TwistGolden, OrderOfSums)
{
    expectPixel<std::uint8_t>(zoriColorTwist32f_8u_C3R, {{0x1p24f, 0, 3, -0x1p24f}, {1, 0x1p25f, -0x1p25f, 0}, {}},
                              {1, 1, 1}, {3, 1, 0});
    expectPixel<float>(zoriColorTwist_32f_C3R, {{1, 0x1p25f, -0x1p25f, 0}, {1, 0, 0, 0}, {0, 0, 0, 0}}, {1, 1, 1},
                       {0, 1, 0});
}

TEST(TwistGolden, NoNumberGivesTheLeastSample)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const float matrix[3][4] = {{infinity, -infinity, 0, 0}, {0, 0, 0, std::nanf("")}, {3e38f, 3e38f, 0, 0}};
    expectPixel<std::uint8_t>(zoriColorTwist32f_8u_C3R, matrix, {2, 2, 2}, {0, 0, 255});
    expectPixel<std::int8_t>(zoriColorTwist32f_8s_C3R, matrix, {2, 2, 2}, {-128, -128, 127});
    expectPixel<std::int16_t>(zoriColorTwist32f_16s_C3R, matrix, {2, 2, 2}, {-32768, -32768, 32767});
}

TEST(TwistGolden, FourChannels)
{
    const float matrix[4][4] = {{1, 1, 1, 1}, {0, 0, 0, 2}, {1, 0, 0, 0}, {0, -1, 0, 0}};
    const std::vector<float> source = {1, 2, 3, 4}, wanted = {10, 8, 1, -2};
    std::vector<float> result(4);
    EXPECT_EQ(zoriColorTwist_32f_C4R(source.data(), 16, result.data(), 16, {1, 1}, matrix), zorStatusOk);
    EXPECT_EQ(result, wanted);
}

class ColorTwist : public FamilyTest {};

// Bytes along an axis, each with pairs of the others, by the usual matrices and some others: the seed chooses.
TEST_P(ColorTwist, EveryMatrixAlongEveryAxis)
{
    constexpr ZorSize size{256, 27};
    for (std::uint32_t matrix = 0; matrix < reference::twistCount + 12; ++matrix)
        ASSERT_TRUE(checker.check(
            {.size = size, .seed = matrix},
            [&](TestImage& image) {
                reference::Pixels pixels(image.format(), image.image(), size);
                reference::eachPixel(size, [&](int x, int y) {
                    const float others[] = {0, 0.4f, 1};
                    const float levels[] = {static_cast<float>(x) / 255, others[y / 3 % 3], others[y / 9]};
                    for (int c = 0; c < 3; ++c) pixels.putLevel((c + y) % 3, x, y, levels[c] * pixels.white());
                });
            }))
            << "matrix " << matrix;
}

ZORCC_FOR_EVERY_FUNCTION(ColorTwist);

} // namespace
} // namespace zorcc::test
