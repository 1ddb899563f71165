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

// 64 pixels of each of `rows` rows: of 16 pixels each, (first, third) and (second, second) channel in the two halves of
// a lane. Lanes 0..7 hold the even columns of the 16, lanes 8..15 the odd ones.
template <int rows> struct PixelPairs {
    s16v outer[rows][4], inner[rows][4];
};

constexpr int columnOfLane(int lane) { return lane < 8 ? 2 * lane : 2 * lane - 15; }
constexpr int laneOfColumn(int column) { return column % 2 * 8 + column / 2; }

// Positions of the channels 0, 1, 2, 1 of the pixels of 16 columns, `bytes` bytes apart.
struct QuadTable {
    alignas(64) uint8_t sort[64];

    constexpr QuadTable(int bytes, int start) : sort{}
    {
        for (int lane = 0; lane < 16; ++lane)
            for (int k = 0; k < 4; ++k)
                sort[4 * lane + k] = static_cast<uint8_t>(start + bytes * columnOfLane(lane) + (k == 3 ? 1 : k));
    }
};
constexpr QuadTable threes(3, 0), lastThrees(3, 16), fours(4, 0);

// Of 64 interleaved pixels of 3 or 4 channels, the first and the third in the order of memory. The last 16 pixels of
// three channels are taken from the last 64 bytes, so that no load passes the end.
template <int channels> ZORCC_INLINE PixelPairs<1> loadPairs(const uint8_t* p)
{
    PixelPairs<1> pairs;
    for (int group = 0; group < 4; ++group) {
        const bool atEnd = channels == 3 && group == 3;
        const QuadTable& table = channels == 4 ? fours : atEnd ? lastThrees : threes;
        const u8v v = load(p + (atEnd ? 128 : 16 * channels * group));
        const u8v quads = (u8v)_mm512_permutexvar_epi8(reg(load(table.sort)), reg(v));
        pairs.outer[0][group] = firstOfPairs(quads);
        pairs.inner[0][group] = secondOfPairs(quads);
    }
    return pairs;
}

ZORCC_INLINE PixelPairs<2> stack(const PixelPairs<1>& upper, const PixelPairs<1>& lower)
{
    PixelPairs<2> both;
    for (int group = 0; group < 4; ++group) {
        both.outer[0][group] = upper.outer[0][group];
        both.inner[0][group] = upper.inner[0][group];
        both.outer[1][group] = lower.outer[0][group];
        both.inner[1][group] = lower.inner[0][group];
    }
    return both;
}

// Sums over 2 x 2 pixels: 16 in a vector, in order.
struct PairSums {
    s16v outer[2], inner[2];
};

ZORCC_INLINE PairSums sumsOf2x2(const PixelPairs<2>& p)
{
    const auto sum = [](const s16v(&row)[2][4], int half) {
        const __m512i a = reg(row[0][2 * half] + row[1][2 * half]);
        const __m512i b = reg(row[0][2 * half + 1] + row[1][2 * half + 1]);
        return (s16v)_mm512_shuffle_i64x2(a, b, 0x44) + (s16v)_mm512_shuffle_i64x2(a, b, 0xee);
    };
    return {{sum(p.outer, 0), sum(p.outer, 1)}, {sum(p.inner, 0), sum(p.inner, 1)}};
}

// ---- bytes of 32-bit lanes to a vector of bytes ---------------------------------------------------------------------

// Position i of the result takes byte `byte` of lane lane(i).
struct GatherTable {
    alignas(64) uint8_t from[64];

    constexpr GatherTable(int byte, int (*lane)(int)) : from{}
    {
        for (int i = 0; i < 64; ++i) from[i] = static_cast<uint8_t>(4 * lane(i) + byte);
    }
};

// Every vector has its share of the result; that of the first is what the others leave.
ZORCC_INLINE u8v gatherBytes(const s32v (&v)[4], const GatherTable& table, Mask second, Mask third, Mask fourth)
{
    const __m512i from = reg(load(table.from));
    __m512i bytes = _mm512_permutexvar_epi8(from, reg(v[0]));
    bytes = _mm512_mask_permutexvar_epi8(bytes, second, from, reg(v[1]));
    bytes = _mm512_mask_permutexvar_epi8(bytes, third, from, reg(v[2]));
    return (u8v)_mm512_mask_permutexvar_epi8(bytes, fourth, from, reg(v[3]));
}

// Byte 2 of four groups of 16 columns, in the order of their columns.
class GatherColumns {
public:
    u8v operator()(const s32v (&v)[4]) const { return gatherBytes(v, table, second, third, fourth); }

private:
    static constexpr GatherTable table{2, [](int i) { return laneOfColumn(i % 16); }};
    Mask second{0xffffull << 16}, third{0xffffull << 32}, fourth{0xffffull << 48};
};

// The lowest bytes of 32 samples of one chroma channel and 32 of the other: per block eight of each.
class GatherChroma {
public:
    u8v operator()(const s32v (&v)[4]) const { return gatherBytes(v, table, second, third, fourth); }

private:
    static constexpr GatherTable table{0, [](int i) { return i / 16 % 2 * 8 + i % 8; }};
    Mask second{0x00ff00ffull << 32}, third{0xff00ff00}, fourth{0xff00ff00ull << 32};
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
ZORCC_INLINE u8v saturate(const s16v (&v)[2])
{
    const __m512i order = _mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7);
    return (u8v)_mm512_permutexvar_epi64(order, reg(packUnsigned(v[0], v[1])));
}

} // namespace
} // namespace zorcc::ZORCC_TIER

#endif
