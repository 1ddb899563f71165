// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YCoCg conversions, compiled once for every tier.
#include "lumachroma/ycocg_rows.h"

#include "lumachroma/ycocg_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

using Sbgr = C3<int16_t, Order::reversed>;
using Sbgrx = AC4<int16_t, Order::reversed>;
using Sbgra = C4<int16_t, Order::reversed>;

} // namespace

const YCoCgRows ycocgRows = {
    .myBGRToYCoCg_8u16s_C3P3R = rows<Bgr, ToWideYCoCg<PlainYCoCg, int16_t>, WideP3<int16_t>>,
    .myBGRToYCoCg_8u16s_C4P3R = rows<Bgrx, ToWideYCoCg<PlainYCoCg, int16_t>, WideP3<int16_t>>,
    .mySBGRToYCoCg_16s_C3P3R = rows<Sbgr, ToYCoCg<PlainYCoCg>, P3<int16_t>>,
    .mySBGRToYCoCg_16s_C4P3R = rows<Sbgrx, ToYCoCg<PlainYCoCg>, P3<int16_t>>,
    .mySBGRToYCoCg_16s32s_C3P3R = rows<Sbgr, ToWideYCoCg<PlainYCoCg, int32_t>, WideP3<int32_t>>,
    .mySBGRToYCoCg_16s32s_C4P3R = rows<Sbgrx, ToWideYCoCg<PlainYCoCg, int32_t>, WideP3<int32_t>>,

    .myYCoCgToBGR_16s8u_P3C3R = rows<WideP3<int16_t>, FromYCoCg<PlainYCoCg>, Bgr>,
    .myYCoCgToBGR_16s8u_P3C4R = rows<WideP3<int16_t>, WithAlpha<FromYCoCg<PlainYCoCg>>, Bgra>,
    .myYCoCgToSBGR_16s_P3C3R = rows<P3<int16_t>, FromYCoCg<PlainYCoCg>, Sbgr>,
    .myYCoCgToSBGR_16s_P3C4R = rows<P3<int16_t>, WithAlpha<FromYCoCg<PlainYCoCg>, int16_t>, Sbgra>,
    .myYCoCgToSBGR_32s16s_P3C3R = rows<WideP3<int32_t>, FromYCoCg<PlainYCoCg>, Sbgr>,
    .myYCoCgToSBGR_32s16s_P3C4R = rows<WideP3<int32_t>, WithAlpha<FromYCoCg<PlainYCoCg>, int16_t>, Sbgra>,

    .myBGRToYCoCg_Rev_8u16s_C3P3R = rows<Bgr, ToWideYCoCg<ReversibleYCoCg, int16_t>, WideP3<int16_t>>,
    .myBGRToYCoCg_Rev_8u16s_C4P3R = rows<Bgrx, ToWideYCoCg<ReversibleYCoCg, int16_t>, WideP3<int16_t>>,
    .mySBGRToYCoCg_Rev_16s_C3P3R = rows<Sbgr, ToYCoCg<ReversibleYCoCg>, P3<int16_t>>,
    .mySBGRToYCoCg_Rev_16s_C4P3R = rows<Sbgrx, ToYCoCg<ReversibleYCoCg>, P3<int16_t>>,
    .mySBGRToYCoCg_Rev_16s32s_C3P3R = rows<Sbgr, ToWideYCoCg<ReversibleYCoCg, int32_t>, WideP3<int32_t>>,
    .mySBGRToYCoCg_Rev_16s32s_C4P3R = rows<Sbgrx, ToWideYCoCg<ReversibleYCoCg, int32_t>, WideP3<int32_t>>,

    .myYCoCgToBGR_Rev_16s8u_P3C3R = rows<WideP3<int16_t>, FromYCoCg<ReversibleYCoCg>, Bgr>,
    .myYCoCgToBGR_Rev_16s8u_P3C4R = rows<WideP3<int16_t>, WithAlpha<FromYCoCg<ReversibleYCoCg>>, Bgra>,
    .myYCoCgToSBGR_Rev_16s_P3C3R = rows<P3<int16_t>, FromYCoCg<ReversibleYCoCg>, Sbgr>,
    .myYCoCgToSBGR_Rev_16s_P3C4R = rows<P3<int16_t>, WithAlpha<FromYCoCg<ReversibleYCoCg>, int16_t>, Sbgra>,
    .myYCoCgToSBGR_Rev_32s16s_P3C3R = rows<WideP3<int32_t>, FromYCoCg<ReversibleYCoCg>, Sbgr>,
    .myYCoCgToSBGR_Rev_32s16s_P3C4R = rows<WideP3<int32_t>, WithAlpha<FromYCoCg<ReversibleYCoCg>, int16_t>, Sbgra>,

    .myRGBToYCoCg_8u_C3P3R = rows<C3<>, ToYCoCgBytes, P3<>>,
    .myYCoCgToRGB_8u_P3C3R = rows<P3<>, FromYCoCg<PlainYCoCg>, C3<>>,
};

} // namespace zorcc::ZORCC_TIER
