// SPDX-License-Identifier: MIT
// Bytes that are only moved: planes as sequences of whole vectors, two sequences woven into one, and one parted into
// two. All in memory order.
#pragma once

#include <utility>

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The next count * vectorBytes bytes of a sequence.
template <int count> struct Vectors {
    u8v v[count];
};

// The vectors get(0) .. get(count - 1), get taking constants. Everything here is unrolled by its types, not left to the
// optimiser's idea of loops: vectors that live in an array instead of registers are many times slower.
template <int count, class Get> ZORCC_INLINE Vectors<count> collect(Get get)
{
    return [&]<size_t... k>(std::index_sequence<k...>) __attribute__((always_inline))
    {
        return Vectors<count>{{get(std::integral_constant<int, k>{})...}};
    }
    (std::make_index_sequence<count>{});
}

template <int first, int count, int all> ZORCC_INLINE Vectors<count> part(const Vectors<all>& sequence)
{
    static_assert(first + count <= all);
    return collect<count>([&](auto k) __attribute__((always_inline)) { return sequence.v[first + k]; });
}

template <int first, int second>
ZORCC_INLINE Vectors<first + second> together(const Vectors<first>& a, const Vectors<second>& b)
{
    return collect<first + second>([&](auto k) __attribute__((always_inline)) {
        if constexpr (k < first)
            return a.v[k];
        else
            return b.v[k - first];
    });
}

template <int first, int second, int third>
ZORCC_INLINE Vectors<first + second + third> together(const Vectors<first>& a, const Vectors<second>& b,
                                                      const Vectors<third>& c)
{
    return together(together(a, b), c);
}

// ---- two sequences and one ------------------------------------------------------------------------------------------

template <int bytes> struct ElementOf;
template <> struct ElementOf<1> {
    using Vector = u8v;
};
template <> struct ElementOf<2> {
    using Vector = u16v;
};

// Half `half` of a0 b0 a1 b1 ..., elements of `bytes` bytes.
template <int bytes, int half> ZORCC_INLINE u8v zipHalf(u8v a, u8v b)
{
    using Element = typename ElementOf<bytes>::Vector;
    const Register low = reg(zipLow((Element)a, (Element)b)), high = reg(zipHigh((Element)a, (Element)b));
#if defined(ZORCC_TIER_avx512)
    const __m512i quads =
        half == 0 ? _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11) : _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
    return (u8v)_mm512_permutex2var_epi64(low, quads, high);
#elif defined(ZORCC_TIER_avx2)
    return (u8v)_mm256_permute2x128_si256(low, high, half == 0 ? 0x20 : 0x31);
#else
    return (u8v)(half == 0 ? low : high);
#endif
}

