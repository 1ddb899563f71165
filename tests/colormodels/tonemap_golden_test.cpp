// SPDX-License-Identifier: MIT
// Results worked out by hand: ordinary, flat, extreme images, and those that give nothing to do.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/harness/tiers.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using Floats = std::vector<float>;
using Bytes = std::vector<std::uint8_t>;
using ToneMap = ZorStatus (*)(const float*, int, std::uint8_t*, int, ZorSize);

constexpr float infinity = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN(),
                least = std::numeric_limits<float>::min(), most = std::numeric_limits<float>::max();

// A row, repeated so that it fills vectors, on every tier.
void expectBytes(ToneMap map, const Floats& row, const Bytes& wanted, ZorStatus status = zorStatusOk)
{
    constexpr int times = 150;
    Floats source;
    Bytes all;
    for (int i = 0; i < times; ++i) {
        source.insert(source.end(), row.begin(), row.end());
        all.insert(all.end(), wanted.begin(), wanted.end());
    }
    const int width = static_cast<int>(source.size());
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        Bytes result(source.size(), 0xee);
        EXPECT_EQ(map(source.data(), 4 * width, result.data(), width, {width, 1}), status) << nameOf(tier);
        EXPECT_EQ(result, status == zorStatusOk ? all : Bytes(source.size(), 0xee)) << nameOf(tier);
    }
}

TEST(TonemapGolden, Linear)
{
    ToneMap linear = zoriToneMapLinear_32f8u_C1R;
    expectBytes(linear, {255, 0, 1.9f, -1, -1.9f, -256, -300}, {255, 0, 1, 255, 255, 0, 212});
    expectBytes(linear, {0.5f, 0.25f, 0.125f}, {255, 127, 63});
    expectBytes(linear, {7, 7, 7}, {254, 254, 254}); // 7 times 255/7 rounded down
    expectBytes(linear, {1000, 1, 3.93f}, {255, 0, 1});
    expectBytes(linear, {0, 0, -0.0f}, {0, 0, 0});
    expectBytes(linear, {least, 0, -5}, {0, 0, 0});
    expectBytes(linear, {least / 4, 0, 0}, {0, 0, 0});
    expectBytes(linear, {255, -3e9f, -most, -infinity, nan}, {255, 0, 0, 0, 0});
    expectBytes(linear, {255, -16777217.0f * 64, -2147483648.0f, -2147483392.0f}, {255, 0, 0, 0});
    expectBytes(linear, {255, -16777215}, {255, 1});
    expectBytes(linear, {infinity, 5, nan, -infinity}, {0, 0, 0, 0});
    expectBytes(linear, {-1, -2, -infinity}, {}, zorStatusNothingDone);
    expectBytes(linear, {nan, nan}, {}, zorStatusNothingDone);
}

TEST(TonemapGolden, Mean)
{
    ToneMap mean = zoriToneMapMean_32f8u_C1R;
    expectBytes(mean, {0, 1, 2, 1}, {0, 127, 255, 127});
    expectBytes(mean, {4, 0, 0, 0}, {255, 0, 0, 0}); // twice the mean is 2: 510
    expectBytes(mean, {5, -1, 0, 0}, {255, 0, 0, 0});
    expectBytes(mean, {3, 3}, {127, 127});
    expectBytes(mean, {0, 0}, {0, 0});
    expectBytes(mean, {1, -1}, {0, 0});
    expectBytes(mean, {least / 4, least / 4}, {0, 0});
    expectBytes(mean, {most, most / 2}, {170, 85}); // 255 / (1.5 most): added up in double precision
    expectBytes(mean, {infinity, 5, -5}, {0, 0, 0});
    expectBytes(mean, {nan, 5, 5}, {0, 0, 0});
    expectBytes(mean, {infinity, -infinity}, {0, 0});
    expectBytes(mean, {-1, 0.5f}, {}, zorStatusNothingDone);
}

// A step that ends between two floats ends at the one nearer to the row's beginning, for both passes.
TEST(TonemapGolden, StepsOfWholeFloats)
{
    const float source[2][2] = {{1, 1000}, {2, 1000}};
    std::uint8_t result[2];
    EXPECT_EQ(zoriToneMapLinear_32f8u_C1R(source[0], 8 + 3, result, 1, {1, 2}), zorStatusOk);
    EXPECT_EQ(Bytes(result, result + 2), (Bytes{127, 255}));
    EXPECT_EQ(zoriToneMapMean_32f8u_C1R(source[1], -8 - 3, result, 1, {1, 2}), zorStatusOk);
    EXPECT_EQ(Bytes(result, result + 2), (Bytes{170, 85}));
}

// Source, destination, size; what the source holds comes last.
TEST(TonemapGolden, Statuses)
{
    const float source = -1;
    std::uint8_t result = 9;
    for (ToneMap map : {zoriToneMapLinear_32f8u_C1R, zoriToneMapMean_32f8u_C1R}) {
        EXPECT_EQ(map(nullptr, 4, &result, 1, {0, 0}), zorStatusNullPointer);
        EXPECT_EQ(map(&source, 4, nullptr, 1, {0, 0}), zorStatusNullPointer);
        EXPECT_EQ(map(&source, 4, &result, 1, {1, 0}), zorStatusBadSize);
        EXPECT_EQ(map(&source, 4, &result, 1, {1, 1}), zorStatusNothingDone);
    }
    EXPECT_EQ(result, 9);
}

} // namespace
} // namespace zorcc::test
