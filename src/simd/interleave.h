// SPDX-License-Identifier: MIT
// Interleaved memory to vectors of one channel each, and back. Channel vectors hold the pixels in order. Every function
// touches exactly the bytes of vectorBytes pixels.
#pragma once

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The order of the columns in a channel vector.
enum class Columns {
    inOrder,
    evenThenOdd // per block the eight even columns, then the odd ones
};

// Where in a vector the given column is.
constexpr int placeOf(int column, Columns columns)
{
    const int inBlock = column % 16;
    return columns == Columns::inOrder ? column : column - inBlock + inBlock / 2 + inBlock % 2 * 8;
}

// ---- blocks: block b of v[k] is block b * count + k of memory ------------------------------------------------------

// From two vectors that follow each other in memory.
ZORCC_INLINE void toBlocks(const u8v (&memory)[2], u8v (&v)[2])
{
    for (int k = 0; k < 2; ++k) {
#if defined(ZORCC_TIER_avx512)
        const __m512i quads =
            _mm512_setr_epi64(2 * k, 2 * k + 1, 4 + 2 * k, 5 + 2 * k, 8 + 2 * k, 9 + 2 * k, 12 + 2 * k, 13 + 2 * k);
        v[k] = (u8v)_mm512_permutex2var_epi64(reg(memory[0]), quads, reg(memory[1]));
#elif defined(ZORCC_TIER_avx2)
        v[k] = (u8v)_mm256_permute2x128_si256(reg(memory[0]), reg(memory[1]), k == 0 ? 0x20 : 0x31);
#else
        v[k] = memory[k];
#endif
    }
}

template <int count> ZORCC_INLINE void loadBlocks(const uint8_t* p, u8v (&v)[count])
{
#if defined(ZORCC_TIER_avx512)
    toBlocks({load(p), load(p + 64)}, v);
#else
    for (int k = 0; k < count; ++k) {
    #if defined(ZORCC_TIER_avx2)
        v[k] = (u8v)_mm256_loadu2_m128i((const __m128i*)(p + 16 * (count + k)), (const __m128i*)(p + 16 * k));
    #else
        v[k] = load(p + 16 * k);
    #endif
    }
#endif
}

template <int count> ZORCC_INLINE void storeBlocks(uint8_t* p, const u8v (&v)[count])
{
    for (int k = 0; k < count; ++k) {
#if defined(ZORCC_TIER_avx512)
        static_assert(count == 2);
        const __m512i quads =
            _mm512_setr_epi64(4 * k, 4 * k + 1, 8 + 4 * k, 9 + 4 * k, 4 * k + 2, 4 * k + 3, 10 + 4 * k, 11 + 4 * k);
        store(p + 64 * k, (u8v)_mm512_permutex2var_epi64(reg(v[0]), quads, reg(v[1])));
#elif defined(ZORCC_TIER_avx2)
        _mm256_storeu2_m128i((__m128i*)(p + 16 * (count + k)), (__m128i*)(p + 16 * k), reg(v[k]));
#else
        store(p + 16 * k, v[k]);
#endif
    }
}

// ---- halves: the lower eight bytes of all blocks at one place, the upper eight at another ---------------------------

ZORCC_INLINE u8v loadHalves(const uint8_t* low, const uint8_t* high)
{
#if defined(ZORCC_TIER_avx512)
    const __m512i both = _mm512_inserti64x4(_mm512_castsi256_si512(_mm256_loadu_si256((const __m256i*)low)),
                                            _mm256_loadu_si256((const __m256i*)high), 1);
    return (u8v)_mm512_permutexvar_epi64(_mm512_setr_epi64(0, 4, 1, 5, 2, 6, 3, 7), both);
#elif defined(ZORCC_TIER_avx2)
    return (u8v)_mm256_permute4x64_epi64(_mm256_loadu2_m128i((const __m128i*)high, (const __m128i*)low), 0xd8);
#else
    return (u8v)_mm_unpacklo_epi64(_mm_loadl_epi64((const __m128i*)low), _mm_loadl_epi64((const __m128i*)high));
#endif
}

