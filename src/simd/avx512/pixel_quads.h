// SPDX-License-Identifier: MIT
// Pixels in 32-bit lanes, for the dot products of AVX-512 (vpdpwssd). One of them adds two products of a 16-bit element
// and a 16-bit coefficient to a 32-bit sum, which is exact for every colour matrix, and costs as much as one of the
// dozen operations that take its place in 16-bit lanes.
//
// The bytes of a result are gathered by byte permutations across the whole vector, each writing its share under a mask,
// so that packing and ordering are one step, and lanes may be in whatever order suits the arithmetic.
#pragma once

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A mask of bytes that stays in its register. Compilers would rather build a constant mask anew in every step of a
// loop, on the one port that permutes bytes; so layouts and formulas hold theirs.
class Mask {
public:
    explicit Mask(uint64_t bits) : mask(bits) { asm("" : "+k"(mask)); }
    operator __mmask64() const { return mask; }

private:
    __mmask64 mask;
};

// ---- three channels into lanes ----

// 64 pixels of each of `rows` rows, 16 in a vector, a lane each: the channels 0, 1, 2, 1 in its bytes. Half of the
// lanes hold the even columns of the 16, half the odd ones: the lower half the even ones in groups 0 and 2, the odd
// ones in groups 1 and 3.
template <int rows> struct PixelQuads {
    u8v group[rows][4];
};

// The bytes of a lane as elements for dot products: channels 0 and 2, channel 1 twice.
struct ChannelPairs {
    s16v outer, inner;
};

ZORCC_INLINE ChannelPairs pairsOf(u8v quads) { return {firstOfPairs(quads), secondOfPairs(quads)}; }

ZORCC_INLINE ChannelPairs operator+(const ChannelPairs& a, const ChannelPairs& b)
{
    return {a.outer + b.outer, a.inner + b.inner};
}

constexpr int laneOfColumn(int column, int group) { return (column + group) % 2 * 8 + column / 2; }

// [group % 2]: positions of the channels 0, 1, 2, 1 of the pixels of 16 columns, `bytes` bytes from one to the next.
struct QuadTable {
    alignas(64) uint8_t sort[2][64];

    constexpr QuadTable(int bytes, int start) : sort{}
    {
        for (int group = 0; group < 2; ++group)
            for (int column = 0; column < 16; ++column)
                for (int k = 0; k < 4; ++k)
                    sort[group][4 * laneOfColumn(column, group) + k] =
                        static_cast<uint8_t>(start + bytes * column + (k == 3 ? 1 : k));
    }
};
constexpr QuadTable threes(3, 0), lastThrees(3, 16), fours(4, 0);

// 64 interleaved pixels of 3 or 4 channels; the first and the third channel keep the order of memory. The last 16
// pixels of three channels are taken from the last 64 bytes, so that no load passes the end.
template <int channels> ZORCC_INLINE PixelQuads<1> loadQuads(const uint8_t* p)
{
    PixelQuads<1> quads;
    for (int group = 0; group < 4; ++group) {
        const bool atEnd = channels == 3 && group == 3;
        const QuadTable& table = channels == 4 ? fours : atEnd ? lastThrees : threes;
        const u8v v = load(p + (atEnd ? 128 : 16 * channels * group));
        quads.group[0][group] = (u8v)_mm512_permutexvar_epi8(reg(load(table.sort[group % 2])), reg(v));
    }
    return quads;
}

ZORCC_INLINE PixelQuads<2> stack(const PixelQuads<1>& upper, const PixelQuads<1>& lower)
{
    PixelQuads<2> both;
    for (int group = 0; group < 4; ++group) {
        both.group[0][group] = upper.group[0][group];
        both.group[1][group] = lower.group[0][group];
    }
    return both;
}

// From sums of two rows of two groups, the second of them with odd columns first: sums of pairs of columns, in order.
class SumsOfColumns {
public:
    [[gnu::always_inline]] ChannelPairs operator()(const ChannelPairs& a, const ChannelPairs& b) const
    {
        return {sum(a.outer, b.outer), sum(a.inner, b.inner)};
    }

private:
    Mask upperHalf{0xf0};

    s16v sum(s16v a, s16v b) const
    {
        const __m512i even = _mm512_mask_blend_epi64(static_cast<__mmask8>(upperHalf), reg(a), reg(b));
        return (s16v)even + (s16v)_mm512_shuffle_i64x2(reg(a), reg(b), 0x4e);
    }
};

// ---- bytes of lanes to a vector of bytes ----------------------------------------------------------------------------

// Position i of the result takes byte from(i) of a vector.
struct GatherTable {
    alignas(64) uint8_t from[64];

    constexpr GatherTable(int (*place)(int)) : from{}
    {
        for (int i = 0; i < 64; ++i) from[i] = static_cast<uint8_t>(place(i));
    }
};

// Byte 2 of the lanes of four groups of 16 columns, in the order of the columns.
class GatherColumns {
public:
    [[gnu::always_inline]] u8v operator()(const s32v (&v)[4]) const
    {
        static constexpr GatherTable table([](int i) { return 4 * laneOfColumn(i % 16, i / 16) + 2; });
        const __m512i from = reg(load(table.from));
        __m512i bytes = _mm512_permutexvar_epi8(from, reg(v[0]));
        bytes = _mm512_mask_permutexvar_epi8(bytes, second, from, reg(v[1]));
        bytes = _mm512_mask_permutexvar_epi8(bytes, third, from, reg(v[2]));
        return (u8v)_mm512_mask_permutexvar_epi8(bytes, fourth, from, reg(v[3]));
    }

private:
    Mask second{0xffffull << 16}, third{0xffffull << 32}, fourth{0xffffull << 48};
};

// 32 samples of two chroma channels, each in the bits 25..18 of a lane: per block eight of the first, eight of the
// second.
class GatherChroma {
public:
    [[gnu::always_inline]] u8v operator()(const s32v (&u)[2], const s32v (&v)[2]) const
    {
        static constexpr GatherTable table([](int i) { return 4 * (i / 16 % 2 * 8 + i % 8) + i / 8 % 2 * 2; });
        const __m512i from = reg(load(table.from));
        const __m512i lower = _mm512_permutexvar_epi8(from, reg(pairs(u[0], v[0])));
        return (u8v)_mm512_mask_permutexvar_epi8(lower, upperHalf, from, reg(pairs(u[1], v[1])));
    }

private:
    Mask upperHalf{0xffffffffull << 32};

    ZORCC_INLINE s32v pairs(s32v u, s32v v) { return u >> 18 | (v >> 2 & 0x00ff0000); }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
