// SPDX-License-Identifier: MIT
// Double precision: a vector of 32-bit lanes as two vectors of doubles, in the same order, and back.
#pragma once

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

using f64v = Vec<double>;

struct Doubles {
    f64v half[2];
};

ZORCC_INLINE Doubles toDoubles(f32v v)
{
#if defined(ZORCC_TIER_avx512)
    return {{(f64v)_mm512_cvtps_pd(_mm512_castps512_ps256(reg(v))),
             (f64v)_mm512_cvtps_pd(_mm512_extractf32x8_ps(reg(v), 1))}};
#elif defined(ZORCC_TIER_avx2)
    return {{(f64v)_mm256_cvtps_pd(_mm256_castps256_ps128(reg(v))),
             (f64v)_mm256_cvtps_pd(_mm256_extractf128_ps(reg(v), 1))}};
#else
    return {{(f64v)_mm_cvtps_pd(reg(v)), (f64v)_mm_cvtps_pd(_mm_movehl_ps(reg(v), reg(v)))}};
#endif
}

// Rounded to nearest, ties to even.
ZORCC_INLINE f32v toFloat(const Doubles& v)
{
#if defined(ZORCC_TIER_avx512)
    return (f32v)_mm512_insertf32x8(_mm512_castps256_ps512(_mm512_cvtpd_ps((__m512d)v.half[0])),
                                    _mm512_cvtpd_ps((__m512d)v.half[1]), 1);
#elif defined(ZORCC_TIER_avx2)
    return (f32v)_mm256_set_m128(_mm256_cvtpd_ps((__m256d)v.half[1]), _mm256_cvtpd_ps((__m256d)v.half[0]));
#else
    return (f32v)_mm_movelh_ps(_mm_cvtpd_ps((__m128d)v.half[0]), _mm_cvtpd_ps((__m128d)v.half[1]));
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
