// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas.
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toYuv = {"zoriRGBToYUV_8u_C3R", "zoriRGBToYUV_8u_AC4R", "zoriRGBToYUV_8u_AC4P4R", "zoriRGBToYUV_8u_C3P3R"};
const Names toYuvMatrix = {"zoriRGBToYUV_8u_P3R"};
const Names toPairs = {"zoriRGBToYUV422_8u_C3C2R", "zoriRGBToYUV422_8u_C3P3R", "zoriRGBToYUV422_8u_C3P3",
                       "zoriRGBToYUV422_8u_P3R", "zoriRGBToYUV422_8u_P3"};
const Names toBlocksQ14 = {"zoriRGBToYUV420_8u_C3P3R", "zoriRGBToYUV420_8u_C3P3"};
const Names toBlocksQ16 = {"zoriRGBToYUV420_8u_P3R", "zoriRGBToYUV420_8u_P3", "zoriBGRToYUV420_8u_AC4P3R"};
const Names from565 = {"zoriRGB565ToYUV420_16u8u_C3P3R", "zoriRGB565ToYUV422_16u8u_C3P3R"};
const Names toRgb = {"zoriYUVToRGB_8u_C3R",      "zoriYUVToRGB_8u_AC4R",     "zoriYUV422ToRGB_8u_C2C3R",
                     "zoriYUV422ToRGB_8u_P3C3R", "zoriYUV422ToRGB_8u_P3C3",  "zoriYUV422ToRGB_8u_P3R",
                     "zoriYUV422ToRGB_8u_P3",    "zoriYUV420ToRGB_8u_P3C3R", "zoriYUV420ToRGB_8u_P3C3",
                     "zoriYUV420ToRGB_8u_P3R",   "zoriYUV420ToRGB_8u_P3",    "zoriYUV420ToBGR_8u_P3C3R"};
const Names toRgbPlanarWeights = {"zoriYUVToRGB_8u_P3C3R", "zoriYUVToRGB_8u_P3R"};
const Names toRgbRounded = {"zoriYUV422ToRGB_8u_P3AC4R", "zoriYUV420ToRGB_8u_P3AC4R"};

const GoldenColours goldenColours[] = {
    {toYuv, {255, 255, 255}, {255, 128, 128}},
    {toYuv, {0, 0, 0}, {0, 128, 128}},
    {toYuv, {0, 0, 255}, {29, 239, 102}},
    {toYuv, {255, 0, 0}, {76, 90, 255}}, // V 284 saturates
    {toYuv, {0, 255, 0}, {149, 54, 0}},  // V -4 saturates
    // Luma 2883580 / 65536 = 43.9995, at 14 bits 720920 / 16384 = 44.001. B - Y is 136.5 on one pixel, 273.0003 on two,
    // 546.0001 on four with rounding: U 66.9, 67.2, 67.2 above 128.
    {toYuv, {0, 40, 180}, {43, 194, 89}},
    {toPairs, {0, 40, 180}, {43, 195, 89}},
    {toBlocksQ14, {0, 40, 180}, {44, 194, 89}},
    {toBlocksQ16, {0, 40, 180}, {43, 195, 89}},
    {toBlocksQ14, {255, 255, 255}, {255, 128, 128}},
    {toBlocksQ16, {255, 255, 255}, {255, 128, 128}},
    {toPairs, {255, 255, 255}, {255, 128, 128}},
    // Of green 115 and blue 250, luma in blocks of 16: (17280 + 7295) >> 8 = 95; in one sum: 6291685 >> 16 = 96.
    {toYuvMatrix, {0, 115, 250}, {95, 203, 43}, 48},
    {toYuvMatrix, {0, 115, 250}, {96, 203, 43}, 15},
    {toYuvMatrix, {255, 255, 255}, {254, 128, 128}},
    // White is 248, 252, 248: luma 16406808 / 65536 = 250.3.
    {from565, {255, 255, 255}, {250, 127, 126}},
    {from565, {248, 0, 0}, {74, 91, 255}},
    {from565, {0, 252, 0}, {147, 55, 0}},
    {from565, {0, 0, 248}, {28, 236, 103}},

    {toRgb, {0, 0, 0}, {0, 124, 0}},
    {toRgb, {128, 128, 128}, {128, 128, 128}},
    {toRgb, {255, 255, 255}, {255, 131, 255}},
    // Green: 25821 * 46 + 38076 * 17 = 1835058, 18 above 28 * 65536; with weights less by one it is 45 below.
    {toRgb, {100, 174, 145}, {119, 71, 193}},
    {toRgbPlanarWeights, {100, 174, 145}, {119, 72, 193}},
    {toRgbPlanarWeights, {0, 0, 0}, {0, 124, 0}},
    {toRgbRounded, {0, 0, 0}, {0, 125, 0}}, // 124.6
    {toRgbRounded, {100, 129, 127}, {99, 100, 102}},
    {toRgb, {100, 129, 127}, {98, 100, 102}}, // red 98.86
};

