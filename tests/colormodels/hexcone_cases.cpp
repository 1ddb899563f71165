// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/hexcone.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case cases[] = {
    {"zoriRGBToHLS_8u_C3R", rgbToHls},
    {"zoriRGBToHLS_8u_AC4R", rgbToHls},
    {"zoriRGBToHLS_16u_C3R", rgbToHls},
    {"zoriRGBToHLS_16u_AC4R", rgbToHls},
    {"zoriRGBToHLS_16s_C3R", rgbToHls},
    {"zoriRGBToHLS_16s_AC4R", rgbToHls},
    {"zoriRGBToHLS_32f_C3R", rgbToHls},
    {"zoriRGBToHLS_32f_AC4R", rgbToHls},
    {"zoriHLSToRGB_8u_C3R", hlsToRgb},
    {"zoriHLSToRGB_8u_AC4R", hlsToRgb},
    {"zoriHLSToRGB_16u_C3R", hlsToRgb},
    {"zoriHLSToRGB_16u_AC4R", hlsToRgb},
    {"zoriHLSToRGB_16s_C3R", hlsToRgb},
    {"zoriHLSToRGB_16s_AC4R", hlsToRgb},
    {"zoriHLSToRGB_32f_C3R", hlsToRgb},
    {"zoriHLSToRGB_32f_AC4R", hlsToRgb},
    {"zoriBGRToHLS_8u_AC4R", rgbToHls},
    {"zoriBGRToHLS_8u_AC4P4R", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriBGRToHLS_8u_AP4C4R", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriBGRToHLS_8u_AP4R", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriBGRToHLS_8u_C3P3R", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriBGRToHLS_8u_P3C3R", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriBGRToHLS_8u_P3R", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_AC4P4R", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_AP4C4R", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_AP4R", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_C3P3R", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_P3C3R", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_8u_P3R", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriRGBToHSV_8u_C3R", rgbToHsv},
    {"zoriRGBToHSV_8u_AC4R", rgbToHsv},
    {"zoriRGBToHSV_16u_C3R", rgbToHsv},
    {"zoriRGBToHSV_16u_AC4R", rgbToHsv},
    {"zoriHSVToRGB_8u_C3R", hsvToRgb},
    {"zoriHSVToRGB_8u_AC4R", hsvToRgb},
    {"zoriHSVToRGB_16u_C3R", hsvToRgb},
    {"zoriHSVToRGB_16u_AC4R", hsvToRgb},
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
