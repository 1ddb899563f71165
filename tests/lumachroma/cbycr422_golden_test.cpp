// SPDX-License-Identifier: MIT
// Results worked out from the published integer weights, with exact arithmetic outside this program. The weighted sums
// of these colours lie next to a border between two results.
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toCbYCr = {"zoriBGRToCbYCr422_8u_AC4C2R"};
const Names toYCrCb = {"zoriRGBToYCrCb422_8u_C3C2R", "zoriRGBToYCrCb422_8u_P3C2R"};
const Names fromCbYCr = {"zoriCbYCr422ToBGR_8u_C2C4R", "zoriCbYCr422ToRGB_8u_C2C3R"};
const Names fromYCrCb = {"zoriYCrCb422ToRGB_8u_C2C3R", "zoriYCrCb422ToRGB_8u_C2P3R"};

const GoldenColours goldens[] = {
    {toCbYCr, {36, 243, 32, 52, 36, 235}, {151, 71, 139, 87}},
    {toCbYCr, {82, 62, 89, 236, 66, 242}, {77, 134, 158, 162}},
    {toCbYCr, {101, 200, 162, 123, 19, 102}, {159, 67, 138, 127}}, // the lower constant of Cr
    {toCbYCr, {215, 77, 33, 109, 1, 228}, {113, 67, 150, 175}},
    {toYCrCb, {101, 200, 162, 123, 19, 102}, {159, 67, 138, 128}},
    {toYCrCb, {215, 77, 33, 109, 1, 228}, {113, 67, 150, 176}},
    {toYCrCb, {159, 97, 35, 137, 8, 82}, {109, 63, 117, 169}},
    {toYCrCb, {32, 190, 235, 144, 115, 47}, {143, 116, 132, 101}},
    {fromCbYCr, {136, 118, 74}, {53, 187, 120}},
    {fromCbYCr, {122, 135, 197}, {234, 65, 137}},
    {fromCbYCr, {178, 125, 148}, {220, 173, 183}},
    {fromCbYCr, {64, 107, 114}, {34, 75, 14}},
    {fromCbYCr, {71, 216, 112}, {38, 43, 242}},
    {fromCbYCr, {60, 146, 162}, {105, 17, 88}},
    {fromYCrCb, {155, 82, 177}, {239, 139, 69}},
    {fromYCrCb, {106, 201, 63}, {1, 128, 252}},
    {fromYCrCb, {84, 119, 210}, {210, 16, 60}},
    {fromYCrCb, {44, 211, 117}, {15, 8, 200}},
    {fromYCrCb, {151, 62, 64}, {54, 235, 24}},
};

TEST(CbYCr422Golden, Colours) { expectGolden(goldens); }

TEST(CbYCr422Golden, FilteredRows)
{
    const struct {
        Bytes rgb, expected;
    } rows[] = {
        {{174, 18, 150, 89, 117, 8, 45, 140, 158, 112, 19, 246}, {134, 84, 156, 99, 150, 114, 112, 78}},
        {{45, 215, 67, 93, 135, 69, 153, 71, 45, 15, 228, 38}, {102, 142, 92, 115, 98, 96, 123, 138}},
        {{75, 166, 98, 247, 120, 169, 164, 44, 144, 84, 104, 158}, {120, 129, 123, 157, 148, 94, 161, 105}},
        {{12, 249, 20, 128, 197, 94, 249, 187, 23, 98, 38, 195}, {87, 147, 78, 157, 94, 176, 145, 79}},
        {{50, 168, 245, 103, 246, 133, 69, 84, 147, 246, 61, 37}, {147, 138, 86, 179, 126, 90, 129, 114}},
    };
    for (const auto& row : rows) expectGolden({"zoriRGBToCbYCr422_8u_C3C2R", {4, 1}, {row.rgb}, {row.expected}});
}

// The row before counts for nothing, and an odd last pixel is not filtered; nor has it a Cr, or a Y after it.
TEST(CbYCr422Golden, Rows)
{
    const Bytes row = {255, 255, 255, 255, 0, 0, 0, 255, 0, 0, 0, 255, 12, 200, 77};
    const Bytes expected = {119, 235, 156, 82, 109, 145, 105, 41, 102, 127};
    Bytes rows = row, expectedRows = expected;
    rows.insert(rows.end(), row.begin(), row.end());
    expectedRows.insert(expectedRows.end(), expected.begin(), expected.end());
    expectGolden({"zoriRGBToCbYCr422_8u_C3C2R", {5, 2}, {rows}, {expectedRows}});
}

// Values as they pass through the transfer curve: 3 1 20 80 160 240 7 40 2 100 5 60 1 128 254 are
// 14 4 64 141 202 247 30 97 9 159 23 121 4 180 255 on it.
TEST(CbYCr422Golden, LinearRow)
{
    expectGolden({"zoriRGBToCbYCr422Gamma_8u_C3C2R",
                  {5, 1},
                  {{3, 1, 20, 80, 160, 240, 7, 40, 2, 100, 5, 60, 1, 128, 254}},
                  {{148, 28, 121, 178, 127, 73, 122, 80, 187, 133}}});
}

// Red last pixels: as blue where bytes are taken for R, G, B; with Cr of their own, and after whole fours with luma of
// second pixels rounded down, where Cr is first.
TEST(CbYCr422Golden, LastPixels)
{
    expectGolden({"zoriBGRToCbYCr422_8u_AC4C2R", {1, 1}, {{0, 0, 255, 0}}, {{240, 41, kept}}});
    expectGolden(
        {"zoriRGBToYCrCb422_8u_C3C2R", {3, 1}, {{0, 0, 0, 255, 0, 0, 255, 0, 0}}, {{16, 184, 81, 109, 82, 240, kept}}});
    expectGolden({"zoriYCrCb422ToRGB_8u_C2C3R", {1, 1}, {{84, 210}}, {{210, 0, 244, kept}}});
}

} // namespace
} // namespace zorcc::test
