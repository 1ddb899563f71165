// SPDX-License-Identifier: MIT
// Pixels in 32-bit lanes, for the dot products of the widest tier (vpdpwssd): what layouts hand to formulas that use
// them, and take back. One dot product adds two products of a 16-bit element and a 16-bit coefficient to a 32-bit sum,
// which is exact for every colour matrix, and costs as much as one of the dozen operations that take its place in
// 16-bit lanes.
//
// The bytes of a result are brought together by byte permutations across the whole vector, each writing its share under
// a mask, so that packing and interleaving are one step, and lanes may be in whatever order suits the arithmetic.
#pragma once

#include "simd/vec.h"

#if defined(ZORCC_TIER_avx512)

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

// ---- three channels before a weighted sum ---------------------------------------------------------------------------

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

// [group % 2]: positions of the channels 0, 1, 2, 1 of the pixels of 16 columns, `bytes` bytes apart.
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

// Of 64 interleaved pixels of 3 or 4 channels, the first and the third in the order of memory. The last 16 pixels of
// three channels are taken from the last 64 bytes, so that no load passes the end.
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
    ChannelPairs operator()(const ChannelPairs& a, const ChannelPairs& b) const
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

// ---- bytes of 32-bit lanes to a vector of bytes ---------------------------------------------------------------------

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
    u8v operator()(const s32v (&v)[4]) const
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
    u8v operator()(const s32v (&u)[2], const s32v (&v)[2]) const
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

// ---- three channels behind a weighted sum ---------------------------------------------------------------------------

// 64 pixels of each of `rows` rows as whole numbers that may lie outside 0..255: [row][channel][half of the columns],
// in the order of the columns.
template <int rows> struct Unsaturated {
    s16v c[rows][3][2];
};

template <int rows> struct UnsaturatedWithAlpha {
    Unsaturated<rows> rgb;
    u8v alpha;
};

ZORCC_INLINE Unsaturated<1> rowOf(const Unsaturated<2>& both, int row)
{
    Unsaturated<1> one;
    for (int c = 0; c < 3; ++c)
        for (int half = 0; half < 2; ++half) one.c[0][c][half] = both.c[row][c][half];
    return one;
}

ZORCC_INLINE UnsaturatedWithAlpha<1> rowOf(const UnsaturatedWithAlpha<2>& both, int row)
{
    return {rowOf(both.rgb, row), both.alpha};
}

// The upper halves of lanes of even and of odd columns, side by side.
class UpperHalves {
public:
    s16v operator()(s32v even, s32v odd) const
    {
        const u8v down = fillBlock(_mm_setr_epi8(2, 3, 2, 3, 6, 7, 6, 7, 10, 11, 10, 11, 14, 15, 14, 15));
        return (s16v)_mm512_mask_shuffle_epi8(reg(odd), lowerHalves, reg(even), reg(down));
    }

private:
    Mask lowerHalves{0x3333333333333333};
};

// Pixel by pixel, channels in their order or with the first and the third exchanged. Each of three packed vectors holds
// a channel of one half of the columns, then another, in each block.
struct ScatterThrees {
    alignas(64) uint8_t from[3][64]; // [64 bytes of the result][position]
    uint64_t share[3][3];            // [64 bytes of the result][packed vector]

    constexpr ScatterThrees() : from{}, share{}
    {
        for (int n = 0; n < 192; ++n) {
            const int column = n / 3, half = column / 32, i = column % 32, part = 3 * half + n % 3;
            from[n / 64][n % 64] = static_cast<uint8_t>(i / 8 * 16 + part % 2 * 8 + i % 8);
            share[n / 64][part / 2] |= uint64_t{1} << n % 64;
        }
    }
};
constexpr ScatterThrees scatterThrees;

template <bool reversed> class StoreThrees {
public:
    void operator()(uint8_t* p, const Unsaturated<1>& v) const
    {
        const auto part = [&](int n) { return v.c[0][reversed ? 2 - n % 3 : n % 3][n / 3]; };
        __m512i packed[3];
        for (int k = 0; k < 3; ++k) packed[k] = reg(packUnsigned(part(2 * k), part(2 * k + 1)));
        for (int k = 0; k < 3; ++k) {
            const __m512i from = reg(load(scatterThrees.from[k]));
            // The middle vector has a share in all results.
            __m512i bytes = _mm512_permutexvar_epi8(from, packed[1]);
            if (k < 2) bytes = _mm512_mask_permutexvar_epi8(bytes, first[k], from, packed[0]);
            if (k > 0) bytes = _mm512_mask_permutexvar_epi8(bytes, third[k - 1], from, packed[2]);
            store(p + 64 * k, (u8v)bytes);
        }
    }

private:
    Mask first[2] = {Mask(scatterThrees.share[0][0]), Mask(scatterThrees.share[1][0])};
    Mask third[2] = {Mask(scatterThrees.share[1][2]), Mask(scatterThrees.share[2][2])};
};

// The first two channels of half the columns are packed with each other, the third of both halves.
struct ScatterFours {
    alignas(64) uint8_t from[4][64];

    constexpr ScatterFours() : from{}
    {
        for (int n = 0; n < 256; ++n) {
            const int column = n / 4, i = column % 32, c = n % 4, side = c < 2 ? c : column / 32;
            from[n / 64][n % 64] = static_cast<uint8_t>(i / 8 * 16 + side * 8 + i % 8);
        }
    }
};
constexpr ScatterFours scatterFours;

template <bool reversed> class StoreFours {
public:
    void operator()(uint8_t* p, const UnsaturatedWithAlpha<1>& v) const
    {
        const auto& [first, second, third] = v.rgb.c[0];
        const __m512i both = reg(reversed ? packUnsigned(first[0], first[1]) : packUnsigned(third[0], third[1]));
        for (int half = 0; half < 2; ++half) {
            const __m512i pairs = reg(packUnsigned(reversed ? third[half] : first[half], second[half]));
            for (int k = 2 * half; k < 2 * half + 2; ++k) {
                const __m512i from = reg(load(scatterFours.from[k]));
                const __m512i two = _mm512_mask_permutexvar_epi8(reg(v.alpha), firstTwo, from, pairs);
                store(p + 64 * k, (u8v)_mm512_mask_permutexvar_epi8(two, thirds, from, both));
            }
        }
    }

private:
    Mask firstTwo{0x3333333333333333}, thirds{0x4444444444444444};
};

// One channel in order.
ZORCC_INLINE u8v saturate(const s16v (&v)[2]) { return orderHalves(packUnsigned(v[0], v[1])); }

} // namespace
} // namespace zorcc::ZORCC_TIER

#endif
