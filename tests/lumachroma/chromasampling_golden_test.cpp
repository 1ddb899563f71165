// SPDX-License-Identifier: MIT
// Chroma of small images, worked out by hand.
#include <gtest/gtest.h>

#include <numeric>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

// Cb of planar images; Cr is Cb plus one, and luma counts up.
struct Golden {
    const char* function;
    ZorSize size;
    Bytes source, destination;
};

const Golden goldens[] = {
    // Rows 16, 48, 16, 16: (9 (16 + 48) - 16 - 16 + 8) / 16 = 34, (9 * 64 - 32 + 8) / 16 = 34,
    // (9 * 32 - 48 - 16 + 8) / 16 = 14, and last (17 * 16 - 16 + 8) / 16 = 16.
    {"zoriYCbCr420ToYCbCr422_Filter_8u_P3R", {2, 8}, {16, 48, 16, 16}, {16, 34, 48, 34, 16, 14, 16, 16}},
    // Two rows of two; one row of four.
    {"zoriYCbCr411ToYCbCr420_8u_P3R", {8, 2}, {1, 2, 3, 4}, {1, 3, 2, 4}},
    // Nine columns: the first sixteen doubled ones round up, the rest down, the last repeats.
    {"zoriYCbCr411To420_8u_P3R",
     {36, 4},
     {0,  1,  0,  1,  0,  1,  0,  1,  0,  //
      9,  9,  9,  9,  9,  9,  9,  9,  9,  //
      10, 20, 30, 40, 50, 60, 70, 80, 91, //
      9,  9,  9,  9,  9,  9,  9,  9,  9},
     {0,  1,  1,  1,  0,  1,  1,  1,  0,  1,  1,  1,  0,  1,  1,  1,  0,  0, //
      10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80, 86, 91, 91}},
    {"zoriYCbCr411To420_8u_P3R", {32, 4}, Bytes(32, 7), Bytes(32, 7)},
    // Eight columns have no whole block before the last: all round down.
    {"zoriYCbCr411To420_8u_P3R",
     {32, 4},
     {0, 1, 0, 1, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
     {0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    // Two by two: rounded down, in rows before columns, at the edges repeated.
    {"zoriYCbCr1620To420_8u_P3R", {8, 8}, {0, 3, 2, 6}, {0, 1, 3, 3, 1, 2, 4, 4, 2, 4, 6, 6, 2, 4, 6, 6}},
    // Nine columns kept of eighteen, rows of 0 and of 1; eight of them round up between.
    {"zoriYCbCr420To411_8u_P3R",
     {36, 4},
     {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, //
      1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0},
     {0, 0, 0, 0, 0, 0, 0, 0, 0, //
      1, 1, 1, 1, 1, 1, 1, 1, 0, //
      1, 1, 1, 1, 1, 1, 1, 1, 1, //
      1, 1, 1, 1, 1, 1, 1, 1, 1}},
    // (3 * 10 + 20 + 2) / 4 = 13, (100 + 3 * 200 + 2) / 4 = 175
    {"zoriYCbCr422To420_Interlace_8u_P3R", {2, 4}, {10, 100, 20, 200}, {13, 175}},
    // Top field 10, 18, bottom 100, 180: at 3/8, 1/8, 7/8 and 5/8 of the way.
    {"zoriYCbCr420To422_Interlace_8u_P3R", {2, 8}, {10, 100, 18, 180}, {10, 100, 13, 110, 17, 150, 18, 180}},
};

TEST(SamplingGolden, Chroma)
{
    const auto plusOne = [](Bytes bytes) {
        for (std::uint8_t& byte : bytes) ++byte;
        return bytes;
    };
    for (const Golden& g : goldens) {
        Bytes luma(static_cast<std::size_t>(g.size.width * g.size.height));
        std::iota(luma.begin(), luma.end(), std::uint8_t{0});
        expectGolden(
            {g.function, g.size, {luma, g.source, plusOne(g.source)}, {luma, g.destination, plusOne(g.destination)}});
    }
}

TEST(SamplingGolden, ChromaOfTwoKinds)
{
    const Bytes luma(16);
    // Filtered rows saturate: (9 * 255 - 255 + 8) / 16 = 128, (9 * 510 + 8) / 16 = 287, (-255 + 8) / 16 = -16;
    // (9 * 255 - 255 + 8) / 16 = 128, (-510 + 8) / 16 = -32, (9 * 510 - 255 + 8) / 16 = 271.
    expectGolden({"zoriYCbCr420ToYCbCr422_Filter_8u_P3R",
                  {2, 8},
                  {luma, {0, 255, 255, 0}, {255, 0, 0, 255}},
                  {luma, {0, 128, 255, 255, 255, 128, 0, 0}, {255, 128, 0, 0, 0, 128, 255, 255}}});
    // Rearranged back.
    expectGolden({"zoriYCbCr420ToYCbCr411_8u_P3P2R",
                  {8, 2},
                  {luma, {1, 3, 2, 4}, {5, 7, 6, 8}},
                  {luma, {1, 5, 2, 6, 3, 7, 4, 8}}});
}

} // namespace
} // namespace zorcc::test
