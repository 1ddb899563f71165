// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas. The CIE values (L*, a*, b*) are: red (53.24, 80.09, 67.20), green
// (87.74, -86.18, 83.18), blue (32.30, 79.19, -107.86).
#include <gtest/gtest.h>

#include <cmath>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toLab = {"zoriBGRToLab_8u_C3R"}, toLab16 = {"zoriBGRToLab_8u16u_C3R"}, toBgr = {"zoriLabToBGR_8u_C3R"},
            toBgr16 = {"zoriLabToBGR_16u8u_C3R"};

const GoldenColours goldens[] = {
    {toLab, {0, 0, 0}, {0, 128, 128}},
    {toLab, {255, 255, 255}, {255, 128, 128}},
    {toLab, {100, 100, 100}, {176, 128, 128}},
    {toLab, {255, 0, 0}, {136, 208, 195}}, // 135.76, 208.09, 195.20
    {toLab, {0, 255, 0}, {224, 42, 211}},  // 223.72, 41.82, 211.18
    {toLab, {0, 0, 255}, {82, 207, 20}},   // 82.35, 207.19, 20.14
    {toLab, {3, 2, 5}, {22, 136, 118}},    // X is on the line, Y and Z above it: 21.91, 135.77, 117.81
    {toLab16, {0, 0, 0}, {0, 32640, 32640}},
    {toLab16, {255, 0, 0}, {34891, 53064, 49776}},
    {toLab16, {0, 255, 0}, {57497, 10664, 53850}},
    {toLab16, {0, 0, 255}, {21165, 52833, 5135}},
    {toLab16, {3, 2, 5}, {5630, 34621, 30041}},
    {toBgr, {0, 128, 128}, {1, 1, 1}},     // the cube of 16 / 116 is 0.67 / 255
    {toBgr, {136, 208, 195}, {255, 0, 0}}, // 255.44, 0.17, 0.08
    {toBgr, {82, 207, 20}, {0, 0, 255}},   // -0.78, 0.05, 254.61
    {toBgr, {100, 128, 128}, {28, 28, 28}},
    {toBgr16, {0, 32640, 32640}, {1, 1, 1}},
    {toBgr16, {65535, 32640, 32640}, {255, 255, 255}},
    {toBgr16, {21165, 52833, 5135}, {0, 0, 255}},
};

TEST(LabGolden, Colours) { expectGolden(goldens); }

TEST(LabGolden, GreyHasNoColour)
{
    for (int level = 0; level < 256; ++level) {
        const Bytes grey(3, static_cast<std::uint8_t>(level));
        const double y = level / 255.0;
        const double lightness = y > 0.008856 ? 116 * std::cbrt(y) - 16 : 903.3 * y;
        expectGolden(
            {"zoriBGRToLab_8u_C3R", {1, 1}, {grey}, {{static_cast<std::uint8_t>(2.55 * lightness + 0.5), 128, 128}}});
    }
}

} // namespace
} // namespace zorcc::test