// Halves from a quarter of the bytes: each byte twice.
ZORCC_INLINE u8v loadQuarters(const uint8_t* low, const uint8_t* high)
{
#if defined(ZORCC_TIER_avx512)
    const __m128i l = _mm_loadu_si128((const __m128i*)low), h = _mm_loadu_si128((const __m128i*)high);
    const __m128i first = _mm_unpacklo_epi32(l, h), second = _mm_unpackhi_epi32(l, h);
    return (u8v)_mm512_inserti64x4(
        _mm512_castsi256_si512(_mm256_set_m128i(_mm_unpackhi_epi8(first, first), _mm_unpacklo_epi8(first, first))),
        _mm256_set_m128i(_mm_unpackhi_epi8(second, second), _mm_unpacklo_epi8(second, second)), 1);
#elif defined(ZORCC_TIER_avx2)
    const __m128i both =
        _mm_unpacklo_epi32(_mm_loadl_epi64((const __m128i*)low), _mm_loadl_epi64((const __m128i*)high));
    return (u8v)_mm256_set_m128i(_mm_unpackhi_epi8(both, both), _mm_unpacklo_epi8(both, both));
#else
    int l, h;
    __builtin_memcpy(&l, low, sizeof l);
    __builtin_memcpy(&h, high, sizeof h);
    const __m128i both = _mm_unpacklo_epi32(_mm_cvtsi32_si128(l), _mm_cvtsi32_si128(h));
    return (u8v)_mm_unpacklo_epi8(both, both);
#endif
}

ZORCC_INLINE void storeHalves(uint8_t* low, uint8_t* high, u8v v)
{
#if defined(ZORCC_TIER_avx512)
    const __m512i both = _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), reg(v));
    _mm256_storeu_si256((__m256i*)low, _mm512_castsi512_si256(both));
    _mm256_storeu_si256((__m256i*)high, _mm512_extracti64x4_epi64(both, 1));
#elif defined(ZORCC_TIER_avx2)
    _mm256_storeu2_m128i((__m128i*)high, (__m128i*)low, _mm256_permute4x64_epi64(reg(v), 0xd8));
#else
    _mm_storel_epi64((__m128i*)low, reg(v));
    _mm_storel_epi64((__m128i*)high, _mm_unpackhi_epi64(reg(v), reg(v)));
#endif
}

// Per block: a0..a7 b0..b7 becomes a0 b0 a1 b1 ...
ZORCC_INLINE u8v zipHalves(u8v v)
{
    return shuffle(v, fillBlock(_mm_setr_epi8(0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15)));
}

ZORCC_INLINE u8v unzipHalves(u8v v)
{
    return shuffle(v, fillBlock(_mm_setr_epi8(0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9, 11, 13, 15)));
}

// ---- three channels -------------------------------------------------------------------------------------------------

#if defined(ZORCC_TIER_avx512)

// Byte n of three consecutive vectors is channel n % 3 of pixel n / 3. As 64 leaves 1 when divided by 3, any position
// holds channel c in exactly one of the three vectors: blending the vectors gathers a channel, one permutation sorts
// it.
struct Thirds {
    alignas(64) uint8_t sort[3][64];       // [channel][pixel]: position of the pixel's byte in the gathered channel
    alignas(64) uint8_t scatter[2][3][64]; // [order of columns][channel][position]: the pixel that belongs there

    constexpr Thirds() : sort{}, scatter{}
    {
        for (int n = 0; n < 192; ++n) {
            sort[n % 3][n / 3] = static_cast<uint8_t>(n % 64);
            for (int columns = 0; columns < 2; ++columns)
                scatter[columns][n % 3][n % 64] = static_cast<uint8_t>(placeOf(n / 3, Columns(columns)));
        }
    }
};
constexpr Thirds thirds;

