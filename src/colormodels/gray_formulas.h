// SPDX-License-Identifier: MIT
// Weighted sums of three channels: in integers for bytes, otherwise in single precision in the order of the channels.
#pragma once

#include "colormodels/gray_rows.h"
#include "pixels/float_pipeline.h"
#include "pixels/layouts.h"
#include "simd/word_pairs.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- bytes ----------------------------------------------------------------------------------------------------------

// Interleaved bytes for sums of pairs.
template <int bytes> struct InWordPairs : Lines<Line{{bytes}}> {
    [[gnu::always_inline]] WordPairs load(int x) const { return loadWordPairs<bytes>(this->at(0, x)); }
};

// (w0 c0 + w1 c1 + w2 c2 + 2048) >> 12, saturated, by weights below 2^15.
class ByteGray {
public:
    [[gnu::always_inline]] explicit ByteGray(const ByteGrayWeights& w)
        : first(fillPair16(w.of[0], w.of[1])), second(fillPair16(w.of[2], 2048))
    {
    }

    [[gnu::always_inline]] Samples<uint8_t, 1> operator()(const WordPairs& from) const
    {
        Widened<4> sum;
        for (int p = 0; p < 4; ++p)
            sum.part[p] = mulAddPairs(mulAddPairs(from.second[p], second), from.first[p], first) >> 12;
        return {{{narrowPixels(sum)}}};
    }

private:
    s16v first, second;
};

// The same by any weights: the sum has up to 26 bits.
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
