// SPDX-License-Identifier: MIT
// Bytes by bytes: a table of 256.
#pragma once

#include "simd/vec.h"

namespace zorcc {

struct ByteTable {
    alignas(64) uint8_t of[256];
};

} // namespace zorcc

namespace zorcc::ZORCC_TIER {
namespace {

ZORCC_INLINE u8v lookUp(const ByteTable& table, u8v index)
{
#if defined(ZORCC_TIER_avx512)
    const auto half = [&](int first) {
        return _mm512_permutex2var_epi8(reg(load(table.of + first)), reg(index), reg(load(table.of + first + 64)));
    };
    return (u8v)_mm512_mask_blend_epi8(_mm512_movepi8_mask(reg(index)), half(0), half(128));
#else
    // Sixteen entries at a time. Indices of others have their top bit set, for which a shuffle gives 0.
    u8v found = {};
    for (int first = 0; first < 256; first += 16) {
        found |= shuffle(fillBlock(loadBlock(table.of + first)), addSaturate(index, fill8(0x70)));
        index -= 16;
    }
    return found;
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
