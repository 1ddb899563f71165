// SPDX-License-Identifier: MIT
// Row drivers of gamma correction. Those in place have the same ones.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

// What stands for 0 and for 1.
struct ValueRange {
    float low, high;
};

// Words are converted one by one, or looked up in a table of the curve at all words.
inline constexpr int wordCount = 65536;
using WordTable = const uint16_t*;

struct GammaRows {
    Driver &myGammaFwd_8u_C3R, &myGammaFwd_8u_AC4R, &myGammaFwd_8u_P3R, &myGammaInv_8u_C3R, &myGammaInv_8u_AC4R,
        &myGammaInv_8u_P3R;
    Driver &myGammaFwd_16u_C3R, &myGammaFwd_16u_AC4R, &myGammaFwd_16u_P3R, &myGammaInv_16u_C3R, &myGammaInv_16u_AC4R,
        &myGammaInv_16u_P3R;
    DriverWith<ValueRange>&myGammaFwd_32f_C3R, &myGammaFwd_32f_AC4R, &myGammaFwd_32f_P3R, &myGammaInv_32f_C3R,
        &myGammaInv_32f_AC4R, &myGammaInv_32f_P3R;
    DriverWith<WordTable>&myLookUp_16u_C3R, &myLookUp_16u_AC4R, &myLookUp_16u_P3R;
    void (&fillGammaFwd_16u)(uint16_t* table);
    void (&fillGammaInv_16u)(uint16_t* table);
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(GammaRows, gammaRows)
