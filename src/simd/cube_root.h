// SPDX-License-Identifier: MIT
// Cube roots in single precision, the same for a float and for every lane of a vector. The part without vectors needs
// nothing of a tier.
#pragma once

#include <stdint.h>

namespace zorcc {
namespace {

// The bits of an estimate y of t^(-1/3) are `bits` less a third of those of t: the exponent of y is a third of that of
// t, of the other sign, so that t y^3 lies between 0.893 and 1.108 for every normal t above 0. The third is taken of
// both halves of the bits, which is near enough.
struct InverseCubeRoot {
    static constexpr int bits = 0x54a14000, third = 21845; // of 65536
};

// The cube root of t from that estimate: t y^2 times u^(-2/3), where u = t y^3. The factor is written as 1 + e q(e)
// with e = u - 1, so that only the small second term brings rounding errors; q interpolates at the Chebyshev nodes.
// Its terms are added in two chains, one half as long as Horner's, since what follows waits for them. Within 1.89 units
// in the last place for every t in (0.008856, 1.1]. Neither infinity nor NaN has a root.
template <class F> [[gnu::always_inline]] constexpr F cubeRoot(const F& t, const F& estimate)
{
    const F root = t * estimate * estimate, e = root * estimate - 1, square = e * e;
    const F q = e * 0.555539131f + -0.666666687f + (e * 0.458421737f + -0.493818045f + square * -0.427206635f) * square;
    return root + root * e * q;
}

constexpr float cubeRoot(float t)
{
    using Estimate = InverseCubeRoot;
    const auto bits = __builtin_bit_cast(uint32_t, t);
    const uint32_t upper = (bits >> 16) * Estimate::third >> 16, lower = (bits & 0xffff) * Estimate::third >> 16;
    return cubeRoot(t, __builtin_bit_cast(float, Estimate::bits - (upper << 16 | lower)));
}

} // namespace
} // namespace zorcc

#if defined(ZORCC_TIER)
    #include "simd/floats.h"
    #include "simd/lockstep.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Within 3.8 % of t^(-1/3), for normal t above 0.
ZORCC_INLINE f32v inverseCubeRoot(f32v t)
{
    const s32v third = (s32v)mulHigh((u16v)t, (u16v)fill16(InverseCubeRoot::third));
    return (f32v)(fill32(InverseCubeRoot::bits) - third);
}

ZORCC_INLINE f32v cubeRoot(f32v t) { return zorcc::cubeRoot(t, inverseCubeRoot(t)); }

template <int count> ZORCC_INLINE Lockstep<float, count> cubeRoot(const Lockstep<float, count>& t)
{
    Lockstep<float, count> estimate;
    for (int i = 0; i < count; ++i) estimate.v[i] = inverseCubeRoot(t.v[i]);
    return zorcc::cubeRoot(t, estimate);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
#endif
