// SPDX-License-Identifier: MIT
// Row drivers of the colour twists. Those in place have the same ones.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

using TwistMatrix = const float (*)[4]; // the rows, one for each channel that it makes
using TwistDriver = DriverWith<TwistMatrix>;

struct TwistRows {
    TwistDriver &myColorTwist32f_8u_C3R, &myColorTwist32f_8u_AC4R, &myColorTwist32f_8u_P3R, &myColorTwist32f_8s_C3R,
        &myColorTwist32f_8s_AC4R, &myColorTwist32f_8s_P3R, &myColorTwist32f_16u_C3R, &myColorTwist32f_16u_AC4R,
        &myColorTwist32f_16u_P3R, &myColorTwist32f_16s_C3R, &myColorTwist32f_16s_AC4R, &myColorTwist32f_16s_P3R,
        &myColorTwist_32f_C3R, &myColorTwist_32f_AC4R, &myColorTwist_32f_P3R, &myColorTwist_32f_C4R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(TwistRows, twistRows)
