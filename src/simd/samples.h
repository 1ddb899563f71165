// SPDX-License-Identifier: MIT
// As many neighbouring samples as a vector has 32-bit lanes, in their order: to integers and back.
#pragma once

#include "simd/floats.h"
#include "simd/order.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Unsigned samples.
template <class Sample> ZORCC_INLINE s32v loadIntegers(const Sample* p)
{
#if defined(ZORCC_TIER_ssse3)
    std::conditional_t<sizeof(Sample) == 1, uint32_t, uint64_t> four;
    __builtin_memcpy(&four, p, sizeof four);
    return widen((Vec<Sample>)u64v{four}).part[0];
#elif defined(ZORCC_TIER_avx2)
    if constexpr (sizeof(Sample) == 1)
        return (s32v)_mm256_cvtepu8_epi32(_mm_loadl_epi64((const __m128i*)p));
    else
        return (s32v)_mm256_cvtepu16_epi32(_mm_loadu_si128((const __m128i*)p));
#else
    if constexpr (sizeof(Sample) == 1)
        return (s32v)_mm512_cvtepu8_epi32(_mm_loadu_si128((const __m128i*)p));
    else
        return (s32v)_mm512_cvtepu16_epi32(_mm256_loadu_si256((const __m256i*)p));
#endif
}

// Saturated to the samples' range.
template <class Sample> ZORCC_INLINE void storeIntegers(Sample* p, s32v v)
{
    Widened<partsOf<Sample>> repeated;
    for (s32v& part : repeated.part) part = v;
    const Vec<Sample> blocks = narrow<Sample>(repeated); // each holds its samples several times
    const auto samples = sizeof(Sample) == 1 ? orderQuarters((u8v)blocks) : orderHalves((u8v)blocks);
    __builtin_memcpy(p, &samples, lanes * sizeof(Sample));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
