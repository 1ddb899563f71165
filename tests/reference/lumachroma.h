// SPDX-License-Identifier: MIT
// Scalar references of RGB with luma and chroma: one for every formula, whatever the formats of source and destination.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// ---- from RGB, at every chroma sampling -----------------------------------------------------------------------------

void rgbToYuv(const Pixels& source, Pixels& destination);
void rgbToYuvQ14(const Pixels& source, Pixels& destination);    // weights of 14 bits
void rgbToYuvMatrix(const Pixels& source, Pixels& destination); // luma of the first whole blocks of 16 its own way

void rgbToBt601(const Pixels& source, Pixels& destination);
void rgbToBt601By8ths(const Pixels& source, Pixels& destination); // chroma of whole groups alone
void rgbToBt709(const Pixels& source, Pixels& destination);
void rgbToBt709Full(const Pixels& source, Pixels& destination); // 4:2:2: samples limited to 1..254

// ---- to RGB ---------------------------------------------------------------------------------------------------------

// A channel is its weighted sum plus a constant, / 65536.
struct Weights {
    int y, rCr, gCb, gCr, bCb, r, g, b;
};

// Chroma from -128 to 127.
constexpr Weights centred(int y, int rCr, int gCb, int gCr, int bCb, int offset)
{
    return {y, rCr, gCb, gCr, bCb, offset - 128 * rCr, offset + 128 * gCb + 128 * gCr, offset - 128 * bCb};
}

inline constexpr Weights yuvWeights = centred(65536, 74711, 25821, 38076, 133169, 0),
                         yuvPlanarWeights = centred(65536, 74710, 25820, 38075, 133168, 0), // each 1/65536 less
    yuvRoundedWeights = centred(65536, 74711, 25821, 38076, 133169, 32768);

inline constexpr Weights bt601Weights = centred(76284, 104595, 25690, 53281, 132186, -1220544),
                         bt601PlanarWeights = centred(76282, 104593, 25689, 53279, 132184, -1220512),
                         bt601FoldedWeights = {76284, 104595, 25690, 53281, 132186, -14608761, 8887730, -18140365},
                         bt601RoundedWeights = centred(76282, 104593, 25689, 53279, 132184, 32768 - 1220512),
                         bt601Weights411 = centred(76294, 104595, 25625, 53281, 132186, -1220704);

inline constexpr Weights bt709Weights = centred(76284, 117506, 13959, 34996, 138609, 32768 - 1220544),
                         bt709FullWeights = centred(65536, 100925, 11993, 30081, 119013, 32768);

// Chroma repeated for the pixels that share it.
void toRgb(const Pixels& source, Pixels& destination, const Weights& weights);
template <Weights weights> void toRgb(const Pixels& source, Pixels& destination)
{
    toRgb(source, destination, weights);
}

// The colours as they are.
void copyRgb(const Pixels& source, Pixels& destination);

// 4:2:0, chroma interpolated.
void bt601ToRgbFiltered(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
