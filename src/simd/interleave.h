// SPDX-License-Identifier: MIT
// Interleaved memory to vectors of one channel each, and back. Channel vectors hold the pixels in order. Every function
// touches exactly the bytes of the pixels of a vector. Channels are elements of 1, 2 or 4 bytes.
#pragma once

#include <type_traits>

#include "simd/floats.h"
#include "simd/order.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- blocks: block b of v[k] is block b * count + k of memory -------------------------------------------------------

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

// To two vectors that follow each other in memory.
ZORCC_INLINE void fromBlocks(const u8v (&v)[2], u8v (&memory)[2])
{
#if defined(ZORCC_TIER_avx512)
    const __m512i first = _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11),
                  second = _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
    memory[0] = (u8v)_mm512_permutex2var_epi64(reg(v[0]), first, reg(v[1]));
    memory[1] = (u8v)_mm512_permutex2var_epi64(reg(v[0]), second, reg(v[1]));
#else
    toBlocks(v, memory);
#endif
}

#if defined(ZORCC_TIER_avx2)
// g++ stores the upper half without a shuffle by this intrinsic alone.
ZORCC_INLINE void storeBlocksAt(uint8_t* low, uint8_t* high, Register v)
{
    _mm_storeu_si128((__m128i*)low, _mm256_castsi256_si128(v));
    _mm_storeu_si128((__m128i*)high, _mm256_extracti128_si256(v, 1));
}
#endif

#if !defined(ZORCC_TIER_avx512) // which loads and stores whole vectors and permutes them
// A block at p, the next at p + `apart`.
template <int apart> ZORCC_INLINE u8v loadBlocksApart(const uint8_t* p)
{
    #if defined(ZORCC_TIER_avx2)
    return (u8v)_mm256_loadu2_m128i((const __m128i*)(p + apart), (const __m128i*)p);
    #else
    return load(p);
    #endif
}

// Of every 16 pixels of `bytes` bytes the four from 4 part on, a block each. They begin at byte firstOfFour of it: the
// last ones of three bytes are at its end, so that no load passes the pixels.
template <int bytes> constexpr int firstOfFour(int part) { return part == 3 ? 16 - 4 * bytes : 0; }
template <int bytes> ZORCC_INLINE u8v loadFours(const uint8_t* p, int part)
{
    return loadBlocksApart<16 * bytes>(p + 4 * bytes * part - firstOfFour<bytes>(part));
}

template <int count> ZORCC_INLINE u8v loadBlocks(const uint8_t* p, int k)
{
    return loadBlocksApart<16 * count>(p + 16 * k);
}

template <int count> ZORCC_INLINE void storeBlocks(uint8_t* p, int k, u8v v)
{
    #if defined(ZORCC_TIER_avx2)
    storeBlocksAt(p + 16 * k, p + 16 * (count + k), reg(v));
    #else
    store(p + 16 * k, v);
    #endif
}
#endif

template <int count> ZORCC_INLINE void loadBlocks(const uint8_t* p, u8v (&v)[count])
{
#if defined(ZORCC_TIER_avx512)
    toBlocks({load(p), load(p + 64)}, v);
#else
    for (int k = 0; k < count; ++k) v[k] = loadBlocks<count>(p, k);
#endif
}

template <int count> ZORCC_INLINE void storeBlocks(uint8_t* p, const u8v (&v)[count])
{
#if defined(ZORCC_TIER_avx512)
    static_assert(count == 2);
    u8v memory[2];
    fromBlocks(v, memory);
    for (int k = 0; k < 2; ++k) store(p + 64 * k, memory[k]);
#else
    for (int k = 0; k < count; ++k) storeBlocks<count>(p, k, v[k]);
#endif
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

// Loads vectorBytes / 2 bytes, each into 16 bits.
ZORCC_INLINE s16v loadWidened(const uint8_t* p)
{
#if defined(ZORCC_TIER_avx512)
    return (s16v)_mm512_cvtepu8_epi16(_mm256_loadu_si256((const __m256i*)p));
#elif defined(ZORCC_TIER_avx2)
    return (s16v)_mm256_cvtepu8_epi16(_mm_loadu_si128((const __m128i*)p));
#else
    return (s16v)zipLow((u8v)_mm_loadl_epi64((const __m128i*)p), u8v{});
#endif
}

// Halves from a quarter of the bytes: each byte twice.
ZORCC_INLINE u8v loadDoubledQuarters(const uint8_t* low, const uint8_t* high)
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
    storeBlocksAt(low, high, both);
#else
    _mm_storel_epi64((__m128i*)low, both);
    _mm_storel_epi64((__m128i*)high, _mm_unpackhi_epi64(both, both));
#endif
}

