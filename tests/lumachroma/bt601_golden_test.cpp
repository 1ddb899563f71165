// SPDX-License-Identifier: MIT
// Results worked out from the published integer weights, with exact arithmetic outside this program. The weighted sums
// of these colours lie next to a border between two results, so close that a weight or a constant with any one digit
// wrong changes one of them (but for digits that change no result of any colour).
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toBt601 = {"zoriRGBToYCbCr_8u_C3R", "zoriRGBToYCbCr_8u_AC4R", "zoriRGBToYCbCr_8u_C3P3R",
                       "zoriRGBToYCbCr_8u_AC4P3R", "zoriRGBToYCbCr_8u_P3R"};
const Names toPairs = {"zoriRGBToYCbCr422_8u_C3C2R", "zoriRGBToYCbCr422_8u_P3C2R"};
const Names toPairsBy8ths = {"zoriBGRToYCbCr422_8u_C3C2R", "zoriBGRToYCbCr422_8u_C3P3R", "zoriBGRToYCbCr422_8u_AC4C2R",
                             "zoriBGRToYCbCr422_8u_AC4P3R", "zoriRGBToYCbCr422_8u_C3P3R"};
const Names toBlocks = {"zoriRGBToYCbCr420_8u_C3P3R", "zoriBGRToYCbCr420_8u_C3P3R",  "zoriBGRToYCbCr420_8u_AC4P3R",
                        "zoriBGRToYCrCb420_8u_C3P3R", "zoriBGRToYCrCb420_8u_AC4P3R", "zoriRGBToYCrCb420_8u_AC4P3R"};
const Names toRgb = {"zoriYCbCrToRGB_8u_C3R",      "zoriYCbCrToRGB_8u_AC4R",           "zoriYCbCrToRGB_8u_P3R",
                     "zoriYCbCr420ToRGB_8u_P3C3R", "zoriYCbCr420ToBGR_8u_P3C3R",       "zoriYCbCr420ToBGR_8u_P3C4R",
                     "zoriYCrCb420ToRGB_8u_P3C4R", "zoriYCrCb420ToBGR_Filter_8u_P3C4R"};
const Names toRgbPlanarWeights = {"zoriYCbCrToRGB_8u_P3C3R", "zoriYCbCrToRGB_8u_P3C4R", "zoriYCbCr422ToRGB_8u_P3C3R"};
const Names toRgbFoldedConstants = {"zoriYCbCr422ToRGB_8u_C2C3R", "zoriYCbCr422ToRGB_8u_C2P3R",
                                    "zoriYCbCr422ToBGR_8u_C2C3R", "zoriYCbCr422ToBGR_8u_C2C4R",
                                    "zoriYCbCr422ToBGR_8u_P3C3R", "zoriYCbCrToBGR_8u_P3C3R",
                                    "zoriYCbCrToBGR_8u_P3C4R"};
const Names from411 = {"zoriYCbCr411ToBGR_8u_P3C3R", "zoriYCbCr411ToBGR_8u_P3C4R"};

