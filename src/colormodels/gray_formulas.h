// SPDX-License-Identifier: MIT
// Weighted sums of three channels: in integers for bytes, otherwise in single precision in the order of the channels.
#pragma once

#include "colormodels/gray_rows.h"
#include "pixels/float_pipeline.h"
#include "pixels/layouts.h"
#if defined(ZORCC_TIER_avx512)
    #include "pixels/avx512/in_quads.h"
#endif

namespace zorcc::ZORCC_TIER {
namespace {

// ---- bytes ----------------------------------------------------------------------------------------------------------

// Weights with this sum at most give no more than 255. All that come from fractions with a sum of 1 do: each is rounded
// up by half a unit at most.
constexpr int greatestSum = 4104;
static_assert((greatestSum * 255 + 2048) >> 12 == 255);

// (w0 c0 + w1 c1 + w2 c2 + 2048) >> 12 in 16-bit lanes. With every weight as 64 high + low the sum is 64 H + L, so that
// the result is (H + (L >> 6)) >> 6.
class ByteGray {
public:
    [[gnu::always_inline]] explicit ByteGray(const ByteGrayWeights& w)
        : high01(fillPair8(w.of[0] >> 6, w.of[1] >> 6)), high2(fillPair8(w.of[2] >> 6, 0)),
          low01(fillPair8(w.of[0] & 63, w.of[1] & 63)), low2(fillPair8(w.of[2] & 63, 2048 / half))
    {
    }

    [[gnu::always_inline]] Samples<uint8_t, 1> operator()(const Samples<uint8_t>& from) const
    {
        const auto [a, b, c] = from.c[0];
        const u8v one = fill8(half);
        return {{{packUnsigned(sum(zipLow(a, b), zipLow(c, one)), sum(zipHigh(a, b), zipHigh(c, one)))}}};
    }

private:
    static constexpr int half = 32; // in a byte of its own beside the third channel

    s8v high01, high2, low01, low2;

    [[gnu::always_inline]] s16v sum(u8v ab, u8v c) const
    {
        const u16v low = (u16v)mulAddPairs(ab, low01) + (u16v)mulAddPairs(c, low2); // below 2^16, its terms below 2^15
        return (mulAddPairs(ab, high01) + mulAddPairs(c, high2) + (s16v)(low >> 6)) >> 6;
    }
};

#if defined(ZORCC_TIER_avx512)
// The same in 32-bit lanes, a pixel each, by dot products of bytes.
class ByteGrayInQuads {
public:
    [[gnu::always_inline]] explicit ByteGrayInQuads(const ByteGrayWeights& w)
        : high(coefficients(w.of[0] >> 6, w.of[1] >> 6, w.of[2] >> 6)),
          low(coefficients(w.of[0] & 63, w.of[1] & 63, w.of[2] & 63))
    {
    }

    [[gnu::always_inline]] Samples<uint8_t, 1> operator()(const PixelQuads<1>& from) const
    {
        s32v sum[4];
        for (int group = 0; group < 4; ++group) {
            const u8v pixels = from.group[0][group];
            sum[group] = mulAddQuads(mulAddQuads(fill32(2048), pixels, low) >> 6, pixels, high) << (16 - 6);
        }
        return {{{gather(sum)}}};
    }

private:
    s8v high, low;
    GatherColumns gather; // of byte 2

    // The fourth byte of a lane is the second channel again.
    ZORCC_INLINE s8v coefficients(int a, int b, int c) { return (s8v)fill32(a | b << 8 | c << 16); }
};

template <int perPixel> struct OnThisTier<Interleaved<uint8_t, perPixel, 3, Order::asStored>, ByteGray, C1<>> {
    using Source = InQuads<Interleaved<uint8_t, perPixel, 3, Order::asStored>>;
    using Formula = ByteGrayInQuads;
    using Destination = C1<>;
};
#endif

// The same by any weights, saturated: the sum has up to 26 bits.
struct ByteGrayByAnyWeights {
    ByteGrayWeights weights;

    [[gnu::always_inline]] Samples<uint8_t, 1> operator()(const Samples<uint8_t>& from) const
    {
        Widened<4> sum = {};
        for (int c = 0; c < 3; ++c) {
            const Widened<4> channel = widen(from.c[0][c]);
            for (int p = 0; p < 4; ++p) sum.part[p] += channel.part[p] * weights.of[c];
        }
        for (s32v& part : sum.part) part = (part + 2048) >> 12;
        return {{{narrow<uint8_t>(sum)}}};
    }
};

// ---- other samples --------------------------------------------------------------------------------------------------

class Gray {
public:
    [[gnu::always_inline]] explicit Gray(const GrayWeights& weights)
        : w{fillFloat(weights.of[0]), fillFloat(weights.of[1]), fillFloat(weights.of[2])}
    {
    }

    [[gnu::always_inline]] Samples<float, 1> operator()(const Samples<float>& from) const
    {
        const auto [a, b, c] = from.c[0];
        return {{{sum(a, b, c)}}};
    }

    [[gnu::always_inline]] Samples<uint16_t, 1> operator()(const Samples<uint16_t>& from) const
    {
        const auto [a, b, c] = from.c[0];
        return throughFloats<uint16_t>(
            [this](f32v x, f32v y, f32v z)
                __attribute__((always_inline)) { return Integers<1>{{roundSaturated<uint16_t>(sum(x, y, z))}}; },
            a, b, c);
    }

    // As their value plus 32768.
    [[gnu::always_inline]] Samples<int16_t, 1> operator()(const Samples<int16_t>& from) const
    {
        Samples<uint16_t> unsignedOnes;
        for (int c = 0; c < 3; ++c) unsignedOnes.c[0][c] = (u16v)from.c[0][c] ^ 0x8000;
        return {{{(s16v)(operator()(unsignedOnes).c[0][0] ^ 0x8000)}}};
    }

private:
    f32v w[3];

    [[gnu::always_inline]] f32v sum(f32v a, f32v b, f32v c) const { return w[0] * a + w[1] * b + w[2] * c; }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
