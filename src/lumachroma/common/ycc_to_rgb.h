// SPDX-License-Identifier: MIT
// Luma and two chroma channels to RGB, by any coefficients, for chroma of every pixel and for chroma that two columns
// (and two rows) share. Exact: the same bytes as the sums in 32 bits.
#pragma once

#include <algorithm>

#include "lumachroma/common/weighted_sums.h"
#include "pixels/alpha.h"
#include "pixels/chroma_words.h"
#include "pixels/ordered_dither.h"

namespace zorcc::ZORCC_TIER {
namespace {

// R, G, B in 16 bits.
struct WideRgb {
    s16v c[3];
};

// ---- what chroma adds to luma of weight 1 ---------------------------------------------------------------------------

// The floors of the chroma products, which are all that rounding needs where luma is whole.
template <ToRgb k> class ChromaOffsets {
public:
    // Of chroma from 0 to 255.
    ZORCC_INLINE WideRgb of(s16v first, s16v second)
    {
        const s16v u = first - 128, v = second - 128;
        return {
            {product<k.r, k.constantR>(v), product2<-k.g1, -k.g2, k.constantG>(u, v), product<k.b, k.constantB>(u)}};
    }

private:
    // The constants centre chroma, which u and v are already, and round.
    template <int constant, int weights> static constexpr bool rounds()
    {
        static_assert(constant + 128 * weights == 0 || constant + 128 * weights == 32768);
        return constant + 128 * weights == 32768;
    }

    template <int weight, int constant> ZORCC_INLINE s16v product(s16v c)
    {
        return rounds<constant, weight>() ? scaleRounded<weight>(c) : scale<weight>(c);
    }

    template <int first, int second, int constant> ZORCC_INLINE s16v product2(s16v u, s16v v)
    {
        const s16v sum = addOneWhere(scale<first>(u) + scale<second>(v), scaleRest<first>(u), ~scaleRest<second>(v));
        if constexpr (rounds<constant, first + second>())
            return sum + (s16v)((scaleRest<first>(u) + scaleRest<second>(v)) >> 15);
        return sum;
    }
};

// ---- chroma of every pixel ------------------------------------------------------------------------------------------

// R or B, by weights in units of 1 / (1 << bits): `yc` is luma and the chroma channel that drives it zipped, `yRest`
// what luma's weight has beside 1. Whole units of chroma are counted from 128, which keeps the rest small.
template <int yRest, int weight, int constant, int bits = 16> ZORCC_INLINE s16v fromOneChroma(u8v yc)
{
    constexpr int one = 1 << bits, whole = (weight + one / 2) >> bits, rest = weight - one * whole;
    return mulAddPairs(yc, fillPair8(1, whole)) - fill16(128 * whole) +
           (weighPair<yRest, rest, constant + 128 * one * whole>(yc) >> (bits - 8));
}

// Every channel is whole units of luma and chroma, added in 16 bits, and a rest of less than 16 bits in 8.8 fixed
// point.
template <ToRgb k> class FullChromaToRgb {
public:
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& ycc) const
    {
        const auto [y, u, v] = ycc.c[0];
        const WideRgb lo = channels(zipLow(y, v), zipLow(y, u), zipLow(u, v));
        const WideRgb hi = channels(zipHigh(y, v), zipHigh(y, u), zipHigh(u, v));
        Pixels<3> rgb;
        for (int c = 0; c < 3; ++c) rgb.c[0][c] = packUnsigned(lo.c[c], hi.c[c]);
        return rgb;
    }

private:
    static constexpr int yWhole = wholeOf(k.y), yRest = restOf(k.y);
    static_assert(yWhole == 1);

    // From zipped bytes.
    ZORCC_INLINE WideRgb channels(u8v yv, u8v yu, u8v uv)
    {
        if constexpr (k.y == 65536) {
            const s16v y = firstOfPairs(yv);
            const WideRgb offset = ChromaOffsets<k>::of(firstOfPairs(uv), secondOfPairs(yv));
            return {{y + offset.c[0], y + offset.c[1], y + offset.c[2]}};
        } else {
            return {{fromOneChroma<yRest, k.r, k.constantR>(yv), fromBothChroma(yv, yu, uv),
                     fromOneChroma<yRest, k.b, k.constantB>(yu)}};
        }
    }

