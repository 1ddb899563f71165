// SPDX-License-Identifier: MIT
// Alternating columns: a row of samples as two planes, of every other column each, and pixels of two such planes back
// to memory. In planes the sites of a mosaic fill whole vectors.
#pragma once

#include "simd/interleave.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Two vectors of samples to one of every other column each.
template <class Sample> ZORCC_INLINE void splitColumns(const Sample* p, Sample* first, Sample* second)
{
    using V = Vec<Sample>;
    const u64v a = (u64v)unzipHalves(load<V>(p)), b = (u64v)unzipHalves(load<V>(p + vectorBytes / sizeof(Sample)));
    store(first, orderHalves(zipLow(a, b)));
    store(second, orderHalves(zipHigh(a, b)));
}

#if defined(ZORCC_TIER_avx512)

// Where the pixels of the half vectors `first` and `second` go (see Thirds).
template <int size> struct ColumnThirds {
    alignas(64) uint8_t scatter[3][64];

    constexpr ColumnThirds() : scatter{}
    {
        constexpr int lanes = 64 / size;
        for (int n = 0; n < 3 * lanes; ++n)
            for (int i = 0; i < size; ++i)
                scatter[n % 3][n % lanes * size + i] =
                    static_cast<uint8_t>(placeOf(n / 3, Columns::evenThenOdd, lanes) * size + i);
    }
};
template <int size> constexpr ColumnThirds<size> columnThirds;

template <class V> ZORCC_INLINE void joinColumns(auto* p, const V (&first)[3], const V (&second)[3])
{
    constexpr int size = sampleSize<V>;
    for (int half = 0; half < 2; ++half) {
        V v[3];
        for (int c = 0; c < 3; ++c)
            v[c] = half == 0 ? (V)_mm512_inserti64x4(reg(first[c]), _mm512_castsi512_si256(reg(second[c])), 1)
                             : (V)_mm512_shuffle_i64x2(reg(first[c]), reg(second[c]), 0xee);
        weaveThirds<size>((uint8_t*)p + half * 3 * vectorBytes, {reg(v[0]), reg(v[1]), reg(v[2])},
                          columnThirds<size>.scatter);
    }
}

#else

// A block of first columns and one of second columns become the pixels of two blocks; of each, the lower and the upper
// half make a block of pixels.
template <class V> ZORCC_INLINE void joinColumns(auto* p, const V (&first)[3], const V (&second)[3])
{
    u8v v[2][3]; // [half][channel]
    for (int c = 0; c < 3; ++c) {
        v[0][c] = (u8v)zipLow((u64v)first[c], (u64v)second[c]);
        v[1][c] = (u8v)zipHigh((u64v)first[c], (u64v)second[c]);
    }
    for (int half = 0; half < 2; ++half)
        for (int k = 0; k < 3; ++k) {
            const auto piece = [&](int c) {
                return shuffleTable(v[half][c], thirds<sampleSize<V>>.scatter[(int)Columns::evenThenOdd][c][k]);
            };
            storeBlocksOf<6>((uint8_t*)p, 3 * half + k, piece(0) | piece(1) | piece(2));
        }
}

#endif

} // namespace
} // namespace zorcc::ZORCC_TIER
