// SPDX-License-Identifier: MIT
// Constants by an index, 0 to 7, in every lane.
#pragma once

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class T> struct Table {
    alignas(32) T of[8];
};

// Bytes, repeated over the lane.
template <class V> ZORCC_INLINE V lookUp(const Table<uint8_t>& table, V index)
{
    if constexpr (sizeof(index[0]) == 2) index *= 0x0101;
    return (V)shuffle(fillBlock(_mm_loadl_epi64((const __m128i*)table.of)), (u8v)index);
}

// Floats, in zip order.
#if defined(ZORCC_TIER_ssse3)
// Their lower 16 bits are zero.
template <class V> ZORCC_INLINE auto lookUp(const Table<float>& table, V index)
{
    const __m128i zero = {}, low = _mm_load_si128((const __m128i*)table.of),
                  high = _mm_load_si128((const __m128i*)(table.of + 4));
    // The upper halves of all; the third bytes of all, then the fourth.
    const __m128i words = _mm_packs_epi32(_mm_srai_epi32(low, 16), _mm_srai_epi32(high, 16));
    const __m128i bytes = _mm_shuffle_epi8(words, _mm_setr_epi8(0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9, 11, 13, 15));
    const u16v none = (u16v)zero;
    if constexpr (sizeof(index[0]) == 2) {
        const u16v upper = (u16v)shuffle((u8v)words, (u8v)(index * 0x0202 + 0x0100));
        return Floats<2>{{(f32v)zipLow(none, upper), (f32v)zipHigh(none, upper)}};
    } else {
        const u8v third = shuffle((u8v)bytes, index), fourth = shuffle((u8v)bytes, index + 8);
        const u16v l = (u16v)zipLow(third, fourth), h = (u16v)zipHigh(third, fourth);
        return Floats<4>{
            {(f32v)zipLow(none, l), (f32v)zipHigh(none, l), (f32v)zipLow(none, h), (f32v)zipHigh(none, h)}};
    }
}
#else
template <class V> ZORCC_INLINE auto lookUp(const Table<float>& table, V index)
{
    const auto wide = widen(index);
    constexpr int parts = 4 / sizeof(index[0]);
    Floats<parts> f;
    for (int p = 0; p < parts; ++p) {
    #if defined(ZORCC_TIER_avx512)
        const __m512 both = _mm512_castpd_ps(_mm512_broadcast_f64x4(_mm256_load_pd((const double*)table.of)));
        f.part[p] = (f32v)_mm512_permutexvar_ps((__m512i)wide.part[p], both);
    #else
        f.part[p] = (f32v)_mm256_permutevar8x32_ps(_mm256_load_ps(table.of), (__m256i)wide.part[p]);
    #endif
    }
    return f;
}
#endif

} // namespace
} // namespace zorcc::ZORCC_TIER
