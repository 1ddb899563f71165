// SPDX-License-Identifier: MIT
// The transfer curve of ITU-R BT.709 and its inverse, in double precision, every operation in the order of the
// definition; and samples of each type through them. Samples of all channels are treated alike, in the order of memory.
#pragma once

#include "colormodels/common/power.h"
#include "colormodels/gamma_rows.h"
#include "pixels/sequences.h"
#include "simd/lookup.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- curves: from 0..1 to 0..1, a line up to the knee ---------------------------------------------------------------

struct Forward {
    static constexpr double knee = 0.018, slope = 4.5;

    template <class V> [[gnu::always_inline]] static constexpr V aboveKnee(const V& x)
    {
        return 1.099 * power(x, 0.45) - 0.099;
    }
};

struct Inverse {
    static constexpr double knee = 0.0812, slope = 0.2222222222222222;

    template <class V> [[gnu::always_inline]] static constexpr V aboveKnee(const V& x)
    {
        return power(V{(x + 0.099) * 0.9099181073703366}, 2.2222222222222223);
    }
};

// The curve at x, where `length` is 1; with `offset` added. Below the knee the line is that of v = length x itself.
template <class Curve, class V>
[[gnu::always_inline]] constexpr V curveAt(const V& x, const V& v, double length, double offset)
{
    const V line = v * Curve::slope + offset, curved = Curve::aboveKnee(x) * length + offset;
    return x < Curve::knee ? line : curved;
}

// ---- bytes ----------------------------------------------------------------------------------------------------------

struct Bytes {
    uint8_t of[256];
};

// Of a value raised by a half: to nearest, ties to even.
constexpr uint8_t roundRaised(double raised)
{
    const int rounded = static_cast<int>(raised);
    return static_cast<uint8_t>(rounded - (rounded % 2 == 1 && rounded == raised));
}

template <class Curve> constexpr double raisedAt(int byte)
{
    return curveAt<Curve, double>(byte / 255.0, byte, 255, 0.5);
}

template <class Curve>
constexpr Bytes bytesOf = [] {
    Bytes bytes{};
    for (int i = 0; i < 256; ++i) bytes.of[i] = roundRaised(raisedAt<Curve>(i));
    return bytes;
}();

// Above the knee no value is so near to a tie that the error of the power counts.
template <class Curve>
constexpr bool isDistinct = [] {
    for (int i = 0; i < 256; ++i)
        for (double error : {-1e-9, 1e-9})
            if (i / 255.0 >= Curve::knee && roundRaised(raisedAt<Curve>(i) + error) != bytesOf<Curve>.of[i])
                return false;
    return true;
}();
static_assert(isDistinct<Forward> && isDistinct<Inverse>);

template <class Curve> struct ByteCurve {
    template <int count> [[gnu::always_inline]] Vectors<count> operator()(Vectors<count> bytes) const
    {
        static constexpr ByteTable table(bytesOf<Curve>.of);
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
