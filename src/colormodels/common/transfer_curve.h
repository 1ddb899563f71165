// SPDX-License-Identifier: MIT
// The transfer curve of ITU-R BT.709 and its inverse, in double precision, every operation in the order of the
// definition, and as bytes.
#pragma once

#include <initializer_list>

#include "colormodels/common/power.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- curves: from 0..1 to 0..1, a line up to the knee ---------------------------------------------------------------

struct Forward {
    static constexpr double knee = 0.018, slope = 4.5;

    template <class V> [[gnu::always_inline]] static constexpr V aboveKnee(const V& x)
    {
        return power(x, 0.45) * 1.099 - 0.099;
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
    return selectBelow(x, Curve::knee, line, curved);
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

} // namespace
} // namespace zorcc::ZORCC_TIER
