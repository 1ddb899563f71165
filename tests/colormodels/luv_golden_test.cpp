// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas. The CIE values (L*, u*, v*) are: red (53.24, 175.01, 37.75), green
// (87.74, -83.08, 107.39), blue (32.30, -9.40, -130.34).
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toLuv = {"zoriRGBToLUV_8u_C3R", "zoriRGBToLUV_8u_AC4R"},
            toRgb = {"zoriLUVToRGB_8u_C3R", "zoriLUVToRGB_8u_AC4R"};
const Names toLuv16 = {"zoriRGBToLUV_16u_C3R", "zoriRGBToLUV_16u_AC4R"};

const GoldenColours goldens[] = {
    {toLuv, {0, 0, 0}, {0, 97, 136}},
    {toLuv, {0, 0, 1}, {0, 97, 136}}, // Y rounds to no quarter
    {toLuv, {255, 255, 255}, {255, 97, 136}},
    {toLuv, {255, 0, 0}, {136, 223, 173}}, // Y 54.23 counts as 54: L 53.144, 135.5; 126.3 + 97.0, 36.8 + 136.8
    {toLuv, {0, 255, 0}, {224, 37, 241}},
    {toLuv, {0, 0, 255}, {83, 90, 9}}, // Y 18.40 counts as 18.5: 330 quarters
    {toRgb, {0, 200, 30}, {0, 0, 0}},
    {toRgb, {136, 223, 173}, {255, 0, 0}},           // 256.4, -0.1, 0.0
    {toRgb, {100, 97, 136}, {28, 27, 28}},           // 28.09, 27.31, 27.65
    {toLuv16, {65535, 0, 0}, {34891, 57207, 44462}}, // 34891.2, 57207.1, 44461.8
    {toLuv16, {0, 0, 0}, {0, 24807, 35019}},         // 24807.0, 35018.7
    {{"zoriRGBToLUV_16s_C3R", "zoriRGBToLUV_16s_AC4R"}, {32767, -32768, -32768}, {2123, 24439, 11694}},
    {{"zoriLUVToRGB_16u_C3R", "zoriLUVToRGB_16u_AC4R"}, {0, 65535, 65535}, {0, 0, 0}},
    {{"zoriRGBToLUV_32f_C3R", "zoriRGBToLUV_32f_AC4R"}, {0, 0, 0}, {0, 0, 0}},
    {{"zoriLUVToRGB_32f_C3R", "zoriLUVToRGB_32f_AC4R"}, {8e-5, 1000, -1000}, {0, 0, 0}},
    {{"zoriLUVToRGB_32f_C3R", "zoriLUVToRGB_32f_AC4R"}, {200, 0, 0}, {1, 1, 1}},
};

TEST(LuvGolden, Colours) { expectGolden(goldens); }

} // namespace
} // namespace zorcc::test
