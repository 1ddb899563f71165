// SPDX-License-Identifier: MIT
// Bytes by bytes, for smooth curves.
#pragma once

#include "simd/lookup.h"

namespace zorcc::ZORCC_TIER {
namespace {

#if defined(ZORCC_TIER_avx512)
// All bytes, in four vectors.
struct CurveTable {
    alignas(64) uint8_t of[256];

    constexpr explicit CurveTable(const uint8_t (&bytes)[256]) : of{}
    {
        for (int i = 0; i < 256; ++i) of[i] = bytes[i];
    }
};

ZORCC_INLINE u8v lookUp(const CurveTable& table, u8v index)
{
    const __m512i i = reg(index);
    const __m512i quarter[] = {reg(load(table.of)), reg(load(table.of + 64)), reg(load(table.of + 128)),
                               reg(load(table.of + 192))};
    return (u8v)_mm512_mask_mov_epi8(_mm512_permutex2var_epi8(quarter[0], i, quarter[1]), _mm512_movepi8_mask(i),
                                     _mm512_permutex2var_epi8(quarter[2], i, quarter[3]));
}
#else
// Lines that give the bytes of most blocks of sixteen.
struct CurveTable {
    // Byte i of a block is whole + ((slope i + part) >> 6).
    alignas(16) uint8_t whole[16], part[16], slope[16];

    // Blocks that no line fits, whose lines are 0.
    alignas(16) uint8_t other[16][16];
    uint8_t firstOfOther[16];
    int others = 0;

    constexpr explicit CurveTable(const uint8_t (&bytes)[256]) : whole{}, part{}, slope{}, other{}, firstOfOther{}
    {
        for (int block = 0; block < 16; ++block)
            if (!fit(block, bytes + 16 * block)) {
                for (int i = 0; i < 16; ++i) other[others][i] = bytes[16 * block + i];
                firstOfOther[others++] = static_cast<uint8_t>(16 * block);
            }
    }

private:
    constexpr bool fit(int block, const uint8_t* bytes)
    {
        for (int s = 0; s < 128; ++s) {
            int least = 0, most = 1 << 14; // of 64 whole + part
            for (int i = 0; i < 16; ++i) {
                const int begin = 64 * bytes[i] - s * i;
                least = begin > least ? begin : least;
                most = begin + 63 < most ? begin + 63 : most;
            }
            if (least > most) continue;
            whole[block] = static_cast<uint8_t>(least / 64);
            part[block] = static_cast<uint8_t>(least % 64);
            slope[block] = static_cast<uint8_t>(s);
            return true;
        }
        return false;
    }
};

ZORCC_INLINE u8v lookUp(const CurveTable& table, u8v index)
{
    const auto ofBlock = [&](const uint8_t* bytes) {
        return shuffle(fillBlock(loadBlock(bytes)), (u8v)((u16v)index >> 4) & 15);
    };
    const u8v i = index & 15, one = fill8(1), slope = ofBlock(table.slope), part = ofBlock(table.part);
    const s16v lo = mulAddPairs(zipLow(i, one), (s8v)zipLow(slope, part)),
               hi = mulAddPairs(zipHigh(i, one), (s8v)zipHigh(slope, part));
    u8v found = ofBlock(table.whole) + packUnsigned(lo >> 6, hi >> 6);
    for (int k = 0; k < table.others;
         ++k) // outside its block an index has its top bit set, for which a shuffle gives 0
        found |= shuffle(fillBlock(loadBlock(table.other[k])), addSaturate(index ^ table.firstOfOther[k], fill8(0x70)));
    return found;
}
#endif

template <int count> ZORCC_INLINE void lookUp(const CurveTable& table, u8v (&v)[count])
{
    for (u8v& index : v) index = lookUp(table, index);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
