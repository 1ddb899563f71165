// SPDX-License-Identifier: MIT
// Row drivers of tone mapping, compiled once for every tier.
#include "colormodels/tonemap_rows.h"

#include "colormodels/tonemap_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

template <class ToByte> void scale(const Image& from, const Image& to, ZorSize size, float factor)
{
    using FloatRow = Sequences<vectorBytes, Line{{sizeof(float)}}>;
    rows<FloatRow, Scaled<ToByte>, Sequences<vectorBytes, Line{{1}}>>(from, to, size, factor);
}

} // namespace

const TonemapRows tonemapRows = {
    .myToneMapLinear_32f8u_C1R = scale<Wrapped>,
    .myToneMapMean_32f8u_C1R = scale<Limited>,
};

} // namespace zorcc::ZORCC_TIER
