// SPDX-License-Identifier: MIT
#pragma once

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The first, or the second, half of a0 b0 a1 b1 ... over whole vectors.
template <int half> ZORCC_INLINE f32v weave(f32v a, f32v b)
{
#if defined(ZORCC_TIER_avx512)
    constexpr int f = 8 * half;
    const __m512i from = _mm512_setr_epi32(f, f + 16, f + 1, f + 17, f + 2, f + 18, f + 3, f + 19, f + 4, f + 20, f + 5,
                                           f + 21, f + 6, f + 22, f + 7, f + 23);
    return (f32v)_mm512_permutex2var_ps(reg(a), from, reg(b));
#elif defined(ZORCC_TIER_avx2)
    return (f32v)_mm256_permute2f128_ps(reg(zipLow(a, b)), reg(zipHigh(a, b)), half ? 0x31 : 0x20);
#else
    return half ? zipHigh(a, b) : zipLow(a, b);
#endif
}

// Row i becomes column i. Weaving the first half of the rows with the second moves one bit of an element's row number
// to its column number; as often as the numbers have bits, that exchanges them.
ZORCC_INLINE void transpose(f32v (&row)[floatsPerVector])
{
    constexpr int half = floatsPerVector / 2;
    for (int bit = 1; bit < floatsPerVector; bit *= 2) {
        f32v woven[floatsPerVector];
        for (int i = 0; i < half; ++i) {
            woven[2 * i] = weave<0>(row[i], row[i + half]);
            woven[2 * i + 1] = weave<1>(row[i], row[i + half]);
        }
        for (int i = 0; i < floatsPerVector; ++i) row[i] = woven[i];
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
