// SPDX-License-Identifier: MIT
// Layouts in which every pixel has all of its channels, of samples of any type.
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
template <class S = uint8_t, Order order = Order::asStored>
using P3 = Planes<S, order, planeOf<S, 0>, planeOf<S, 1>, planeOf<S, 2>>;
template <class S = uint8_t, Order order = Order::asStored>
using AP4 = Planes<S, order, planeOf<S, 0>, planeOf<S, 1>, planeOf<S, 2>, planeOf<S, 3>>;

using Bgr = C3<uint8_t, Order::reversed>;
using Bgra = C4<uint8_t, Order::reversed>;
using Bgrx = AC4<uint8_t, Order::reversed>; // alpha ignored, or left as it is

} // namespace
} // namespace zorcc::ZORCC_TIER
