// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/hexcone.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case rules[] = {
    {"zoriBGRToHLS_8u_AC4R", rgbToHls},
    {"zoriBGRToHLS_*", rgbToHls, OddSize::plain, Checks::stepsFirst},
    {"zoriHLSToBGR_*", hlsToRgb, OddSize::plain, Checks::stepsFirst},
    {"zoriRGBToHLS_*", rgbToHls},
    {"zoriHLSToRGB_*", hlsToRgb},
    {"zoriRGBToHSV_*", rgbToHsv},
    {"zoriHSVToRGB_*", hsvToRgb},
};

} // namespace

Family family() { return {"HLS and HSV", rules}; }

} // namespace zorcc::test
