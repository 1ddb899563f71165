// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/ycbcr.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case rules[] = {
    {"zoriBGRTo*420_709CSC_*", rgbToBt709Blocks, OddSize::warning},
    {"zoriYCbCr420To*_709CSC_*", bt709ToRgb, OddSize::warning},
    {"zoriYCbCrTo*_709CSC_*", bt709ToRgb},
    {"zoriBGRTo*420_709HDTV_*", rgbToBt709FullBlocks, OddSize::warning},
    {"zoriYCbCr420To*_709HDTV_*", bt709FullToRgb, OddSize::warning},
    {"zoriBGRTo*422_709HDTV_*", rgbToBt709FullPairs},
    {"zoriCbYCr422To*_709HDTV_*", bt709FullToRgb},
};

} // namespace

Family family() { return {"BGR and YCbCr (ITU-R BT.709)", rules}; }

} // namespace zorcc::test
