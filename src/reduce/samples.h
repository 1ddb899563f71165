// SPDX-License-Identifier: MIT
// As many neighbouring samples of a row as a vector has lanes, as floats in their order, and back.
#pragma once

#include "reduce/reduction.h"
#include "simd/widening_loads.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int lanes = floatsPerVector;
constexpr int signedBias = 32768; // signed samples stand for a value that is so much greater

// ---- load: values from 0 to the type's full scale -------------------------------------------------------------------

// The least one has the same bits as the unsigned word of the middle.
ZORCC_INLINE s32v loadIntegers(const int16_t* p) { return loadIntegers((const uint16_t*)p) ^ signedBias; }

ZORCC_INLINE f32v loadSamples(const float* p) { return load<f32v>(p); }
template <class Integer> ZORCC_INLINE f32v loadSamples(const Integer* p) { return toFloat(loadIntegers(p)); }

// ---- store: values about 0 to the type's full scale, saturated ------------------------------------------------------

ZORCC_INLINE void storeSamples(uint8_t* p, s32v v)
{
#if defined(ZORCC_TIER_avx512)
    _mm_storeu_si128((__m128i*)p, _mm512_cvtusepi32_epi8(_mm512_max_epi32(reg(v), _mm512_setzero_si512())));
#elif defined(ZORCC_TIER_avx2)
    const __m128i words = _mm_packs_epi32(_mm256_castsi256_si128(reg(v)), _mm256_extracti128_si256(reg(v), 1));
    _mm_storel_epi64((__m128i*)p, _mm_packus_epi16(words, words));
#else
    const int four = _mm_cvtsi128_si32(reg(narrowToU8({{v, v, v, v}})));
    __builtin_memcpy(p, &four, sizeof four);
#endif
}

ZORCC_INLINE void storeSamples(uint16_t* p, s32v v)
{
#if defined(ZORCC_TIER_avx512)
    _mm256_storeu_si256((__m256i*)p, _mm512_cvtusepi32_epi16(_mm512_max_epi32(reg(v), _mm512_setzero_si512())));
#elif defined(ZORCC_TIER_avx2)
    _mm_storeu_si128((__m128i*)p,
                     _mm_packus_epi32(_mm256_castsi256_si128(reg(v)), _mm256_extracti128_si256(reg(v), 1)));
#else
    _mm_storel_epi64((__m128i*)p, reg(narrowToU16({{v, v}})));
#endif
}

ZORCC_INLINE void storeSamples(int16_t* p, s32v v)
{
    const s32v s = v - signedBias;
#if defined(ZORCC_TIER_avx512)
    _mm256_storeu_si256((__m256i*)p, _mm512_cvtsepi32_epi16(reg(s)));
#elif defined(ZORCC_TIER_avx2)
    _mm_storeu_si128((__m128i*)p, _mm_packs_epi32(_mm256_castsi256_si128(reg(s)), _mm256_extracti128_si256(reg(s), 1)));
#else
    _mm_storel_epi64((__m128i*)p, reg(narrowToS16({{s, s}})));
#endif
}

// The same but for every fourth sample, which keeps its value.
template <class Sample> ZORCC_INLINE void storeColours(Sample* p, s32v v)
{
    const s32v alpha = (s32v)fillBlock(_mm_setr_epi32(0, 0, 0, -1));
    storeSamples(p, select(alpha, loadIntegers(p), v));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
