// SPDX-License-Identifier: MIT
// Products of pixels with a matrix, in single precision, every sum in its order.
#pragma once

#include "colormodels/twist_rows.h"
#include "pixels/float_pipeline.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A matrix with every coefficient in all lanes.
template <int rows> struct Coefficients {
    f32v t[rows][4];

    [[gnu::always_inline]] explicit Coefficients(TwistMatrix matrix)
    {
        for (int k = 0; k < rows; ++k)
            for (int j = 0; j < 4; ++j) t[k][j] = fillFloat(matrix[k][j]);
    }
};

// Three channels of integers; the fourth column is a constant.
template <class Sample> struct Twist : Coefficients<3> {
    using Coefficients<3>::Coefficients;

    [[gnu::always_inline]] Samples<Sample> operator()(const Samples<Sample>& from) const
    {
        const auto row = [this](int k, f32v a, f32v b, f32v c) __attribute__((always_inline))
        {
            return roundSaturated<Sample>((t[k][3] + t[k][0] * a) + (t[k][2] * c + t[k][1] * b));
        };
        const auto formula = [&](f32v a, f32v b, f32v c) __attribute__((always_inline))
        {
            return Integers<3>{{row(0, a, b, c), row(1, a, b, c), row(2, a, b, c)}};
        };
        return throughFloats<Sample>(formula, from.c[0][0], from.c[0][1], from.c[0][2]);
    }
};

template <> struct Twist<float> : Coefficients<3> {
    using Coefficients<3>::Coefficients;

    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& from) const
    {
        const auto [a, b, c] = from.c[0];
        Samples<float> to;
        for (int k = 0; k < 3; ++k) to.c[0][k] = ((t[k][3] + t[k][0] * a) + t[k][1] * b) + t[k][2] * c;
        return to;
    }
};

// Four channels of floats, without a constant.
struct TwistOfFour : Coefficients<4> {
    using Coefficients<4>::Coefficients;

    [[gnu::always_inline]] Samples<float, 4> operator()(const Samples<float, 4>& from) const
    {
        const auto [a, b, c, d] = from.c[0];
        Samples<float, 4> to;
        for (int k = 0; k < 4; ++k) to.c[0][k] = ((t[k][0] * a + t[k][1] * b) + t[k][2] * c) + t[k][3] * d;
        return to;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
