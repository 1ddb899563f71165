// SPDX-License-Identifier: MIT
// Elements in another order across the blocks of vectors.
#pragma once

#include <type_traits>
#include <utility>

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The first 32-bit elements of all blocks, then the second ones, and so on: the same after two packs.
ZORCC_INLINE u8v orderQuarters(u8v v)
{
#if defined(ZORCC_TIER_avx512)
    return (u8v)_mm512_permutexvar_epi32(_mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15),
                                         reg(v));
#elif defined(ZORCC_TIER_avx2)
    return (u8v)_mm256_permutevar8x32_epi32(reg(v), _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
#else
    return v;
#endif
}

// Element i is that before it, element 0 the first.
ZORCC_INLINE s16v shiftIn(s16v v, int first)
{
    return [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline))
    {
        return __builtin_shufflevector(v, s16v{static_cast<int16_t>(first)}, int{sizeof...(i)} + 1, i...);
    }
    (std::make_integer_sequence<int, vectorBytes / 2 - 1>());
}

// The first half (0) or the second (1) of a0 b0 a1 b1 ... over whole vectors.
template <int half, class V> ZORCC_INLINE V zipHalf(V a, V b)
{
#if defined(ZORCC_TIER_avx512)
    if constexpr (sizeof(a[0]) == 4) {
        constexpr int f = 8 * half;
        const __m512i from = _mm512_setr_epi32(f, f + 16, f + 1, f + 17, f + 2, f + 18, f + 3, f + 19, f + 4, f + 20,
                                               f + 5, f + 21, f + 6, f + 22, f + 7, f + 23);
        return (V)_mm512_permutex2var_epi32((Register)a, from, (Register)b);
    } else {
        const __m512i quads =
            half == 0 ? _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11) : _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
        return (V)_mm512_permutex2var_epi64((Register)zipLow(a, b), quads, (Register)zipHigh(a, b));
    }
#elif defined(ZORCC_TIER_avx2)
    return (V)_mm256_permute2x128_si256((Register)zipLow(a, b), (Register)zipHigh(a, b), half == 0 ? 0x20 : 0x31);
#else
    return half == 0 ? zipLow(a, b) : zipHigh(a, b);
#endif
}

#if defined(ZORCC_TIER_avx512)
template <int bytes> struct SortedElements {
    alignas(64) uint8_t inVector[64]; // position of the even elements, then of the odd ones
    alignas(64) uint8_t inQuad[64];   // the same within eight bytes, in bits

    constexpr SortedElements() : inVector{}, inQuad{}
    {
        for (int i = 0; i < 64; ++i) {
            inVector[i] = static_cast<uint8_t>(sorted(i, 64));
            inQuad[i] = static_cast<uint8_t>(8 * sorted(i % 8, 8));
        }
    }

private:
    static constexpr int sorted(int i, int all)
    {
        const int element = i / bytes, half = all / bytes / 2;
        return (element < half ? 2 * element : 2 * (element - half) + 1) * bytes + i % bytes;
    }
};
template <int bytes> constexpr SortedElements<bytes> sortedElements;
#endif

// The elements with even numbers (0), or those with odd numbers (1), of the sequence a, b.
template <int odd, class V> ZORCC_INLINE V everySecond(V a, V b)
{
    constexpr bool isBytes = sizeof(a[0]) == 1;
#if defined(ZORCC_TIER_avx512)
    // One vector with both, after one of them has moved to the places that the other leaves free, and a permutation.
    using Pairs = std::conditional_t<isBytes, u16v, u32v>;
    constexpr int bits = isBytes ? 8 : 16;
    if constexpr (odd) a = (V)((Pairs)a >> bits);
    if constexpr (!odd) b = (V)((Pairs)b << bits);
    const __m512i both = _mm512_mask_mov_epi8(reg(a), isBytes ? 0xaaaaaaaaaaaaaaaa : 0xcccccccccccccccc, reg(b));
    return (V)_mm512_permutexvar_epi8(reg(load(sortedElements<bits / 8>.inVector)), both);
#else
    if constexpr (isBytes) {
        return orderHalves(odd ? packUnsigned(secondOfPairs(a), secondOfPairs(b))
                               : packUnsigned(firstOfPairs(a), firstOfPairs(b)));
    } else {
        const u64v first = (u64v)unzipHalves(a), second = (u64v)unzipHalves(b);
        return (V)orderHalves(odd ? zipHigh(first, second) : zipLow(first, second));
    }
#endif
}

// Even and odd elements of the sequence a, b at the price of less than two everySecond.
template <class V> struct Unzipped {
    V even, odd;
};

template <class V> ZORCC_INLINE Unzipped<V> unzip(V a, V b)
{
#if defined(ZORCC_TIER_avx512)
    const __m512i inQuad = reg(load(sortedElements<sizeof(a[0])>.inQuad));
    const __m512i first = _mm512_multishift_epi64_epi8(inQuad, reg(a)),
                  second = _mm512_multishift_epi64_epi8(inQuad, reg(b));
    const __m512i even = _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30),
                  odd = _mm512_setr_epi32(1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27, 29, 31);
    return {(V)_mm512_permutex2var_epi32(first, even, second), (V)_mm512_permutex2var_epi32(first, odd, second)};
#else
    return {everySecond<0>(a, b), everySecond<1>(a, b)};
#endif
}

// Row i becomes column i, of vectors with as many elements as there are vectors. Zipping the first half of the rows
// with the second moves one bit of an element's row number to its column number; done once for each bit of the numbers,
// that exchanges them.
template <class V, int count> ZORCC_INLINE void transpose(V (&row)[count])
{
    static_assert(sizeof(V) / sizeof(row[0][0]) == count);
    for (int bit = 1; bit < count; bit *= 2) {
        V zipped[count];
        for (int i = 0; i < count / 2; ++i) {
            zipped[2 * i] = zipHalf<0>(row[i], row[i + count / 2]);
            zipped[2 * i + 1] = zipHalf<1>(row[i], row[i + count / 2]);
        }
        for (int i = 0; i < count; ++i) row[i] = zipped[i];
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
