// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas.
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const GoldenColours goldens[] = {
    // S 165.75, H 0.153846 * 42.5 = 6.54: truncated in whole blocks of four, rounded after them.
    {{"zoriRGBToHSV_8u_C3R"}, {200, 90, 70}, {6, 165, 200}},
    {{"zoriRGBToHSV_8u_C3R"}, {200, 90, 70}, {7, 166, 200}, 3},
    {{"zoriRGBToHSV_8u_C3R"}, {0, 0, 0}, {0, 0, 0}},
    {{"zoriRGBToHSV_8u_C3R"}, {9, 9, 9}, {0, 0, 9}},
    {{"zoriHSVToRGB_8u_C3R"}, {0, 255, 200}, {200, 0, 0}},
    {{"zoriHSVToRGB_8u_C3R"}, {255, 255, 200}, {200, 0, 0}}, // 255 counts as 0
    {{"zoriHSVToRGB_8u_C3R"}, {170, 255, 200}, {0, 0, 200}},
    {{"zoriHSVToRGB_8u_C3R"}, {99, 0, 200}, {200, 200, 200}},
    {{"zoriRGBToHSV_16u_C3R"}, {40000, 20000, 10000}, {3641, 49151, 40000}}, // 65535 / 18 = 3640.8, * 3 / 4 = 49151.25
    {{"zoriHSVToRGB_16u_C3R"}, {65535, 65535, 40000}, {40000, 0, 0}},        // 65535 counts as 0
    {{"zoriHSVToRGB_16u_C3R"}, {0, 65535, 40000}, {40000, 0, 0}},
};

TEST(HsvGolden, Colours) { expectGolden(goldens); }

TEST(HsvGolden, BlocksOfFourAndTheRestOfARow)
{
    expectGolden({"zoriRGBToHSV_8u_C3R",
                  {6, 1},
                  {{200, 90, 70, 200, 90, 70, 200, 90, 70, 200, 90, 70, 200, 90, 70, 200, 90, 70}},
                  {{6, 165, 200, 6, 165, 200, 6, 165, 200, 6, 165, 200, 7, 166, 200, 7, 166, 200}}});
}

} // namespace
} // namespace zorcc::test
