// SPDX-License-Identifier: MIT
// How coefficient sets between RGB and luma-chroma models are written down. Units are 1/65536 unless stated.
#pragma once

namespace zorcc {

// Weights of R, G and B (or of any three channels) in a sum.
struct Weights {
    int r, g, b;
};

// From luma and two chroma channels, the first of which drives B and the second R. Each channel is its weighted sum
// plus a constant, shifted down by 16, saturated to 0..255.
struct ToRgb {
    int y;      // of luma, for all channels
    int r;      // R from the second chroma channel
    int g1, g2; // G from the first and the second, both to be subtracted
    int b;      // B from the first
    int constantR, constantG, constantB;
};

// Chroma centred on 128, luma starting at `black`; `rounding` is 0 to round down, 32768 to nearest.
constexpr ToRgb centred(int y, int r, int g1, int g2, int b, int black, int rounding)
{
    const int luma = rounding - black * y;
    return {y, r, g1, g2, b, luma - 128 * r, luma + 128 * (g1 + g2), luma - 128 * b};
}

} // namespace zorcc
