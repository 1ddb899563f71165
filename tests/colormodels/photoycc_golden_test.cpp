// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas.
#include <gtest/gtest.h>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

const Names toYcc = {"zoriRGBToYCC_8u_C3R", "zoriRGBToYCC_8u_AC4R"},
            toRgb = {"zoriYCCToRGB_8u_C3R", "zoriYCCToRGB_8u_AC4R"};
const Names toYcc16 = {"zoriRGBToYCC_16u_C3R", "zoriRGBToYCC_16u_AC4R"},
            toRgb16 = {"zoriYCCToRGB_16u_C3R", "zoriYCCToRGB_16u_AC4R"};

const GoldenColours goldens[] = {
    {toYcc, {255, 255, 255}, {181, 156, 137}},
    {toYcc, {0, 0, 0}, {0, 156, 137}},
    {toYcc, {255, 0, 0}, {54, 122, 232}}, // 1219 * 2921, -1220 * 1789, 2860 * 2178, by 65536
    {toRgb, {0, 0, 0}, {0, 194, 0}},      // -250, (794 * 5536 + 2084 * 3993) >> 16, -346
    {toRgb, {181, 156, 137}, {245, 245, 245}},
    {toRgb, {255, 255, 255}, {255, 194, 255}}, // 561, (89024 * 255 - 794 * 3512 - 2084 * 3438) >> 16, 565
    {toYcc16, {65535, 65535, 65535}, {46744, 40092, 35209}},
    {toYcc16, {0, 0, 0}, {0, 40092, 35209}},
    {toRgb16, {46744, 40092, 35209}, {63497, 63497, 63497}},
    {toRgb16, {0, 0, 0}, {0, 49894, 0}},
    {{"zoriYCCToRGB_16s_C3R", "zoriYCCToRGB_16s_AC4R"}, {-32768, -32768, -32768}, {-32768, 17126, -32768}},
    {{"zoriYCCToRGB_32f_C3R", "zoriYCCToRGB_32f_AC4R"}, {1, 0.6117647, 0.5372549}, {1, 1, 1}},
};

TEST(PhotoyccGolden, Colours) { expectGolden(goldens); }

} // namespace
} // namespace zorcc::test
