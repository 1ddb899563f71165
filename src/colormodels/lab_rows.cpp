// SPDX-License-Identifier: MIT
// Row drivers of the conversions between linear BGR and CIE L*a*b*, compiled once for every tier.
#include "colormodels/lab_rows.h"

#include "colormodels/lab_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads threads = Threads::always;

} // namespace

const LabRows labRows = {
    .myBGRToLab_8u_C3R = rows<Bgr, RgbToLab<uint8_t>, C3<>, threads>,
    .myBGRToLab_8u16u_C3R = rows<Bgr, RgbToLab<uint16_t>, WideC3, threads>,
    .myLabToBGR_8u_C3R = rows<C3<>, LabToRgb<uint8_t>, Bgr, threads>,
    .myLabToBGR_16u8u_C3R = rows<WideC3, LabToRgb<uint16_t>, Bgr, threads>,
};

} // namespace zorcc::ZORCC_TIER
