// SPDX-License-Identifier: MIT
// Quotients of bytes without divisions, on AVX-512 with VBMI and GFNI: all 64 of a vector at once. The divisor and what
// is divided are both doubled until the divisor is in 128..255, and the product with the reciprocal of that, from a
// table, is exact.
#pragma once

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A word for every byte from 128 to 255, as two tables of bytes.
struct WordsByByte {
    alignas(64) uint8_t low[128], high[128];

    template <class Word> constexpr explicit WordsByByte(Word word) : low{}, high{}
    {
        for (int i = 0; i < 128; ++i) {
            low[i] = static_cast<uint8_t>(word(128 + i) & 0xff);
            high[i] = static_cast<uint8_t>(word(128 + i) >> 8);
        }
    }
};

constexpr int quotientUp(int a, int b) { return (a + b - 1) / b; }

// Bytes to divide by, 0 too: whatever is divided by it is 0 then.
class Divisors {
public:
    [[gnu::always_inline]] explicit Divisors(u8v divisor)
    {
        const u8v mirrored = (u8v)_mm512_gf2p8affine_epi64_epi8(reg(divisor), _mm512_set1_epi64(0x8040201008040201), 0);
        scale = mirrored & -mirrored; // the lowest bit set mirrors the highest
        index = scaled(divisor);
        upper = _mm512_test_epi8_mask(reg(index), reg(fill8(64)));
    }

    // What is divided, not above the divisor, times the same power of two. A carry-less product with it shifts bytes.
    u8v scaled(u8v v) const { return (u8v)_mm512_gf2p8mul_epi8(reg(v), reg(scale)); }

    // 16 bits before the point and 16 after it, of which the first 16 are kept: of v, a word for each byte in zip
    // order, times the divisor's word.
    void multiply(u16v (&v)[2], const WordsByByte& words) const
    {
        const u8v low = lookUp(words.low), high = lookUp(words.high);
        v[0] = mulHigh(v[0], (u16v)zipLow(low, high));
        v[1] = mulHigh(v[1], (u16v)zipHigh(low, high));
    }

private:
    u8v lookUp(const uint8_t (&table)[128]) const
    {
        const __m512i lower = _mm512_permutexvar_epi8(reg(index), reg(load(table)));
        return (u8v)_mm512_mask_permutexvar_epi8(lower, upper, reg(index), reg(load(table + 64)));
    }

    u8v scale, index;
    __mmask64 upper;
};

// table[index] of 64 bytes.
ZORCC_INLINE u8v lookUp(const uint8_t (&table)[64], u8v index)
{
    return (u8v)_mm512_permutexvar_epi8(reg(index), reg(load(table)));
}

// v less 1 where `zero` is 0, and a and b have a bit in common, and c is odd.
ZORCC_INLINE u8v subOneWhere(u8v v, u8v zero, u8v a, u8v b, u8v c)
{
    __mmask64 less = _mm512_testn_epi8_mask(reg(zero), reg(zero));
    less = _mm512_mask_test_epi8_mask(less, reg(a), reg(b));
    less = _mm512_mask_test_epi8_mask(less, reg(c), reg(fill8(1)));
    return (u8v)_mm512_mask_sub_epi8(reg(v), less, reg(v), reg(fill8(1)));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
