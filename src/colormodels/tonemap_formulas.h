// SPDX-License-Identifier: MIT
// Floats times a factor, rounded towards zero to bytes. A vector of bytes at a time, of four vectors of floats.
#pragma once

#include "pixels/sequences.h"
#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class ToByte> struct Scaled {
    f32v factor;

    [[gnu::always_inline]] explicit Scaled(float f) : factor(fillFloat(f)) {}

    [[gnu::always_inline]] Vectors<1> operator()(const Vectors<4>& from) const
    {
        Widened<4> bytes;
        for (int p = 0; p < 4; ++p) bytes.part[p] = ToByte::of((f32v)from.v[p] * factor);
        return {{orderQuarters(narrow<uint8_t>(bytes))}};
    }
};

// The lowest 8 bits of the integer, however large that is: floats of 2^31 or more are multiples of 256, and what no
// 32-bit integer holds is truncated to one whose lowest bits are 0.
struct Wrapped {
    ZORCC_INLINE s32v of(f32v v) { return truncate(v) & 0xff; }
};

// NaN gives 0.
struct Limited {
    ZORCC_INLINE s32v of(f32v v) { return truncate(min(max(v, f32v{}), fillFloat(255))); }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
