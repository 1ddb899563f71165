// SPDX-License-Identifier: MIT
// Row drivers of the colour twists, compiled once for every tier.
#include "colormodels/twist_rows.h"

#include "colormodels/twist_formulas.h"
#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {

namespace {

template <template <class, Order> class Layout, class Sample>
void twist(const Image& from, const Image& to, ZorSize size, TwistMatrix matrix)
{
    using Pixel = Layout<Sample, Order::asStored>;
    rows<Pixel, Twist<Sample>, Pixel>(from, to, size, matrix);
}

} // namespace

const TwistRows twistRows = {
    .myColorTwist32f_8u_C3R = twist<C3, uint8_t>,
    .myColorTwist32f_8u_AC4R = twist<AC4, uint8_t>,
    .myColorTwist32f_8u_P3R = twist<P3, uint8_t>,
    .myColorTwist32f_8s_C3R = twist<C3, int8_t>,
    .myColorTwist32f_8s_AC4R = twist<AC4, int8_t>,
    .myColorTwist32f_8s_P3R = twist<P3, int8_t>,
    .myColorTwist32f_16u_C3R = twist<C3, uint16_t>,
    .myColorTwist32f_16u_AC4R = twist<AC4, uint16_t>,
    .myColorTwist32f_16u_P3R = twist<P3, uint16_t>,
    .myColorTwist32f_16s_C3R = twist<C3, int16_t>,
    .myColorTwist32f_16s_AC4R = twist<AC4, int16_t>,
    .myColorTwist32f_16s_P3R = twist<P3, int16_t>,
    .myColorTwist_32f_C3R = twist<C3, float>,
    .myColorTwist_32f_AC4R = twist<AC4, float>,
    .myColorTwist_32f_P3R = twist<P3, float>,
    .myColorTwist_32f_C4R = rows<C4<float>, TwistOfFour, C4<float>, Threads::one, TwistMatrix>,
};

} // namespace zorcc::ZORCC_TIER
