// SPDX-License-Identifier: MIT
// Constants by an index in every lane: one of 8, and for bytes one of 256.
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

// ---- one of 256 bytes -----------------------------------------------------------------------------------------------

// In the form that a tier looks bytes up in. A block is 16 of them.
struct ByteTable {
    alignas(64) uint8_t of[256];

    constexpr explicit ByteTable(const uint8_t (&bytes)[256]) : of{}
    {
        for (int i = 0; i < 256; ++i) of[i] = bytes[i];
#if !defined(ZORCC_TIER_avx512)
        for (int i = 255; i >= 16; --i)
            if (i % 128 >= 16) of[i] ^= of[i - 16]; // what changes from block to block of each half
#endif
    }
};

// Of several vectors of indices, each in turn replaced by its bytes.
template <int count> ZORCC_INLINE void lookUp(const ByteTable& table, u8v (&v)[count])
{
#if defined(ZORCC_TIER_avx512)
    const __m512i quarter[] = {reg(load(table.of)), reg(load(table.of + 64)), reg(load(table.of + 128)),
                               reg(load(table.of + 192))};
    for (u8v& index : v) {
        const __m512i i = reg(index);
        index = (u8v)_mm512_mask_mov_epi8(_mm512_permutex2var_epi8(quarter[0], i, quarter[1]), _mm512_movepi8_mask(i),
                                          _mm512_permutex2var_epi8(quarter[2], i, quarter[3]));
    }
#else
    // An index that counts from the beginning of a block is negative before it, where a shuffle gives 0. So the changes
    // of all blocks up to its own come together, and then none, as those of the other half are never reached.
    u8v result[count] = {};
    for (int half = 0; half < 2; ++half) {
        s8v index[count];
        for (int k = 0; k < count; ++k) index[k] = (s8v)(half == 0 ? v[k] : v[k] ^ 0x80);
        for (int block = 0; block < 8; ++block) {
            const u8v change = fillBlock(loadBlock(table.of + 128 * half + 16 * block));
            for (int k = 0; k < count; ++k) {
                if (block > 0) index[k] = subSaturate(index[k], (s8v)fill8(16));
                result[k] ^= shuffle(change, (u8v)index[k]);
            }
        }
    }
    for (int k = 0; k < count; ++k) v[k] = result[k];
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
