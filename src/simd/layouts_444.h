// SPDX-License-Identifier: MIT
// Layouts in which every pixel has all of its channels, of samples of any type (const in a source).
#pragma once

#include "simd/layout.h"

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

// One plane with `perPixel` samples a pixel, or `planes` planes with one each.
template <class S, int perPixel> using InterleavedRows = Rows<BytesOf<S>, Unit{perPixel * int{sizeof(S)}, 0}>;
template <class S> inline constexpr Unit oneSample{sizeof(S), 0};

template <class S> inline constexpr int samplesPerVector = vectorBytes / int{sizeof(S)};

// Three interleaved channels.
template <class S, Order o = Order::asStored> struct C3 : InterleavedRows<S, 3> {
    using Base = InterleavedRows<S, 3>;
    using Sample = std::remove_const_t<S>;
    static constexpr Order order = o;
    static constexpr int channels = 3, pixelsAtOnce = samplesPerVector<S>;

    Samples<Sample> load(int x) const
    {
        Samples<Sample> p;
        deinterleave3(this->at(0, x), p.c[0]);
        arrange<order>(p.c[0]);
        return p;
    }

    template <Columns columns> void store(int x, Pixels<3, 1, columns, Sample> p) const
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
template <class S, Order order = Order::asStored> struct C4 : InterleavedRows<S, 4> {
    using Base = InterleavedRows<S, 4>;
    using Sample = std::remove_const_t<S>;
    static constexpr int channels = 4, pixelsAtOnce = samplesPerVector<S>;

    Samples<Sample, 4> load(int x) const
    {
        Samples<Sample, 4> p;
        deinterleave4(this->at(0, x), p.c[0]);
        arrange<order>(p.c[0]);
        return p;
    }

    void store(int x, Samples<Sample, 4> p) const
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
template <class S, Order o = Order::asStored> struct AC4 : InterleavedRows<S, 4> {
    using Base = InterleavedRows<S, 4>;
    using Sample = std::remove_const_t<S>;
    static constexpr Order order = o;
    static constexpr int channels = 3, pixelsAtOnce = samplesPerVector<S>;

    Samples<Sample> load(int x) const
    {
        Vec<Sample> c[4];
        deinterleave4(this->at(0, x), c);
        arrange<order>(c);
        return {{{c[0], c[1], c[2]}}};
    }

    void store(int x, Samples<Sample> p) const
    {
        arrange<order>(p.c[0]);
        const Vec<Sample> v[4] = {p.c[0][0], p.c[0][1], p.c[0][2], Vec<Sample>{}};
        interleave4<true>(this->at(0, x), v);
    }
};

template <class S> using BGR = C3<S, Order::reversed>;
template <class S> using BGRX = AC4<S, Order::reversed>;
template <class S> using BGRA = C4<S, Order::reversed>;

// C3 or AC4 of bytes as formulas that work with dot products take it, on the tier that has them: pairs of channels, in
// the order of memory.
#if defined(ZORCC_TIER_avx512)
template <class Layout> struct Paired : Layout::Base {
    using Base = typename Layout::Base;

    PixelQuads<1> load(int x) const { return loadQuads<Layout::unit[0].bytes>(this->at(0, x)); }
};
#else
template <class Layout> using Paired = Layout;
#endif

// A plane for each channel.
template <class S, Order order, Unit... units> struct Planes : Rows<BytesOf<S>, units...> {
    using Base = Rows<BytesOf<S>, units...>;
    using Sample = std::remove_const_t<S>;
    static constexpr int channels = sizeof...(units), pixelsAtOnce = samplesPerVector<S>;

    Samples<Sample, channels> load(int x) const
    {
        Samples<Sample, channels> p;
        for (int c = 0; c < channels; ++c) p.c[0][c] = zorcc::ZORCC_TIER::load<Vec<Sample>>(this->at(c, x));
        arrange<order>(p.c[0]);
        return p;
    }

    void store(int x, Samples<Sample, channels> p) const
    {
        arrange<order>(p.c[0]);
        for (int c = 0; c < channels; ++c) zorcc::ZORCC_TIER::store(this->at(c, x), p.c[0][c]);
    }

#if defined(ZORCC_TIER_avx512)
    void store(int x, const Unsaturated<1>& p) const
    {
        store(x, Samples<Sample>{{ { saturate(p.c[0][0]), saturate(p.c[0][1]), saturate(p.c[0][2]) } }});
    }
#endif
};
template <class S, Order order = Order::asStored> using P3 = Planes<S, order, oneSample<S>, oneSample<S>, oneSample<S>>;
template <class S, Order order = Order::asStored>
using P4 = Planes<S, order, oneSample<S>, oneSample<S>, oneSample<S>, oneSample<S>>;

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
