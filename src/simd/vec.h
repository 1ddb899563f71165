// SPDX-License-Identifier: MIT
// The vector vocabulary of a tier: the compiler's vector types, whose operators do the arithmetic, and functions for
// what operators cannot say. Only row files include it, and everything has internal linkage, so that no code of one
// tier can stand in for another's. Intrinsics stand in this folder alone; a tier for another instruction set would have
// to say anew what is in it, and nothing else.
//
// A *block* is 128 bits. Zips, packs and shuffles work within blocks, as the instructions do; zipLow and zipHigh of two
// vectors give elements in an order that a pack of both takes back.
#pragma once

#include <immintrin.h>
#include <stddef.h>
#include <stdint.h>

#define ZORCC_INLINE static inline __attribute__((always_inline))

#if defined(ZORCC_TIER_avx512)
    #define ZORCC_MM(op) _mm512_##op
    #define ZORCC_SI(op) _mm512_##op##_si512
#elif defined(ZORCC_TIER_avx2)
    #define ZORCC_MM(op) _mm256_##op
    #define ZORCC_SI(op) _mm256_##op##_si256
#else
    #define ZORCC_MM(op) _mm_##op
    #define ZORCC_SI(op) _mm_##op##_si128
#endif

namespace zorcc::ZORCC_TIER {
namespace {

#if defined(ZORCC_TIER_avx512)
constexpr int vectorBytes = 64;
using Register = __m512i;
#elif defined(ZORCC_TIER_avx2)
constexpr int vectorBytes = 32;
using Register = __m256i;
#else
constexpr int vectorBytes = 16;
using Register = __m128i;
#endif

template <class T> using Vec __attribute__((vector_size(vectorBytes))) = T;
using u8v = Vec<uint8_t>;
using s8v = Vec<int8_t>;
using u16v = Vec<uint16_t>;
using s16v = Vec<int16_t>;
using u32v = Vec<uint32_t>;
using s32v = Vec<int32_t>;
using u64v = Vec<uint64_t>;

ZORCC_INLINE Register reg(auto v) { return (Register)v; }

// Memory may be anywhere: no alignment is asked for.
template <class V = u8v> ZORCC_INLINE V load(const void* p)
{
    V v;
    __builtin_memcpy(&v, p, sizeof v);
    return v;
}

ZORCC_INLINE void store(void* p, auto v) { __builtin_memcpy(p, &v, sizeof v); }

// Bypasses the caches; p is a multiple of a vector. fenceStores orders such stores before later ones.
ZORCC_INLINE void storeNonTemporal(void* p, u8v v) { ZORCC_SI(stream)((Register*)p, reg(v)); }
ZORCC_INLINE void fenceStores() { _mm_sfence(); }

// A vector with every element `value`.
ZORCC_INLINE u8v fill8(int value) { return (u8v)ZORCC_MM(set1_epi8)(static_cast<char>(value)); }
ZORCC_INLINE s16v fill16(int value) { return (s16v)ZORCC_MM(set1_epi16)(static_cast<short>(value)); }
ZORCC_INLINE s32v fill32(int value) { return (s32v)ZORCC_MM(set1_epi32)(value); }

// The byte pair (first, second) in every 16-bit element, to multiply zipped bytes with.
ZORCC_INLINE s8v fillPair8(int first, int second)
{
    return (s8v)fill16(static_cast<int16_t>((first & 0xff) | (second & 0xff) << 8));
}

ZORCC_INLINE s16v fillPair16(int first, int second)
{
    return (s16v)fill32((first & 0xffff) | static_cast<int32_t>(static_cast<uint32_t>(second) << 16));
}

// One block, repeated.
struct Block {
    alignas(16) uint8_t byte[16];
};

ZORCC_INLINE u8v fillBlock(__m128i block)
{
#if defined(ZORCC_TIER_avx512)
    return (u8v)_mm512_broadcast_i32x4(block);
#elif defined(ZORCC_TIER_avx2)
    return (u8v)_mm256_broadcastsi128_si256(block);
#else
    return (u8v)block;
#endif
}

ZORCC_INLINE __m128i loadBlock(const void* p) { return _mm_loadu_si128((const __m128i*)p); }

ZORCC_INLINE u8v fillBlock(const Block& block) { return fillBlock(_mm_load_si128((const __m128i*)block.byte)); }

// ---- multiplication -------------------------------------------------------------------------------------------------

// a0 b0 + a1 b1 of each pair of bytes; the caller's coefficients keep the sum within 16 bits (it would saturate).
ZORCC_INLINE s16v mulAddPairs(u8v a, s8v b) { return (s16v)ZORCC_MM(maddubs_epi16)(reg(a), reg(b)); }

// a0 b0 + a1 b1 of each pair of 16-bit elements.
ZORCC_INLINE s32v mulAddPairs(s16v a, s16v b) { return (s32v)ZORCC_MM(madd_epi16)(reg(a), reg(b)); }

// sum + a0 b0 + a1 b1 of each pair of 16-bit elements.
ZORCC_INLINE s32v mulAddPairs(s32v sum, s16v a, s16v b)
{
#if defined(ZORCC_TIER_avx512)
    return (s32v)_mm512_dpwssd_epi32(reg(sum), reg(a), reg(b));
#else
    return sum + mulAddPairs(a, b);
#endif
}

// floor(a b / 65536)
ZORCC_INLINE s16v mulHigh(s16v a, s16v b) { return (s16v)ZORCC_MM(mulhi_epi16)(reg(a), reg(b)); }
ZORCC_INLINE u16v mulHigh(u16v a, u16v b) { return (u16v)ZORCC_MM(mulhi_epu16)(reg(a), reg(b)); }

// (a + b + 1) / 2, and (a + b) / 2, of each byte.
ZORCC_INLINE u8v averageUp(u8v a, u8v b) { return (u8v)ZORCC_MM(avg_epu8)(reg(a), reg(b)); }
ZORCC_INLINE u8v averageDown(u8v a, u8v b) { return averageUp(a, b) - ((a ^ b) & 1); }

// Of signed elements, towards infinity and towards minus infinity.
ZORCC_INLINE s16v averageUp(s16v a, s16v b) { return (a | b) - ((a ^ b) >> 1); }
ZORCC_INLINE s16v averageDown(s16v a, s16v b) { return (a & b) + ((a ^ b) >> 1); }

ZORCC_INLINE u16v averageUp(u16v a, u16v b) { return (u16v)ZORCC_MM(avg_epu16)(reg(a), reg(b)); }

// ---- saturation -----------------------------------------------------------------------------------------------------

ZORCC_INLINE u8v addSaturate(u8v a, u8v b) { return (u8v)ZORCC_MM(adds_epu8)(reg(a), reg(b)); }
ZORCC_INLINE u8v subSaturate(u8v a, u8v b) { return (u8v)ZORCC_MM(subs_epu8)(reg(a), reg(b)); }

ZORCC_INLINE s8v subSaturate(s8v a, s8v b) { return (s8v)ZORCC_MM(subs_epi8)(reg(a), reg(b)); }

ZORCC_INLINE u16v addSaturate(u16v a, u16v b) { return (u16v)ZORCC_MM(adds_epu16)(reg(a), reg(b)); }
ZORCC_INLINE u16v subSaturate(u16v a, u16v b) { return (u16v)ZORCC_MM(subs_epu16)(reg(a), reg(b)); }

ZORCC_INLINE u8v min(u8v a, u8v b) { return (u8v)ZORCC_MM(min_epu8)(reg(a), reg(b)); }
ZORCC_INLINE u8v max(u8v a, u8v b) { return (u8v)ZORCC_MM(max_epu8)(reg(a), reg(b)); }

#if defined(ZORCC_TIER_ssse3)
ZORCC_INLINE u16v min(u16v a, u16v b) { return a - subSaturate(a, b); }
ZORCC_INLINE u16v max(u16v a, u16v b) { return b + subSaturate(a, b); }
#else
ZORCC_INLINE u16v min(u16v a, u16v b) { return (u16v)ZORCC_MM(min_epu16)(reg(a), reg(b)); }
ZORCC_INLINE u16v max(u16v a, u16v b) { return (u16v)ZORCC_MM(max_epu16)(reg(a), reg(b)); }
#endif

ZORCC_INLINE u8v clamp(u8v v, int low, int high)
{
    return (u8v)ZORCC_MM(max_epu8)(ZORCC_MM(min_epu8)(reg(v), reg(fill8(high))), reg(fill8(low)));
}

// Per block: the elements of lo, then those of hi, saturated to the narrower type.
ZORCC_INLINE u8v packUnsigned(s16v lo, s16v hi) { return (u8v)ZORCC_MM(packus_epi16)(reg(lo), reg(hi)); }
ZORCC_INLINE s8v packSigned(s16v lo, s16v hi) { return (s8v)ZORCC_MM(packs_epi16)(reg(lo), reg(hi)); }
ZORCC_INLINE s16v packSigned(s32v lo, s32v hi) { return (s16v)ZORCC_MM(packs_epi32)(reg(lo), reg(hi)); }

// ---- order within blocks --------------------------------------------------------------------------------------------

// Per block: a0 b0 a1 b1 ... of the lower halves, and of the upper halves.
#define ZORCC_ZIP(name, unpack)                                                                                        \
    template <class V> ZORCC_INLINE V name(V a, V b)                                                                   \
    {                                                                                                                  \
        if constexpr (sizeof(a[0]) == 1) return (V)ZORCC_MM(unpack##_epi8)(reg(a), reg(b));                            \
        if constexpr (sizeof(a[0]) == 2) return (V)ZORCC_MM(unpack##_epi16)(reg(a), reg(b));                           \
        if constexpr (sizeof(a[0]) == 4) return (V)ZORCC_MM(unpack##_epi32)(reg(a), reg(b));                           \
        if constexpr (sizeof(a[0]) == 8) return (V)ZORCC_MM(unpack##_epi64)(reg(a), reg(b));                           \
    }
ZORCC_ZIP(zipLow, unpacklo)
ZORCC_ZIP(zipHigh, unpackhi)
#undef ZORCC_ZIP

// Every byte shifted right or, by a negative count, left.
template <int count> ZORCC_INLINE u8v shiftBytes(u8v v)
{
    if constexpr (count >= 8 || count <= -8) return u8v{};
    if constexpr (count == 0) return v;
    if constexpr (count > 0) return (u8v)((u16v)v >> count) & static_cast<uint8_t>(0xff >> count);
    if constexpr (count < 0) return (u8v)((u16v)v << -count) & static_cast<uint8_t>(0xff << -count);
}

// The lower and the upper byte of every pair.
ZORCC_INLINE s16v firstOfPairs(u8v pairs) { return (s16v)pairs & 0xff; }
ZORCC_INLINE s16v secondOfPairs(u8v pairs) { return (s16v)((u16v)pairs >> 8); }

// Per block: element i is v[index[i]], or 0 where index[i] has its top bit set.
ZORCC_INLINE u8v shuffle(u8v v, u8v index) { return (u8v)ZORCC_MM(shuffle_epi8)(reg(v), reg(index)); }
ZORCC_INLINE u8v shuffle(u8v v, const Block& index) { return shuffle(v, fillBlock(index)); }

constexpr Block zippedHalves = {{0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15}};
constexpr Block unzippedHalves = {{0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9, 11, 13, 15}};
constexpr Block unzippedHalves16 = {{0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15}};

// Per block: a0..a7 b0..b7 becomes a0 b0 a1 b1 ...
ZORCC_INLINE u8v zipHalves(u8v v) { return shuffle(v, zippedHalves); }

// Per block: the elements of even places, then those of odd places.
ZORCC_INLINE u8v unzipHalves(u8v v) { return shuffle(v, unzippedHalves); }
ZORCC_INLINE u16v unzipHalves(u16v v) { return (u16v)shuffle((u8v)v, unzippedHalves16); }

// The lower halves of all blocks, then the upper halves: turns per-block order into memory order after a pack.
template <class V> ZORCC_INLINE V orderHalves(V v)
{
#if defined(ZORCC_TIER_avx512)
    return (V)_mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), reg(v));
#elif defined(ZORCC_TIER_avx2)
    return (V)_mm256_permute4x64_epi64(reg(v), 0xd8);
#else
    return v;
#endif
}

// ---- choice ---------------------------------------------------------------------------------------------------------

// Bit by bit: a where the mask is set, otherwise b. The bits of every byte of the mask are the same.
template <class V> ZORCC_INLINE V select(V mask, V a, V b)
{
#if defined(ZORCC_TIER_avx512)
    return (V)_mm512_ternarylogic_epi32(reg(mask), reg(a), reg(b), 0xca);
#elif defined(ZORCC_TIER_avx2)
    return (V)_mm256_blendv_epi8(reg(b), reg(a), reg(mask));
#else
    return (a & mask) | (b & ~mask);
#endif
}

// a where x < y, b where y < x, otherwise c, of unsigned elements.
template <class V> ZORCC_INLINE V selectByOrder(V x, V y, V a, V b, V c)
{
#if defined(ZORCC_TIER_avx512)
    if constexpr (sizeof(x[0]) == 1) {
        const __mmask64 less = _mm512_cmplt_epu8_mask(reg(x), reg(y)), greater = _mm512_cmplt_epu8_mask(reg(y), reg(x));
        return (V)_mm512_mask_mov_epi8(_mm512_mask_mov_epi8(reg(c), less, reg(a)), greater, reg(b));
    } else {
        const __mmask32 less = _mm512_cmplt_epu16_mask(reg(x), reg(y)),
                        greater = _mm512_cmplt_epu16_mask(reg(y), reg(x));
        return (V)_mm512_mask_mov_epi16(_mm512_mask_mov_epi16(reg(c), less, reg(a)), greater, reg(b));
    }
#else
    const V notLess = (V)(subSaturate(y, x) == 0), notGreater = (V)(subSaturate(x, y) == 0);
    return select(notLess, select(notGreater, c, b), a);
#endif
}

// v, and 1 more where a > b.
ZORCC_INLINE s16v addOneWhere(s16v v, s16v a, s16v b)
{
#if defined(ZORCC_TIER_avx512)
    const __mmask32 greater = _mm512_cmpgt_epi16_mask(reg(a), reg(b));
    return (s16v)_mm512_mask_sub_epi16(reg(v), greater, reg(v), _mm512_set1_epi16(-1));
#else
    return v - (s16v)(a > b); // true is -1
#endif
}

ZORCC_INLINE s16v addOneWhere(s16v v, u16v a, u16v b) { return addOneWhere(v, (s16v)(a ^ 0x8000), (s16v)(b ^ 0x8000)); }

ZORCC_INLINE u8v addOneWhere(u8v v, s8v a, s8v b)
{
#if defined(ZORCC_TIER_avx512)
    return (u8v)_mm512_mask_sub_epi8(reg(v), _mm512_cmpgt_epi8_mask(reg(a), reg(b)), reg(v), _mm512_set1_epi8(-1));
#else
    return v - (u8v)(a > b);  // true is -1
#endif
}

// A bit for every byte, the lowest for the first: whether they differ.
ZORCC_INLINE uint64_t differences(u8v a, u8v b)
{
#if defined(ZORCC_TIER_avx512)
    return _mm512_cmpneq_epi8_mask(reg(a), reg(b));
#elif defined(ZORCC_TIER_avx2)
    return static_cast<uint32_t>(~_mm256_movemask_epi8(reg(a == b)));
#else
    return static_cast<uint16_t>(~_mm_movemask_epi8(reg(a == b)));
#endif
}

// All bits in the even elements, or in the odd ones.
template <class V> ZORCC_INLINE V alternatingMask(bool odd)
{
    V mask = {};
    for (size_t i = 0; i < sizeof(V) / sizeof(mask[0]); ++i) mask[i] = (i & 1) == odd ? ~mask[i] : mask[i];
    return mask;
}

} // namespace
} // namespace zorcc::ZORCC_TIER
