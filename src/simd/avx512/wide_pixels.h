// SPDX-License-Identifier: MIT
// Luma and chroma into 32-bit lanes, and three channels of 16 bits back to memory, for the dot products of AVX-512.
#pragma once

#include "simd/avx512/pixel_quads.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- luma and shared chroma into lanes ----

// How luma of 64 columns lies in the 16-bit elements of two vectors, two in a lane beside the chroma that both share.
enum class LumaOrder {
    byColumn, // even and odd columns in a vector each; the first 32 columns in the lower elements
    byHalf    // the first and the last 32 columns in a vector each; the even ones in the lower elements
};

// Luma times a factor, and the two channels of chroma in the two elements of a lane, for 32 columns in each vector.
template <int rows, LumaOrder order> struct YccLanes {
    s16v luma[rows][2];
    s16v chroma[2];
};

struct YccLanesTable {
    alignas(64) uint8_t luma[64];      // columns 2i, 2i + 1, 32 + 2i, 33 + 2i in lane i
    alignas(64) uint8_t chroma[2][64]; // from halves: the two samples in the even bytes of lane i

    constexpr YccLanesTable() : luma{}, chroma{}
    {
        for (int i = 0; i < 16; ++i) {
            for (int k = 0; k < 4; ++k) luma[4 * i + k] = static_cast<uint8_t>(k / 2 * 32 + 2 * i + k % 2);
            for (int half = 0; half < 2; ++half)
                for (int c = 0; c < 2; ++c)
                    chroma[half][4 * i + 2 * c] = static_cast<uint8_t>((2 * half + i / 8) * 16 + 8 * c + i % 8);
        }
    }
};
constexpr YccLanesTable yccLanesTable;

class ToYccLanes {
public:
    // Chroma in halves: per block eight samples of the first channel, then eight of the second.
    template <int factor, int rows>
    __attribute__((always_inline)) YccLanes<rows, LumaOrder::byColumn> operator()(const u8v (&y)[rows],
                                                                                  u8v chroma) const
    {
        YccLanes<rows, LumaOrder::byColumn> ycc;
        for (int row = 0; row < rows; ++row) {
            const u8v luma = (u8v)_mm512_permutexvar_epi8(reg(load(yccLanesTable.luma)), reg(y[row]));
            ycc.luma[row][0] = mulAddPairs(luma, fillPair8(factor, 0));
            ycc.luma[row][1] = mulAddPairs(luma, fillPair8(0, factor));
        }
        for (int half = 0; half < 2; ++half) {
            const __m512i from = reg(load(yccLanesTable.chroma[half]));
            ycc.chroma[half] = (s16v)_mm512_maskz_permutexvar_epi8(evenBytes, from, reg(chroma));
        }
        return ycc;
    }

private:
    Mask evenBytes{0x5555555555555555};
};

// ---- three channels to memory ---------------------------------------------------------------------------------------

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
    [[gnu::always_inline]] s16v operator()(s32v even, s32v odd) const
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
    [[gnu::always_inline]] void operator()(uint8_t* p, const Unsaturated<1>& v) const
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
    [[gnu::always_inline]] void operator()(uint8_t* p, const UnsaturatedWithAlpha<1>& v) const
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
ZORCC_INLINE u8v saturated(const s16v (&v)[2]) { return orderHalves(packUnsigned(v[0], v[1])); }

} // namespace
} // namespace zorcc::ZORCC_TIER
