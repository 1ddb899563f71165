// SPDX-License-Identifier: MIT
// Bytes that are only moved: planes as sequences of whole vectors, two sequences woven into one, and one parted into
// two. All in memory order.
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The next count * vectorBytes bytes of a sequence.
template <int count> struct Vectors {
    u8v v[count];
};

template <int first, int count, int all> ZORCC_INLINE Vectors<count> part(const Vectors<all>& sequence)
{
    static_assert(first + count <= all);
    Vectors<count> some;
    for (int k = 0; k < count; ++k) some.v[k] = sequence.v[first + k];
    return some;
}

template <int... counts> ZORCC_INLINE Vectors<(counts + ...)> together(const Vectors<counts>&... sequence)
{
    Vectors<(counts + ...)> all;
    int next = 0;
    const auto append = [&](const auto& some) {
        for (const u8v& vector : some.v) all.v[next++] = vector;
    };
    (append(sequence), ...);
    return all;
}

// ---- two sequences and one ------------------------------------------------------------------------------------------

template <int bytes> struct ElementOf;
template <> struct ElementOf<1> {
    using Vector = u8v;
};
template <> struct ElementOf<2> {
    using Vector = u16v;
};

#if defined(ZORCC_TIER_avx512)
// Positions of the even elements of `bytes` bytes each, then of the odd ones.
template <int bytes> struct EvenThenOdd {
    alignas(64) uint8_t place[64];

    constexpr EvenThenOdd() : place{}
    {
        for (int i = 0; i < 64; ++i) {
            const int element = i / bytes, half = 32 / bytes;
            const int from = element < half ? 2 * element : 2 * (element - half) + 1;
            place[i] = static_cast<uint8_t>(from * bytes + i % bytes);
        }
    }
};
template <int bytes> constexpr EvenThenOdd<bytes> evenThenOdd;
#endif

// a0 b0 a1 b1 ..., elements of `bytes` bytes.
template <int bytes = 1, int count>
ZORCC_INLINE Vectors<2 * count> zip(const Vectors<count>& a, const Vectors<count>& b)
{
    using Element = typename ElementOf<bytes>::Vector;
    Vectors<2 * count> zipped;
    for (int k = 0; k < count; ++k) {
        const Register low = reg(zipLow((Element)a.v[k], (Element)b.v[k])),
                       high = reg(zipHigh((Element)a.v[k], (Element)b.v[k]));
#if defined(ZORCC_TIER_avx512)
        zipped.v[2 * k] = (u8v)_mm512_permutex2var_epi64(low, _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), high);
        zipped.v[2 * k + 1] = (u8v)_mm512_permutex2var_epi64(low, _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15), high);
#elif defined(ZORCC_TIER_avx2)
        zipped.v[2 * k] = (u8v)_mm256_permute2x128_si256(low, high, 0x20);
        zipped.v[2 * k + 1] = (u8v)_mm256_permute2x128_si256(low, high, 0x31);
#else
        zipped.v[2 * k] = (u8v)low;
        zipped.v[2 * k + 1] = (u8v)high;
#endif
    }
    return zipped;
}

// The elements of `bytes` bytes with even numbers and those with odd numbers.
template <int count> struct Parted {
    Vectors<count> even, odd;
};

template <int bytes = 1, int both> ZORCC_INLINE Parted<both / 2> unzip(const Vectors<both>& zipped)
{
    static_assert(both % 2 == 0);
    Parted<both / 2> parted;
    for (int k = 0; k < both / 2; ++k) {
        const u8v a = zipped.v[2 * k], b = zipped.v[2 * k + 1];
        u8v &even = parted.even.v[k], &odd = parted.odd.v[k];
#if defined(ZORCC_TIER_avx512)
        // One choice from both vectors, with b moved to the places that a leaves free, and one permutation to sort it.
        const __m512i order = reg(load(evenThenOdd<bytes>.place));
        if constexpr (bytes == 1) {
            constexpr __mmask64 odds = 0xaaaaaaaaaaaaaaaa;
            even = (u8v)_mm512_permutexvar_epi8(order, _mm512_mask_mov_epi8(reg(a), odds, reg((u16v)b << 8)));
            odd = (u8v)_mm512_permutexvar_epi8(order, _mm512_mask_mov_epi8(reg((u16v)a >> 8), odds, reg(b)));
        } else {
            constexpr __mmask32 odds = 0xaaaaaaaa;
            even = (u8v)_mm512_permutexvar_epi8(order, _mm512_mask_mov_epi16(reg(a), odds, reg((u32v)b << 16)));
            odd = (u8v)_mm512_permutexvar_epi8(order, _mm512_mask_mov_epi16(reg((u32v)a >> 16), odds, reg(b)));
        }
#else
        if constexpr (bytes == 1) {
            even = packUnsigned((s16v)a & 0xff, (s16v)b & 0xff);
            odd = packUnsigned((s16v)((u16v)a >> 8), (s16v)((u16v)b >> 8));
        } else {
            const u8v sort = fillBlock(_mm_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15));
            const u64v first = (u64v)shuffle(a, sort), second = (u64v)shuffle(b, sort);
            even = (u8v)zipLow(first, second);
            odd = (u8v)zipHigh(first, second);
        }
    #if defined(ZORCC_TIER_avx2)
        even = (u8v)_mm256_permute4x64_epi64(reg(even), 0xd8);
        odd = (u8v)_mm256_permute4x64_epi64(reg(odd), 0xd8);
    #endif
#endif
    }
    return parted;
}

// ---- layout ---------------------------------------------------------------------------------------------------------

// Planes as they are: for `pixels` pixels the vectors of the first plane, then those of the second, and so on.
template <class Byte, int pixels, Unit... units> struct Streams : Rows<Byte, units...> {
    static constexpr int pixelsAtOnce = pixels;
    static constexpr int vectors = ((units.offset(pixels) / vectorBytes) + ...);
    static_assert(((units.offset(pixels) % vectorBytes == 0) && ...));

    Vectors<vectors> load(int x) const
    {
        Vectors<vectors> all;
        eachVector(
            [&](int k, int p, ptrdiff_t offset) { all.v[k] = zorcc::ZORCC_TIER::load(this->at(p, x) + offset); });
        return all;
    }

    void store(int x, const Vectors<vectors>& all) const
    {
        eachVector(
            [&](int k, int p, ptrdiff_t offset) { zorcc::ZORCC_TIER::store(this->at(p, x) + offset, all.v[k]); });
    }

private:
    template <class Visit> ZORCC_INLINE void eachVector(Visit visit)
    {
        int k = 0;
        for (int p = 0; p < Streams::planes; ++p)
            for (ptrdiff_t offset = 0; offset < Streams::unit[p].offset(pixels); offset += vectorBytes)
                visit(k++, p, offset);
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
