// SPDX-License-Identifier: MIT
// Results worked out by hand from the formulas, and what the edges of their ranges give.
#include <gtest/gtest.h>

#include <limits>

#include "tests/harness/golden.h"

namespace zorcc::test {
namespace {

constexpr double epsilon = 1.1920929e-7f, least = std::numeric_limits<float>::denorm_min();

const GoldenColours goldens[] = {
    {{"zoriRGBToHLS_8u_C3R"}, {255, 0, 0}, {0, 127, 255}},     // L 127.5
    {{"zoriRGBToHLS_8u_C3R"}, {255, 255, 0}, {42, 127, 255}},  // H 42.5
    {{"zoriRGBToHLS_8u_C3R"}, {0, 0, 255}, {170, 127, 255}},   //
    {{"zoriRGBToHLS_8u_C3R"}, {200, 100, 50}, {14, 125, 153}}, // 20 degrees, 150 / 250
    {{"zoriRGBToHLS_8u_C3R"}, {10, 20, 250}, {168, 130, 244}}, // 237.5 degrees, 240 / 250
    {{"zoriRGBToHLS_8u_C3R"}, {250, 10, 20}, {253, 130, 244}}, // -2.5 + 360 degrees: 253.2
    {{"zoriRGBToHLS_8u_C3R"}, {77, 77, 77}, {0, 77, 0}},
    {{"zoriRGBToHLS_8u_C3R"}, {0, 0, 0}, {0, 0, 0}},
    {{"zoriRGBToHLS_8u_C3R"}, {255, 255, 255}, {0, 255, 0}},
    {{"zoriHLSToRGB_8u_C3R"}, {123, 77, 0}, {77, 77, 77}},
    {{"zoriHLSToRGB_8u_C3R"}, {170, 100, 255}, {0, 0, 200}}, // 240.00000 degrees, m2 = 200.00002 / 255
    {{"zoriHLSToRGB_8u_C3R"}, {21, 100, 255}, {200, 98, 0}}, // 29.65 degrees, where green rises: 200 * 29.65 / 60
    {{"zoriHLSToRGB_8u_C3R"}, {64, 100, 255}, {98, 200, 0}}, // 90.35 degrees, where red falls: 200 * (120 - 90.35) / 60
    {{"zoriRGBToHLS_16u_C3R"}, {65535, 0, 0}, {0, 32767, 65535}},
    {{"zoriRGBToHLS_16u_C3R"}, {40000, 20000, 10000}, {3640, 25000, 39321}}, // 20 degrees: 3640.8
    {{"zoriHLSToRGB_16u_C3R"}, {12345, 54321, 0}, {54321, 54321, 54321}},
    {{"zoriRGBToHLS_16s_C3R"}, {1234, 1234, 1234}, {-32768, 1234, -32768}},
    {{"zoriRGBToHLS_16s_C3R"}, {32767, -32768, -32768}, {-32768, -1, 32767}},
    {{"zoriHLSToRGB_16s_C3R"}, {77, 1234, -32768}, {1234, 1234, 1234}},
    {{"zoriRGBToHLS_32f_C3R"}, {1, 0, 0}, {0, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {0, 0, 1}, {240.0f / 360, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {0.75f, 0.25f, 0.5f}, {330.0f / 360, 0.5f, 0.5f}},
    {{"zoriRGBToHLS_32f_C3R"}, {epsilon, 0, 0}, {0, epsilon / 2, 0}}, // still grey
    {{"zoriRGBToHLS_32f_C3R"}, {2 * epsilon, 0, 0}, {0, epsilon, 1}},
    // Hues of half and of one and a half times the least float are rounded to even.
    {{"zoriRGBToHLS_32f_C3R"}, {1, 3 * least, 0}, {0, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {1, 9 * least, 0}, {2 * least, 0.5f, 1}},
    // Digits of a quotient next to the least normal float, and sixty times a sample that is too large for that.
    {{"zoriRGBToHLS_32f_C3R"}, {1, 0x1.8001p-124, 0}, {0x1.0000aap-126, 0.5f, 1}},
    {{"zoriRGBToHLS_32f_C3R"}, {0x1p127, 0x1p126, 0}, {std::numeric_limits<double>::infinity(), 0x1p126, -1}},
    {{"zoriHLSToRGB_32f_C3R"}, {0, 0.5f, 1}, {1, 0, 0}},
    {{"zoriHLSToRGB_32f_C3R"}, {1, 0.5f, 1}, {1, 0, 0}}, // 480 degrees for red are 120
    {{"zoriHLSToRGB_32f_C3R"}, {0.3f, 0.7f, 0}, {0.7f, 0.7f, 0.7f}},
    {{"zoriHLSToRGB_32f_C3R"}, {0.5f, 0.25f, 0.5f}, {0.125f, 0.375f, 0.375f}},
};

TEST(HlsGolden, Colours) { expectGolden(goldens); }

// At 60, 180 and 300 degrees.
TEST(HlsGolden, HighWhereAChannelBeginsToFall)
{
    const std::string_view function = "zoriHLSToRGB_32f_C3R";
    for (int i = 0; i < 500; ++i) {
        const float l = static_cast<float>(i * 7 % 1000) / 1000, s = static_cast<float>(i * 13 % 1000) / 1000,
                    high = l <= 0.5f ? l * (1 + s) : l + s - l * s, low = 2 * l - high;
        expectGolden({{function}, {1.0f / 6, l, s}, {high, high, low}});
        expectGolden({{function}, {3.0f / 6, l, s}, {low, high, high}});
        expectGolden({{function}, {5.0f / 6, l, s}, {high, low, high}});
    }
}

} // namespace
} // namespace zorcc::test
