// SPDX-License-Identifier: MIT
// Row drivers of the chroma sampling conversions; sizes are whole blocks. YUY2 is Y0 Cb Y1 Cr, UYVY is Cb Y0 Cr Y1; of
// a YVYU image, Y0 Cr Y1 Cb, and of YCrCb planes the wrapper exchanges Cb and Cr.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct ChromaSamplingRows {
    // Rows of chroma.
    Driver &my422To420_8u_P3R, &my422To420_8u_P3P2R, &my420To422_8u_P3R, &my420To422_8u_P2P3R;
    Driver &my420To422_Filter_8u_P3R, &my420To422_Filter_8u_P2P3R;

    // Columns of chroma.
    Driver &my422To411_8u_P3R, &my422To411_8u_P3P2R, &my411To422_8u_P3R, &my411To422_8u_P2P3R;

    // Both.
    Driver &my411To420_8u_P3R, &my411To420_8u_P2P3R, &my411To420_8u_P3P2R, &my420To411_8u_P2P3R, &my420To411_8u_P3P2R;

    // Order of planes alone.
    Driver &my411_8u_P2P3R, &my411_8u_P3P2R, &my420_8u_P2P3R, &my420_8u_P3P2R;

    // Packed 4:2:2.
    Driver &myYUY2To422_8u_C2P3R, &myUYVYTo422_8u_C2P3R, &myYUY2To420_8u_C2P3R, &myUYVYTo420_8u_C2P3R,
        &myYUY2To411_8u_C2P3R, &myUYVYTo411_8u_C2P3R, &myYUY2To411_8u_C2P2R;
    Driver &my422ToYUY2_8u_P3C2R, &my411ToYUY2_8u_P3C2R, &my411ToYUY2_8u_P2C2R, &myYUY2ToYVYU_8u_C2R;

    // Averages of neighbouring samples.
    Driver &my420To1620_8u_P3R, &my1620To420_8u_P3R, &my411To420_Average_8u_P3R, &my420To411_Average_8u_P3R;

    // The two fields of an interlaced image on their own.
    Driver &myUYVYTo420_Interlace_8u_C2P3R, &my422To420_Interlace_8u_P3R, &my420To422_Interlace_8u_P3R,
        &my420ToUYVY_Interlace_8u_P3C2R;
};

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(ChromaSamplingRows, chromaSamplingRows)
