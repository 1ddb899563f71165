// SPDX-License-Identifier: MIT
// Results worked out from the published integer weights, with exact arithmetic outside this program. The weighted sums
// of these colours lie next to a border between two results, so close that a weight or a constant with any one digit
// wrong changes one of them (but for digits that change no result of any colour).
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

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
    {toStudioBlocks, {83, 168, 180, 241, 192, 105, 159, 222, 20, 12, 94, 97}, {145, 185, 183, 82, 102, 111}},
    {toStudioBlocks, {241, 250, 79, 187, 196, 128, 209, 78, 15, 110, 230, 101}, {219, 178, 103, 184, 80, 131}},
    {toStudioBlocks, {235, 55, 173, 201, 5, 204, 123, 239, 11, 144, 104, 220}, {103, 69, 186, 120, 143, 158}},
    {toStudioBlocks, {251, 37, 175, 153, 204, 133, 227, 7, 227, 192, 119, 36}, {95, 178, 76, 126, 139, 176}},
    {toFullBlocks, {0, 0, 0}, {0, 128, 128}},
    {toFullBlocks, {161, 93, 121, 30, 79, 217, 111, 233, 170, 169, 14, 55}, {110, 78, 202, 50, 145, 133}},
    {toFullBlocks, {87, 155, 127, 233, 29, 113, 169, 123, 17, 253, 239, 192}, {139, 79, 125, 239, 109, 154}},
    {toFullBlocks, {139, 71, 99, 219, 151, 179, 37, 164, 171, 206, 119, 4}, {88, 168, 137, 129, 118, 141}},
    {toFullBlocks, {231, 163, 191, 104, 172, 144, 228, 158, 90, 179, 146, 153}, {180, 156, 168, 154, 117, 141}},
    {toFullPairs, {10, 204, 43, 12, 80, 52}, {151, 64, 95, 66}},
    {toFullPairs, {130, 113, 207, 131, 44, 238}, {123, 76, 196, 148}},
    {toFullPairs, {245, 65, 84, 123, 55, 83}, {105, 72, 125, 190}},
    {toFullPairs, {37, 105, 77, 58, 245, 75}, {89, 193, 92, 67}},
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

TEST(Bt709Golden, Colours) { expectGolden(goldens); }

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
