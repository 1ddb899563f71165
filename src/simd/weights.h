// SPDX-License-Identifier: MIT
// Weighted sums of 8-bit channels with coefficients of 16 bits or a little more, exactly, in 16-bit lanes. Coefficients
// are in units of 1/65536.
#pragma once

#include "lumachroma/coefficients.h"
#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A coefficient k as 256 high + low with low in -128..127.
constexpr int highPart(int k) { return (k + 128) >> 8; }
constexpr int lowPart(int k) { return k - 256 * highPart(k); }

// Whether a sum of products of bytes with the coefficients, and of a constant, stays within 16 bits.
constexpr bool sumFits16(int a, int b, int c = 0, int constant = 0)
{
    const int most = (a > 0 ? a : 0) + (b > 0 ? b : 0) + (c > 0 ? c : 0);
    const int least = (a < 0 ? a : 0) + (b < 0 ? b : 0) + (c < 0 ? c : 0);
    return 255 * most + constant <= 32767 && 255 * least + constant >= -32768;
}
constexpr bool fits8(int k) { return k >= -128 && k <= 127; }

// floor((w.r R + w.g G + w.b B + constant) / 256) modulo 65536, from the zipped bytes (R, G) and (B, G).
//
// With every coefficient as 256 high + low the sum is 256 H + L, so that its floor is H + floor(L / 256): two sums of
// byte products. H may need all of 16 unsigned bits; to keep its two parts within the signed ones of a byte
// multiply-add, the high part of G is shared out between both pairs.
template <Weights w, int constant = 0> ZORCC_INLINE u16v weigh(u8v rg, u8v bg)
{
    constexpr int r = highPart(w.r), b = highPart(w.b), g = highPart(w.g);
    constexpr int gWithR = g > 0 && r > 0 && g > 128 - r ? 128 - r : g, gWithB = g - gWithR;
    static_assert(fits8(r) && fits8(b) && fits8(gWithR) && fits8(gWithB));
    static_assert(sumFits16(r, gWithR) && sumFits16(b, gWithB));
    static_assert(sumFits16(lowPart(w.r), lowPart(w.g), lowPart(w.b), constant & 0xff));

    const u16v high = (u16v)mulAddPairs(rg, fillPair8(r, gWithR)) + (u16v)mulAddPairs(bg, fillPair8(b, gWithB));
    const s16v low =
        mulAddPairs(rg, fillPair8(lowPart(w.r), lowPart(w.g))) + mulAddPairs(bg, fillPair8(lowPart(w.b), 0));
    return high + (u16v)((low + fill16(constant & 0xff)) >> 8) + (u16v)fill16(constant >> 8);
}

// floor((first a + second b + constant) / 256) modulo 65536, from the zipped bytes (a, b).
template <int first, int second, int constant> ZORCC_INLINE s16v weighPair(u8v ab)
{
    static_assert(fits8(highPart(first)) && fits8(highPart(second)) && sumFits16(highPart(first), highPart(second)));
    static_assert(sumFits16(lowPart(first), lowPart(second), 0, constant & 0xff));

    const u16v high = (u16v)mulAddPairs(ab, fillPair8(highPart(first), highPart(second)));
    const s16v low = mulAddPairs(ab, fillPair8(lowPart(first), lowPart(second)));
    return (s16v)(high + (u16v)((low + fill16(constant & 0xff)) >> 8) + (u16v)fill16(constant >> 8));
}

// A coefficient of 17 bits as 65536 whole + part with a signed 16-bit part.
constexpr int wholePart(int k) { return (k + 32768) >> 16; }
constexpr int signedPart(int k) { return k - 65536 * wholePart(k); }

// whole v for the few wholes that occur.
template <int whole> ZORCC_INLINE s16v times(s16v v)
{
    static_assert(whole >= -1 && whole <= 2);
    return whole == 0 ? s16v{} : whole == 1 ? v : whole == 2 ? v + v : -v;
}

// floor(k v / 65536)
template <int k> ZORCC_INLINE s16v scale(s16v v) { return mulHigh(v, fill16(signedPart(k))) + times<wholePart(k)>(v); }

// The same, rounded to nearest, a half upwards: the top bit of the lower half of part v carries.
template <int k> ZORCC_INLINE s16v scaleRounded(s16v v)
{
    return scale<k>(v) + (s16v)(((u16v)v * (u16v)fill16(signedPart(k))) >> 15);
}

// ---- packing results ------------------------------------------------------------------------------------------------

// Signed differences to 128: a block's eight from `lo`, then eight from `hi`, saturated.
ZORCC_INLINE u8v packAround128(s16v lo, s16v hi) { return (u8v)packSigned(lo, hi) ^ fill8(0x80); }

// The upper bytes of 8.8 fixed point.
ZORCC_INLINE u8v packWhole(u16v lo, u16v hi) { return packUnsigned((s16v)(lo >> 8), (s16v)(hi >> 8)); }

// The lower and the upper byte of every pair.
ZORCC_INLINE s16v firstOfPairs(u8v pairs) { return (s16v)pairs & 0xff; }
ZORCC_INLINE s16v secondOfPairs(u8v pairs) { return (s16v)((u16v)pairs >> 8); }

} // namespace
} // namespace zorcc::ZORCC_TIER
