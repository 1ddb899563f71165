// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/ycbcr.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case rules[] = {
    {"zoriRGBToYCbCr_*", rgbToBt601},
    {"zoriRGBToYCbCr422_*", rgbToBt601Pairs},
    {"zoriRGBToYCbCr420_*", rgbToBt601Blocks, OddSize::warning},
    {"zoriYCbCrToRGB_8u_P3C*", bt601ToRgbPlanarWeights},
    {"zoriYCbCrToRGB_*", bt601ToRgb},
    {"zoriYCbCr422To*_C2*", bt601ToRgbPackedConstants},
    {"zoriYCbCr422To*_P3*", bt601ToRgbPlanarWeights},
    {"zori*420ToBGR_Filter_*", bt601ToRgbFiltered, OddSize::warning},
    {"zori*420To*", bt601ToRgb, OddSize::warning},
    {"zoriYCbCr411To*", bt601ToRgb411},
};

} // namespace

Family family() { return {"RGB and YCbCr (ITU-R BT.601)", rules}; }

} // namespace zorcc::test
