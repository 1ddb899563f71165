// SPDX-License-Identifier: MIT
// Interleaved bytes to 16-bit elements in pairs, for multiply-adds of pairs: each pixel in a 32-bit lane of its own.
#pragma once

#include "simd/interleave.h"

namespace zorcc::ZORCC_TIER {
namespace {

// As many pixels as a vector has bytes, in four vectors: their channels 0 and 1, and channel 2 with 1 beside it.
struct WordPairs {
    s16v first[4], second[4];
};

// Bytes of a block, or of a vector, that holds pixels from byte `start` on, for elements of each lane; none: a zero.
template <int lanesAtOnce> struct WordPairTable {
    alignas(64) uint8_t first[4 * lanesAtOnce], second[4 * lanesAtOnce];

    constexpr WordPairTable(int bytes, int start) : first{}, second{}
    {
        for (int lane = 0; lane < lanesAtOnce; ++lane)
            for (int i = 0; i < 4; ++i) {
                const int pixel = start + bytes * lane;
                first[4 * lane + i] = static_cast<uint8_t>(i % 2 == 0 ? pixel + i / 2 : 0x80);
                second[4 * lane + i] = static_cast<uint8_t>(i == 0 ? pixel + 2 : 0x80);
            }
    }
};

// Pixels of `bytes` bytes, 3 or 4: in the order of memory on AVX-512, elsewhere in zip order.
template <int bytes> ZORCC_INLINE WordPairs loadWordPairs(const uint8_t* p)
{
    const s16v one = (s16v)fill32(0x10000);
    WordPairs pairs;
#if defined(ZORCC_TIER_avx512)
    // The last pixels of three bytes are taken from the end of the memory, so that no load passes it.
    constexpr int early = 64 - 16 * bytes;
    static constexpr WordPairTable<16> usual(bytes, 0), last(bytes, early);
    for (int part = 0; part < 4; ++part) {
        const auto& table = part == 3 ? last : usual;
        const __m512i v = reg(load(p + 16 * bytes * part - (part == 3 ? early : 0)));
        pairs.first[part] = (s16v)_mm512_maskz_permutexvar_epi8(0x5555555555555555, reg(load(table.first)), v);
        pairs.second[part] =
            (s16v)_mm512_mask_permutexvar_epi8(reg(one), 0x1111111111111111, reg(load(table.second)), v);
    }
#else
    static constexpr WordPairTable<4> usual(bytes, 0), last(bytes, firstOfFour<bytes>(3));
    for (int part = 0; part < 4; ++part) {
        const auto& table = part == 3 ? last : usual;
        const u8v v = loadFours<bytes>(p, part);
        pairs.first[part] = (s16v)shuffle(v, fillBlock(loadBlock(table.first)));
        pairs.second[part] = (s16v)shuffle(v, fillBlock(loadBlock(table.second))) | one;
    }
#endif
    return pairs;
}

// Integers of the pixels' lanes to bytes in the order of memory, saturated.
ZORCC_INLINE u8v narrowPixels(const Widened<4>& v)
{
#if defined(ZORCC_TIER_avx512)
    return orderQuarters(narrow<uint8_t>(v));
#else
    return narrow<uint8_t>(v);
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
