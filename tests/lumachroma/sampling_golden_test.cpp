// SPDX-License-Identifier: MIT
// Chroma of small images, worked out by hand.
#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <vector>

#include "tests/harness/tiers.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Three planes, rows without gaps. Luma counts up.
struct Planes {
    Bytes plane[3];
    int step[3];

    Planes(ZorSize luma, ZorSize chroma, const Bytes& cb = {}, const Bytes& cr = {})
        : plane{Bytes(static_cast<std::size_t>(luma.width * luma.height)), cb, cr}, step{luma.width, chroma.width,
                                                                                         chroma.width}
    {
        std::iota(plane[0].begin(), plane[0].end(), std::uint8_t{0});
        for (Bytes* p : {&plane[1], &plane[2]}) p->resize(static_cast<std::size_t>(chroma.width * chroma.height));
    }

    std::array<std::uint8_t*, 3> pointers() { return {plane[0].data(), plane[1].data(), plane[2].data()}; }
};

using PlanarToPlanar = ZorStatus(const uint8_t* const[3], const int[3], uint8_t* const[3], const int[3], ZorSize);

// Runs the function on every tier; Cr is Cb plus one.
void expectChroma(PlanarToPlanar* function, ZorSize size, ZorSize sourceChroma, const Bytes& cb, ZorSize chroma,
                  const Bytes& expected, ZorStatus status = zorStatusOk)
{
    const auto plusOne = [](Bytes bytes) {
        for (std::uint8_t& byte : bytes) ++byte;
        return bytes;
    };
    for (const Tier tier : tiersHere()) {
        SCOPED_TRACE(nameOf(tier));
        const OnTier chosen(tier);
        Planes from(size, sourceChroma, cb, plusOne(cb)), to(size, chroma);
        const auto source = from.pointers(), destination = to.pointers();
        to.plane[0].assign(to.plane[0].size(), 0);
        ASSERT_EQ(function(source.data(), from.step, destination.data(), to.step, size), status);
        EXPECT_EQ(to.plane[0], from.plane[0]);
        EXPECT_EQ(to.plane[1], expected);
        EXPECT_EQ(to.plane[2], plusOne(expected));
    }
}

TEST(SamplingGolden, FilteredRows)
{
    // Rows 16, 48, 16, 16: (9 (16 + 48) - 16 - 16 + 8) / 16 = 34, (9 * 64 - 32 + 8) / 16 = 34,
    // (9 * 32 - 48 - 16 + 8) / 16 = 14, and last (17 * 16 - 16 + 8) / 16 = 16.
    expectChroma(zoriYCbCr420ToYCbCr422_Filter_8u_P3R, {2, 8}, {1, 4}, {16, 48, 16, 16}, {1, 8},
                 {16, 34, 48, 34, 16, 14, 16, 16});
}

TEST(SamplingGolden, FilteredRowsSaturate)
{
    const std::uint8_t cb[] = {0, 255, 255, 0}, cr[] = {255, 0, 0, 255}, luma[16] = {};
    const std::uint8_t* const source[] = {luma, cb, cr};
    const int one[] = {2, 1, 1};
    std::uint8_t y[16], toCb[8], toCr[8];
    std::uint8_t* const destination[] = {y, toCb, toCr};
    ASSERT_EQ(zoriYCbCr420ToYCbCr422_Filter_8u_P3R(source, one, destination, one, {2, 8}), zorStatusOk);
    EXPECT_EQ(toCb[3], 255); // (9 * 510 + 8) / 16 = 287
    EXPECT_EQ(toCr[3], 0);   // (-510 + 8) / 16 = -32
}

TEST(SamplingGolden, RearrangedAndBack)
{
    const Bytes in411 = {1, 2, 3, 4}, in420 = {1, 3, 2, 4}; // two rows of two; one row of four
    expectChroma(zoriYCbCr411ToYCbCr420_8u_P3R, {8, 2}, {2, 2}, in411, {4, 1}, in420);
    const std::uint8_t luma[16] = {}, cb[] = {1, 3, 2, 4}, cr[] = {5, 7, 6, 8};
    const std::uint8_t* const source[] = {luma, cb, cr};
    const int steps[] = {8, 4, 4};
    std::uint8_t y[16], pairs[8];
    ASSERT_EQ(zoriYCbCr420ToYCbCr411_8u_P3P2R(source, steps, y, 8, pairs, 4, {8, 2}), zorStatusOk);
    EXPECT_EQ(Bytes(pairs, pairs + 8), (Bytes{1, 5, 2, 6, 3, 7, 4, 8}));
}

