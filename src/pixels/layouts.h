// SPDX-License-Identifier: MIT
// Memory layouts of pixels: interleaved and planar channels of samples of any type, and 8-bit luma with subsampled
// chroma, planar or packed.
#pragma once

#include "pixels/rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Whether formulas see the channels as they are stored or, of a BGR image, as RGB.
enum class Order { asStored, reversed };

// Between the order in memory and that of formulas.
template <Order order, class V, int channels> ZORCC_INLINE void arrange(V (&c)[channels])
{
    if constexpr (order == Order::reversed) {
        const V first = c[0];
        c[0] = c[2];
        c[2] = first;
    }
}

// Interleaved channels, `seen` of which formulas see. A fourth that they do not see stays as it is in a destination.
template <class S, int perPixel, int seen, Order order> struct Interleaved : Lines<Line{{perPixel * int{sizeof(S)}}}> {
    using Base = Lines<Line{{perPixel * int{sizeof(S)}}}>;
    using Sample = S;
    static constexpr int pixelsAtOnce = vectorBytes / int{sizeof(S)};

    [[gnu::always_inline]] Samples<S, seen> load(int x) const
    {
        Vec<S> v[perPixel];
        deinterleave(this->at(0, x), v);
        arrange<order>(v);
        Samples<S, seen> p;
        for (int c = 0; c < seen; ++c) p.c[0][c] = v[c];
        return p;
    }

    template <Columns columns> [[gnu::always_inline]] void store(int x, Pixels<seen, 1, columns, S> p) const
    {
        if constexpr (perPixel == 4 && columns != Columns::inOrder) return store(x, inOrder(p));
        arrange<order>(p.c[0]);
        if constexpr (perPixel == 3)
            interleave<columns>(this->at(0, x), p.c[0]);
        else if constexpr (seen == 4)
            interleave(this->at(0, x), p.c[0]);
        else
            interleaveBesideFourth(this->at(0, x), p.c[0]);
    }
};

template <class S = uint8_t, Order order = Order::asStored> using C3 = Interleaved<S, 3, 3, order>;
template <class S = uint8_t, Order order = Order::asStored> using C4 = Interleaved<S, 4, 4, order>;
template <class S = uint8_t, Order order = Order::asStored> using AC4 = Interleaved<S, 4, 3, order>;

// A plane for each channel.
template <class S, Order order, Line... planes> struct Planes : Lines<planes...> {
    using Base = Lines<planes...>;
    using Sample = S;
    static constexpr int channels = sizeof...(planes), pixelsAtOnce = vectorBytes / int{sizeof(S)};

    [[gnu::always_inline]] Samples<S, channels> load(int x) const
    {
        Samples<S, channels> p;
        this->each([&](int c) { p.c[0][c] = zorcc::ZORCC_TIER::load<Vec<S>>(this->at(c, x)); });
        arrange<order>(p.c[0]);
        return p;
    }

    [[gnu::always_inline]] void store(int x, Samples<S, channels> p) const
    {
        arrange<order>(p.c[0]);
        this->each([&](int c) { zorcc::ZORCC_TIER::store(this->at(c, x), p.c[0][c]); });
    }
    [[gnu::always_inline]] void store(int x, const Pixels<channels, 1, Columns::evenThenOdd>& p) const
    {
        store(x, inOrder(p));
    }
};

template <class S, int p> inline constexpr Line planeOf{{sizeof(S)}, p};
template <class S = uint8_t> using C1 = Planes<S, Order::asStored, planeOf<S, 0>>;
template <class S = uint8_t, Order order = Order::asStored>
using P3 = Planes<S, order, planeOf<S, 0>, planeOf<S, 1>, planeOf<S, 2>>;
template <class S = uint8_t, Order order = Order::asStored>
using AP4 = Planes<S, order, planeOf<S, 0>, planeOf<S, 1>, planeOf<S, 2>, planeOf<S, 3>>;

using Bgr = C3<uint8_t, Order::reversed>;
using Bgra = C4<uint8_t, Order::reversed>;
using Bgrx = AC4<uint8_t, Order::reversed>; // alpha ignored, or left as it is

// The formula of a change of layout.
struct Unchanged {
    template <class S, int channels>
    [[gnu::always_inline]] Samples<S, channels> operator()(const Samples<S, channels>& p) const
    {
        return p;
    }
};

// ---- samples that have twice as many bits as those on the other side ---

// Three interleaved channels.
struct WideC3 : C3<uint16_t> {
    using Base = C3<uint16_t>::Base;
    static constexpr int half = C3<uint16_t>::pixelsAtOnce, pixelsAtOnce = 2 * half;

    [[gnu::always_inline]] WideSamples<uint16_t> load(int x) const
    {
        const Samples<uint16_t> first = C3<uint16_t>::load(x), second = C3<uint16_t>::load(x + half);
        WideSamples<uint16_t> p;
        for (int c = 0; c < 3; ++c) {
            u8v v[2];
            toBlocks({(u8v)first.c[0][c], (u8v)second.c[0][c]}, v);
            p.c[c] = {{(u16v)v[0], (u16v)v[1]}};
        }
        return p;
    }

