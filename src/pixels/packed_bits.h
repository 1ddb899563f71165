// SPDX-License-Identifier: MIT
// Pixels whose channels are fields of one 16-bit word.
#pragma once

#include "pixels/layouts.h"
#include "simd/bit_fields.h"

namespace zorcc {

// Bits of the fields of R and of B, and of that of G between them. The lowest field begins at bit 0; bits above the
// highest are 0.
struct FieldBits {
    int outer, green;
};

inline constexpr FieldBits bits565 = {5, 6}, bits555 = {5, 5}, bits444 = {4, 4};

} // namespace zorcc

namespace zorcc::ZORCC_TIER {
namespace {

// Numbers of 16 bits whose top bits are the fields of the next pixels, in the order of zipped bytes.
template <int rows, Columns columns> struct Fields {
    u16v c[rows][3][2];
};

template <Columns columns> ZORCC_INLINE Fields<1, columns> rowOf(const Fields<2, columns>& both, int row)
{
    Fields<1, columns> one;
    for (int c = 0; c < 3; ++c)
        for (int k = 0; k < 2; ++k) one.c[0][c][k] = both.c[row][c][k];
    return one;
}

// The channel named first is the lowest field: R as stored, B of reversed images. A field stands for the top bits of a
// byte, with zeros below.
template <FieldBits bits, Order order> struct PackedBits : Lines<Line{{2}}> {
    using Base = Lines<Line{{2}}>;

    static constexpr int afterGreen = bits.outer + bits.green, afterLast = bits.outer + afterGreen; // bits

    [[gnu::always_inline]] Pixels<3> load(int x) const
    {
        u8v v[2];
        loadBlocks(at(0, x), v);
        Pixels<3> p = {{{byteOf<0>(v), byteOf<1>(v), byteOf<2>(v)}}};
        arrange<order>(p.c[0]);
        return p;
    }

    // Keeps the top bits of bytes.
    template <Columns columns> [[gnu::always_inline]] void store(int x, Pixels<3, 1, columns> p) const
    {
        arrange<order>(p.c[0]);
        const auto [first, green, last] = p.c[0];
        const u8v lower = shiftBytes<8 - bits.outer>(first) | shiftBytes<8 - afterGreen>(keepTop<bits.green>(green));
        const u8v upper = shiftBytes<16 - afterGreen>(green) | shiftBytes<16 - afterLast>(keepTop<bits.outer>(last));
        storeWords<columns>(x, (u16v)zipLow(lower, upper), (u16v)zipHigh(lower, upper));
    }

    template <Columns columns> [[gnu::always_inline]] void store(int x, Fields<1, columns> fields) const
    {
        u16v word[2];
        for (int k = 0; k < 2; ++k) {
            u16v c[3] = {fields.c[0][0][k], fields.c[0][1][k], fields.c[0][2][k]};
            arrange<order>(c);
            word[k] = c[0] >> (16 - bits.outer) | (c[1] & topOf<bits.green>) >> (16 - afterGreen) |
                      (c[2] & topOf<bits.outer>) >> (16 - afterLast);
        }
        storeWords<columns>(x, word[0], word[1]);
    }

private:
    template <int channel> ZORCC_INLINE u8v byteOf(const u8v (&words)[2])
    {
        constexpr int end = channel == 0 ? bits.outer : channel == 1 ? afterGreen : afterLast;
        constexpr int down = end - 8, count = channel == 1 ? bits.green : bits.outer;
        const auto top = [](u8v v) {
            constexpr uint16_t mask = 0x100 - (0x100 >> count);
            if constexpr (down > 0)
                return (s16v)((u16v)v >> down & mask);
            else
                return (s16v)((u16v)v << -down & mask);
        };
        return packUnsigned(top(words[0]), top(words[1]));
    }

    template <int count> static constexpr uint16_t topOf = 0x10000 - (0x10000 >> count);
    template <int count> ZORCC_INLINE u8v keepTop(u8v v) { return v & static_cast<uint8_t>(0x100 - (0x100 >> count)); }

    // Of columns in order or, from zipped bytes, of even and odd ones.
    template <Columns columns> [[gnu::always_inline]] void storeWords(int x, u16v a, u16v b) const
    {
        if constexpr (columns == Columns::inOrder)
            storeBlocks(at(0, x), {(u8v)a, (u8v)b});
        else
            storeBlocks(at(0, x), {(u8v)zipLow(a, b), (u8v)zipHigh(a, b)});
    }
};

template <FieldBits bits> using Rgb16 = PackedBits<bits, Order::asStored>;
template <FieldBits bits> using Bgr16 = PackedBits<bits, Order::reversed>;

// ---- to interleaved bytes, without channels between them ---

template <FieldBits bits> struct Words : Lines<Line{{2}}> {
    [[gnu::always_inline]] ThirdsOfPixels load(int x) const
    {
        constexpr int green = bits.outer + bits.green;
        return fieldsAsBytes<WordFields{{bits.outer, green, green + bits.outer}, {bits.outer, bits.green, bits.outer}}>(
            at(0, x));
    }
};

struct ThirdsOfC3 : Lines<Line{{3}}> {
    [[gnu::always_inline]] void store(int x, const ThirdsOfPixels& p) const
    {
        for (int k = 0; k < 3; ++k) zorcc::ZORCC_TIER::store(at(0, x) + k * vectorBytes, p.third[k]);
    }
};

template <FieldBits bits> struct OnThisTier<Rgb16<bits>, Unchanged, C3<>> {
    using Source = Words<bits>;
    using Formula = decltype([](const ThirdsOfPixels& p) { return p; });
    using Destination = ThirdsOfC3;
};

} // namespace
} // namespace zorcc::ZORCC_TIER
