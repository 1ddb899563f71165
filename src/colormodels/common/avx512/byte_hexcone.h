// SPDX-License-Identifier: MIT
// Hue and saturation of bytes without floats and without divisions, on AVX-512.
#pragma once

#include "simd/avx512/byte_quotients.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Bits 16 to 31 of x times 65536 a / b, rounded up, are x a / b, rounded down: for x and b up to 255 the error of less
// than x / 65536 is less than what any fraction with the denominator b lacks to the next integer.
constexpr WordsByByte in85ths{[](int divisor) { return quotientUp(65536 * 85, divisor); }};
constexpr WordsByByte beyondOne{[](int divisor) { return quotientUp(65536 * (255 - divisor), divisor); }};

// 255 v / divisor, rounded down, v not above the divisor. Single precision, truncated, gives the same for all bytes.
// 255 / divisor is 1 and a fraction.
ZORCC_INLINE u8v ratio(u8v v, u8v divisor)
{
    const Divisors by(divisor);
    const u8v scaled = by.scaled(v), none = {};
    u16v rest[2] = {(u16v)zipLow(scaled, none), (u16v)zipHigh(scaled, none)};
    by.multiply(rest, beyondOne);
    return scaled + packUnsigned((s16v)rest[0], (s16v)rest[1]);
}

// Where the model's own floats come out below the next byte although the exact hue is that byte. It can be only where
// the hue is a multiple of 1/85 of a sextant, and is the same for all colours of that hue. By half of the 85ths, those
// of even sextants rounded down, those of odd ones up: a bit for every sextant.
struct FallsShort {
    alignas(64) uint8_t sextants[64];

    // `hue(sextant, v, chroma)`: the model's hue of v / chroma of a sextant, 0 to 255.
    template <class Hue> constexpr explicit FallsShort(Hue hue) : sextants{}
    {
        for (int s = 0; s < 6; ++s)
            for (int v = s % 2; v <= 85; v += 2)
                if (static_cast<int>(hue(s, static_cast<float>(v), 85.0f)) < (85 * s + v) / 2)
                    sextants[(v + 1) / 2] = static_cast<uint8_t>(sextants[(v + 1) / 2] | 1 << s);
    }
};

// The hue of the sextant and of the share of it, v / chroma, rounded down to a byte.
ZORCC_INLINE u8v hueOf(const Hexcone<uint8_t>& cone, const FallsShort& fallsShort)
{
    const u8v even = ~lookUp(oddByOrder, cone.order);
    const u8v v = select(even, cone.middle - cone.smallest, cone.largest - cone.middle);
    const Divisors by(cone.chroma);
    const u8v scaled = by.scaled(v), none = {};
    // The quotient of 256 v, so that the result has eight bits after the point. They are zero where v / chroma is a
    // multiple of 1/85: the error is below one in 256 and other quotients are further than that from the integer below.
    u16v share[2] = {(u16v)zipLow(none, scaled), (u16v)zipHigh(none, scaled)};
    by.multiply(share, in85ths);
    const u8v whole = packUnsigned((s16v)(share[0] >> 8), (s16v)(share[1] >> 8)),
              fraction = packUnsigned((s16v)(share[0] & 0xff), (s16v)(share[1] & 0xff));
    // Half of (85 sextant + whole): an odd sextant leaves a half, which rounds up. In even ones the average is 128
    // more.
    const u8v half = averageUp(whole, even);
    const u8v hue = half + lookUp(bySextant<uint8_t>({128, 42, 128 + 85, 127, 128 + 170 - 256, 212}, 128), cone.order);
    const u8v sextant = lookUp(bySextant<uint8_t>({1, 2, 4, 8, 16, 32}), cone.order);
    return subOneWhere(hue, fraction, lookUp(fallsShort.sextants, half), sextant, whole ^ even);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
