// SPDX-License-Identifier: MIT
// Vectors of one 16-bit channel each to interleaved memory. Channel vectors hold the pixels in order.
#pragma once

#include "simd/interleave.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int wordsPerVector = vectorBytes / 2;

#if defined(ZORCC_TIER_avx512)

// Word n of three consecutive vectors is channel n % 3 of pixel n / 3. As 32 leaves 2 when divided by 3, any position
// holds channel c in exactly one of the three vectors: one permutation brings every pixel to its position.
struct WordThirds {
    alignas(64) uint16_t scatter[3][32]; // [channel][position]: the pixel that belongs there

    constexpr WordThirds() : scatter{}
    {
        for (int n = 0; n < 96; ++n) scatter[n % 3][n % 32] = static_cast<uint16_t>(n / 3);
    }
};
constexpr WordThirds wordThirds;

// Positions p with p % 3 == r.
constexpr __mmask32 everyThirdWord(int r) { return 0x49249249u << r; }

ZORCC_INLINE void interleave3(uint16_t* p, const u16v (&channel)[3], const uint16_t (&scatter)[3][32])
{
    __m512i v[3];
    for (int c = 0; c < 3; ++c) v[c] = _mm512_permutexvar_epi16(reg(load(scatter[c])), reg(channel[c]));
    for (int k = 0; k < 3; ++k) { // vector k takes positions p of channel c with (2 k + p) % 3 == c
        const __m512i two = _mm512_mask_mov_epi16(v[0], everyThirdWord((k + 1) % 3), v[1]);
        store(p + 32 * k, (u16v)_mm512_mask_mov_epi16(two, everyThirdWord((k + 2) % 3), v[2]));
    }
}

ZORCC_INLINE void interleave3(uint16_t* p, const u16v (&channel)[3]) { interleave3(p, channel, wordThirds.scatter); }

#else

// [order of columns][channel][vector]: shuffles that move the channel's words to their places in one of three vectors.
struct WordThirds {
    alignas(16) uint8_t scatter[2][3][3][16];

    constexpr WordThirds() : scatter{}
    {
        for (int c = 0; c < 3; ++c)
            for (int k = 0; k < 3; ++k)
                for (int i = 0; i < 16; ++i) {
                    const int n = 8 * k + i / 2;                             // the word that holds byte i of vector k
                    const int places[] = {n / 3, n / 3 / 2 + n / 3 % 2 * 4}; // of the pixel
                    for (int columns = 0; columns < 2; ++columns)
                        scatter[columns][c][k][i] =
                            static_cast<uint8_t>(n % 3 == c ? places[columns] * 2 + i % 2 : 0x80);
                }
    }
};
constexpr WordThirds wordThirds;

ZORCC_INLINE void interleave3(uint16_t* p, const u16v (&channel)[3])
{
    const auto& scatter = wordThirds.scatter[(int)Columns::inOrder];
    u8v v[3];
    for (int k = 0; k < 3; ++k)
        v[k] = shuffleTable((u8v)channel[0], scatter[0][k]) | shuffleTable((u8v)channel[1], scatter[1][k]) |
               shuffleTable((u8v)channel[2], scatter[2][k]);
    storeBlocks(reinterpret_cast<uint8_t*>(p), v);
}

#endif

} // namespace
} // namespace zorcc::ZORCC_TIER