const GoldenColours goldens[] = {
    {toBt601, {0, 0, 0}, {16, 128, 128}},
    {toBt601, {255, 255, 255}, {235, 128, 128}},
    {toBt601, {138, 74, 181}, {107, 166, 148}},
    {toBt601, {174, 253, 166}, {204, 101, 99}},
    {toBt601, {138, 166, 14}, {137, 65, 127}},
    {toBt601, {184, 138, 221}, {154, 158, 142}},
    {toBt601, {101, 4, 87}, {53, 150, 165}},
    {toBt601, {166, 43, 179}, {98, 169, 172}},
    {toBt601, {29, 247, 216}, {169, 147, 34}},
    {toBt601, {189, 37, 201}, {103, 178, 183}},
    {toPairs, {214, 186, 222, 237, 160, 25}, {187, 159, 98, 155}},
    {toPairs, {179, 83, 68, 105, 67, 11}, {110, 77, 103, 160}},
    {toPairs, {231, 189, 205, 137, 184, 123}, {191, 156, 118, 128}},
    {toPairs, {39, 182, 249, 7, 49, 148}, {142, 56, 178, 82}},
    {toPairsBy8ths, {222, 49, 130, 49, 148, 105}, {110, 113, 130, 143}},
    {toPairsBy8ths, {97, 32, 45, 159, 223, 23}, {61, 172, 87, 134}},
    {toPairsBy8ths, {51, 6, 45, 59, 152, 242}, {37, 131, 159, 113}},
    {toPairsBy8ths, {9, 129, 12, 164, 183, 93}, {85, 159, 92, 104}},
    {toPairsBy8ths, {102, 203, 40, 157, 70, 9}, {148, 93, 79, 133}},
    {toBlocks, {242, 114, 234, 187, 120, 173, 27, 13, 0, 232, 221, 189}, {159, 141, 29, 206, 134, 149}},
    {toBlocks, {112, 133, 211, 170, 68, 158, 143, 170, 42, 74, 15, 121}, {132, 109, 143, 54, 139, 137}},
    {toBlocks, {134, 140, 250, 223, 126, 58, 233, 177, 78, 176, 115, 113}, {146, 142, 173, 130, 113, 151}},
    {toBlocks, {91, 115, 124, 188, 99, 207, 31, 114, 195, 28, 126, 234}, {109, 134, 101, 110, 166, 109}},
    {toBlocks, {235, 9, 16, 71, 74, 122, 211, 200, 111, 226, 69, 97}, {82, 83, 182, 118, 112, 171}},
    {toBlocks, {215, 204, 86, 169, 49, 65, 188, 230, 54, 194, 126, 86}, {182, 91, 186, 138, 87, 151}},
    {toRgb, {16, 128, 128}, {0, 0, 0}},
    {toRgb, {235, 128, 128}, {254, 254, 254}},
    {toRgb, {168, 64, 160}, {228, 176, 47}},
    {toRgb, {108, 109, 200}, {221, 55, 68}},
    {toRgb, {54, 232, 229}, {205, 0, 253}},
    {toRgb, {100, 200, 175}, {172, 31, 243}},
    {toRgb, {244, 97, 216}, {255, 205, 202}},
    {toRgbPlanarWeights, {170, 182, 42}, {41, 228, 255}},
    {toRgbPlanarWeights, {132, 123, 219}, {255, 63, 124}},
    {toRgbPlanarWeights, {93, 209, 184}, {178, 12, 253}},
    {toRgbPlanarWeights, {237, 114, 32}, {104, 255, 229}},
    {toRgbPlanarWeights, {100, 16, 103}, {57, 161, 0}},
    {toRgbFoldedConstants, {99, 92, 76}, {13, 153, 23}},
    {toRgbFoldedConstants, {101, 136, 113}, {74, 107, 115}},
    {toRgbFoldedConstants, {187, 183, 39}, {57, 249, 255}},
    {toRgbFoldedConstants, {59, 125, 84}, {0, 87, 44}},
    {toRgbFoldedConstants, {205, 214, 196}, {255, 130, 255}},
    {toRgbFoldedConstants, {191, 195, 53}, {83, 238, 255}},
    {toRgbFoldedConstants, {164, 112, 217}, {255, 106, 140}},
    {from411, {165, 101, 160}, {224, 158, 119}},
    {from411, {151, 41, 234}, {255, 104, 0}},
    {from411, {92, 100, 97}, {38, 124, 31}},
    {from411, {14, 201, 246}, {185, 0, 144}},
};

TEST(Bt601Golden, Colours) { expectGolden(goldens); }

// An odd last pixel has luma, rounded, and its own Cb: 0.439 of pure blue above 128.
TEST(Bt601Golden, OddLastPixel)
{
    expectGolden(
        {"zoriRGBToYCbCr422_8u_C3C2R", {3, 1}, {{0, 0, 0, 0, 0, 0, 0, 0, 255}}, {{16, 128, 16, 128, 41, 240, kept}}});
}

// What does not fill a group has luma alone.
TEST(Bt601Golden, WholeGroups)
{
    const Bytes bgr = {234, 114, 242, 173, 120, 187, 0,   13, 27, 189, 221, 232, 0, 0, 255,
                       118, 8,   19,  161, 52,  64,  200, 83, 28, 232, 78,  243, 0, 0, 255};
    const Bytes y = {159, 141, 29, 206, 82, 36, 74, 85, 141, 82};
    const GoldenCall calls[] = {
        {"zoriBGRToYCbCr411_8u_C3P3R", {5, 2}, {bgr}, {y, {134, 176}, {149, 134}}, zorStatusOddSize},
        {"zoriBGRToYCbCr422_8u_C3C2R",
         {3, 1},
         {{130, 49, 222, 105, 148, 49, 0, 0, 255}},
         {{110, 130, 113, 143, 82, kept}}},
        {"zoriRGBToYCbCr422_8u_C3P3R",
         {3, 1},
         {{222, 49, 130, 49, 148, 105, 255, 0, 0}},
         {{110, 113, 82}, {130, kept}, {143, kept}},
         zorStatusOddSize},
        {"zoriBGRToYCrCb420_8u_C3P3R",
         {3, 3},
         {{234, 114, 242, 173, 120, 187, 0,   0, 255, 0,   13, 27, 189, 221,
           232, 0,   0,   255, 0,   0,   255, 0, 0,   255, 0,  0,  255}},
         {{159, 141, 82, 29, 206, 82, 82, 82, 82}, {149, kept}, {134, kept}},
         zorStatusOddSize}};
    expectGolden(calls);
}

} // namespace
} // namespace zorcc::test
