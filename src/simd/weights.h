// SPDX-License-Identifier: MIT
// Weighted sums of 8-bit channels with 16-bit coefficients, exactly, without leaving 16-bit lanes.
#pragma once

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER
{
namespace
{

// Coefficients of R, G and B (or of any three channels), in units of 1/65536.
struct Weights {
    int r, g, b;
};

// A coefficient k as 256 high + low with low in -128..127.
constexpr int highPart(int k) { return (k + 128) >> 8; }
constexpr int lowPart(int k) { return k - 256 * highPart(k); }

// Whether a sum of products of bytes with the coefficients stays within 16 bits.
constexpr bool sumFits16(int a, int b, int c = 0)
{
    const int most = (a > 0 ? a : 0) + (b > 0 ? b : 0) + (c > 0 ? c : 0);
    const int least = (a < 0 ? a : 0) + (b < 0 ? b : 0) + (c < 0 ? c : 0);
    return 255 * most <= 32767 && 255 * least >= -32768;
}
constexpr bool fits8(int k) { return k >= -128 && k <= 127; }

// floor((w.r R + w.g G + w.b B) / 256) modulo 65536, from the zipped bytes (R, G) and (B, G).
//
// With every coefficient as 256 high + low the sum is 256 H + L, so that its floor is H + floor(L / 256): two sums of
// byte products. H may need all of 16 unsigned bits; to keep its two parts within the signed ones of a byte
// multiply-add, the high part of G is shared out between both pairs.
template <Weights w> ZORCC_INLINE u16v weigh(u8v rg, u8v bg)
{
    constexpr int r = highPart(w.r), b = highPart(w.b), g = highPart(w.g);
    constexpr int gWithR = g > 0 && r > 0 && g > 128 - r ? 128 - r : g, gWithB = g - gWithR;
    static_assert(fits8(r) && fits8(b) && fits8(gWithR) && fits8(gWithB));
    static_assert(sumFits16(r, gWithR) && sumFits16(b, gWithB));
    static_assert(sumFits16(lowPart(w.r), lowPart(w.g), lowPart(w.b)));

    const u16v high = (u16v)mulAddPairs(rg, fillPair8(r, gWithR)) + (u16v)mulAddPairs(bg, fillPair8(b, gWithB));
    const s16v low =
        mulAddPairs(rg, fillPair8(lowPart(w.r), lowPart(w.g))) + mulAddPairs(bg, fillPair8(lowPart(w.b), 0));
    return high + (u16v)(low >> 8);
}

// floor(k v / 65536) for a k of up to 17 bits: k is 65536 whole + part, with a signed 16-bit part.
template <int k> ZORCC_INLINE s16v scale(s16v v)
{
    constexpr int whole = (k + 32768) >> 16, part = k - 65536 * whole;
    static_assert(whole >= 0 && whole <= 2);
    const s16v scaled = mulHigh(v, fill16(part));
    return whole == 0 ? scaled : whole == 1 ? scaled + v : scaled + v + v;
}

// The same, rounded to nearest, a half upwards: the top bit of the lower half of part v carries.
template <int k> ZORCC_INLINE s16v scaleRounded(s16v v)
{
    constexpr int part = k - 65536 * ((k + 32768) >> 16);
    return scale<k>(v) + (s16v)(((u16v)v * (u16v)fill16(part)) >> 15);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
