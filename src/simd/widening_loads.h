// SPDX-License-Identifier: MIT
// As many neighbouring samples as a vector has 32-bit lanes, in their order.
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

} // namespace
} // namespace zorcc::ZORCC_TIER
