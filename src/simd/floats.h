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
constexpr int lanes = vectorBytes / 4; // of 32 bits

ZORCC_INLINE FloatRegister reg(f32v v) { return (FloatRegister)v; }

ZORCC_INLINE f32v fillFloat(float value) { return (f32v)ZORCC_MM(set1_ps)(value); }

ZORCC_INLINE f32v toFloat(s32v v) { return __builtin_convertvector(v, f32v); }

// Towards zero. NaN and what no 32-bit integer holds give the least integer.
ZORCC_INLINE s32v truncate(f32v v) { return (s32v)ZORCC_MM(cvttps_epi32)(reg(v)); }

// To nearest, ties to even (the rounding mode of a thread that has not changed it); beyond the range as truncate.
ZORCC_INLINE s32v roundToEven(f32v v) { return (s32v)ZORCC_MM(cvtps_epi32)(reg(v)); }

// The second operand where one of them is NaN.
ZORCC_INLINE f32v min(f32v a, f32v b) { return (f32v)ZORCC_MM(min_ps)(reg(a), reg(b)); }
ZORCC_INLINE f32v max(f32v a, f32v b) { return (f32v)ZORCC_MM(max_ps)(reg(a), reg(b)); }

ZORCC_INLINE f32v abs(f32v v) { return (f32v)((s32v)v & 0x7fffffff); }
constexpr float abs(float v) { return v < 0 ? -v : v; }

// Per lane: a where the mask (a comparison's answer: 0 or -1) is set, otherwise b.
ZORCC_INLINE f32v select(s32v mask, f32v a, f32v b) { return mask ? a : b; }
ZORCC_INLINE s32v select(s32v mask, s32v a, s32v b) { return mask ? a : b; }

// count + sign, which is 1 or -1, where a <= x and b <= y.
template <int sign> ZORCC_INLINE s32v addWhereBothWithin(s32v count, f32v a, f32v x, f32v b, f32v y)
{
#if defined(ZORCC_TIER_avx512)
    const __mmask16 both =
        _mm512_mask_cmp_ps_mask(_mm512_cmp_ps_mask(reg(a), reg(x), _CMP_LE_OQ), reg(b), reg(y), _CMP_LE_OQ);
    return (s32v)_mm512_mask_add_epi32(reg(count), both, reg(count), _mm512_set1_epi32(sign));
#else
    const s32v both = (a <= x) & (b <= y); // true is -1
    return sign > 0 ? count - both : count + both;
#endif
}

// A constant to divide by, and its reciprocal in two terms.
struct Divisor {
    float value, most, rest;

    constexpr explicit Divisor(float v)
        : value(v), most(static_cast<float>(1.0 / double{v})), rest(static_cast<float>(1.0 / double{v} - double{most}))
    {
    }
};

