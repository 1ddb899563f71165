// SPDX-License-Identifier: MIT
// As many neighbouring samples as a vector has 32-bit lanes, in their order: to integers and back.
#pragma once

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

ZORCC_INLINE s32v loadIntegers(const uint8_t* p)
{
#if defined(ZORCC_TIER_avx512)
    return (s32v)_mm512_cvtepu8_epi32(_mm_loadu_si128((const __m128i*)p));
#elif defined(ZORCC_TIER_avx2)
    return (s32v)_mm256_cvtepu8_epi32(_mm_loadl_epi64((const __m128i*)p));
#else
    int four;
    __builtin_memcpy(&four, p, sizeof four);
    return widen((u8v)_mm_cvtsi32_si128(four)).part[0];
#endif
}

ZORCC_INLINE s32v loadIntegers(const uint16_t* p)
{
#if defined(ZORCC_TIER_avx512)
    return (s32v)_mm512_cvtepu16_epi32(_mm256_loadu_si256((const __m256i*)p));
#elif defined(ZORCC_TIER_avx2)
    return (s32v)_mm256_cvtepu16_epi32(_mm_loadu_si128((const __m128i*)p));
#else
    return widen((u16v)_mm_loadl_epi64((const __m128i*)p)).part[0];
#endif
}

// Saturated to the samples' range.
ZORCC_INLINE void storeIntegers(uint8_t* p, s32v v)
{
#if defined(ZORCC_TIER_avx512)
    _mm_storeu_si128((__m128i*)p, _mm512_cvtusepi32_epi8(_mm512_max_epi32(reg(v), _mm512_setzero_si512())));
#elif defined(ZORCC_TIER_avx2)
    const __m128i words = _mm_packs_epi32(_mm256_castsi256_si128(reg(v)), _mm256_extracti128_si256(reg(v), 1));
    _mm_storel_epi64((__m128i*)p, _mm_packus_epi16(words, words));
#else
    const int four = _mm_cvtsi128_si32(reg(narrow<uint8_t>({{v, v, v, v}})));
    __builtin_memcpy(p, &four, sizeof four);
#endif
}

ZORCC_INLINE void storeIntegers(uint16_t* p, s32v v)
{
#if defined(ZORCC_TIER_avx512)
    _mm256_storeu_si256((__m256i*)p, _mm512_cvtusepi32_epi16(_mm512_max_epi32(reg(v), _mm512_setzero_si512())));
#elif defined(ZORCC_TIER_avx2)
    _mm_storeu_si128((__m128i*)p,
                     _mm_packus_epi32(_mm256_castsi256_si128(reg(v)), _mm256_extracti128_si256(reg(v), 1)));
#else
    _mm_storel_epi64((__m128i*)p, reg(narrow<uint16_t>({{v, v}})));
#endif
}

ZORCC_INLINE void storeIntegers(int16_t* p, s32v v)
{
#if defined(ZORCC_TIER_avx512)
    _mm256_storeu_si256((__m256i*)p, _mm512_cvtsepi32_epi16(reg(v)));
#elif defined(ZORCC_TIER_avx2)
    _mm_storeu_si128((__m128i*)p, _mm_packs_epi32(_mm256_castsi256_si128(reg(v)), _mm256_extracti128_si256(reg(v), 1)));
#else
    _mm_storel_epi64((__m128i*)p, reg(narrow<int16_t>({{v, v}})));
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
