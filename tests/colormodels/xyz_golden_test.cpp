// SPDX-License-Identifier: MIT
// Results worked out by hand from the matrices. Red has the CIE values X = 0.4125, Y = 0.2127, Z = 0.0193, white
// 0.9505, 1, 1.0888.
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toXyz = {"zoriRGBToXYZ_8u_C3R", "zoriRGBToXYZ_8u_AC4R"},
            toRgb = {"zoriXYZToRGB_8u_C3R", "zoriXYZToRGB_8u_AC4R"};

const GoldenColours goldens[] = {
    // The weights of Y add up to 32768 of 32768 in blocks of eight, and to 65534 of 65536 after them.
    {toXyz, {255, 255, 255}, {242, 255, 255}},
    {toXyz, {255, 255, 255}, {242, 254, 255}, 7},
    {toXyz, {255, 0, 0}, {105, 54, 4}},
    {toXyz, {0, 0, 255}, {46, 18, 242}},
    {toXyz, {0, 0, 0}, {0, 0, 0}},
    {toRgb, {255, 0, 0}, {255, 0, 14}}, // 826, -248, 14.2
    {toRgb, {105, 54, 4}, {255, 0, 0}}, // 255.3, -0.3, -0.9
    {toRgb, {0, 0, 255}, {0, 10, 255}},
    {{"zoriRGBToXYZ_16u_C3R", "zoriRGBToXYZ_16u_AC4R"}, {65535, 0, 0}, {27030, 13937, 1267}}, // truncated
    {{"zoriRGBToXYZ_16s_C3R", "zoriRGBToXYZ_16s_AC4R"}, {32767, -32768, -32768}, {-5738, -18831, -31501}},
    {{"zoriXYZToRGB_16u_C3R"}, {27030, 13937, 1267}, {65535, 0, 0}}, // 65535.2, -0.9, -0.0
    {{"zoriXYZToRGB_16u_C3R"}, {1000, 1000, 1000}, {1204, 948, 908}},
    {{"zoriXYZToRGB_32f_C3R", "zoriXYZToRGB_32f_AC4R"}, {4, 0, 0}, {1, 0, 0.055648f * 4}},
};

TEST(XyzGolden, Colours) { expectGolden(goldens); }

TEST(XyzGolden, BlocksOfEightAndTheRestOfARow)
{
    Bytes xyz;
    for (int x = 0; x < 19; ++x)
        for (int value : {242, x < 16 ? 255 : 254, 255}) xyz.push_back(static_cast<std::uint8_t>(value));
    expectGolden({"zoriRGBToXYZ_8u_C3R", {19, 1}, {Bytes(57, 255)}, {xyz}});
}

} // namespace
} // namespace zorcc::test
