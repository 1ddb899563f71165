// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/ycbcr.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case cases[] = {
    {"zoriRGBToYCbCr_8u_C3R", rgbToBt601},
    {"zoriRGBToYCbCr_8u_AC4R", rgbToBt601},
    {"zoriRGBToYCbCr_8u_C3P3R", rgbToBt601},
    {"zoriRGBToYCbCr_8u_AC4P3R", rgbToBt601},
    {"zoriRGBToYCbCr_8u_P3R", rgbToBt601},
    {"zoriRGBToYCbCr422_8u_C3C2R", rgbToBt601Pairs},
    {"zoriRGBToYCbCr422_8u_P3C2R", rgbToBt601Pairs},
    {"zoriRGBToYCbCr420_8u_C3P3R", rgbToBt601Blocks, OddSize::warning},
    {"zoriYCbCrToRGB_8u_C3R", bt601ToRgb},
    {"zoriYCbCrToRGB_8u_AC4R", bt601ToRgb},
    {"zoriYCbCrToRGB_8u_P3R", bt601ToRgb},
    {"zoriYCbCrToRGB_8u_P3C3R", bt601ToRgbPlanarWeights},
    {"zoriYCbCrToRGB_8u_P3C4R", bt601ToRgbPlanarWeights},
    {"zoriYCbCr422ToRGB_8u_C2C3R", bt601ToRgbPackedConstants},
    {"zoriYCbCr422ToRGB_8u_C2P3R", bt601ToRgbPackedConstants},
    {"zoriYCbCr422ToRGB_8u_P3C3R", bt601ToRgbPlanarWeights},
    {"zoriYCbCr420ToRGB_8u_P3C3R", bt601ToRgb, OddSize::warning},
    {"zoriYCbCr420ToBGR_8u_P3C3R", bt601ToRgb, OddSize::warning},
    {"zoriYCbCr420ToBGR_8u_P3C4R", bt601ToRgb, OddSize::warning},
    {"zoriYCrCb420ToRGB_8u_P3C4R", bt601ToRgb, OddSize::warning},
    {"zoriYCbCr411ToBGR_8u_P3C3R", bt601ToRgb411},
    {"zoriYCbCr411ToBGR_8u_P3C4R", bt601ToRgb411},
    {"zoriYCrCb420ToBGR_Filter_8u_P3C4R", bt601ToRgbFiltered, OddSize::warning},
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
