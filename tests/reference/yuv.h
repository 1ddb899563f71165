// SPDX-License-Identifier: MIT
// Scalar references of RGB and YUV: one for every formula, whatever the formats of source and destination.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// 4:4:4
void rgbToYuv(const Pixels& source, Pixels& destination);
void rgbToYuvMatrix(const Pixels& source, Pixels& destination); // luma of the first whole blocks of 16 its own way
void yuvToRgb(const Pixels& source, Pixels& destination);
void yuvToRgbPlanarWeights(const Pixels& source, Pixels& destination); // every weight 1/65536 less

// Chroma of two neighbours of a row
void rgbToYuvPairs(const Pixels& source, Pixels& destination);

// Chroma of 2 x 2 pixels
void rgbToYuvBlocksQ14(const Pixels& source, Pixels& destination);
void rgbToYuvBlocksQ16(const Pixels& source, Pixels& destination); // rounded

// From subsampled images, chroma repeated
void subsampledYuvToRgb(const Pixels& source, Pixels& destination);
void subsampledYuvToRgbRounded(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