// Positions p with p % 3 == r.
constexpr __mmask64 everyThird(int r) { return 0x9249249249249249u << r; }

// From three vectors: positions p from the one k with (k + p) % 3 == c.
ZORCC_INLINE __m512i gatherThird(const __m512i (&v)[3], int c)
{
    const __m512i two = _mm512_mask_mov_epi8(v[0], everyThird((c + 2) % 3), v[1]);
    return _mm512_mask_mov_epi8(two, everyThird((c + 1) % 3), v[2]);
}

ZORCC_INLINE void deinterleave3(const uint8_t* p, u8v (&channel)[3])
{
    const __m512i v[3] = {reg(load(p)), reg(load(p + 64)), reg(load(p + 128))};
    for (int c = 0; c < 3; ++c) channel[c] = (u8v)_mm512_permutexvar_epi8(reg(load(thirds.sort[c])), gatherThird(v, c));
}

ZORCC_INLINE void interleave3(uint8_t* p, const u8v (&channel)[3], const uint8_t (&scatter)[3][64])
{
    __m512i v[3];
    for (int c = 0; c < 3; ++c) v[c] = _mm512_permutexvar_epi8(reg(load(scatter[c])), reg(channel[c]));
    // Vector k takes positions p of channel c with (k + p) % 3 == c: the same choice, with -k for c and -c for k.
    const __m512i reversed[3] = {v[0], v[2], v[1]};
    for (int k = 0; k < 3; ++k) store(p + 64 * k, (u8v)gatherThird(reversed, (3 - k) % 3));
}

template <Columns columns> ZORCC_INLINE void interleave3(uint8_t* p, const u8v (&channel)[3])
{
    interleave3(p, channel, thirds.scatter[(int)columns]);
}

#else

// [channel][vector]: shuffles that move the channel's bytes of one of three vectors to their pixels, and back.
struct Thirds {
    alignas(16) uint8_t sort[3][3][16];
    alignas(16) uint8_t scatter[2][3][3][16]; // [order of columns]...

    constexpr Thirds() : sort{}, scatter{}
    {
        for (int c = 0; c < 3; ++c)
            for (int k = 0; k < 3; ++k)
                for (int i = 0; i < 16; ++i) {
                    const int n = 3 * i + c, m = 16 * k + i; // byte of pixel i; what byte i of vector k is
                    sort[c][k][i] = static_cast<uint8_t>(n / 16 == k ? n % 16 : 0x80);
                    for (int columns = 0; columns < 2; ++columns)
                        scatter[columns][c][k][i] =
                            static_cast<uint8_t>(m % 3 == c ? placeOf(m / 3, Columns(columns)) : 0x80);
                }
    }
};
constexpr Thirds thirds;

ZORCC_INLINE u8v shuffleTable(u8v v, const uint8_t (&index)[16])
{
    return shuffle(v, fillBlock(_mm_load_si128((const __m128i*)index)));
}

ZORCC_INLINE void deinterleave3(const uint8_t* p, u8v (&channel)[3])
{
    u8v v[3];
    loadBlocks(p, v);
    for (int c = 0; c < 3; ++c)
        channel[c] = shuffleTable(v[0], thirds.sort[c][0]) | shuffleTable(v[1], thirds.sort[c][1]) |
                     shuffleTable(v[2], thirds.sort[c][2]);
}

template <Columns columns> ZORCC_INLINE void interleave3(uint8_t* p, const u8v (&channel)[3])
{
    const auto& scatter = thirds.scatter[(int)columns];
    u8v v[3];
    for (int k = 0; k < 3; ++k)
        v[k] = shuffleTable(channel[0], scatter[0][k]) | shuffleTable(channel[1], scatter[1][k]) |
               shuffleTable(channel[2], scatter[2][k]);
    storeBlocks(p, v);
}

#endif

// ---- four channels --------------------------------------------------------------------------------------------------

#if defined(ZORCC_TIER_avx512)
struct Quarters {
    alignas(64) uint8_t sort[64]; // block c: channel c of the vector's 16 pixels

