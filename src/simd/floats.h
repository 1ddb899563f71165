// SPDX-License-Identifier: MIT
// Single precision and 32-bit integers: vectors, conversions, and the way from narrower samples and back.
//
// Widened samples are in *zip order*: part p of a vector of bytes holds, per block, its elements 4p..4p+3 (words:
// 4p..4p+3 of eight). narrow takes the parts back to one vector in the samples' own order.
#pragma once

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

using f32v = Vec<float>;
using FloatRegister = decltype(ZORCC_MM(setzero_ps)());
constexpr int floatsPerVector = vectorBytes / 4;

ZORCC_INLINE FloatRegister reg(f32v v) { return (FloatRegister)v; }

ZORCC_INLINE f32v fillFloat(float value) { return (f32v)ZORCC_MM(set1_ps)(value); }

ZORCC_INLINE f32v toFloat(s32v v) { return __builtin_convertvector(v, f32v); }

// Towards zero. NaN and what no 32-bit integer holds give the least integer.
ZORCC_INLINE s32v truncate(f32v v) { return (s32v)ZORCC_MM(cvttps_epi32)(reg(v)); }

// To nearest, ties to even (the rounding mode of a thread that has not changed it); beyond the range as truncate.
ZORCC_INLINE s32v roundToEven(f32v v) { return (s32v)ZORCC_MM(cvtps_epi32)(reg(v)); }

// The second operand where one of them is NaN.
ZORCC_INLINE f32v minimum(f32v a, f32v b) { return (f32v)ZORCC_MM(min_ps)(reg(a), reg(b)); }
ZORCC_INLINE f32v maximum(f32v a, f32v b) { return (f32v)ZORCC_MM(max_ps)(reg(a), reg(b)); }

ZORCC_INLINE f32v absolute(f32v v) { return (f32v)((s32v)v & 0x7fffffff); }
constexpr float absolute(float v) { return v < 0 ? -v : v; }

// Per lane: a where the mask (a comparison's answer: 0 or -1) is set, otherwise b.
ZORCC_INLINE f32v select(s32v mask, f32v a, f32v b) { return mask ? a : b; }
ZORCC_INLINE s32v select(s32v mask, s32v a, s32v b) { return mask ? a : b; }

// v / divisor, rounded as a division does, for 60 and 360: v times the reciprocal in two parts, of which the second
// makes up for what the first lacks, is the quotient for every significand. Quotients that are too small to have all
// digits are rare.
template <int divisor> ZORCC_INLINE f32v divideBy(f32v v)
{
    static_assert(divisor == 60 || divisor == 360);
#if defined(ZORCC_TIER_avx512)
    constexpr float most = static_cast<float>(1.0 / divisor), rest = static_cast<float>(1.0 / divisor - double{most});
    constexpr int subnormal = 0x20;
    const __m512 quotient = _mm512_fmadd_ps(reg(v), reg(fillFloat(most)), reg(v * rest));
    if (!_mm512_fpclass_ps_mask(quotient, subnormal)) [[likely]]
        return (f32v)quotient;
#endif
    return v / float{divisor};
}

// ---- from samples to 32 bits and back ------------------------------------------------------------------------------

template <int parts> struct Widened {
    s32v part[parts];
};

template <int parts> struct Floats {
    f32v part[parts];
};

template <int parts> ZORCC_INLINE Floats<parts> toFloat(const Widened<parts>& v)
{
    Floats<parts> f;
    for (int p = 0; p < parts; ++p) f.part[p] = toFloat(v.part[p]);
    return f;
}

// Vectors of samples of this type make that many of 32 bits.
template <class Sample> inline constexpr int partsOf = 4 / int{sizeof(Sample)};

#if defined(ZORCC_TIER_avx512)
struct ZipOrder {
    alignas(64) uint8_t byte[4][64]; // [part][byte of the part]: whose place it takes, in every fourth byte

    constexpr ZipOrder() : byte{}
    {
        for (int p = 0; p < 4; ++p)
            for (int i = 0; i < 64; ++i) byte[p][i] = static_cast<uint8_t>(i / 16 * 16 + 4 * p + i % 16 / 4);
    }
};
constexpr ZipOrder zipped;
#endif

ZORCC_INLINE Widened<4> widen(u8v v)
{
#if defined(ZORCC_TIER_avx512)
    Widened<4> wide; // one permutation each instead of one and a half zips
    for (int p = 0; p < 4; ++p)
        wide.part[p] = (s32v)_mm512_maskz_permutexvar_epi8(0x1111111111111111, reg(load(zipped.byte[p])), reg(v));
    return wide;
#else
    const u8v zero = {};
    const u16v low = (u16v)zipLow(v, zero), high = (u16v)zipHigh(v, zero), none = {};
    return {{(s32v)zipLow(low, none), (s32v)zipHigh(low, none), (s32v)zipLow(high, none), (s32v)zipHigh(high, none)}};
#endif
}

ZORCC_INLINE Widened<2> widen(u16v v)
{
    const u16v none = {};
    return {{(s32v)zipLow(v, none), (s32v)zipHigh(v, none)}};
}

ZORCC_INLINE Widened<2> widen(s16v v) // the sign comes along
{
    return {{(s32v)zipLow(v, v) >> 16, (s32v)zipHigh(v, v) >> 16}};
}

// Saturated to the sample's range.
ZORCC_INLINE u8v narrowToU8(const Widened<4>& v)
{
    return packUnsigned(packSigned(v.part[0], v.part[1]), packSigned(v.part[2], v.part[3]));
}

ZORCC_INLINE s16v narrowToS16(const Widened<2>& v) { return packSigned(v.part[0], v.part[1]); }

// SSSE3 has no unsigned pack of 32 bits: saturate about the middle of the range instead. The subtraction wraps for
// values within 32768 of the least integer only, so those are raised to -32768 first.
ZORCC_INLINE u16v narrowToU16(const Widened<2>& v)
{
#if defined(ZORCC_TIER_ssse3)
    const s32v least = fill32(-32768), a = select(v.part[0] < least, least, v.part[0]),
               b = select(v.part[1] < least, least, v.part[1]);
    return (u16v)packSigned(a - 32768, b - 32768) ^ 0x8000;
#else
    return (u16v)ZORCC_MM(packus_epi32)(reg(v.part[0]), reg(v.part[1]));
#endif
}

template <class Sample> ZORCC_INLINE Vec<Sample> narrow(const Widened<partsOf<Sample>>& v)
{
    if constexpr (sizeof(Sample) == 1)
        return narrowToU8(v);
    else
        return narrowToU16(v);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