// Nine columns: the first sixteen doubled ones round up, the rest down, the last repeats.
TEST(SamplingGolden, DoubledColumns)
{
    expectChroma(zoriYCbCr411To420_8u_P3R, {36, 4}, {9, 4}, {0,  1,  0,  1,  0,  1,  0,  1,  0,  //
                                                             9,  9,  9,  9,  9,  9,  9,  9,  9,  //
                                                             10, 20, 30, 40, 50, 60, 70, 80, 91, //
                                                             9,  9,  9,  9,  9,  9,  9,  9,  9},
                 {18, 2}, {0,  1,  1,  1,  0,  1,  1,  1,  0,  1,  1,  1,  0,  1,  1,  1,  0,  0, //
                           10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80, 86, 91, 91});
    expectChroma(zoriYCbCr411To420_8u_P3R, {32, 4}, {8, 4}, Bytes(32, 7), {16, 2}, Bytes(32, 7));
    // Eight columns have no whole block before the last: all round down.
    Bytes steps = {0, 1, 0, 1, 0, 1, 0, 1};
    steps.resize(32);
    expectChroma(zoriYCbCr411To420_8u_P3R, {32, 4}, {8, 4}, steps, {16, 2}, [] {
        Bytes doubled(32);
        for (int x = 2; x < 16; x += 4) doubled[x] = 1;
        doubled[15] = 1;
        return doubled;
    }());
}

TEST(SamplingGolden, DoubledColumnsAndRows)
{
    // Two by two: rounded down, in rows before columns, at the edges repeated.
    expectChroma(zoriYCbCr1620To420_8u_P3R, {8, 8}, {2, 2}, {0, 3, 2, 6}, {4, 4},
                 {0, 1, 3, 3, 1, 2, 4, 4, 2, 4, 6, 6, 2, 4, 6, 6});
}

TEST(SamplingGolden, DoubledRows)
{
    // Nine columns kept of eighteen; eight of them round up.
    Bytes rows(36);
    for (int x = 0; x < 18; x += 2) rows[18 + x] = 1;
    Bytes expected(9, 0);
    for (const int row : {1, 2, 2})
        for (int x = 0; x < 9; ++x) expected.push_back(row == 1 ? x < 8 : 1);
    expectChroma(zoriYCbCr420To411_8u_P3R, {36, 4}, {18, 2}, rows, {9, 4}, expected);
}

TEST(SamplingGolden, Fields)
{
    // (3 * 10 + 20 + 2) / 4 = 13, (100 + 3 * 200 + 2) / 4 = 175
    expectChroma(zoriYCbCr422To420_Interlace_8u_P3R, {2, 4}, {1, 4}, {10, 100, 20, 200}, {1, 2}, {13, 175});
    // Top field 10, 18, bottom 100, 180: at 3/8, 1/8, 7/8 and 5/8 of the way.
    expectChroma(zoriYCbCr420To422_Interlace_8u_P3R, {2, 8}, {1, 4}, {10, 100, 18, 180}, {1, 8},
                 {10, 100, 13, 110, 17, 150, 18, 180});
}

TEST(SamplingGolden, OddSizesOfFieldsAreTold)
{
    Planes from({4, 8}, {2, 8}), to({4, 8}, {2, 4});
    const auto source = from.pointers(), destination = to.pointers();
    for (const ZorSize size : {ZorSize{3, 4}, {4, 5}, {4, 6}, {4, 7}, {3, 7}})
        EXPECT_EQ(zoriYCbCr422To420_Interlace_8u_P3R(source.data(), from.step, destination.data(), to.step, size),
                  zorStatusOddSize);
    for (const ZorSize size : {ZorSize{2, 3}, {1, 4}})
        EXPECT_EQ(zoriYCbCr422To420_Interlace_8u_P3R(source.data(), from.step, destination.data(), to.step, size),
                  zorStatusBadSize);
}

} // namespace
} // namespace zorcc::test
