// SPDX-License-Identifier: MIT
// Row drivers of the BGR and HLS conversions from or to planes, compiled once for every tier.
#include "colormodels/hlspl_rows.h"

#include "colormodels/hls_formulas.h"
#include "pixels/alpha.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr Threads always = Threads::always;
using FromBgr = RgbToHls<uint8_t>;
using FromBgra = CopyingAlpha<FromBgr>;
using ToBgr = HlsToRgb<uint8_t>;
using ToBgra = CopyingAlpha<ToBgr>;
using BgrPlanes = P3<uint8_t, Order::reversed>;
using BgraPlanes = AP4<uint8_t, Order::reversed>;

} // namespace

const HlsplRows hlsplRows = {
    .myBGRToHLS_8u_AC4P4R = rows<Bgra, FromBgra, AP4<>, always>,
    .myBGRToHLS_8u_AP4C4R = rows<BgraPlanes, FromBgra, C4<>, always>,
    .myBGRToHLS_8u_AP4R = rows<BgraPlanes, FromBgra, AP4<>, always>,
    .myBGRToHLS_8u_C3P3R = rows<Bgr, FromBgr, P3<>, always>,
    .myBGRToHLS_8u_P3C3R = rows<BgrPlanes, FromBgr, C3<>, always>,
    .myBGRToHLS_8u_P3R = rows<BgrPlanes, FromBgr, P3<>, always>,
    .myHLSToBGR_8u_AC4P4R = rows<C4<>, ToBgra, BgraPlanes, always>,
    .myHLSToBGR_8u_AP4C4R = rows<AP4<>, ToBgra, Bgra, always>,
    .myHLSToBGR_8u_AP4R = rows<AP4<>, ToBgra, BgraPlanes, always>,
    .myHLSToBGR_8u_C3P3R = rows<C3<>, ToBgr, BgrPlanes, always>,
    .myHLSToBGR_8u_P3C3R = rows<P3<>, ToBgr, Bgr, always>,
    .myHLSToBGR_8u_P3R = rows<P3<>, ToBgr, BgrPlanes, always>,
};

} // namespace zorcc::ZORCC_TIER