    [[gnu::always_inline]] void store(int x, const WideSamples<uint16_t>& p) const
    {
        Samples<uint16_t> part[2];
        for (int c = 0; c < 3; ++c) {
            u8v v[2];
            fromBlocks({(u8v)p.c[c].half[0], (u8v)p.c[c].half[1]}, v);
            for (int k = 0; k < 2; ++k) part[k].c[0][c] = (u16v)v[k];
        }
        for (int k = 0; k < 2; ++k) C3<uint16_t>::store(x + k * half, part[k]);
    }
};

// Three planes.
template <class S> struct WideP3 : Lines<planeOf<S, 0>, planeOf<S, 1>, planeOf<S, 2>> {
    using Sample = S;
    static constexpr int pixelsAtOnce = 2 * vectorBytes / int{sizeof(S)};

    [[gnu::always_inline]] WideSamples<S> load(int x) const
    {
        WideSamples<S> p;
        this->each([&](int c) {
            u8v v[2];
            loadBlocks(this->at(c, x), v);
            p.c[c] = {{(Vec<S>)v[0], (Vec<S>)v[1]}};
        });
        return p;
    }

    [[gnu::always_inline]] void store(int x, const WideSamples<S>& p) const
    {
        this->each([&](int c) { storeBlocks(this->at(c, x), {(u8v)p.c[c].half[0], (u8v)p.c[c].half[1]}); });
    }
};

// ---- 8 bits; two or four columns, or the four pixels of a 2 x 2 block, share chroma ---

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

// A luma plane and two chroma planes with a sample for 1 << log2Columns columns, one row of each.
template <int log2Columns>
struct PlanarRow : Lines<Line{{1}, 0}, Line{{1, log2Columns}, 1}, Line{{1, log2Columns}, 2}> {
    static constexpr int group = 1 << log2Columns;
    using Remainder = YccPixels;

    [[gnu::always_inline]] Subsampled<1> load(int x) const
    {
        const auto loadChroma = [](auto* u, auto* v) {
            return log2Columns == 1 ? loadHalves(u, v) : loadDoubledQuarters(u, v);
        };
        return {{zorcc::ZORCC_TIER::load(this->at(0, x))}, loadChroma(this->at(1, x), this->at(2, x))};
    }
    YccPixels remainder(int x, int width) const { return withLastChroma(*this, x, width); }

    [[gnu::always_inline]] void store(int x, const Subsampled<1>& s) const
    {
        zorcc::ZORCC_TIER::store(this->at(0, x), s.y[0]);
        const auto storeChroma = [](auto* u, auto* v, u8v chroma) {
            return log2Columns == 1 ? storeHalves(u, v, chroma) : storeEvenQuarters(u, v, chroma);
        };
        storeChroma(this->at(1, x), this->at(2, x), s.chroma);
    }
    void storeRemainder(int x, int width, const YccPixels& rest) const
    {
        __builtin_memcpy(this->at(0, x), rest.channel[0], static_cast<size_t>(width - x));
    }
};

using Planar422 = PlanarRow<1>;
using Planar411 = PlanarRow<2>;

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

// Packed 4:2:2: luma and chroma bytes alternate, and so do the chroma bytes of the first channel and of the second.
enum class PackedOrder { lumaFirst, chromaFirst };

template <PackedOrder order> struct Packed422 : Lines<Line{{4, 1}}> {
    static constexpr int group = 2;
    static constexpr int luma = order == PackedOrder::lumaFirst ? 0 : 1, chroma = 1 - luma; // bytes of a pixel
    using Remainder = YccPixels;

    // Of the chroma bytes those of the first channel and of the second alternate.
    struct LumaAndChroma {
        u8v luma, chroma;
    };
    [[gnu::always_inline]] LumaAndChroma lumaAndChroma(int x) const
    {
        u8v v[2];
        loadBlocks(at(0, x), v);
        const u8v even = packUnsigned(firstOfPairs(v[0]), firstOfPairs(v[1]));
        const u8v odd = packUnsigned(secondOfPairs(v[0]), secondOfPairs(v[1]));
        if constexpr (luma == 0) return {even, odd};
        return {odd, even};
    }

    [[gnu::always_inline]] Subsampled<1> load(int x) const
    {
        const LumaAndChroma from = lumaAndChroma(x);
        return {{from.luma}, unzipHalves(from.chroma)};
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

// As a destination whose odd last pixel gets luma alone.
struct Yuy2Pairs : Yuy2 {
    void storeRemainder(int x, int, const YccPixels& rest) const { at(0, x)[luma] = rest.channel[0][0]; }
};

// The luma plane alone.
struct LumaPlane : Lines<Line{{1}}> {
    [[gnu::always_inline]] void store(int x, const Pixels<3>& ycc) const
    {
        zorcc::ZORCC_TIER::store(at(0, x), ycc.c[0][0]);
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
