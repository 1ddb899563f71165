// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/yuv.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case rules[] = {
    {"zoriRGBToYUV_8u_P3R", rgbToYuvMatrix},
    {"zoriRGBToYUV_*", rgbToYuv},
    {"zoriYUVToRGB_8u_P3*", yuvToRgbPlanarWeights},
    {"zoriYUVToRGB_*", yuvToRgb},

    {"zori*ToYUV422_*", rgbToYuvPairs},
    {"zoriRGBToYUV420_8u_C3*", rgbToYuvBlocksQ14, OddSize::warning},
    {"zori*ToYUV420_*", rgbToYuvBlocksQ16, OddSize::warning},

    {"zoriYUV422To*_P3AC4R", subsampledYuvToRgbRounded},
    {"zoriYUV422To*", subsampledYuvToRgb},
    {"zoriYUV420To*_P3AC4R", subsampledYuvToRgbRounded, OddSize::warning},
    {"zoriYUV420To*", subsampledYuvToRgb, OddSize::warning},
};

} // namespace

Family family() { return {"RGB and YUV", rules}; }

} // namespace zorcc::test
