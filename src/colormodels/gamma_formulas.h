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
        Widened<2> wide = widen(words);
        for (s32v& part : wide.part) part = of(part);
        return narrow<uint16_t>(wide);
    }

private:
    // To nearest, ties to even: rounded upwards, and back down where that has made an odd number of a tie.
    ZORCC_INLINE s32v of(s32v words)
    {
        Doubles v = toDoubles(toFloat(words));
        for (f64v& half : v.half) half = curveAt<Curve>(f64v{half * 1.5259021896696422e-5}, half, 65535, 0.5);
        const f32v raised = toFloat(v);
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
        return collect<count>([&](auto k) __attribute__((always_inline)) { return (u8v)of((f32v)floats.v[k]); });
    }

private:
    struct Finite : Curve {
        // Of infinity and NaN, which have no digits, the power is what they are.
        ZORCC_INLINE f64v aboveKnee(const f64v& x) { return x < 0x1p1000 ? Curve::aboveKnee(x) : x; }
    };

    [[gnu::always_inline]] f32v of(f32v floats) const
    {
        Doubles v = toDoubles(floats);
        for (f64v& half : v.half) {
            const f64v above = half - low;
            half = curveAt<Finite>(f64v{above * reciprocal}, above, length, low);
        }
        return toFloat(v);
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