// The even bytes of halves, each half to a quarter of a vector's bytes: the other way.
ZORCC_INLINE void storeEvenQuarters(uint8_t* low, uint8_t* high, u8v v)
{
    const u8v quarters = orderQuarters(unzipHalves(v));
    __builtin_memcpy(low, &quarters, vectorBytes / 4);
    __builtin_memcpy(high, (const uint8_t*)&quarters + vectorBytes / 4, vectorBytes / 4);
}

// ---- channels -------------------------------------------------------------------------------------------------------

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

template <class V> inline constexpr int sampleSize = sizeof(V{}[0]);

// Where byte n of some four-channel pixels is when their bytes are sorted by channel; `bytes` are those of all.
constexpr int sortedPlace(int n, int size, int bytes)
{
    const int sample = n / size;
    return sample % 4 * (bytes / 4) + sample / 4 * size + n % size;
}

} // namespace
} // namespace zorcc::ZORCC_TIER

#if defined(ZORCC_TIER_avx512)
    #include "simd/avx512/interleave.h"
#else

namespace zorcc::ZORCC_TIER {
namespace {

// ---- three channels -------------------------------------------------------------------------------------------------

// [channel][vector]: shuffles that move the channel's bytes of one of three vectors to their pixels, and back.
template <int size> struct Thirds {
    Block sort[3][3];
    Block scatter[2][3][3]; // [order of columns]...

    constexpr Thirds() : sort{}, scatter{}
    {
        for (int c = 0; c < 3; ++c)
            for (int k = 0; k < 3; ++k)
                for (int i = 0; i < 16; ++i) {
                    // Byte of pixel i / size; sample that holds byte i of vector k.
                    const int n = (3 * (i / size) + c) * size + i % size, m = (16 * k + i) / size;
                    sort[c][k].byte[i] = static_cast<uint8_t>(n / 16 == k ? n % 16 : 0x80);
                    for (int columns = 0; columns < 2; ++columns) {
                        const int place = placeOf(m / 3, Columns(columns), 16 / size);
                        scatter[columns][c][k].byte[i] =
                            static_cast<uint8_t>(m % 3 == c ? place * size + i % size : 0x80);
                    }
                }
    }
};
template <int size> constexpr Thirds<size> thirds;

template <class V> ZORCC_INLINE void deinterleave(const uint8_t* p, V (&channel)[3])
{
    u8v v[3];
    loadBlocks(p, v);
    for (int c = 0; c < 3; ++c) {
        const auto& sort = thirds<sampleSize<V>>.sort[c];
        channel[c] = (V)(shuffle(v[0], sort[0]) | shuffle(v[1], sort[1]) | shuffle(v[2], sort[2]));
    }
}

// Vector k of the three that the channels make.
template <Columns columns, class V> ZORCC_INLINE u8v interleavedThird(const V (&channel)[3], int k)
{
    const auto& scatter = thirds<sampleSize<V>>.scatter[(int)columns];
    return shuffle((u8v)channel[0], scatter[0][k]) | shuffle((u8v)channel[1], scatter[1][k]) |
           shuffle((u8v)channel[2], scatter[2][k]);
}

template <Columns columns, class V> ZORCC_INLINE void interleave(uint8_t* p, const V (&channel)[3])
{
    u8v v[3];
    for (int k = 0; k < 3; ++k) v[k] = interleavedThird<columns>(channel, k);
    storeBlocks(p, v);
}

ZORCC_INLINE void deinterleave(const uint8_t* p, f32v (&channel)[3])
{
    u8v bytes[3];
    loadBlocks(p, bytes);
    const f32v u = (f32v)bytes[0], v = (f32v)bytes[1], w = (f32v)bytes[2]; // A0 B0 C0 A1, B1 C1 A2 B2, C2 A3 B3 C3
    const f32v bc = pick<1, 2, 0, 1>(u, v), ab = pick<2, 3, 1, 2>(v, w);   // B0 C0 B1 C1, A2 B2 A3 B3
    channel[0] = pick<0, 3, 0, 2>(u, ab);
    channel[1] = pick<0, 2, 1, 3>(bc, ab);
    channel[2] = pick<1, 3, 0, 3>(bc, w);
}

template <Columns columns> ZORCC_INLINE void interleave(uint8_t* p, const f32v (&channel)[3])
{
    const f32v a = channel[0], b = channel[1], c = channel[2];
    const f32v ab = pick<0, 2, 0, 2>(a, b), bc = pick<1, 3, 1, 3>(b, c), ca = pick<0, 2, 1, 3>(c, a);
    const u8v v[3] = {(u8v)pick<0, 2, 0, 2>(ab, ca), (u8v)pick<0, 2, 1, 3>(bc, ab), (u8v)pick<1, 3, 1, 3>(ca, bc)};
    storeBlocks(p, v);
}

// ---- three channels of pixels whose even and odd columns lie in vectors of their own --------------------------------

// A block of even columns and one of odd columns become the pixels of two blocks: of each, the lower and the upper half
// make a block of pixels.
template <class V> ZORCC_INLINE void interleaveColumns3(uint8_t* p, const V (&even)[3], const V (&odd)[3])
{
    V v[2][3]; // [half][channel]
    for (int c = 0; c < 3; ++c) {
        v[0][c] = (V)zipLow((u64v)even[c], (u64v)odd[c]);
        v[1][c] = (V)zipHigh((u64v)even[c], (u64v)odd[c]);
    }
    for (int half = 0; half < 2; ++half)
        for (int k = 0; k < 3; ++k) storeBlocks<6>(p, 3 * half + k, interleavedThird<Columns::evenThenOdd>(v[half], k));
}

// ---- four channels --------------------------------------------------------------------------------------------------

// Sorts the bytes of a block's pixels by channel.
template <int size>
constexpr Block sortedByChannel = [] {
    Block sort{};
    for (int n = 0; n < 16; ++n) sort.byte[sortedPlace(n, size, 16)] = static_cast<uint8_t>(n);
    return sort;
}();

template <class V> ZORCC_INLINE void deinterleave(const uint8_t* p, V (&channel)[4])
{
    u8v v[4];
    loadBlocks(p, v);
    if constexpr (sampleSize<V> < 4)
        for (u8v& pixels : v) pixels = shuffle(pixels, sortedByChannel<sampleSize<V>>);
    const u32v low01 = zipLow((u32v)v[0], (u32v)v[1]), low23 = zipLow((u32v)v[2], (u32v)v[3]);
    const u32v high01 = zipHigh((u32v)v[0], (u32v)v[1]), high23 = zipHigh((u32v)v[2], (u32v)v[3]);
    channel[0] = (V)zipLow((u64v)low01, (u64v)low23);
    channel[1] = (V)zipHigh((u64v)low01, (u64v)low23);
    channel[2] = (V)zipLow((u64v)high01, (u64v)high23);
    channel[3] = (V)zipHigh((u64v)high01, (u64v)high23);
}

template <class V> ZORCC_INLINE void toPixels(const V (&channel)[3], V fourth, u8v (&v)[4])
{
    constexpr int size = sampleSize<V>;
    using Pairs = Vec<std::conditional_t<size == 1, uint16_t, std::conditional_t<size == 2, uint32_t, uint64_t>>>;
    const Pairs low01 = (Pairs)zipLow(channel[0], channel[1]), low23 = (Pairs)zipLow(channel[2], fourth);
    const Pairs high01 = (Pairs)zipHigh(channel[0], channel[1]), high23 = (Pairs)zipHigh(channel[2], fourth);
    v[0] = (u8v)zipLow(low01, low23);
    v[1] = (u8v)zipHigh(low01, low23);
    v[2] = (u8v)zipLow(high01, high23);
    v[3] = (u8v)zipHigh(high01, high23);
}

template <class V> ZORCC_INLINE void interleave(uint8_t* p, const V (&channel)[4])
{
    u8v v[4];
    toPixels({channel[0], channel[1], channel[2]}, channel[3], v);
    storeBlocks(p, v);
}

// The fourth sample of every pixel stays as it is in memory.
template <class V> ZORCC_INLINE void interleaveBesideFourth(uint8_t* p, const V (&channel)[3])
{
    u8v v[4], old[4], fourth;
    for (int i = 0; i < vectorBytes; ++i) fourth[i] = i / sampleSize<V> % 4 == 3 ? 0xff : 0;
    toPixels(channel, V{}, v);
    loadBlocks(p, old);
    for (int k = 0; k < 4; ++k) v[k] |= old[k] & fourth;
    storeBlocks(p, v);
}

} // namespace
} // namespace zorcc::ZORCC_TIER

#endif