    constexpr Quarters() : sort{}
    {
        for (int n = 0; n < 64; ++n) sort[n % 4 * 16 + n / 4] = static_cast<uint8_t>(n);
    }
};
constexpr Quarters quarters;
#endif

ZORCC_INLINE void deinterleave4(const uint8_t* p, u8v (&channel)[4])
{
#if defined(ZORCC_TIER_avx512)
    __m512i v[4]; // each with its 16 pixels sorted by channel, a block each
    for (int k = 0; k < 4; ++k) v[k] = _mm512_permutexvar_epi8(reg(load(quarters.sort)), reg(load(p + 64 * k)));
    const __m512i low01 = _mm512_shuffle_i32x4(v[0], v[1], 0x44), low23 = _mm512_shuffle_i32x4(v[2], v[3], 0x44);
    const __m512i high01 = _mm512_shuffle_i32x4(v[0], v[1], 0xee), high23 = _mm512_shuffle_i32x4(v[2], v[3], 0xee);
    channel[0] = (u8v)_mm512_shuffle_i32x4(low01, low23, 0x88);
    channel[1] = (u8v)_mm512_shuffle_i32x4(low01, low23, 0xdd);
    channel[2] = (u8v)_mm512_shuffle_i32x4(high01, high23, 0x88);
    channel[3] = (u8v)_mm512_shuffle_i32x4(high01, high23, 0xdd);
#else
    u8v v[4];
    loadBlocks(p, v);
    const u8v byChannel = fillBlock(_mm_setr_epi8(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15));
    for (u8v& pixels : v) pixels = shuffle(pixels, byChannel);
    const u32v low01 = zipLow((u32v)v[0], (u32v)v[1]), low23 = zipLow((u32v)v[2], (u32v)v[3]);
    const u32v high01 = zipHigh((u32v)v[0], (u32v)v[1]), high23 = zipHigh((u32v)v[2], (u32v)v[3]);
    channel[0] = (u8v)zipLow((u64v)low01, (u64v)low23);
    channel[1] = (u8v)zipHigh((u64v)low01, (u64v)low23);
    channel[2] = (u8v)zipLow((u64v)high01, (u64v)high23);
    channel[3] = (u8v)zipHigh((u64v)high01, (u64v)high23);
#endif
}

// With keepFourth channel 3 is zero, and the fourth byte of every pixel stays as it is in memory.
template <bool keepFourth> ZORCC_INLINE void interleave4(uint8_t* p, const u8v (&channel)[4])
{
    u8v c[4];
    for (int k = 0; k < 4; ++k) {
#if defined(ZORCC_TIER_avx512)
        // The zips below work on quarters of blocks; hand them the quarters that make whole vectors in order.
        const __m512i order = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
        c[k] = (u8v)_mm512_permutexvar_epi32(order, reg(channel[k]));
#else
        c[k] = channel[k];
#endif
    }
    const u16v low01 = (u16v)zipLow(c[0], c[1]), low23 = (u16v)zipLow(c[2], c[3]);
    const u16v high01 = (u16v)zipHigh(c[0], c[1]), high23 = (u16v)zipHigh(c[2], c[3]);
    u8v v[4] = {(u8v)zipLow(low01, low23), (u8v)zipHigh(low01, low23), (u8v)zipLow(high01, high23),
                (u8v)zipHigh(high01, high23)};
#if defined(ZORCC_TIER_avx512)
    constexpr __mmask64 written = keepFourth ? 0x7777777777777777u : ~__mmask64{};
    for (int k = 0; k < 4; ++k) _mm512_mask_storeu_epi8(p + 64 * k, written, reg(v[k]));
#else
    if constexpr (keepFourth) {
        u8v old[4];
        loadBlocks(p, old);
        for (int k = 0; k < 4; ++k) v[k] |= (u8v)((u32v)old[k] & 0xff000000u);
    }
    storeBlocks(p, v);
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
