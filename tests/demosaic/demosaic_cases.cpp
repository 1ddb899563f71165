// SPDX-License-Identifier: MIT
#include "tests/demosaic/mosaic_checker.h"

namespace zorcc::test {

namespace {

using reference::adaptive;
using reference::alongGradients;

const Method table[] = {
    {"zoriCFAToRGB_8u_C1C3R", alongGradients, 8, 2},
    {"zoriCFAToRGB_16u_C1C3R", alongGradients, 16, 2},
    {"zoriDemosaicAHD_8u_C1C3R", adaptive, 8, 5},
    {"zoriDemosaicAHD_16u_C1C3R", adaptive, 16, 5},
};

} // namespace

std::span<const Method> methods() { return table; }

} // namespace zorcc::test
