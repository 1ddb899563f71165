// SPDX-License-Identifier: MIT
// Bytes that only change places: lines as sequences of whole vectors in memory order, two sequences zipped into one,
// and one unzipped into its even and its odd elements.
#pragma once

#include <utility>

#include "pixels/rows.h"
#include "simd/order.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The next count * vectorBytes bytes of a sequence.
template <int count> struct Vectors {
    u8v v[count];
};

// The vectors get(0) .. get(count - 1), get taking constants. Loops over vectors are unrolled by their types, not left
// to the optimiser: vectors that live in an array instead of registers are many times slower.
template <int count, class Get> ZORCC_INLINE Vectors<count> collect(Get get)
{
    return [&]<size_t... k>(std::index_sequence<k...>) __attribute__((always_inline))
    {
        return Vectors<count>{{get(std::integral_constant<int, k>{})...}};
    }
    (std::make_index_sequence<count>{});
}

template <int first, int count, int all> ZORCC_INLINE Vectors<count> slice(const Vectors<all>& sequence)
{
    static_assert(first + count <= all);
    return collect<count>([&](auto k) __attribute__((always_inline)) { return sequence.v[first + k]; });
}

template <int all> ZORCC_INLINE Vectors<all / 2> firstHalf(const Vectors<all>& sequence)
{
    return slice<0, all / 2>(sequence);
}

template <int all> ZORCC_INLINE Vectors<all / 2> secondHalf(const Vectors<all>& sequence)
{
    return slice<all / 2, all / 2>(sequence);
}

template <int first, int second>
ZORCC_INLINE Vectors<first + second> concat(const Vectors<first>& a, const Vectors<second>& b)
{
    return collect<first + second>([&](auto k) __attribute__((always_inline)) {
        if constexpr (k < first)
            return a.v[k];
        else
            return b.v[k - first];
    });
}

// ---- two sequences and one; Element is u8v for bytes, u16v for pairs of them ----------------------------------------

// a0 b0 a1 b1 ...
template <class Element = u8v, int count>
ZORCC_INLINE Vectors<2 * count> zip(const Vectors<count>& a, const Vectors<count>& b)
{
    return collect<2 * count>([&](auto k) __attribute__((always_inline)) {
        return (u8v)zipHalf<k % 2>((Element)a.v[k / 2], (Element)b.v[k / 2]);
    });
}

// The elements with even numbers (0), or those with odd numbers (1).
template <int odd, class Element = u8v, int both>
ZORCC_INLINE Vectors<both / 2> everySecond(const Vectors<both>& zipped)
{
    return collect<both / 2>([&](auto k) __attribute__((always_inline)) {
        return (u8v)everySecond<odd>((Element)zipped.v[2 * k], (Element)zipped.v[2 * k + 1]);
    });
}

// Those with even numbers, then those with odd numbers.
template <class Element = u8v, int both> ZORCC_INLINE Vectors<both> unzip(const Vectors<both>& zipped)
{
    constexpr int half = both / 2;
    const auto pair = [&](auto k) __attribute__((always_inline))
    {
        return unzip((Element)zipped.v[2 * k], (Element)zipped.v[2 * k + 1]);
    };
    return collect<both>([&](auto k) __attribute__((always_inline)) {
        const auto both_ = pair(std::integral_constant<int, k % half>{});
        return (u8v)(k < half ? both_.even : both_.odd);
    });
}

// ---- layout ---------------------------------------------------------------------------------------------------------

// Lines as they are: for `pixels` pixels the vectors of the first line, then those of the second, and so on.
template <int pixels, Line... all> struct Sequences : Lines<all...> {
    static constexpr int pixelsAtOnce = pixels;
    static constexpr int vectors = ((all.unit.offset(pixels) / vectorBytes) + ...);
    static_assert(((all.unit.offset(pixels) % vectorBytes == 0) && ...));

    [[gnu::always_inline]] Vectors<vectors> load(int x) const
    {
        return collect<vectors>([&](auto k)
                                    __attribute__((always_inline)) { return zorcc::ZORCC_TIER::load(placeOf<k>(x)); });
    }

    [[gnu::always_inline]] void store(int x, const Vectors<vectors>& v) const
    {
        [&]<size_t... k>(std::index_sequence<k...>) __attribute__((always_inline))
        {
            (zorcc::ZORCC_TIER::store(placeOf<k>(x), v.v[k]), ...);
        }
        (std::make_index_sequence<vectors>{});
    }

private:
    // How many vectors the lines before l have.
    static constexpr int vectorsBefore(int l)
    {
        int before = 0, q = 0;
        ((before += q++ < l ? static_cast<int>(all.unit.offset(pixels) / vectorBytes) : 0), ...);
        return before;
    }

    static constexpr int lineOf(int vector)
    {
        int l = 0;
        while (vectorsBefore(l + 1) <= vector) ++l;
        return l;
    }

    template <int vector> [[gnu::always_inline]] uint8_t* placeOf(int x) const
    {
        constexpr int l = lineOf(vector);
        return this->at(l, x) + (vector - vectorsBefore(l)) * vectorBytes;
    }
};

// Four interleaved samples a pixel, of which the fourth stays as it is.
template <class S> struct ColourSequence : Sequences<vectorBytes / int{sizeof(S)}, Line{{4 * int{sizeof(S)}}}> {
    using Base = Sequences<vectorBytes / int{sizeof(S)}, Line{{4 * int{sizeof(S)}}}>;

    [[gnu::always_inline]] void store(int x, const Vectors<4>& v) const
    {
        constexpr Block fourth = [] {
            Block mask{};
            for (size_t i = 0; i < 16; ++i) mask.byte[i] = i / sizeof(S) % 4 == 3 ? 0xff : 0;
            return mask;
        }();
        const Vectors<4> old = this->load(x);
        Base::store(x, collect<4>([&](auto k) __attribute__((always_inline)) {
                        return select(fillBlock(fourth), old.v[k], v.v[k]);
                    }));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
