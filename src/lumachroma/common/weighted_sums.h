// SPDX-License-Identifier: MIT
// Weighted sums of 8-bit channels with coefficients of 16 bits or a little more, exactly, in 16-bit lanes. Coefficients
// are in units of 1/65536.
#pragma once

#include "simd/vec.h"

// How coefficients are written down. Units are 1/65536 unless stated.
namespace zorcc {

// Weights of R, G and B (or of any three channels) in a sum.
struct Weights {
    int r, g, b;
};

// From luma and two chroma channels, the first of which drives B and the second R. Each channel is its weighted sum
// plus a constant, shifted down by 16, saturated to 0..255.
struct ToRgb {
    int y;      // of luma, for all channels
    int r;      // R from the second chroma channel
    int g1, g2; // G from the first and the second, both to be subtracted
    int b;      // B from the first
    int constantR, constantG, constantB;
};

// Chroma centred on 128, luma starting at `black`; `rounding` is 0 to round down, 32768 to nearest.
constexpr ToRgb centred(int y, int r, int g1, int g2, int b, int black, int rounding)
{
    const int luma = rounding - black * y;
    return {y, r, g1, g2, b, luma - 128 * r, luma + 128 * (g1 + g2), luma - 128 * b};
}

} // namespace zorcc

namespace zorcc::ZORCC_TIER {
namespace {

// A coefficient k as 256 high + low with low in -128..127.
constexpr int highOf(int k) { return (k + 128) >> 8; }
constexpr int lowOf(int k) { return k - 256 * highOf(k); }

// The extremes of a sum of products of bytes with coefficients.
constexpr int maxOf(int a, int b, int c = 0) { return 255 * ((a > 0 ? a : 0) + (b > 0 ? b : 0) + (c > 0 ? c : 0)); }
constexpr int minOf(int a, int b, int c = 0) { return -maxOf(-a, -b, -c); }
constexpr bool sumFits16(int a, int b) { return maxOf(a, b) <= 32767 && minOf(a, b) >= -32768; }
constexpr bool fits8(int k) { return k >= -128 && k <= 127; }

// As much of k as a byte multiply-add has room for beside another coefficient.
constexpr int partBeside(int other, int k)
{
    const int most = other > 0 ? 128 - other : 127, least = other < 0 ? -128 - other : -128;
    return k > most ? most : k < least ? least : k;
}

// H + floor((L + constant % 256) / 256) + floor(constant / 256) for 16-bit L in low..high, modulo 65536.
// Where L passes the signed range it is moved into the unsigned one by a multiple of 256.
template <int low, int high, int constant> ZORCC_INLINE u16v combine(u16v h, s16v l)
{
    constexpr int fraction = constant & 0xff;
    if constexpr (high + fraction <= 32767 && low >= -32768) {
        return h + (u16v)((l + fill16(fraction)) >> 8) + (u16v)fill16(constant >> 8);
    } else {
        constexpr int lift = (255 - low) / 256;
        static_assert(high + fraction + 256 * lift <= 65535);
        return h + (((u16v)l + (u16v)fill16(fraction + 256 * lift)) >> 8) + (u16v)fill16((constant >> 8) - lift);
    }
}

// floor((w.r R + w.g G + w.b B + constant) / 256) modulo 65536, from the zipped bytes (R, G) and (B, G).
//
// With every coefficient as 256 high + low the sum is 256 H + L, so that its floor is H + floor(L / 256): two sums of
// byte products. H may need all of 16 unsigned bits; to keep its two terms within the signed ones of a byte
// multiply-add, the high byte of G is divided between both pairs, and so is the low one where that must be.
template <Weights w, int constant = 0> ZORCC_INLINE u16v weigh(u8v rg, u8v bg)
{
    constexpr int r = highOf(w.r), b = highOf(w.b), g = highOf(w.g);
    constexpr int gWithR = partBeside(r, g), gWithB = g - gWithR;
    constexpr int rLow = lowOf(w.r), gLow = lowOf(w.g), bLow = lowOf(w.b);
    constexpr int gLowWithR = partBeside(rLow, gLow), gLowWithB = gLow - gLowWithR;
    static_assert(fits8(r) && fits8(b) && fits8(gWithR) && fits8(gWithB));
    static_assert(sumFits16(r, gWithR) && sumFits16(b, gWithB));
    static_assert(sumFits16(rLow, gLowWithR) && sumFits16(bLow, gLowWithB));

    const u16v high = (u16v)mulAddPairs(rg, fillPair8(r, gWithR)) + (u16v)mulAddPairs(bg, fillPair8(b, gWithB));
    const u16v low =
        (u16v)mulAddPairs(rg, fillPair8(rLow, gLowWithR)) + (u16v)mulAddPairs(bg, fillPair8(bLow, gLowWithB));
    return combine<minOf(rLow, gLow, bLow), maxOf(rLow, gLow, bLow), constant>(high, (s16v)low);
}

// floor((first a + second b + constant) / 256) modulo 65536, from the zipped bytes (a, b).
template <int first, int second, int constant> ZORCC_INLINE s16v weighPair(u8v ab)
{
    constexpr int a = highOf(first), b = highOf(second), aLow = lowOf(first), bLow = lowOf(second);
    static_assert(fits8(a) && fits8(b) && sumFits16(a, b) && sumFits16(aLow, bLow));

    const u16v high = (u16v)mulAddPairs(ab, fillPair8(a, b));
    return (s16v)combine<minOf(aLow, bLow), maxOf(aLow, bLow), constant>(high, mulAddPairs(ab, fillPair8(aLow, bLow)));
}

// A coefficient of 17 bits as 65536 whole + rest with a signed 16-bit rest.
constexpr int wholeOf(int k) { return (k + 32768) >> 16; }
constexpr int restOf(int k) { return k - 65536 * wholeOf(k); }

// whole v for the few wholes that occur.
template <int whole> ZORCC_INLINE s16v times(s16v v)
{
    static_assert(whole >= -2 && whole <= 3);
    if constexpr (whole < 0) return -times<-whole>(v);
    return whole == 0 ? s16v{} : whole == 1 ? v : whole == 2 ? v + v : v + v + v;
}

// floor(k v / 65536)
template <int k> ZORCC_INLINE s16v scale(s16v v) { return mulHigh(v, fill16(restOf(k))) + times<wholeOf(k)>(v); }

// k v - 65536 floor(k v / 65536): what scale leaves.
template <int k> ZORCC_INLINE u16v scaleRest(s16v v) { return (u16v)v * (u16v)fill16(restOf(k)); }

// Rounded to nearest, a half upwards.
template <int k> ZORCC_INLINE s16v scaleRounded(s16v v) { return scale<k>(v) + (s16v)(scaleRest<k>(v) >> 15); }

// ---- packing results ------------------------------------------------------------------------------------------------

// Signed differences to 128: a block's eight from `lo`, then eight from `hi`, saturated.
ZORCC_INLINE u8v packAround128(s16v lo, s16v hi) { return (u8v)packSigned(lo, hi) ^ fill8(0x80); }

// The upper bytes of 8.8 fixed point.
ZORCC_INLINE u8v packWhole(u16v lo, u16v hi) { return packUnsigned((s16v)(lo >> 8), (s16v)(hi >> 8)); }

} // namespace
} // namespace zorcc::ZORCC_TIER
