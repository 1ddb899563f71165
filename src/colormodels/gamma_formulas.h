// SPDX-License-Identifier: MIT
// Samples of each type through the transfer curve of ITU-R BT.709 and its inverse. Samples of all channels are treated
// alike, in the order of memory.
#pragma once

#include "colormodels/common/transfer_curve.h"
#include "colormodels/gamma_rows.h"
#include "pixels/sequences.h"
#include "simd/curve_table.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- bytes ----------------------------------------------------------------------------------------------------------

template <class Curve> struct ByteCurve {
    template <int count> [[gnu::always_inline]] Vectors<count> operator()(Vectors<count> bytes) const
    {
        static constexpr CurveTable table(bytesOf<Curve>.of);
        lookUp(table, bytes.v);
        return bytes;
    }
};

// ---- words ----------------------------------------------------------------------------------------------------------

template <class Curve> struct WordCurve {
    template <int count> [[gnu::always_inline]] Vectors<count> operator()(const Vectors<count>& words) const
    {
        return collect<count>([&](auto k) __attribute__((always_inline)) { return (u8v)of((u16v)words.v[k]); });
    }

    ZORCC_INLINE u16v of(u16v words)
    {
        const Doubles<4> v = toDoubles(toFloat(widen(words)));
        const Floats<2> raised = toFloat(curveAt<Curve>(v * 1.5259021896696422e-5, v, 65535, 0.5));
        return narrow<uint16_t>({{round(raised.part[0]), round(raised.part[1])}});
    }

private:
    // To nearest, ties to even, what a half has been added to: back down where that has made an odd number of a tie.
    ZORCC_INLINE s32v round(f32v raised)
    {
        const s32v rounded = truncate(raised);
        return rounded - (rounded & 1 & (raised == toFloat(rounded)));
    }
};

// ---- floats ---------------------------------------------------------------------------------------------------------

template <class Curve> struct FloatCurve {
    double low, length, reciprocal; // the length is rounded to single precision

    [[gnu::always_inline]] explicit FloatCurve(const ValueRange& range)
        : low(range.low), length(range.high - range.low), reciprocal(1 / length)
    {
    }

    template <int count> [[gnu::always_inline]] Vectors<count> operator()(const Vectors<count>& floats) const
    {
        Floats<count> curved;
        for (int k = 0; k < count; ++k) curved.part[k] = (f32v)floats.v[k];
        curved = of(curved);
        return collect<count>([&](auto k) __attribute__((always_inline)) { return (u8v)curved.part[k]; });
    }

private:
    struct Finite : Curve {
        // Of infinity and NaN, which have no digits, the power is what they are.
        template <int count> ZORCC_INLINE Doubles<count> aboveKnee(const Doubles<count>& x)
        {
            return selectBelow(x, 0x1p1000, Curve::aboveKnee(x), x);
        }
    };

    template <int count> [[gnu::always_inline]] Floats<count> of(const Floats<count>& floats) const
    {
        const Doubles<2 * count> above = toDoubles(floats) - low;
        return toFloat(curveAt<Finite>(above * reciprocal, above, length, low));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
