// SPDX-License-Identifier: MIT
// Powers in double precision, of vectors, and of numbers while this is compiled. Additions, multiplications and one
// division in a fixed order: the same bits on every tier.
#pragma once

#include "simd/doubles.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class V> struct BitsOf;
template <> struct BitsOf<double> {
    using Type = uint64_t;
};
template <int count> struct BitsOf<Lockstep<double, count>> {
    using Type = Lockstep<uint64_t, count>;
};

// c[0] + c[1] x + c[2] x^2 ... of an even number of terms, in two chains, one half as long as Horner's, since what
// follows waits for it.
template <class V, size_t count> [[gnu::always_inline]] constexpr V polynomial(const V& x, const double (&c)[count])
{
    static_assert(count % 2 == 0 && count > 2);
    const V square = x * x;
    V even = square * c[count - 2] + c[count - 4], odd = square * c[count - 1] + c[count - 3];
    for (size_t i = count - 4; i > 0; i -= 2) {
        even = even * square + c[i - 2];
        odd = odd * square + c[i - 1];
    }
    return odd * x + even;
}

// x^exponent of normal numbers above 0 whose power is one, too, for exponents up to 2.3. The relative error is below
// 1e-13 where the power is within 2^-64..2^64.
//
// x = 2^k m with m between the root of 1/2 and that of 2; log2 m = 2 / ln 2 artanh s with s = (m - 1) / (m + 1). The
// power is 2^n 2^f with f in -1/2..1/2. Both polynomials go through the values of their function at the Chebyshev
// nodes.
template <class V> [[gnu::always_inline]] constexpr V power(const V& x, double exponent)
{
    constexpr double artanh[] = {0x1.71547652b8252p+1, 0x1.ec709dc53a1cap-1, 0x1.2776c295ae0c7p-1,
                                 0x1.a61a2cf9f9e38p-2, 0x1.47959c992a71fp-2, 0x1.21ad2d776d25ap-2}; // log2 m / s by s^2
    constexpr double exp2[] = {1,
                               0x1.62e42fefa39efp-1,
                               0x1.ebfbdff823cedp-3,
                               0x1.c6b08d7047e52p-5,
                               0x1.3b2ab7181b755p-7,
                               0x1.5d87fe86fe88ep-10,
                               0x1.4308ac85aa947p-13,
                               0x1.ffcb9515a8016p-17,
                               0x1.63d136366db24p-20,
                               0x1.b63880a30e9ffp-24};
    using Bits = typename BitsOf<V>::Type;
    constexpr int significand = 52;
    constexpr uint64_t one = 0x3ff0000000000000, rootOfHalf = 0x3fe6a09e667f3bcd, integer = 0x4330000000000000;

    const Bits bits = __builtin_bit_cast(Bits, x), biased = (bits + (one - rootOfHalf)) >> significand; // k + 1023
    const V m = __builtin_bit_cast(V, bits - (biased << significand) + one);
    const V k = __builtin_bit_cast(V, biased | integer) - (0x1p52 + 1023);
    const V s = (m - 1.0) / (m + 1.0);
    const V y = (s * polynomial(V(s * s), artanh) + k) * exponent;
    const V shifted = y + 0x1.8p52; // its lowest bits are n
    const V f = y - (shifted - 0x1.8p52);
    return __builtin_bit_cast(V, __builtin_bit_cast(Bits, polynomial(f, exp2)) +
                                     (__builtin_bit_cast(Bits, shifted) << significand));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
