// SPDX-License-Identifier: MIT
// Double precision: a vector of 32-bit lanes as two vectors of doubles, in the same order, and back.
#pragma once

#include "simd/floats.h"
#include "simd/lockstep.h"

namespace zorcc::ZORCC_TIER {
namespace {

using f64v = Vec<double>;

template <int count> using Doubles = Lockstep<double, count>;

// a where x < limit, otherwise b.
template <int count>
ZORCC_INLINE Doubles<count> selectBelow(const Doubles<count>& x, double limit, const Doubles<count>& a,
                                        const Doubles<count>& b)
{
    Doubles<count> c;
    for (int i = 0; i < count; ++i) c.v[i] = x.v[i] < limit ? a.v[i] : b.v[i];
    return c;
}
constexpr double selectBelow(double x, double limit, double a, double b) { return x < limit ? a : b; }

ZORCC_INLINE Doubles<2> toDoubles(f32v v)
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
ZORCC_INLINE f32v toFloat(const Doubles<2>& v)
{
#if defined(ZORCC_TIER_avx512)
    return (f32v)_mm512_insertf32x8(_mm512_castps256_ps512(_mm512_cvtpd_ps((__m512d)v.v[0])),
                                    _mm512_cvtpd_ps((__m512d)v.v[1]), 1);
#elif defined(ZORCC_TIER_avx2)
    return (f32v)_mm256_set_m128(_mm256_cvtpd_ps((__m256d)v.v[1]), _mm256_cvtpd_ps((__m256d)v.v[0]));
#else
    return (f32v)_mm_movelh_ps(_mm_cvtpd_ps((__m128d)v.v[0]), _mm_cvtpd_ps((__m128d)v.v[1]));
#endif
}

template <int parts> ZORCC_INLINE Doubles<2 * parts> toDoubles(const Floats<parts>& floats)
{
    Doubles<2 * parts> doubles;
    for (int p = 0; p < parts; ++p) {
        const Doubles<2> two = toDoubles(floats.part[p]);
        doubles.v[2 * p] = two.v[0];
        doubles.v[2 * p + 1] = two.v[1];
    }
    return doubles;
}

template <int count> ZORCC_INLINE Floats<count / 2> toFloat(const Doubles<count>& v)
{
    Floats<count / 2> floats;
    for (int p = 0; p < count / 2; ++p) floats.part[p] = toFloat(Doubles<2>{{v.v[2 * p], v.v[2 * p + 1]}});
    return floats;
}

} // namespace
} // namespace zorcc::ZORCC_TIER