#if !defined(ZORCC_TIER_ssse3)
// sum + a b, rounded once. That AVX-512 says how to round tells it from multiply-adds that a compiler makes of what
// must not be one.
ZORCC_INLINE f32v addProduct(f32v sum, f32v a, f32v b)
{
    #if defined(ZORCC_TIER_avx512)
    return (f32v)_mm512_fmadd_round_ps(reg(a), reg(b), reg(sum), _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    #else
    return (f32v)_mm256_fmadd_ps(reg(a), reg(b), reg(sum));
    #endif
}
#endif

// v / divisor, rounded as a division does, for 3, 60, 116, 185.12712, 250.13359, 255, 360 and 903.3: v times the
// reciprocal in two terms, of which the second makes up for what the first lacks, is the quotient for every significand
// as long as the second term loses no digits: v is 0 or, without its sign, from 2^-60 to 2^120.
ZORCC_INLINE f32v divideModerate(f32v v, Divisor divisor)
{
#if defined(ZORCC_TIER_ssse3)
    return v / divisor.value;
#else
    return addProduct(v * divisor.rest, v, fillFloat(divisor.most));
#endif
}

// By one divisor where the mask is set, otherwise by the other.
ZORCC_INLINE f32v divideByEither(s32v mask, f32v v, Divisor one, Divisor other)
{
    const auto term = [&](float a, float b) { return select(mask, fillFloat(a), fillFloat(b)); };
#if defined(ZORCC_TIER_ssse3)
    return v / term(one.value, other.value);
#else
    return addProduct(v * term(one.rest, other.rest), v, term(one.most, other.most));
#endif
}

// The same for any v. Where digits may have been lost (quotients below 2^-64), or where there are none (infinity, NaN),
// it takes a division. With 256 bits the division takes less time than the test.
template <int divisor> ZORCC_INLINE f32v divideBy(f32v v)
{
    constexpr Divisor by(divisor);
#if defined(ZORCC_TIER_avx512)
    constexpr uint32_t least = 0x1f800000, infinity = 0x7f800000; // bits of 2^-64
    const f32v quotient = divideModerate(v, by);
    const u32v bits = (u32v)quotient; // of negative ones, which are rare, beyond infinity's
    const __mmask16 notZero = _mm512_test_epi32_mask(reg(bits), reg(bits));
    if (!_mm512_mask_cmpge_epu32_mask(notZero, reg(bits - least), reg(u32v{} + (infinity - least)))) [[likely]]
        return quotient;
#endif
    return v / by.value;
}

// ---- order within blocks --------------------------------------------------------------------------------------------

// Per block: elements a and b of one vector, c and d of the other.
template <int a, int b, int c, int d> ZORCC_INLINE f32v pick(f32v v, f32v w)
{
    return (f32v)ZORCC_MM(shuffle_ps)(reg(v), reg(w), _MM_SHUFFLE(d, c, b, a));
}

// ---- neighbours in a sequence of vectors ----------------------------------------------------------------------------

// As many elements of the sequence a, b, from the given one on.
template <int first> ZORCC_INLINE f32v window(f32v a, f32v b)
{
#if defined(ZORCC_TIER_avx512)
    return (f32v)_mm512_alignr_epi32((Register)b, (Register)a, first);
#elif defined(ZORCC_TIER_avx2)
    const Register middle = _mm256_permute2x128_si256((Register)a, (Register)b, 0x21);
    return (f32v)_mm256_alignr_epi8(first < 4 ? middle : (Register)b, first < 4 ? (Register)a : middle, 4 * first % 16);
#else
    return (f32v)_mm_alignr_epi8((Register)b, (Register)a, 4 * first);
#endif
}

// Each element's neighbour in a sequence of vectors: its left one, `previous` being the vector before, its right one.
ZORCC_INLINE f32v leftOf(f32v previous, f32v here) { return window<lanes - 1>(previous, here); }
ZORCC_INLINE f32v rightOf(f32v here, f32v next) { return window<1>(here, next); }

// ---- from samples to 32 bits and back -------------------------------------------------------------------------------

template <int parts> struct Widened {
    s32v part[parts];
};

template <int parts> struct Floats {
    f32v part[parts];
};

// How many vectors of 32 bits a vector of samples of this type widens to.
template <class Sample> inline constexpr int partsOf = 4 / int{sizeof(Sample)};

template <int parts> ZORCC_INLINE Floats<parts> toFloat(const Widened<parts>& v)
{
    Floats<parts> f;
    for (int p = 0; p < parts; ++p) f.part[p] = toFloat(v.part[p]);
    return f;
}

#if defined(ZORCC_TIER_avx512)
struct ZipOrder {
    alignas(64) uint8_t byte[4][64]; // [part][byte of the part]: which byte takes its place, in every fourth byte

    constexpr ZipOrder() : byte{}
    {
        for (int p = 0; p < 4; ++p)
            for (int i = 0; i < 64; ++i) byte[p][i] = static_cast<uint8_t>(i / 16 * 16 + 4 * p + i % 16 / 4);
    }
};
constexpr ZipOrder zipOrder;
#endif

ZORCC_INLINE Widened<4> widen(u8v v)
{
#if defined(ZORCC_TIER_avx512)
    Widened<4> wide; // one permutation each instead of one and a half zips
    for (int p = 0; p < 4; ++p)
        wide.part[p] = (s32v)_mm512_maskz_permutexvar_epi8(0x1111111111111111, reg(load(zipOrder.byte[p])), reg(v));
    return wide;
#else
    const u8v zero = {};
    const u16v low = (u16v)zipLow(v, zero), high = (u16v)zipHigh(v, zero), none = {};
    return {{(s32v)zipLow(low, none), (s32v)zipHigh(low, none), (s32v)zipLow(high, none), (s32v)zipHigh(high, none)}};
#endif
}

ZORCC_INLINE Widened<4> widen(s8v v) // with its sign
{
    Widened<4> wide = widen((u8v)v ^ 0x80);
    for (s32v& part : wide.part) part -= 128;
    return wide;
}

ZORCC_INLINE Widened<2> widen(u16v v)
{
    const u16v none = {};
    return {{(s32v)zipLow(v, none), (s32v)zipHigh(v, none)}};
}

ZORCC_INLINE Widened<2> widen(s16v v) // with its sign
{
    return {{(s32v)zipLow(v, v) >> 16, (s32v)zipHigh(v, v) >> 16}};
}

// Saturated to the sample's range. Each type of samples has its own way; there is none for other types.
template <class Sample> Vec<Sample> narrow(const Widened<partsOf<Sample>>& v) = delete;

template <> inline __attribute__((always_inline)) u8v narrow<uint8_t>(const Widened<4>& v)
{
    return packUnsigned(packSigned(v.part[0], v.part[1]), packSigned(v.part[2], v.part[3]));
}

template <> inline __attribute__((always_inline)) s8v narrow<int8_t>(const Widened<4>& v)
{
    return packSigned(packSigned(v.part[0], v.part[1]), packSigned(v.part[2], v.part[3]));
}

template <> inline __attribute__((always_inline)) s16v narrow<int16_t>(const Widened<2>& v)
{
    return packSigned(v.part[0], v.part[1]);
}

// SSSE3 has no unsigned pack of 32 bits: saturate about the middle of the range instead. The subtraction wraps for
// values within 32768 of the least integer only, so those are raised to -32768 first.
template <> inline __attribute__((always_inline)) u16v narrow<uint16_t>(const Widened<2>& v)
{
#if defined(ZORCC_TIER_ssse3)
    const s32v least = fill32(-32768), a = select(v.part[0] < least, least, v.part[0]),
               b = select(v.part[1] < least, least, v.part[1]);
    return (u16v)packSigned(a - 32768, b - 32768) ^ 0x8000;
#else
    return (u16v)ZORCC_MM(packus_epi32)(reg(v.part[0]), reg(v.part[1]));
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
