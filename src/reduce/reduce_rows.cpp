// SPDX-License-Identifier: MIT
// Row drivers of the bit-depth reduction, compiled once for every tier.
#include "reduce/reduce_rows.h"

#include "reduce/diffusion.h"
#include "reduce/quantisation.h"

namespace zorcc::ZORCC_TIER {

namespace {

template <class Src, class Dst>
constexpr ReduceDrivers drivers = {
    .plain = plain<Src, Dst>,
    .ordered = ordered<Src, Dst>,
    .floydSteinberg = diffuseChannels<Src, Dst, FloydSteinberg>,
    .jarvisJudiceNinke = diffuseChannels<Src, Dst, JarvisJudiceNinke>,
    .stucki = diffuseChannels<Src, Dst, Stucki>,
    .whiteOfSource = white<Src>,
    .maxLevels = sizeof(Src) == 2 && sizeof(Dst) == 2 ? 65536 : 256,
};

} // namespace

const ReduceRows reduceRows = {
    .my8u = drivers<uint8_t, uint8_t>,
    .my16u = drivers<uint16_t, uint16_t>,
    .my16u8u = drivers<uint16_t, uint8_t>,
    .my16s = drivers<int16_t, int16_t>,
    .my16s8u = drivers<int16_t, uint8_t>,
    .my32f8u = drivers<float, uint8_t>,
    .my32f16u = drivers<float, uint16_t>,
    .my32f16s = drivers<float, int16_t>,
};

} // namespace zorcc::ZORCC_TIER
