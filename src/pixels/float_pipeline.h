// SPDX-License-Identifier: MIT
// The way of integer samples of any type through formulas on floats, which see vectors of single-precision numbers of
// the type's own range.
#pragma once

#include <limits>

#include "pixels/rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <int count> using Integers = Widened<count>;

ZORCC_INLINE Widened<4> widen(const WideChannel<uint16_t>& wide)
{
    const Widened<2> first = widen(wide.half[0]), second = widen(wide.half[1]);
    return {{first.part[0], first.part[1], second.part[0], second.part[1]}};
}

template <class V> ZORCC_INLINE auto asFloats(const V& samples) { return toFloat(widen(samples)); }
template <int parts> ZORCC_INLINE const Floats<parts>& asFloats(const Floats<parts>& floats) { return floats; }

// The samples of `parts` vectors of 32 bits, narrowed: one vector, or two of 16 bits beside bytes.
template <class Sample, int parts> ZORCC_INLINE auto narrowParts(const Widened<parts>& wide)
{
    if constexpr (parts == partsOf<Sample>)
        return narrow<Sample>(wide);
    else
        return WideChannel<uint16_t>{
            {narrow<uint16_t>({{wide.part[0], wide.part[1]}}), narrow<uint16_t>({{wide.part[2], wide.part[3]}})}};
}

template <class Sample, int count> ZORCC_INLINE Samples<Sample, count> channelsOf(const Vec<Sample> (&v)[count])
{
    Samples<Sample, count> samples;
    for (int i = 0; i < count; ++i) samples.c[0][i] = v[i];
    return samples;
}
template <class Sample, int count>
ZORCC_INLINE WideSamples<uint16_t, count> channelsOf(const WideChannel<uint16_t> (&v)[count])
{
    WideSamples<uint16_t, count> samples;
    for (int i = 0; i < count; ++i) samples.c[i] = v[i];
    return samples;
}

// To the nearest integer, ties to even, for a `narrow` to saturate. What is beyond 32 bits is saturated first; NaN
// gives the least integer, and so the least sample.
template <class Sample> ZORCC_INLINE s32v roundSaturated(f32v v)
{
    return roundToEven(min(fillFloat(std::numeric_limits<Sample>::max()), v));
}

// Widens samples, calls the formula for each part of them with floats, and narrows the integers that it returns to
// samples, saturated. Inputs that are floats already are in zip order (simd/floats.h).
template <class Sample, class Formula, class... Inputs>
ZORCC_INLINE auto throughFloats(Formula formula, const Inputs&... inputs)
{
    return [&]<int parts>(const Floats<parts>& first, const auto&... others) __attribute__((always_inline))
    {
        constexpr int count = sizeof formula(first.part[0], others.part[0]...) / sizeof(s32v);
        Widened<parts> wide[count];
        for (int p = 0; p < parts; ++p) {
            const Integers<count> results = formula(first.part[p], others.part[p]...);
            for (int i = 0; i < count; ++i) wide[i].part[p] = results.part[i];
        }
        decltype(narrowParts<Sample>(wide[0])) narrowed[count];
        for (int i = 0; i < count; ++i) narrowed[i] = narrowParts<Sample>(wide[i]);
        return channelsOf<Sample>(narrowed);
    }
    (asFloats(inputs)...);
}

// How floats become integers.
struct Truncated {
    ZORCC_INLINE s32v of(f32v v) { return truncate(v); }
};
struct RoundedToEven {
    ZORCC_INLINE s32v of(f32v v) { return roundToEven(v); }
};

// Three channels of integers by a formula on floats of the same range.
template <class Sample, class Formula, class Conversion> struct OnIntegers {
    template <class V> [[gnu::always_inline]] static auto of(const V (&c)[3])
    {
        const auto formula = [](f32v first, f32v second, f32v third) __attribute__((always_inline))
        {
            const Samples<float> to = Formula{}(Samples<float>{{{first, second, third}}});
            return Integers<3>{{Conversion::of(to.c[0][0]), Conversion::of(to.c[0][1]), Conversion::of(to.c[0][2])}};
        };
        return throughFloats<Sample>(formula, c[0], c[1], c[2]);
    }

    template <class From> [[gnu::always_inline]] auto operator()(const Samples<From>& from) const
    {
        return of(from.c[0]);
    }
    [[gnu::always_inline]] auto operator()(const WideSamples<uint16_t>& from) const { return of(from.c); }
};

// Signed 16-bit samples by the formula of unsigned ones, as their value plus 32768.
template <template <class> class Formula> struct SignedSamples {
    using Unsigned = Formula<uint16_t>;

    [[gnu::always_inline]] auto
    prepare(const Samples<int16_t>& from) const requires WorksInTwoSteps<Unsigned, Samples<uint16_t>>
    {
        return Unsigned{}.prepare(flipped<uint16_t>(from));
    }

    template <class Prepared> [[gnu::always_inline]] Samples<int16_t> operator()(const Prepared& of) const
    {
        return flipped<int16_t>(Unsigned{}(of));
    }
    [[gnu::always_inline]] Samples<int16_t> operator()(const Samples<int16_t>& from) const
    {
        return operator()(flipped<uint16_t>(from));
    }

private:
    template <class To, class From> static Samples<To> flipped(const Samples<From>& from)
    {
        Samples<To> to;
        for (int c = 0; c < 3; ++c) to.c[0][c] = (Vec<To>)((u16v)from.c[0][c] ^ 0x8000);
        return to;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
