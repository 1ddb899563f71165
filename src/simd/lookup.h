// SPDX-License-Identifier: MIT
// Constants by an index in every lane: one of 8.
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

// Floats: of 32-bit lanes, or of narrower ones in zip order.
#if defined(ZORCC_TIER_ssse3)
// Their lower 16 bits are zero. The upper halves of all eight, or the third bytes of all, then the fourth.
ZORCC_INLINE u8v upperHalves(const Table<float>& table)
{
    const __m128i low = _mm_load_si128((const __m128i*)table.of), high = _mm_load_si128((const __m128i*)(table.of + 4));
    return (u8v)_mm_packs_epi32(_mm_srai_epi32(low, 16), _mm_srai_epi32(high, 16));
}
ZORCC_INLINE u8v upperBytes(const Table<float>& table) { return unzipHalves(upperHalves(table)); }

ZORCC_INLINE f32v lookUp(const Table<float>& table, s32v index)
{
    const __m128i toUpperBytes = _mm_setr_epi8(-1, -1, 0, 0, -1, -1, 4, 4, -1, -1, 8, 8, -1, -1, 12, 12);
    return (f32v)shuffle(upperBytes(table), shuffle((u8v)index, (u8v)toUpperBytes) | (u8v)fill32(0x08008080));
}

template <class V> ZORCC_INLINE auto lookUp(const Table<float>& table, V index)
{
    const u16v none = {};
    if constexpr (sizeof(index[0]) == 2) {
        const u16v upper = (u16v)shuffle(upperHalves(table), (u8v)(index * 0x0202 + 0x0100));
        return Floats<2>{{(f32v)zipLow(none, upper), (f32v)zipHigh(none, upper)}};
    } else {
        const u8v bytes = upperBytes(table), third = shuffle(bytes, index), fourth = shuffle(bytes, index + 8);
        const u16v l = (u16v)zipLow(third, fourth), h = (u16v)zipHigh(third, fourth);
        return Floats<4>{
            {(f32v)zipLow(none, l), (f32v)zipHigh(none, l), (f32v)zipLow(none, h), (f32v)zipHigh(none, h)}};
    }
}
#else
ZORCC_INLINE f32v lookUp(const Table<float>& table, s32v index)
{
    #if defined(ZORCC_TIER_avx512)
    const __m512 both = _mm512_castpd_ps(_mm512_broadcast_f64x4(_mm256_load_pd((const double*)table.of)));
    return (f32v)_mm512_permutexvar_ps(reg(index), both);
    #else
    return (f32v)_mm256_permutevar8x32_ps(_mm256_load_ps(table.of), reg(index));
    #endif
}

template <class V> ZORCC_INLINE auto lookUp(const Table<float>& table, V index)
{
    const auto wide = widen(index);
    constexpr int parts = 4 / sizeof(index[0]);
    Floats<parts> f;
    for (int p = 0; p < parts; ++p) f.part[p] = lookUp(table, wide.part[p]);
    return f;
}
#endif

} // namespace
} // namespace zorcc::ZORCC_TIER
