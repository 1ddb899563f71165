// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/ycbcr.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case cases[] = {
    {"zoriBGRToYCbCr420_709CSC_8u_C3P3R", rgbToBt709Blocks, OddSize::warning},
    {"zoriBGRToYCbCr420_709CSC_8u_AC4P3R", rgbToBt709Blocks, OddSize::warning},
    {"zoriBGRToYCrCb420_709CSC_8u_C3P3R", rgbToBt709Blocks, OddSize::warning},
    {"zoriBGRToYCrCb420_709CSC_8u_AC4P3R", rgbToBt709Blocks, OddSize::warning},
    {"zoriYCbCr420ToBGR_709CSC_8u_P3C3R", bt709ToRgb, OddSize::warning},
    {"zoriYCbCrToBGR_709CSC_8u_P3C3R", bt709ToRgb},
    {"zoriYCbCrToBGR_709CSC_8u_P3C4R", bt709ToRgb},
    {"zoriBGRToYCbCr420_709HDTV_8u_AC4P3R", rgbToBt709FullBlocks, OddSize::warning},
    {"zoriYCbCr420ToBGR_709HDTV_8u_P3C4R", bt709FullToRgb, OddSize::warning},
    {"zoriBGRToCbYCr422_709HDTV_8u_C3C2R", rgbToBt709FullPairs},
    {"zoriBGRToCbYCr422_709HDTV_8u_AC4C2R", rgbToBt709FullPairs},
    {"zoriCbYCr422ToBGR_709HDTV_8u_C2C3R", bt709FullToRgb},
    {"zoriCbYCr422ToBGR_709HDTV_8u_C2C4R", bt709FullToRgb},
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