TEST(YuvGolden, Colours) { expectGolden(goldenColours); }

TEST(YuvGolden, Bytes)
{
    const Bytes blueBlackRed = {0, 0, 255, 0, 0, 0, 255, 0, 0}, blue = {0, 0, 255, 77};
    const std::vector<Bytes> block = {Bytes(4, 100), {174}, {145}};
    const GoldenCall calls[] = {
        // A pair: B - Y is 226.9, U 55.6 above 128; R - Y is -28.07 so -29, V 12.7 below. Red alone.
        {"zoriRGBToYUV422_8u_C3C2R", {3, 1}, {blueBlackRed}, {{29, 183, 0, 115, 76, 90, kept, kept}}},
        {"zoriRGBToYUV422_8u_C3P3R", {3, 1}, {blueBlackRed}, {{29, 0, 76, kept}, {183, kept}, {115, kept}}},
        // The last pixel takes its own U, 1, and the V of the pair before, 17: green 5880487 / 65536 = 89.7.
        {"zoriYUV422ToRGB_8u_C2C3R",
         {3, 1},
         {{100, 174, 100, 145, 100, 129}},
         {{119, 71, 193, 119, 71, 193, 119, 89, 102, kept}}},
        // One byte of chroma serves as U and V: green (6553600 - 63897) / 65536 = 99.02.
        {"zoriYUV422ToRGB_8u_C2C3R", {1, 2}, {{100, 129, 100, 127}}, {{101, 99, 102, 98, 100, 97}}},
        {"zoriYUV422ToRGB_8u_P3C3R",
         {3, 1},
         {{100, 100, 100}, {174}, {145}},
         {{119, 71, 193, 119, 71, 193, 119, 71, 193, kept}}},
        {"zoriYUV422ToRGB_8u_P3C3R", {1, 1}, {{100}, {174}, {145}}, {{100, 100, 100, kept}}},
        // Of 5 x 3 pixels the 4 x 2 in whole blocks.
        {"zoriRGBToYUV420_8u_C3P3",
         {5, 3},
         {Bytes(45, 255)},
         {{255, 255, 255, 255, kept, 255, 255, 255, 255, kept, kept, kept, kept, kept, kept},
          {128, 128, kept},
          {128, 128, kept}},
         zorStatusOddSize},
        // Words with red in the lowest bits: red, green, blue, two of each.
        {"zoriRGB565ToYUV422_16u8u_C3P3R",
         {6, 1},
         {{0x1f, 0, 0x1f, 0, 0xe0, 0x07, 0xe0, 0x07, 0, 0xf8, 0, 0xf8}},
         {{74, 74, 147, 147, 28, 28}, {91, 55, 236}, {255, 0, 103}}},
        {"zoriRGBToYUV_8u_AC4R", {1, 1}, {blue}, {{29, 239, 102, kept}}},
        {"zoriRGBToYUV_8u_AC4P4R", {1, 1}, {blue}, {{29}, {239}, {102}, {77}}},
        {"zoriYUV420ToRGB_8u_P3AC4R",
         {2, 2},
         block,
         {{119, 72, 193, 0, 119, 72, 193, 0, 119, 72, 193, 0, 119, 72, 193, 0}}},
        {"zoriYUV420ToBGR_8u_P3C3R", {2, 2}, block, {{193, 71, 119, 193, 71, 119, 193, 71, 119, 193, 71, 119}}},
    };
    expectGolden(calls);
}

} // namespace
} // namespace zorcc::test
