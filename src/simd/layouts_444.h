// SPDX-License-Identifier: MIT
// 8-bit layouts in which every pixel has all of its channels.
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Whether formulas see the channels as they are stored or, of a BGR image, as RGB.
enum class Order { asStored, reversed };

// Between the order in memory and that of formulas.
template <Order order, int channels> ZORCC_INLINE void arrange(u8v (&c)[channels])
{
    if constexpr (order == Order::reversed) {
        const u8v first = c[0];
        c[0] = c[2];
        c[2] = first;
    }
}

// Three interleaved channels.
template <class Byte, Order o = Order::asStored> struct C3 : Rows<Byte, Unit{3, 0}> {
    using Base = Rows<Byte, Unit{3, 0}>;
    static constexpr int channels = 3;
    static constexpr Order order = o;

    Pixels<3> load(int x) const
    {
        Pixels<3> p;
        deinterleave3(this->at(0, x), p.c[0]);
        arrange<order>(p.c[0]);
        return p;
    }

    template <Columns columns> void store(int x, Pixels<3, 1, columns> p) const
    {
        arrange<order>(p.c[0]);
        interleave3<columns>(this->at(0, x), p.c[0]);
    }

#if defined(ZORCC_TIER_avx512)
    void store(int x, const Unsaturated<1>& p) const { storeThrees(this->at(0, x), p); }

    StoreThrees<order == Order::reversed> storeThrees;
#endif
};

// Four interleaved channels that formulas see all.
template <class Byte, Order order = Order::asStored> struct C4 : Rows<Byte, Unit{4, 0}> {
    using Base = Rows<Byte, Unit{4, 0}>;
    static constexpr int channels = 4;

    Pixels<4> load(int x) const
    {
        Pixels<4> p;
        deinterleave4(this->at(0, x), p.c[0]);
        arrange<order>(p.c[0]);
        return p;
    }

    void store(int x, Pixels<4> p) const
    {
        arrange<order>(p.c[0]);
        interleave4<false>(this->at(0, x), p.c[0]);
    }

#if defined(ZORCC_TIER_avx512)
    void store(int x, const UnsaturatedWithAlpha<1>& p) const { storeFours(this->at(0, x), p); }

    StoreFours<order == Order::reversed> storeFours;
#endif
};

// Four interleaved channels of which formulas see the first three. The fourth stays as it is in a destination.
template <class Byte, Order o = Order::asStored> struct AC4 : Rows<Byte, Unit{4, 0}> {
    using Base = Rows<Byte, Unit{4, 0}>;
    static constexpr int channels = 3;
    static constexpr Order order = o;

    Pixels<3> load(int x) const
    {
        u8v c[4];
        deinterleave4(this->at(0, x), c);
        arrange<order>(c);
        return {{{c[0], c[1], c[2]}}};
    }

    void store(int x, Pixels<3> p) const
    {
        arrange<order>(p.c[0]);
        const u8v v[4] = {p.c[0][0], p.c[0][1], p.c[0][2], u8v{}};
        interleave4<true>(this->at(0, x), v);
    }
};

template <class Byte> using BGR = C3<Byte, Order::reversed>;
template <class Byte> using BGRX = AC4<Byte, Order::reversed>;
template <class Byte> using BGRA = C4<Byte, Order::reversed>;

// C3 or AC4 as formulas that work with dot products take it, on the tier that has them: pairs of channels, in the order
// of memory.
#if defined(ZORCC_TIER_avx512)
template <class Layout> struct Paired : Layout::Base {
    using Base = typename Layout::Base;

    PixelQuads<1> load(int x) const { return loadQuads<Layout::unit[0].bytes>(this->at(0, x)); }
};
#else
template <class Layout> using Paired = Layout;
#endif

// A plane for each of `count` channels.
template <class Byte, Unit... units> struct Planes : Rows<Byte, units...> {
    using Base = Rows<Byte, units...>;
    static constexpr int channels = sizeof...(units);

    Pixels<channels> load(int x) const
    {
        Pixels<channels> p;
        for (int c = 0; c < channels; ++c) p.c[0][c] = zorcc::ZORCC_TIER::load(this->at(c, x));
        return p;
    }

    void store(int x, const Pixels<channels>& p) const
    {
        for (int c = 0; c < channels; ++c) zorcc::ZORCC_TIER::store(this->at(c, x), p.c[0][c]);
    }

#if defined(ZORCC_TIER_avx512)
    void store(int x, const Unsaturated<1>& p) const
    {
        for (int c = 0; c < channels; ++c) zorcc::ZORCC_TIER::store(this->at(c, x), saturate(p.c[0][c]));
    }
#endif
};
template <class Byte> using P3 = Planes<Byte, Unit{1, 0}, Unit{1, 0}, Unit{1, 0}>;
template <class Byte> using P4 = Planes<Byte, Unit{1, 0}, Unit{1, 0}, Unit{1, 0}, Unit{1, 0}>;

// 16-bit pixels: channel 0 in bits 4..0, channel 1 in bits 10..5, channel 2 in bits 15..11. Each field moves to the top
// of a byte, with zeros below.
template <class Byte> struct Bits565 : Rows<Byte, Unit{2, 0}> {
    using Base = Rows<Byte, Unit{2, 0}>;
    static constexpr int channels = 3;

    Pixels<3> load(int x) const
    {
        u8v v[2];
        loadBlocks(this->at(0, x), v);
        const u16v a = (u16v)v[0], b = (u16v)v[1];
        return {{{pack(a << 3 & 0xf8, b << 3 & 0xf8), pack(a >> 3 & 0xfc, b >> 3 & 0xfc),
                  pack(a >> 8 & 0xf8, b >> 8 & 0xf8)}}};
    }

    static u8v pack(u16v lo, u16v hi) { return packUnsigned((s16v)lo, (s16v)hi); }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
