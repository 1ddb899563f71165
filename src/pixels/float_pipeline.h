// SPDX-License-Identifier: MIT
// The way of integer samples of any type through formulas on floats, which see vectors of single-precision numbers of
// the type's own range.
#pragma once

#include <limits>

#include "pixels/rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <int count> using Integers = Widened<count>;

template <class V> ZORCC_INLINE auto asFloats(const V& samples) { return toFloat(widen(samples)); }
template <int parts> ZORCC_INLINE const Floats<parts>& asFloats(const Floats<parts>& floats) { return floats; }

// To the nearest integer, ties to even, for a `narrow` to saturate. What is beyond 32 bits is saturated first; NaN gives
// the least integer, and so the least sample.
template <class Sample> ZORCC_INLINE s32v roundSaturated(f32v v)
{
    return roundToEven(min(fillFloat(std::numeric_limits<Sample>::max()), v));
}

// Widens vectors of samples, calls the formula for each part of them with floats, and narrows the integers that it
// returns to samples, saturated. Inputs that are floats already are in zip order (simd/floats.h).
template <class Sample, class Formula, class... Inputs>
ZORCC_INLINE auto throughFloats(Formula formula, const Inputs&... inputs)
{
    return [&](const auto&... floats) __attribute__((always_inline))
    {
        constexpr int parts = partsOf<Sample>;
        constexpr int count = sizeof formula(floats.part[0]...) / sizeof(s32v);
        Widened<parts> wide[count];
        for (int p = 0; p < parts; ++p) {
            const Integers<count> results = formula(floats.part[p]...);
            for (int i = 0; i < count; ++i) wide[i].part[p] = results.part[i];
        }
        Samples<Sample, count> samples;
        for (int i = 0; i < count; ++i) samples.c[0][i] = narrow<Sample>(wide[i]);
        return samples;
    }
    (asFloats(inputs)...);
}

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
