// SPDX-License-Identifier: MIT
// CIE XYZ from linear RGB and back. Words and floats by the matrices in single precision, words truncated; bytes in
// fixed point, rounded down, the same as the sums in 32 bits.
#pragma once

#include "colormodels/common/cie.h"
#include "lumachroma/common/rgb_to_ycc.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Sample> struct RgbToXyz : OnIntegers<Sample, RgbToXyzFloats, Truncated> {
};
template <> struct RgbToXyz<float> : RgbToXyzFloats {
};
template <> struct RgbToXyz<int16_t> : SignedSamples<RgbToXyz> {
};

template <class Sample> struct XyzToRgb : OnIntegers<Sample, XyzToRgbFloats, Truncated> {
};
template <> struct XyzToRgb<float> : WithinUnit<XyzToRgbFloats> {
};
template <> struct XyzToRgb<int16_t> : SignedSamples<XyzToRgb> {
};

// ---- bytes ----------------------------------------------------------------------------------------------------------

// Weights in units of 1/32768 of X, and of 1/65536 of the others. Those of Z add up to more than one, so that the whole
// of B is added in 16 bits.
template <Weights y, Weights z> struct RgbBytesToXyz {
    [[gnu::always_inline]] Pixels<3> operator()(const RgbBytes<1> auto& rgb) const
    {
        const RgbPairs<1> pairs = inPairs(rgb);
        const u8v rgLo = pairs.rg[0][0], bgLo = pairs.bg[0][0], rgHi = pairs.rg[0][1], bgHi = pairs.bg[0][1];
        constexpr Weights x = {13515, 11717, 5912};
        return {{{packUnsigned((s16v)(weigh<x>(rgLo, bgLo) >> 7), (s16v)(weigh<x>(rgHi, bgHi) >> 7)),
                  packWhole(weigh<y>(rgLo, bgLo), weigh<y>(rgHi, bgHi)),
                  packUnsigned(sumZ(rgLo, bgLo), sumZ(rgHi, bgHi))}}};
    }

private:
    ZORCC_INLINE s16v sumZ(u8v rg, u8v bg)
    {
        return firstOfPairs(bg) + ((s16v)weigh<Weights{z.r, z.g, z.b - 65536}>(rg, bg) >> 8);
    }
};

// The whole blocks of a row have weights in units of 1/32768, here doubled, the pixels after them of 1/65536.
constexpr Weights doubled(int r, int g, int b) { return {2 * r, 2 * g, 2 * b}; }
template <template <Weights y, Weights z> class Formula>
using InXyzBlocks = InBlocks<8, Formula<doubled(6969, 23434, 2365), doubled(634, 3906, 31137)>,
                             Formula<Weights{13937, 46868, 4729}, Weights{1267, 7811, 62274}>>;
using RgbToXyzOfBytes = InXyzBlocks<RgbBytesToXyz>;

// Weights in units of 1/8192: whole multiples of channels in 16 bits, and a rest that `weigh` takes in units of
// 1/32768, so that it stays within a signed number.
template <> struct XyzToRgb<uint8_t> {
    [[gnu::always_inline]] Pixels<3> operator()(const Pixels<3>& xyz) const
    {
        const auto [x, y, z] = xyz.c[0];
        const u8v xyLo = zipLow(x, y), zyLo = zipLow(z, y), xyHi = zipHigh(x, y), zyHi = zipHigh(z, y);
        return {{{channel<Weights{26546, -12591, -4083}>(xyLo, zyLo, xyHi, zyHi),
                  channel<Weights{-7939, 15368, 340}>(xyLo, zyLo, xyHi, zyHi),
                  channel<Weights{456, -1671, 8661}>(xyLo, zyLo, xyHi, zyHi)}}};
    }

private:
    static constexpr int wholeOf(int k) { return (k + 4096) >> 13; }
    static constexpr int restOf(int k) { return 4 * (k - 8192 * wholeOf(k)); }

    template <Weights w> ZORCC_INLINE s16v sum(u8v xy, u8v zy)
    {
        constexpr Weights rest = {restOf(w.r), restOf(w.g), restOf(w.b)};
        return times<wholeOf(w.r)>(firstOfPairs(xy)) + times<wholeOf(w.g)>(secondOfPairs(xy)) +
               times<wholeOf(w.b)>(firstOfPairs(zy)) + ((s16v)weigh<rest>(xy, zy) >> 7);
    }

    template <Weights w> ZORCC_INLINE u8v channel(u8v xyLo, u8v zyLo, u8v xyHi, u8v zyHi)
    {
        return packUnsigned(sum<w>(xyLo, zyLo), sum<w>(xyHi, zyHi));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER

#if defined(ZORCC_TIER_avx512)
    #include "colormodels/avx512/xyz.h"
#endif
