// SPDX-License-Identifier: MIT
// Results worked out by hand; every byte along every axis through each of the usual matrices.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/harness/family_test.h"
#include "tests/harness/golden.h"
#include "tests/reference/twist.h"

namespace zorcc::test {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
using Matrix = float[4][4];
constexpr Matrix halves = {{0, 0, 0, -0.6f}, {0, 0, 0, 255.4f}, {0.5f, 0, 0, 0}},
                 ties = {{0, 0, 0, 254.5f}, {0, 0, 0, 255.5f}, {0, 0, 0, -0.5f}},
                 yuv = {{0.299f, 0.587f, 0.114f, 0}, {-0.147f, -0.289f, 0.436f, 0}, {0.615f, -0.515f, -0.1f, 0}},
                 doubled = {{2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 1, 0.5f}},
                 high = {{2, 0, 0, 0}, {0, -1, 0, 0}, {0, 0, 1, 1e10f}},
                 low = {{2, 0, 0, 0}, {0, -1, 0, 0}, {0, 0, 1, -1e10f}},
                 ofFloats = {{2, 0, 0, 1}, {0, -1, 0.5f, 0}, {0, 0, 1e10f, 0}},
                 order = {{0x1p24f, 0, 3, -0x1p24f}, {1, 0x1p25f, -0x1p25f, 0}},
                 orderOfFloats = {{1, 0x1p25f, -0x1p25f, 0}, {1, 0, 0, 0}},
                 noNumbers = {{infinity, -infinity, 0, 0}, {0, 0, 0, __builtin_nanf("")}, {3e38f, 3e38f, 0, 0}};

GoldenColours golden(std::string_view function, const Matrix& matrix, const Colours& colour, const Colours& twisted)
{
    return {{function}, colour, twisted, 48, {.twist = matrix}};
}

TEST(TwistGolden, Colours)
{
    const GoldenColours goldens[] = {
        golden("zoriColorTwist32f_8u_C3R", halves, {1, 1, 1}, {0, 255, 0}),
        golden("zoriColorTwist32f_8u_C3R", halves, {3, 1, 1}, {0, 255, 2}),
        golden("zoriColorTwist32f_8u_C3R", ties, {1, 1, 1}, {254, 255, 0}),
        golden("zoriColorTwist32f_8s_C3R", yuv, {100, 50, -128}, {45, -85, 49}), // 44.658 -84.958 48.55
        golden("zoriColorTwist32f_8s_C3R", doubled, {100, -100, 1}, {127, -128, 2}),
        golden("zoriColorTwist32f_16u_C3R", high, {40000, 40000, 0}, {65535, 0, 65535}),
        golden("zoriColorTwist32f_16s_C3R", low, {-20000, -32768, 0}, {-32768, 32767, -32768}),
        golden("zoriColorTwist_32f_C3R", ofFloats, {1, 2, 3}, {3, -0.5f, 3e10f}),
        // (constant + first) + (third + second): the other order of the last two sums would give 0 for the first row,
        // and 1 in place of 0 for the second.
        golden("zoriColorTwist32f_8u_C3R", order, {1, 1, 1}, {3, 1, 0}),
        golden("zoriColorTwist_32f_C3R", orderOfFloats, {1, 1, 1}, {0, 1, 0}),
        // What is no number becomes the least sample.
        golden("zoriColorTwist32f_8u_C3R", noNumbers, {2, 2, 2}, {0, 0, 255}),
        golden("zoriColorTwist32f_8s_C3R", noNumbers, {2, 2, 2}, {-128, -128, 127}),
        golden("zoriColorTwist32f_16s_C3R", noNumbers, {2, 2, 2}, {-32768, -32768, 32767}),
    };
    expectGolden(goldens);
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
