// SPDX-License-Identifier: MIT
// A sequence of floats moved by one, across whole vectors.
#pragma once

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Each element's left neighbour; `before` is the vector before.
ZORCC_INLINE f32v leftOf(f32v before, f32v here)
{
#if defined(ZORCC_TIER_avx512)
    return (f32v)_mm512_alignr_epi32((Register)here, (Register)before, 15);
#elif defined(ZORCC_TIER_avx2)
    const Register middle = _mm256_permute2x128_si256((Register)before, (Register)here, 0x21);
    return (f32v)_mm256_alignr_epi8((Register)here, middle, 12);
#else
    return (f32v)_mm_alignr_epi8((Register)here, (Register)before, 12);
#endif
}

// Each element's right neighbour; `behind` is the vector behind.
ZORCC_INLINE f32v rightOf(f32v here, f32v behind)
{
#if defined(ZORCC_TIER_avx512)
    return (f32v)_mm512_alignr_epi32((Register)behind, (Register)here, 1);
#elif defined(ZORCC_TIER_avx2)
    const Register middle = _mm256_permute2x128_si256((Register)here, (Register)behind, 0x21);
    return (f32v)_mm256_alignr_epi8(middle, (Register)here, 4);
#else
    return (f32v)_mm_alignr_epi8((Register)behind, (Register)here, 4);
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
