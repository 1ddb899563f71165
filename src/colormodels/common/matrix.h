// SPDX-License-Identifier: MIT
// Matrices on the three channels of floats.
#pragma once

#include "pixels/float_pipeline.h"

namespace zorcc {

struct MatrixRow {
    float first, second, third;
};

struct Matrix {
    MatrixRow row[3];
};

} // namespace zorcc

namespace zorcc::ZORCC_TIER {
namespace {

ZORCC_INLINE f32v weighted(const MatrixRow& row, const Samples<float>& of)
{
    return of.c[0][0] * row.first + of.c[0][1] * row.second + of.c[0][2] * row.third;
}

template <const Matrix& matrix> struct ByMatrix {
    [[gnu::always_inline]] Samples<float> operator()(const Samples<float>& from) const
    {
        return {{{weighted(matrix.row[0], from), weighted(matrix.row[1], from), weighted(matrix.row[2], from)}}};
    }
};

// Within 0..1, and 0 where it is no number.
template <class Formula> struct WithinUnit {
    [[gnu::always_inline]] auto
    prepare(const Samples<float>& from) const requires WorksInTwoSteps<Formula, Samples<float>>
    {
        return Formula{}.prepare(from);
    }

    template <class Prepared> [[gnu::always_inline]] Samples<float> operator()(const Prepared& of) const
    {
        Samples<float> to = Formula{}(of);
        for (f32v& channel : to.c[0]) channel = min(max(channel, f32v{}), f32v{} + 1);
        return to;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
