// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/yuv.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case cases[] = {
    {"zoriRGBToYUV_8u_C3R", rgbToYuv},
    {"zoriRGBToYUV_8u_AC4R", rgbToYuv},
    {"zoriRGBToYUV_8u_AC4P4R", rgbToYuv},
    {"zoriRGBToYUV_8u_C3P3R", rgbToYuv},
    {"zoriRGBToYUV_8u_P3R", rgbToYuvMatrix},

    {"zoriYUVToRGB_8u_C3R", yuvToRgb},
    {"zoriYUVToRGB_8u_AC4R", yuvToRgb},
    {"zoriYUVToRGB_8u_P3C3R", yuvToRgbPlanarWeights},
    {"zoriYUVToRGB_8u_P3R", yuvToRgbPlanarWeights},

    {"zoriRGBToYUV422_8u_C3C2R", rgbToYuvPairs},
    {"zoriRGBToYUV422_8u_C3P3R", rgbToYuvPairs},
    {"zoriRGBToYUV422_8u_C3P3", rgbToYuvPairs},
    {"zoriRGBToYUV422_8u_P3R", rgbToYuvPairs},
    {"zoriRGBToYUV422_8u_P3", rgbToYuvPairs},
    {"zoriRGB565ToYUV422_16u8u_C3P3R", rgbToYuvPairs},

    {"zoriRGBToYUV420_8u_C3P3R", rgbToYuvBlocksQ14, OddSize::warning},
    {"zoriRGBToYUV420_8u_C3P3", rgbToYuvBlocksQ14, OddSize::warning},
    {"zoriRGBToYUV420_8u_P3R", rgbToYuvBlocksQ16, OddSize::warning},
    {"zoriRGBToYUV420_8u_P3", rgbToYuvBlocksQ16, OddSize::warning},
    {"zoriBGRToYUV420_8u_AC4P3R", rgbToYuvBlocksQ16, OddSize::warning},
    {"zoriRGB565ToYUV420_16u8u_C3P3R", rgbToYuvBlocksQ16, OddSize::warning},

    {"zoriYUV422ToRGB_8u_C2C3R", subsampledYuvToRgb},
    {"zoriYUV422ToRGB_8u_P3C3R", subsampledYuvToRgb},
    {"zoriYUV422ToRGB_8u_P3C3", subsampledYuvToRgb},
    {"zoriYUV422ToRGB_8u_P3R", subsampledYuvToRgb},
    {"zoriYUV422ToRGB_8u_P3", subsampledYuvToRgb},
    {"zoriYUV422ToRGB_8u_P3AC4R", subsampledYuvToRgbRounded},

    {"zoriYUV420ToRGB_8u_P3C3R", subsampledYuvToRgb, OddSize::warning},
    {"zoriYUV420ToRGB_8u_P3C3", subsampledYuvToRgb, OddSize::warning},
    {"zoriYUV420ToRGB_8u_P3R", subsampledYuvToRgb, OddSize::warning},
    {"zoriYUV420ToRGB_8u_P3", subsampledYuvToRgb, OddSize::warning},
    {"zoriYUV420ToBGR_8u_P3C3R", subsampledYuvToRgb, OddSize::warning},
    {"zoriYUV420ToRGB_8u_P3AC4R", subsampledYuvToRgbRounded, OddSize::warning},
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