    // G likewise. One of the chroma channels has less than half a unit.
    ZORCC_INLINE s16v fromBothChroma(u8v yv, u8v yu, u8v uv)
    {
        constexpr int whole1 = wholeOf(-k.g1), whole2 = wholeOf(-k.g2), whole = whole1 + whole2;
        static_assert(whole1 == 0 || whole2 == 0);
        // Luma, second and first chroma channel in the places of R, G and B.
        constexpr Weights w = {yRest, restOf(-k.g2), restOf(-k.g1)};
        return mulAddPairs(whole1 == 0 ? yv : yu, fillPair8(1, whole)) - fill16(128 * whole) +
               ((s16v)weigh<w, k.constantG + 128 * 65536 * whole>(yv, uv) >> 8);
    }
};

// ---- shared chroma, luma of weight 1 --------------------------------------------------------------------------------

// Offsets are formed once for a pair of columns and applied to the bytes of luma as what is to be added and what is to
// be subtracted, one of them being 0. That they saturate at 255 makes no difference to the saturated result.
template <ToRgb k> class SharedChromaOnWholeLuma {
    template <int rows> struct Prepared {
        u8v y[rows];
        u8v offset[3]; // per block eight offsets to be added, then the same to be subtracted
    };

public:
    template <int rows> [[gnu::always_inline]] Prepared<rows> prepare(const SubsampledWords<rows>& ycc) const
    {
        Prepared<rows> from;
        for (int row = 0; row < rows; ++row) from.y[row] = ycc.y[row];
        const WideRgb offset = ChromaOffsets<k>::of(ycc.u, ycc.v);
        for (int c = 0; c < 3; ++c) from.offset[c] = packUnsigned(offset.c[c], -offset.c[c]);
        return from;
    }

    template <int rows> [[gnu::always_inline]] Pixels<3, rows> operator()(const Prepared<rows>& from) const
    {
        Pixels<3, rows> rgb;
        for (int c = 0; c < 3; ++c) {
            const u8v offset = from.offset[c], more = zipLow(offset, offset), less = zipHigh(offset, offset);
            for (int row = 0; row < rows; ++row) rgb.c[row][c] = subSaturate(addSaturate(from.y[row], more), less);
        }
        return rgb;
    }
};

// ---- shared chroma, luma scaled -------------------------------------------------------------------------------------

// Luma and chroma products are 16.16 fixed point in two halves, added with a carry. Even and odd columns are kept in
// vectors of their own, so that the chroma of a pair of columns stands in the lane of both.
template <ToRgb k> class SharedChromaOnScaledLuma {
    struct Chroma {
        s16v high, carryLimit; // 32767 - low: a low half of luma, less 32768, above it carries
    };
    template <int rows> struct Prepared {
        u8v y[rows];
        Chroma chroma[3];
    };

public:
    template <int rows> [[gnu::always_inline]] Prepared<rows> prepare(const SubsampledWords<rows>& ycc) const
    {
        Prepared<rows> from;
        for (int row = 0; row < rows; ++row) from.y[row] = ycc.y[row];
        from.chroma[0] = limited(halves<k.r, k.constantR>(ycc.v));
        from.chroma[1] = limited(sumLessOne(halves<-k.g1, 0>(ycc.u), halves<-k.g2, k.constantG + 65536>(ycc.v)));
        from.chroma[2] = limited(halves<k.b, k.constantB>(ycc.u));
        return from;
    }

    template <int rows>
    [[gnu::always_inline]] Pixels<3, rows, Columns::evenThenOdd> operator()(const Prepared<rows>& from) const
    {
        Pixels<3, rows, Columns::evenThenOdd> rgb;
        for (int row = 0; row < rows; ++row) {
            const Halves even = lumaHalves(mulAddPairs(from.y[row], fillPair8(2, 0)));
            const Halves odd = lumaHalves(mulAddPairs(from.y[row], fillPair8(0, 2)));
            for (int c = 0; c < 3; ++c)
                rgb.c[row][c] = packUnsigned(whole(even, from.chroma[c]), whole(odd, from.chroma[c]));
        }
        return rgb;
    }

private:
    struct Halves {
        s16v high;
        u16v low;
    };

    // From luma doubled, which brings its weight into 16 bits.
    ZORCC_INLINE Halves lumaHalves(s16v twice)
    {
        static_assert(k.y % 2 == 0);
        const u16v weight = (u16v)fill16(k.y / 2);
        return {(s16v)mulHigh((u16v)twice, weight), (u16v)twice * weight};
    }

    // A weight times v, and a constant, as 65536 high + low. Of the weight as 65536 whole + rest, with an unsigned
    // rest, the rest is multiplied by v + t, where rest t has the fraction of the constant: so both halves of that
    // product are those of the sum. What is below `unit`, which divides the rest and the weight of luma, never carries.
    template <int weight, int constant> ZORCC_INLINE Halves halves(s16v v)
    {
        if constexpr (constant == 0 && weight >= -32768 && weight < 32768) {
            const s16v w = fill16(weight);
            return {mulHigh(v, w), (u16v)v * (u16v)w};
        }
        constexpr int whole = weight >> 16, rest = weight & 0xffff;
        constexpr int unit = std::min({rest & -rest, k.y & -k.y, 65536});
        constexpr int t = offsetOf(rest, constant & (65536 - unit));
        static_assert(t >= 0 && t + 255 < 65536);
        constexpr int high = (constant >> 16) - static_cast<int>(int64_t{rest} * t >> 16);
        const u16v x = (u16v)(v + fill16(static_cast<int16_t>(t))), factor = (u16v)fill16(static_cast<int16_t>(rest));
        return {(s16v)mulHigh(x, factor) + (times<whole>(v) + fill16(high)), x * factor};
    }

    // The least t with rest t = fraction modulo 65536.
    static constexpr int offsetOf(int rest, int fraction)
    {
        for (int t = 0; t < 65536; ++t)
            if (((int64_t{rest} * t - fraction) & 0xffff) == 0) return t;
        return -1;
    }

    // With 1 less in the high half, to which a comparison adds -1 where nothing is carried.
    ZORCC_INLINE Halves sumLessOne(const Halves& a, const Halves& b)
    {
        const u16v low = a.low + b.low;
        return {a.high + b.high + (s16v)(max(low, a.low) == low), low};
    }

    ZORCC_INLINE Chroma limited(const Halves& sum) { return {sum.high, (s16v)(sum.low ^ 0x7fff)}; }

    // The sum without its fraction.
    ZORCC_INLINE s16v whole(const Halves& y, const Chroma& c)
    {
        return addOneWhere(y.high + c.high, (s16v)(y.low ^ 0x8000), c.carryLimit);
    }
};

// ---- all of them ----------------------------------------------------------------------------------------------------

// The formula for chroma that pixels share.
template <ToRgb k>
using SharedChromaToRgb = std::conditional_t<k.y == 65536, SharedChromaOnWholeLuma<k>, SharedChromaOnScaledLuma<k>>;

template <ToRgb k> struct YccToRgb {
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& ycc) const { return FullChromaToRgb<k>{}(ycc); }

    template <int rows> [[gnu::always_inline]] auto prepare(const SubsampledWords<rows>& ycc) const
    {
        return SharedChromaToRgb<k>{}.prepare(ycc);
    }
    template <int rows> [[gnu::always_inline]] auto prepare(const Subsampled<rows>& ycc) const
    {
        return prepare(inWords(ycc));
    }
    template <class Prepared>
    [[gnu::always_inline]] auto operator()(const Prepared& ycc) const requires Takes<SharedChromaToRgb<k>, Prepared>
    {
        return SharedChromaToRgb<k>{}(ycc);
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER

#if defined(ZORCC_TIER_avx512)
    #include "lumachroma/common/avx512/ycc_to_rgb.h"
#endif