template <int bytes = 1, int count>
ZORCC_INLINE Vectors<2 * count> zip(const Vectors<count>& a, const Vectors<count>& b)
{
    return collect<2 * count>([&](auto k) __attribute__((always_inline)) {
        return zipHalf<bytes, k % 2>(a.v[k / 2], b.v[k / 2]);
    });
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

// Of a and b together the elements with even numbers, or those with odd numbers.
template <int bytes, int odd> ZORCC_INLINE u8v everySecondOf(u8v a, u8v b)
{
#if defined(ZORCC_TIER_avx512)
    // One choice from both vectors, with one moved to the places that the other leaves free, and a permutation.
    const __m512i order = reg(load(sortedElements<bytes>.inVector));
    if constexpr (bytes == 1) {
        if constexpr (odd) a = (u8v)((u16v)a >> 8);
        if constexpr (!odd) b = (u8v)((u16v)b << 8);
        return (u8v)_mm512_permutexvar_epi8(order, _mm512_mask_mov_epi8(reg(a), 0xaaaaaaaaaaaaaaaa, reg(b)));
    } else {
        if constexpr (odd) a = (u8v)((u32v)a >> 16);
        if constexpr (!odd) b = (u8v)((u32v)b << 16);
        return (u8v)_mm512_permutexvar_epi8(order, _mm512_mask_mov_epi16(reg(a), 0xaaaaaaaa, reg(b)));
    }
#else
    u8v chosen;
    if constexpr (bytes == 1) {
        chosen = odd ? packUnsigned((s16v)((u16v)a >> 8), (s16v)((u16v)b >> 8))
                     : packUnsigned((s16v)a & 0xff, (s16v)b & 0xff);
    } else {
        const u64v first = (u64v)unzipHalves((u16v)a), second = (u64v)unzipHalves((u16v)b);
        chosen = (u8v)(odd ? zipHigh(first, second) : zipLow(first, second));
    }
    return orderHalves(chosen);
#endif
}

// The elements of `bytes` bytes with even numbers, or those with odd numbers.
template <int odd, int bytes = 1, int both> ZORCC_INLINE Vectors<both / 2> everySecond(const Vectors<both>& zipped)
{
    static_assert(both % 2 == 0);
    return collect<both / 2>([&](auto k) __attribute__((always_inline)) {
        return everySecondOf<bytes, odd>(zipped.v[2 * k], zipped.v[2 * k + 1]);
    });
}

// Those with even numbers, then those with odd numbers.
template <int bytes = 1, int both> ZORCC_INLINE Vectors<both> unzip(const Vectors<both>& zipped)
{
    static_assert(both % 2 == 0);
    constexpr int half = both / 2;
#if defined(ZORCC_TIER_avx512)
    // For both together it is cheaper to sort each eight bytes first.
    const __m512i inQuad = reg(load(sortedElements<bytes>.inQuad));
    const Vectors<both> sorted = collect<both>([&](auto k) __attribute__((always_inline)) {
        return (u8v)_mm512_multishift_epi64_epi8(inQuad, reg(zipped.v[k]));
    });
    return collect<both>([&](auto k) __attribute__((always_inline)) {
        constexpr int from = 2 * (k % half), odd = k / half;
        const __m512i doubles =
            _mm512_setr_epi32(odd, 2 + odd, 4 + odd, 6 + odd, 8 + odd, 10 + odd, 12 + odd, 14 + odd, 16 + odd, 18 + odd,
                              20 + odd, 22 + odd, 24 + odd, 26 + odd, 28 + odd, 30 + odd);
        return (u8v)_mm512_permutex2var_epi32(reg(sorted.v[from]), doubles, reg(sorted.v[from + 1]));
    });
#else
    return collect<both>([&](auto k) __attribute__((always_inline)) {
        constexpr int from = 2 * (k % half);
        return everySecondOf<bytes, k / half>(zipped.v[from], zipped.v[from + 1]);
    });
#endif
}

// ---- layout ---------------------------------------------------------------------------------------------------------

// Planes as they are: for `pixels` pixels the vectors of the first plane, then those of the second, and so on.
template <class Byte, int pixels, Unit... units> struct Streams : Rows<Byte, units...> {
    static constexpr int pixelsAtOnce = pixels;
    static constexpr int vectors = ((units.offset(pixels) / vectorBytes) + ...);
    static_assert(((units.offset(pixels) % vectorBytes == 0) && ...));

    [[gnu::always_inline]] Vectors<vectors> load(int x) const
    {
        return collect<vectors>([&](auto k)
                                    __attribute__((always_inline)) { return zorcc::ZORCC_TIER::load(placeOf<k>(x)); });
    }

    [[gnu::always_inline]] void store(int x, const Vectors<vectors>& all) const
    {
        [&]<size_t... k>(std::index_sequence<k...>) __attribute__((always_inline))
        {
            (zorcc::ZORCC_TIER::store(placeOf<k>(x), all.v[k]), ...);
        }
        (std::make_index_sequence<vectors>{});
    }

private:
    // How many vectors the planes before p have.
    static constexpr int vectorsBefore(int p)
    {
        int before = 0, q = 0;
        ((before += q++ < p ? static_cast<int>(units.offset(pixels) / vectorBytes) : 0), ...);
        return before;
    }

    static constexpr int planeOf(int vector)
    {
        int p = 0;
        while (vectorsBefore(p + 1) <= vector) ++p;
        return p;
    }

    template <int vector> [[gnu::always_inline]] Byte* placeOf(int x) const
    {
        constexpr int p = planeOf(vector);
        return this->at(p, x) + (vector - vectorsBefore(p)) * vectorBytes;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
