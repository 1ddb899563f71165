// SPDX-License-Identifier: MIT
// Luma, orange chroma and green chroma (YCoCg) from RGB and back, plain and by reversible lifting. Lanes of 16 and 32
// bits wrap; those of 32 bits hold every sum of 16-bit samples.
#pragma once

#include "pixels/alpha.h"
#include "pixels/layouts.h"
#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class V> struct Three {
    V c[3];
};

// Wrapping lanes, as the compiler's signed vectors may not overflow.
template <class V> using Wrapping = std::conditional_t<sizeof(V{}[0]) == 2, u16v, u32v>;
template <class V> ZORCC_INLINE V plus(V a, V b) { return (V)((Wrapping<V>)a + (Wrapping<V>)b); }
template <class V> ZORCC_INLINE V minus(V a, V b) { return (V)((Wrapping<V>)a - (Wrapping<V>)b); }

// Y = (R + 2G + B + 2) >> 2, Co = (R - B + 1) >> 1, Cg = (2G - R - B + 2) >> 2, and back: R = Y + Co - Cg, G = Y + Cg,
// B = Y - Co - Cg.
struct PlainYCoCg {
    static Three<s32v> fromRgb(s32v r, s32v g, s32v b)
    {
        const s32v twice = g + g, outer = r + b;
        return {{(outer + twice + 2) >> 2, (r - b + 1) >> 1, (twice - outer + 2) >> 2}};
    }

    // As averages, which need no more bits than the samples: -B is ~B + 1, so that chroma is one less; that of bytes,
    // whose complement is 255 - B, is 127 more.
    template <class V> static Three<V> fromRgb(V r, V g, V b)
    {
        return {{averageUp(averageDown(r, b), g), averageDown(r, ~b), averageDown(g, ~averageUp(r, b))}};
    }

    template <class V> static Three<V> toRgb(V y, V co, V cg)
    {
        const V rest = minus(y, cg);
        return {{plus(rest, co), plus(y, cg), minus(rest, co)}};
    }
};

// Each step is undone by the same step with the other sign, whatever wraps.
struct ReversibleYCoCg {
    template <class V> static Three<V> fromRgb(V r, V g, V b)
    {
        const V co = minus(r, b), t = plus(b, co >> 1), cg = minus(g, t);
        return {{plus(t, cg >> 1), co, cg}};
    }

    template <class V> static Three<V> toRgb(V y, V co, V cg)
    {
        const V t = minus(y, cg >> 1), b = minus(t, co >> 1);
        return {{plus(b, co), plus(cg, t), b}};
    }
};

// ---- from and to the lanes of samples -------------------------------------------------------------------------------

// Bytes to signed words, and signed words to 32 bits.
ZORCC_INLINE void toHalves(u8v v, s16v (&halves)[2])
{
    halves[0] = (s16v)zipLow(v, u8v{});
    halves[1] = (s16v)zipHigh(v, u8v{});
}
ZORCC_INLINE void toHalves(s16v v, s32v (&halves)[2])
{
    const Widened<2> wide = widen(v);
    halves[0] = wide.part[0];
    halves[1] = wide.part[1];
}

// The low 16 bits.
ZORCC_INLINE s16v lowHalves(s32v lo, s32v hi) { return packSigned(lo << 16 >> 16, hi << 16 >> 16); }

template <class Form> struct ToYCoCg {
    // 16 bits to 16 bits.
    [[gnu::always_inline]] Samples<int16_t> operator()(const Samples<int16_t>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        auto [y, co, cg] = Form::fromRgb(r, g, b).c;
        if constexpr (std::is_same_v<Form, PlainYCoCg>) {
            co = plus(co, fill16(1));
            cg = plus(cg, fill16(1));
        }
        return {{{y, co, cg}}};
    }
};

// Bytes to bytes with chroma around 128, saturated.
struct ToYCoCgBytes {
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& rgb) const
    {
        const auto [r, g, b] = rgb.c[0];
        const auto [y, co, cg] = PlainYCoCg::fromRgb(r, g, b).c;
        return {{{y, addSaturate(co, fill8(1)), addSaturate(cg, fill8(1))}}};
    }
};

// To samples of twice as many bits. The plain form is made in the lanes of bytes, where it fits.
template <class Form, class Wide> struct ToWideYCoCg {
    template <class Sample> [[gnu::always_inline]] WideSamples<Wide> operator()(const Samples<Sample>& rgb) const
    {
        WideSamples<Wide> ycc;
        if constexpr (std::is_same_v<Form, PlainYCoCg> && sizeof(Sample) == 1) {
            const auto narrow = Form::fromRgb(rgb.c[0][0], rgb.c[0][1], rgb.c[0][2]);
            for (int c = 0; c < 3; ++c) {
                toHalves(narrow.c[c], ycc.c[c].half);
                for (int k = 0; k < 2 && c > 0; ++k) ycc.c[c].half[k] -= 127;
            }
        } else {
            WideSamples<Wide> wide;
            for (int c = 0; c < 3; ++c) toHalves(rgb.c[0][c], wide.c[c].half);
            for (int k = 0; k < 2; ++k) {
                const auto result = Form::fromRgb(wide.c[0].half[k], wide.c[1].half[k], wide.c[2].half[k]);
                for (int c = 0; c < 3; ++c) ycc.c[c].half[k] = result.c[c];
            }
        }
        return ycc;
    }
};

template <class Form> struct FromYCoCg {
    [[gnu::always_inline]] Samples<int16_t> operator()(const Samples<int16_t>& ycc) const
    {
        const auto [r, g, b] = Form::toRgb(ycc.c[0][0], ycc.c[0][1], ycc.c[0][2]).c;
        return {{{r, g, b}}};
    }

    // Words to bytes, saturated; 32 bits to the low 16.
    [[gnu::always_inline]] Pixels<3> operator()(const WideSamples<int16_t>& ycc) const
    {
        return through(ycc, [](s16v lo, s16v hi) { return packUnsigned(lo, hi); });
    }
    [[gnu::always_inline]] Samples<int16_t> operator()(const WideSamples<int32_t>& ycc) const
    {
        return through(ycc, lowHalves);
    }

    // Bytes with chroma around 128.
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& ycc) const
    {
        WideSamples<int16_t> wide;
        for (int c = 0; c < 3; ++c) {
            toHalves(ycc.c[0][c], wide.c[c].half);
            for (int k = 0; k < 2 && c > 0; ++k) wide.c[c].half[k] -= 128;
        }
        return operator()(wide);
    }

private:
    template <class Wide, class Pack>
    [[gnu::always_inline]] static auto through(const WideSamples<Wide>& ycc, Pack pack)
    {
        const auto lo = Form::toRgb(ycc.c[0].half[0], ycc.c[1].half[0], ycc.c[2].half[0]),
                   hi = Form::toRgb(ycc.c[0].half[1], ycc.c[1].half[1], ycc.c[2].half[1]);
        using Sample = std::conditional_t<sizeof(Wide) == 2, uint8_t, int16_t>;
        Samples<Sample> rgb;
        for (int c = 0; c < 3; ++c) rgb.c[0][c] = pack(lo.c[c], hi.c[c]);
        return rgb;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
