// SPDX-License-Identifier: MIT
// 8-bit layouts in which two or four columns, or the four pixels of a 2 x 2 block, share chroma.
#pragma once

#include "pixels/layouts.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Up to three pixels after the last whole group of a row, with chroma of their own.
struct YccPixels {
    uint8_t channel[3][3]; // Y, first, second chroma channel

    P3<uint8_t> planes() { return {{{channel[0], channel[1], channel[2]}}}; }
};

// The pixels x .. width - 1 of a luma line with the last chroma samples of their row, which lie before pixel x; rows
// that are too short to have any are grey.
template <class Layout> ZORCC_INLINE YccPixels withLastChroma(const Layout& row, int x, int width)
{
    YccPixels rest;
    for (int i = 0; i < width - x; ++i) {
        rest.channel[0][i] = row.at(0, x)[i];
        for (int c = 1; c < 3; ++c) rest.channel[c][i] = x > 0 ? row.at(c, x)[-1] : 128;
    }
    return rest;
}

// A luma plane and two chroma planes, one row of each: 4:2:2.
struct Planar422 : Lines<Line{{1}, 0}, Line{{1, 1}, 1}, Line{{1, 1}, 2}> {
    static constexpr int group = 2;
    using Remainder = YccPixels;

    [[gnu::always_inline]] Subsampled<1> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(at(0, x))}, loadHalves(at(1, x), at(2, x))};
    }
    YccPixels remainder(int x, int width) const { return withLastChroma(*this, x, width); }

    [[gnu::always_inline]] void store(int x, const Subsampled<1>& s) const
    {
        zorcc::ZORCC_TIER::store(at(0, x), s.y[0]);
        storeHalves(at(1, x), at(2, x), s.chroma);
    }
    void storeRemainder(int x, int, const YccPixels& rest) const { *at(0, x) = rest.channel[0][0]; }
};

// Two rows of a luma plane and one of each chroma plane: 4:2:0.
struct Planar420 : Lines<Line{{1}, 0, 0, 2}, Line{{1}, 0, 1, 2}, Line{{1, 1}, 1}, Line{{1, 1}, 2}> {
    static constexpr int rowsAtOnce = 2;

    [[gnu::always_inline]] Subsampled<2> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(at(0, x)), zorcc::ZORCC_TIER::load(at(1, x))}, loadHalves(at(2, x), at(3, x))};
    }

    [[gnu::always_inline]] void store(int x, const Subsampled<2>& s) const
    {
        zorcc::ZORCC_TIER::store(at(0, x), s.y[0]);
        zorcc::ZORCC_TIER::store(at(1, x), s.y[1]);
        storeHalves(at(2, x), at(3, x), s.chroma);
    }
};

// A luma plane and two chroma planes with a sample for four columns, one row of each: 4:1:1.
struct Planar411 : Lines<Line{{1}, 0}, Line{{1, 2}, 1}, Line{{1, 2}, 2}> {
    static constexpr int group = 4;

    [[gnu::always_inline]] Subsampled<1> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(at(0, x))}, loadDoubledQuarters(at(1, x), at(2, x))};
    }
    YccPixels remainder(int x, int width) const { return withLastChroma(*this, x, width); }
};

// Packed 4:2:2: luma and chroma bytes alternate, and so do the chroma bytes of the first channel and of the second.
enum class PackedOrder { lumaFirst, chromaFirst };

template <PackedOrder order> struct Packed422 : Lines<Line{{4, 1}}> {
    static constexpr int group = 2;
    static constexpr int luma = order == PackedOrder::lumaFirst ? 0 : 1, chroma = 1 - luma; // bytes of a pixel
    using Remainder = YccPixels;

    [[gnu::always_inline]] Subsampled<1> load(int x) const
    {
        u8v v[2];
        toBlocks({zorcc::ZORCC_TIER::load(at(0, x)), zorcc::ZORCC_TIER::load(at(0, x) + vectorBytes)}, v);
        const u8v even = packUnsigned(firstOfPairs(v[0]), firstOfPairs(v[1]));
        const u8v odd = packUnsigned(secondOfPairs(v[0]), secondOfPairs(v[1]));
        if constexpr (luma == 0) return {{even}, unzipHalves(odd)};
        return {{odd}, unzipHalves(even)};
    }

    // The last pixel of an odd row has its own first chroma sample. The second is that of the pair before it, or the
    // first where there is no such pair.
    YccPixels remainder(int x, int) const
    {
        const uint8_t* const p = at(0, x);
        return {{{p[luma]}, {p[chroma]}, {x > 0 ? p[chroma - 2] : p[chroma]}}};
    }

    [[gnu::always_inline]] void store(int x, const Subsampled<1>& s) const
    {
        const u8v pairs = zipHalves(s.chroma), even = luma == 0 ? s.y[0] : pairs, odd = luma == 0 ? pairs : s.y[0];
        storeBlocks(at(0, x), {zipLow(even, odd), zipHigh(even, odd)});
    }
    void storeRemainder(int x, int, const YccPixels& rest) const
    {
        at(0, x)[luma] = rest.channel[0][0];
        at(0, x)[chroma] = rest.channel[1][0];
    }
};

using Yuy2 = Packed422<PackedOrder::lumaFirst>;
using Uyvy = Packed422<PackedOrder::chromaFirst>;

} // namespace
} // namespace zorcc::ZORCC_TIER
