// SPDX-License-Identifier: MIT
// Results worked out from the published integer weights, with exact arithmetic outside this program. The weighted sums
// of these colours lie next to a border between two results, so close that a weight or a constant with any one digit
// wrong changes one of them (but for digits that change no result of any colour).
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

using Names = std::vector<std::string_view>;

const Names toBt601 = {"zoriRGBToYCbCr_8u_C3R", "zoriRGBToYCbCr_8u_AC4R", "zoriRGBToYCbCr_8u_C3P3R",
                       "zoriRGBToYCbCr_8u_AC4P3R", "zoriRGBToYCbCr_8u_P3R"};
const Names toPairs = {"zoriRGBToYCbCr422_8u_C3C2R", "zoriRGBToYCbCr422_8u_P3C2R"};
const Names toBlocks = {"zoriRGBToYCbCr420_8u_C3P3R"};
const Names toRgb = {"zoriYCbCrToRGB_8u_C3R",      "zoriYCbCrToRGB_8u_AC4R",           "zoriYCbCrToRGB_8u_P3R",
                     "zoriYCbCr420ToRGB_8u_P3C3R", "zoriYCbCr420ToBGR_8u_P3C3R",       "zoriYCbCr420ToBGR_8u_P3C4R",
                     "zoriYCrCb420ToRGB_8u_P3C4R", "zoriYCrCb420ToBGR_Filter_8u_P3C4R"};
const Names toRgbPlanarWeights = {"zoriYCbCrToRGB_8u_P3C3R", "zoriYCbCrToRGB_8u_P3C4R", "zoriYCbCr422ToRGB_8u_P3C3R"};
const Names toRgbPackedConstants = {"zoriYCbCr422ToRGB_8u_C2C3R", "zoriYCbCr422ToRGB_8u_C2P3R"};
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
    {toPairs, {84, 105, 255, 118, 1, 216}, {115, 68, 201, 136}},
    {toPairs, {255, 126, 200, 255, 193, 131}, {165, 191, 117, 169}},
    {toPairs, {0, 255, 49, 252, 125, 117}, {149, 155, 90, 108}},
    {toPairs, {127, 0, 70, 5, 30, 79}, {55, 40, 147, 146}},
    {toPairs, {180, 227, 105, 246, 255, 73}, {187, 214, 65, 127}},
    {toPairs, {108, 186, 0, 227, 63, 39}, {138, 109, 76, 154}},
    {toPairs, {18, 15, 137, 108, 245, 194}, {42, 186, 154, 96}},
    {toPairs, {143, 0, 255, 255, 162, 0}, {78, 163, 131, 176}},
    {toPairs, {45, 0, 255, 56, 29, 255}, {53, 69, 228, 127}},
    {toPairs, {0, 255, 192, 137, 45, 151}, {163, 88, 149, 91}},
    {toBlocks, {191, 255, 254, 0, 0, 147, 255, 255, 0, 122, 75, 86}, {219, 30, 210, 94, 117, 127}},
    {toBlocks, {255, 160, 0, 98, 195, 184, 255, 113, 113, 0, 255, 60}, {162, 157, 150, 150, 92, 122}},
    {toBlocks, {86, 53, 65, 121, 237, 0, 250, 0, 105, 9, 194, 79}, {71, 167, 91, 124, 103, 130}},
    {toBlocks, {15, 30, 138, 0, 0, 4, 0, 0, 129, 134, 133, 50}, {48, 16, 29, 122, 145, 123}},
    {toBlocks, {110, 0, 0, 220, 255, 255, 255, 0, 0, 17, 115, 165}, {44, 226, 82, 95, 125, 152}},
    {toBlocks, {186, 255, 39, 0, 147, 127, 56, 255, 255, 155, 255, 18}, {196, 103, 184, 186, 95, 79}},
    {toBlocks, {0, 243, 35, 0, 0, 0, 0, 221, 0, 217, 238, 147}, {142, 16, 127, 206, 88, 84}},
    {toBlocks, {193, 7, 149, 167, 255, 3, 0, 255, 0, 61, 229, 0}, {84, 188, 145, 147, 74, 103}},
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
    {toRgbPackedConstants, {99, 92, 76}, {13, 153, 23}},
    {toRgbPackedConstants, {101, 136, 113}, {74, 107, 115}},
    {toRgbPackedConstants, {187, 183, 39}, {57, 249, 255}},
    {toRgbPackedConstants, {59, 125, 84}, {0, 87, 44}},
    {toRgbPackedConstants, {205, 214, 196}, {255, 130, 255}},
    {toRgbPackedConstants, {191, 195, 53}, {83, 238, 255}},
    {toRgbPackedConstants, {164, 112, 217}, {255, 106, 140}},
    {from411, {165, 101, 160}, {224, 158, 119}},
    {from411, {151, 41, 234}, {255, 104, 0}},
    {from411, {92, 100, 97}, {38, 124, 31}},
    {from411, {14, 201, 246}, {185, 0, 144}},
};

TEST(Bt601Golden, Colours)
{
    for (const GoldenColours& golden : goldens) expectGolden(golden);
}

// An odd last pixel has luma, rounded, and its own Cb: 0.439 of pure blue above 128.
TEST(Bt601Golden, OddLastPixel)
{
    expectGolden(
        {"zoriRGBToYCbCr422_8u_C3C2R", {3, 1}, {{0, 0, 0, 0, 0, 0, 0, 0, 255}}, {{16, 128, 16, 128, 41, 240, kept}}});
}

} // namespace
} // namespace zorcc::test
