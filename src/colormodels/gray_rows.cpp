// SPDX-License-Identifier: MIT
// Row drivers of the grey of colour, compiled once for every tier.
#include "colormodels/gray_rows.h"

#include "colormodels/gray_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

template <int bytes> void bytesToGray(const Image& from, const Image& to, ZorSize size, ByteGrayWeights weights)
{
    if ((weights.of[0] | weights.of[1] | weights.of[2]) < 32768)
        rows<InWordPairs<bytes>, ByteGray, C1<>>(from, to, size, weights);
    else
        rows<Interleaved<uint8_t, bytes, 3, Order::asStored>, ByteGrayByAnyWeights, C1<>>(from, to, size, weights);
}

template <template <class, Order> class Source, class Sample>
void toGray(const Image& from, const Image& to, ZorSize size, GrayWeights weights)
{
    rows<Source<Sample, Order::asStored>, Gray, C1<Sample>>(from, to, size, weights);
}

} // namespace

const GrayRows grayRows = {
    .myRGBToGray_8u_C3C1R = bytesToGray<3>,
    .myRGBToGray_8u_AC4C1R = bytesToGray<4>,
    .myRGBToGray_16u_C3C1R = toGray<C3, uint16_t>,
    .myRGBToGray_16u_AC4C1R = toGray<AC4, uint16_t>,
    .myRGBToGray_16s_C3C1R = toGray<C3, int16_t>,
    .myRGBToGray_16s_AC4C1R = toGray<AC4, int16_t>,
    .myRGBToGray_32f_C3C1R = toGray<C3, float>,
    .myRGBToGray_32f_AC4C1R = toGray<AC4, float>,
};

} // namespace zorcc::ZORCC_TIER
