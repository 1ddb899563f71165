// SPDX-License-Identifier: MIT
// Results worked out from the published integer weights, with exact arithmetic outside this program. The weighted sums
// of these colours lie next to a border between two results, so close that a weight or a constant with any one digit
// wrong changes one of them (but for digits that change no result of any colour).
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

using Names = std::vector<std::string_view>;

const Names toStudioBlocks = {"zoriBGRToYCbCr420_709CSC_8u_C3P3R", "zoriBGRToYCbCr420_709CSC_8u_AC4P3R",
                              "zoriBGRToYCrCb420_709CSC_8u_C3P3R", "zoriBGRToYCrCb420_709CSC_8u_AC4P3R"};
const Names fromStudio = {"zoriYCbCr420ToBGR_709CSC_8u_P3C3R", "zoriYCbCrToBGR_709CSC_8u_P3C3R",
                          "zoriYCbCrToBGR_709CSC_8u_P3C4R"};
const Names toFullBlocks = {"zoriBGRToYCbCr420_709HDTV_8u_AC4P3R"};
const Names toFullPairs = {"zoriBGRToCbYCr422_709HDTV_8u_C3C2R", "zoriBGRToCbYCr422_709HDTV_8u_AC4C2R"};
const Names fromFull = {"zoriYCbCr420ToBGR_709HDTV_8u_P3C4R", "zoriCbYCr422ToBGR_709HDTV_8u_C2C3R",
                        "zoriCbYCr422ToBGR_709HDTV_8u_C2C4R"};

const GoldenColours goldens[] = {
    {toStudioBlocks, {0, 0, 0}, {16, 128, 128}},
    {toStudioBlocks, {0, 159, 119, 101, 163, 128, 255, 255, 0, 125, 244, 255}, {121, 143, 219, 204, 101, 93}},
    {toStudioBlocks, {234, 123, 119, 218, 0, 121, 218, 0, 95, 13, 145, 0}, {142, 63, 62, 107, 124, 173}},
    {toStudioBlocks, {221, 0, 166, 255, 29, 70, 116, 0, 255, 75, 0, 39}, {67, 85, 53, 32, 167, 193}},
    {toStudioBlocks, {217, 191, 255, 0, 187, 0, 0, 0, 214, 251, 8, 188}, {189, 131, 29, 78, 155, 134}},
    {toStudioBlocks, {221, 255, 87, 239, 67, 64, 1, 101, 23, 21, 240, 215}, {218, 105, 80, 181, 102, 111}},
    {toStudioBlocks, {96, 31, 129, 225, 94, 155, 0, 255, 0, 141, 255, 235}, {61, 125, 173, 213, 119, 110}},
    {toStudioBlocks, {217, 249, 68, 228, 213, 183, 234, 27, 23, 0, 15, 96}, {213, 200, 77, 31, 108, 148}},
    {toStudioBlocks, {153, 102, 63, 254, 231, 255, 165, 0, 10, 61, 0, 210}, {111, 220, 47, 40, 143, 158}},
    {toFullBlocks, {0, 0, 0}, {0, 128, 128}},
    {toFullBlocks, {89, 73, 45, 176, 110, 255, 125, 41, 178, 87, 254, 255}, {74, 134, 69, 219, 160, 125}},
    {toFullBlocks, {255, 248, 133, 26, 114, 255, 79, 0, 38, 35, 76, 236}, {241, 105, 20, 79, 157, 119}},
    {toFullBlocks, {255, 255, 255, 46, 94, 239, 53, 7, 131, 179, 125, 0}, {255, 94, 26, 128, 145, 133}},
    {toFullBlocks, {208, 255, 255, 27, 76, 214, 128, 40, 242, 74, 255, 169}, {245, 75, 73, 210, 166, 100}},
    {toFullBlocks, {251, 0, 17, 163, 231, 203, 255, 0, 255, 185, 0, 0}, {55, 215, 73, 39, 141, 204}},
    {toFullBlocks, {255, 76, 176, 50, 7, 176, 255, 164, 0, 38, 255, 98}, {121, 28, 172, 197, 118, 141}},
    {toFullBlocks, {0, 255, 87, 255, 82, 212, 45, 161, 174, 0, 139, 0}, {189, 128, 137, 99, 117, 86}},
    {toFullBlocks, {27, 83, 0, 98, 46, 67, 218, 255, 68, 238, 1, 153}, {65, 59, 234, 62, 109, 154}},
    {toFullPairs, {73, 194, 45, 200, 156, 255}, {157, 173, 120, 110}},
    {toFullPairs, {252, 208, 100, 255, 0, 61}, {210, 59, 98, 205}},
    {toFullPairs, {0, 0, 244, 201, 255, 255}, {18, 243, 194, 108}},
    {toFullPairs, {0, 203, 250, 157, 160, 235}, {163, 165, 171, 73}},
    {toFullPairs, {255, 0, 0, 0, 0, 76}, {54, 5, 133, 191}},
    {toFullPairs, {48, 47, 0, 32, 81, 219}, {44, 80, 154, 114}},
    {toFullPairs, {10, 0, 215, 68, 0, 28}, {18, 17, 186, 142}},
    {toFullPairs, {255, 255, 49, 0, 111, 0}, {240, 79, 53, 107}},
    {toFullPairs, {83, 102, 43, 248, 44, 8}, {94, 85, 93, 177}},
    {fromStudio, {235, 128, 128}, {255, 255, 255}},
    {fromStudio, {42, 20, 180}, {124, 25, 0}},
    {fromStudio, {21, 160, 84}, {0, 22, 74}},
    {fromStudio, {240, 39, 76}, {168, 255, 73}},
    {fromStudio, {228, 235, 245}, {255, 161, 255}},
    {fromFull, {255, 128, 128}, {255, 255, 255}},
    {fromFull, {246, 119, 161}, {255, 233, 230}},
    {fromFull, {58, 3, 253}, {250, 23, 0}},
    {fromFull, {217, 22, 40}, {81, 255, 25}},
};

TEST(Bt709Golden, Colours)
{
    for (const GoldenColours& golden : goldens) expectGolden(golden);
}

// 255 blue have Cb 0.511 * 255 above 128, and luma 0, which both are limited; so is that of an odd last pixel.
TEST(Bt709Golden, PairsStayWithinOneAnd254)
{
    expectGolden({"zoriBGRToCbYCr422_709HDTV_8u_C3C2R",
                  {3, 1},
                  {{255, 0, 0, 255, 0, 0, 255, 0, 0}},
                  {{254, 18, 116, 18, 254, 18, kept}}});
    expectGolden({"zoriBGRToCbYCr422_709HDTV_8u_C3C2R", {2, 1}, {Bytes(6, 0)}, {{128, 1, 128, 1}}});
}

} // namespace
} // namespace zorcc::test
