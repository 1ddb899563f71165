// SPDX-License-Identifier: MIT
// Interleaved memory to vectors of one channel each, and back. Channel vectors hold the pixels in order. Every function
// touches exactly the bytes of vectorBytes pixels.
#pragma once

#include <type_traits>

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The order of the columns in a channel vector.
enum class Columns {
    inOrder,
    evenThenOdd // per block the even columns, then the odd ones
};

// Where the given column is in a vector whose blocks hold `count` columns each.
constexpr int placeOf(int column, Columns columns, int count)
{
    const int inBlock = column % count;
    return columns == Columns::inOrder ? column : column - inBlock + inBlock / 2 + inBlock % 2 * (count / 2);
}

// ---- blocks: block b of v[k] is block b * count + k of memory ------------------------------------------------------

// From two vectors that follow each other in memory.
ZORCC_INLINE void toBlocks(const u8v (&memory)[2], u8v (&v)[2])
{
#if defined(ZORCC_TIER_avx512)
    const __m512i even = _mm512_setr_epi64(0, 1, 4, 5, 8, 9, 12, 13),
                  odd = _mm512_setr_epi64(2, 3, 6, 7, 10, 11, 14, 15);
    v[0] = (u8v)_mm512_permutex2var_epi64(reg(memory[0]), even, reg(memory[1]));
    v[1] = (u8v)_mm512_permutex2var_epi64(reg(memory[0]), odd, reg(memory[1]));
#elif defined(ZORCC_TIER_avx2)
    v[0] = (u8v)_mm256_permute2x128_si256(reg(memory[0]), reg(memory[1]), 0x20);
    v[1] = (u8v)_mm256_permute2x128_si256(reg(memory[0]), reg(memory[1]), 0x31);
#else
    v[0] = memory[0];
    v[1] = memory[1];
#endif
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

#if !defined(ZORCC_TIER_avx512)
// Vector k alone.
template <int count> ZORCC_INLINE void storeBlocksOf(uint8_t* p, int k, u8v v)
{
    #if defined(ZORCC_TIER_avx2)
    _mm256_storeu2_m128i((__m128i*)(p + 16 * (count + k)), (__m128i*)(p + 16 * k), reg(v));
    #else
    store(p + 16 * k, v);
    #endif
}
#endif

template <int count> ZORCC_INLINE void storeBlocks(uint8_t* p, const u8v (&v)[count])
{
    for (int k = 0; k < count; ++k) {
#if defined(ZORCC_TIER_avx512)
        static_assert(count == 2);
        const __m512i quads =
            _mm512_setr_epi64(4 * k, 4 * k + 1, 8 + 4 * k, 9 + 4 * k, 4 * k + 2, 4 * k + 3, 10 + 4 * k, 11 + 4 * k);
        store(p + 64 * k, (u8v)_mm512_permutex2var_epi64(reg(v[0]), quads, reg(v[1])));
#else
        storeBlocksOf<count>(p, k, v[k]);
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
    const Register both = reg(orderHalves(v));
#if defined(ZORCC_TIER_avx512)
    _mm256_storeu_si256((__m256i*)low, _mm512_castsi512_si256(both));
    _mm256_storeu_si256((__m256i*)high, _mm512_extracti64x4_epi64(both, 1));
#elif defined(ZORCC_TIER_avx2)
    _mm256_storeu2_m128i((__m128i*)high, (__m128i*)low, both);
#else
    _mm_storel_epi64((__m128i*)low, both);
    _mm_storel_epi64((__m128i*)high, _mm_unpackhi_epi64(both, both));
#endif
}

// ---- three channels -------------------------------------------------------------------------------------------------
//
// `size` is that of a sample in bytes.

template <class V> inline constexpr int sampleSize = sizeof(V{}[0]);

#if defined(ZORCC_TIER_avx512)

// Sample n of three consecutive vectors is channel n % 3 of pixel n / 3. As the number of samples in a vector is not a
// multiple of 3, any position holds channel c in exactly one of the three vectors: blending the vectors gathers a
// channel, one permutation sorts it.
template <int size> struct Thirds {
    alignas(64) uint8_t sort[3][64];       // [channel][byte of a channel vector]: its position in the gathered channel
    alignas(64) uint8_t scatter[2][3][64]; // [order of columns][channel][position]: the byte that belongs there

    constexpr Thirds() : sort{}, scatter{}
    {
        for (int n = 0; n < 192 / size; ++n)
            for (int i = 0; i < size; ++i) {
                const int position = n % (64 / size) * size + i;
                sort[n % 3][n / 3 * size + i] = static_cast<uint8_t>(position);
                for (int columns = 0; columns < 2; ++columns)
                    scatter[columns][n % 3][position] =
                        static_cast<uint8_t>(placeOf(n / 3, Columns(columns), 16 / size) * size + i);
            }
    }
};
template <int size> constexpr Thirds<size> thirds;

// The bytes of sample positions p with p % 3 == r.
constexpr __mmask64 everyThird(int size, int r)
{
    __mmask64 bytes = 0;
    for (int p = r; p < 64 / size; p += 3) bytes |= ((__mmask64{1} << size) - 1) << p * size;
    return bytes;
}
template <int size> constexpr __mmask64 third[] = {everyThird(size, 0), everyThird(size, 1), everyThird(size, 2)};

// Sample position p of vector k belongs to channel (k * (64 / size) + p) % 3. The positions of channel c in it:
template <int size> constexpr __mmask64 thirdOf(int c, int k) { return third<size>[(c + k * (3 - 64 / size % 3)) % 3]; }

// Three vectors in registers. As memory operands of permutations and blends, which compilers prefer, each would be read
// three times, which costs where images are not aligned and every read is of two lines.
template <class R> struct ThreeVectors {
    R v[3];
};
template <class R> ZORCC_INLINE ThreeVectors<R> loadThree(const uint8_t* p)
{
    ThreeVectors<R> three;
    for (int k = 0; k < 3; ++k) {
        __builtin_memcpy(&three.v[k], p + 64 * k, 64);
        asm("" : "+v"(three.v[k]));
    }
    return three;
}

// Floats take two permutations of two vectors each, which is less than blending and permuting.
struct FloatThirds {
    alignas(64) int32_t sort[2][3][16];    // from vectors 0 and 1, from that and vector 2
    alignas(64) int32_t scatter[2][3][16]; // from channels 0 and 1, from that and channel 2

    constexpr FloatThirds() : sort{}, scatter{}
    {
        for (int c = 0; c < 3; ++c)
            for (int i = 0; i < 16; ++i) {
                const int n = 3 * i + c, m = 16 * c + i; // where channel c of pixel i is; what element i of vector c is
                sort[0][c][i] = n < 32 ? n : 0;
                sort[1][c][i] = n < 32 ? i : n - 16;
                scatter[0][c][i] = m % 3 < 2 ? m % 3 * 16 + m / 3 : 0;
                scatter[1][c][i] = m % 3 < 2 ? i : 16 + m / 3;
            }
    }
};
constexpr FloatThirds floatThirds;

ZORCC_INLINE void permuteThirds(const int32_t (&first)[3][16], const int32_t (&second)[3][16], const __m512 (&from)[3],
                                __m512 (&to)[3])
{
    for (int k = 0; k < 3; ++k) {
        const __m512 two = _mm512_permutex2var_ps(from[0], _mm512_load_si512(first[k]), from[1]);
        to[k] = _mm512_permutex2var_ps(two, _mm512_load_si512(second[k]), from[2]);
    }
}

ZORCC_INLINE void deinterleave3(const uint8_t* p, Vec<float> (&channel)[3])
{
    __m512 to[3];
    permuteThirds(floatThirds.sort[0], floatThirds.sort[1], loadThree<__m512>(p).v, to);
    for (int c = 0; c < 3; ++c) channel[c] = (Vec<float>)to[c];
}

template <Columns columns> ZORCC_INLINE void interleave3(uint8_t* p, const Vec<float> (&channel)[3])
{
    const __m512 c[3] = {(__m512)channel[0], (__m512)channel[1], (__m512)channel[2]};
    __m512 to[3];
    permuteThirds(floatThirds.scatter[0], floatThirds.scatter[1], c, to);
    for (int k = 0; k < 3; ++k) _mm512_storeu_ps(p + 64 * k, to[k]);
}

template <class V> ZORCC_INLINE void deinterleave3(const uint8_t* p, V (&channel)[3])
{
    constexpr int size = sampleSize<V>;
    const auto [v] = loadThree<__m512i>(p);
    for (int c = 0; c < 3; ++c)
        channel[c] = (V)_mm512_permutexvar_epi8(
            reg(load(thirds<size>.sort[c])),
            _mm512_mask_mov_epi8(_mm512_mask_mov_epi8(v[0], thirdOf<size>(c, 1), v[1]), thirdOf<size>(c, 2), v[2]));
}

template <int size>
ZORCC_INLINE void weaveThirds(uint8_t* p, const __m512i (&channel)[3], const uint8_t (&scatter)[3][64])
{
    __m512i v[3];
    for (int c = 0; c < 3; ++c) v[c] = _mm512_permutexvar_epi8(reg(load(scatter[c])), channel[c]);
    for (int k = 0; k < 3; ++k)
        store(p + 64 * k, (u8v)_mm512_mask_mov_epi8(_mm512_mask_mov_epi8(v[0], thirdOf<size>(1, k), v[1]),
                                                    thirdOf<size>(2, k), v[2]));
}

template <Columns columns, class V> ZORCC_INLINE void interleave3(uint8_t* p, const V (&channel)[3])
{
    constexpr int size = sampleSize<V>;
    weaveThirds<size>(p, {(__m512i)channel[0], (__m512i)channel[1], (__m512i)channel[2]},
                      thirds<size>.scatter[(int)columns]);
}

#else

// [channel][vector]: shuffles that move the channel's bytes of one of three vectors to their pixels, and back.
template <int size> struct Thirds {
    alignas(16) uint8_t sort[3][3][16];
    alignas(16) uint8_t scatter[2][3][3][16]; // [order of columns]...

    constexpr Thirds() : sort{}, scatter{}
    {
        for (int c = 0; c < 3; ++c)
            for (int k = 0; k < 3; ++k)
                for (int i = 0; i < 16; ++i) {
                    // Byte of pixel i / size; sample that holds byte i of vector k.
                    const int n = (3 * (i / size) + c) * size + i % size, m = (16 * k + i) / size;
                    sort[c][k][i] = static_cast<uint8_t>(n / 16 == k ? n % 16 : 0x80);
                    for (int columns = 0; columns < 2; ++columns) {
                        const int place = placeOf(m / 3, Columns(columns), 16 / size);
                        scatter[columns][c][k][i] = static_cast<uint8_t>(m % 3 == c ? place * size + i % size : 0x80);
                    }
                }
    }
};
template <int size> constexpr Thirds<size> thirds;

ZORCC_INLINE u8v shuffleTable(u8v v, const uint8_t (&index)[16])
{
    return shuffle(v, fillBlock(_mm_load_si128((const __m128i*)index)));
}

template <class V> ZORCC_INLINE void deinterleave3(const uint8_t* p, V (&channel)[3])
{
    u8v v[3];
    loadBlocks(p, v);
    for (int c = 0; c < 3; ++c) {
        const auto& sort = thirds<sampleSize<V>>.sort[c];
        channel[c] = (V)(shuffleTable(v[0], sort[0]) | shuffleTable(v[1], sort[1]) | shuffleTable(v[2], sort[2]));
    }
}

template <Columns columns, class V> ZORCC_INLINE void interleave3(uint8_t* p, const V (&channel)[3])
{
    const auto& scatter = thirds<sampleSize<V>>.scatter[(int)columns];
    u8v v[3];
    for (int k = 0; k < 3; ++k)
        v[k] = shuffleTable((u8v)channel[0], scatter[0][k]) | shuffleTable((u8v)channel[1], scatter[1][k]) |
               shuffleTable((u8v)channel[2], scatter[2][k]);
    storeBlocks(p, v);
}

// Floats, two of one vector and two of another at a time.
template <int a, int b, int c, int d> ZORCC_INLINE Vec<float> pick(Vec<float> v, Vec<float> w)
{
    return (Vec<float>)ZORCC_MM(shuffle_ps)((decltype(ZORCC_MM(setzero_ps)()))v, (decltype(ZORCC_MM(setzero_ps)()))w,
                                            _MM_SHUFFLE(d, c, b, a));
}

ZORCC_INLINE void deinterleave3(const uint8_t* p, Vec<float> (&channel)[3])
{
    u8v bytes[3];
    loadBlocks(p, bytes);
    using V = Vec<float>;
    const V u = (V)bytes[0], v = (V)bytes[1], w = (V)bytes[2];        // A0 B0 C0 A1, B1 C1 A2 B2, C2 A3 B3 C3
    const V bc = pick<1, 2, 0, 1>(u, v), ab = pick<2, 3, 1, 2>(v, w); // B0 C0 B1 C1, A2 B2 A3 B3
    channel[0] = pick<0, 3, 0, 2>(u, ab);
    channel[1] = pick<0, 2, 1, 3>(bc, ab);
    channel[2] = pick<1, 3, 0, 3>(bc, w);
}

template <Columns columns> ZORCC_INLINE void interleave3(uint8_t* p, const Vec<float> (&channel)[3])
{
    using V = Vec<float>;
    const V a = channel[0], b = channel[1], c = channel[2];
    const V ab = pick<0, 2, 0, 2>(a, b), bc = pick<1, 3, 1, 3>(b, c), ca = pick<0, 2, 1, 3>(c, a);
    const u8v v[3] = {(u8v)pick<0, 2, 0, 2>(ab, ca), (u8v)pick<0, 2, 1, 3>(bc, ab), (u8v)pick<1, 3, 1, 3>(ca, bc)};
    storeBlocks(p, v);
}

#endif

// ---- four channels --------------------------------------------------------------------------------------------------

// Bytes of pixels sorted by channel, and the way back: of the 64 bytes of a vector, or of the 16 of a block.
template <int size, int bytes> struct Quarters {
    alignas(64) uint8_t sort[bytes]; // quarter c: channel c of the pixels
    alignas(64) uint8_t scatter[bytes];

    constexpr Quarters() : sort{}, scatter{}
    {
        for (int n = 0; n < bytes; ++n) {
            const int sample = n / size, sorted = sample % 4 * (bytes / 4) + sample / 4 * size + n % size;
            sort[sorted] = static_cast<uint8_t>(n);
            scatter[n] = static_cast<uint8_t>(sorted);
        }
    }
};
#if defined(ZORCC_TIER_avx512)
template <int size> constexpr Quarters<size, 64> quarters;

// Block i of vector k becomes block k of vector i.
ZORCC_INLINE void transposeBlocks(__m512i (&v)[4])
{
    const __m512i low01 = _mm512_shuffle_i32x4(v[0], v[1], 0x44), low23 = _mm512_shuffle_i32x4(v[2], v[3], 0x44);
    const __m512i high01 = _mm512_shuffle_i32x4(v[0], v[1], 0xee), high23 = _mm512_shuffle_i32x4(v[2], v[3], 0xee);
    v[0] = _mm512_shuffle_i32x4(low01, low23, 0x88);
    v[1] = _mm512_shuffle_i32x4(low01, low23, 0xdd);
    v[2] = _mm512_shuffle_i32x4(high01, high23, 0x88);
    v[3] = _mm512_shuffle_i32x4(high01, high23, 0xdd);
}
#else
template <int size> constexpr Quarters<size, 16> quarters;
#endif

template <class V> ZORCC_INLINE void deinterleave4(const uint8_t* p, V (&channel)[4])
{
    constexpr int size = sampleSize<V>;
#if defined(ZORCC_TIER_avx512)
    __m512i v[4]; // each with its pixels sorted by channel, a block each
    for (int k = 0; k < 4; ++k) v[k] = _mm512_permutexvar_epi8(reg(load(quarters<size>.sort)), reg(load(p + 64 * k)));
    transposeBlocks(v);
#else
    u8v v[4];
    loadBlocks(p, v);
    if constexpr (size < 4)
        for (u8v& pixels : v) pixels = shuffleTable(pixels, quarters<size>.sort);
    const u32v low01 = zipLow((u32v)v[0], (u32v)v[1]), low23 = zipLow((u32v)v[2], (u32v)v[3]);
    const u32v high01 = zipHigh((u32v)v[0], (u32v)v[1]), high23 = zipHigh((u32v)v[2], (u32v)v[3]);
    v[0] = (u8v)zipLow((u64v)low01, (u64v)low23);
    v[1] = (u8v)zipHigh((u64v)low01, (u64v)low23);
    v[2] = (u8v)zipLow((u64v)high01, (u64v)high23);
    v[3] = (u8v)zipHigh((u64v)high01, (u64v)high23);
#endif
    for (int k = 0; k < 4; ++k) channel[k] = (V)v[k];
}

#if defined(ZORCC_TIER_avx512)
// The bytes of the first three of every four samples.
template <int size>
inline constexpr __mmask64 firstThree = size == 1   ? 0x7777777777777777u
                                        : size == 2 ? 0x3f3f3f3f3f3f3f3fu
                                                    : 0x0fff0fff0fff0fffu;
#endif

// With keepFourth channel 3 is zero, and the fourth sample of every pixel stays as it is in memory.
template <bool keepFourth, class V> ZORCC_INLINE void interleave4(uint8_t* p, const V (&channel)[4])
{
    constexpr int size = sampleSize<V>;
#if defined(ZORCC_TIER_avx512)
    __m512i v[4] = {(__m512i)channel[0], (__m512i)channel[1], (__m512i)channel[2], (__m512i)channel[3]};
    transposeBlocks(v);
    for (int k = 0; k < 4; ++k)
        _mm512_mask_storeu_epi8(p + 64 * k, keepFourth ? firstThree<size> : ~__mmask64{},
                                _mm512_permutexvar_epi8(reg(load(quarters<size>.scatter)), v[k]));
#else
    using Pairs = Vec<std::conditional_t<size == 1, uint16_t, std::conditional_t<size == 2, uint32_t, uint64_t>>>;
    const Pairs low01 = (Pairs)zipLow(channel[0], channel[1]), low23 = (Pairs)zipLow(channel[2], channel[3]);
    const Pairs high01 = (Pairs)zipHigh(channel[0], channel[1]), high23 = (Pairs)zipHigh(channel[2], channel[3]);
    u8v v[4] = {(u8v)zipLow(low01, low23), (u8v)zipHigh(low01, low23), (u8v)zipLow(high01, high23),
                (u8v)zipHigh(high01, high23)};
    if constexpr (keepFourth) {
        u8v old[4], fourth;
        for (int i = 0; i < vectorBytes; ++i) fourth[i] = i / size % 4 == 3 ? 0xff : 0;
        loadBlocks(p, old);
        for (int k = 0; k < 4; ++k) v[k] |= old[k] & fourth;
    }
    storeBlocks(p, v);
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
