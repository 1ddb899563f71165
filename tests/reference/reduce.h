// SPDX-License-Identifier: MIT
// Bit-depth reduction as it is defined, sample by sample, row by row.
#pragma once

#include <cstdint>
#include <vector>

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// `count` numbers of the uniform generator with seed 0, before they are converted to a sample type.
std::vector<double> uniformNumbers(int count, double low, double high);

// Entry of the ordered-dither matrix, in steps.
float bayerThreshold(int x, int y);

// One sample by plain quantisation, and by ordered dithering with a threshold in steps, to a value of the destination's
// scale, which may still lie outside it. `white` is that of the source, `destinationWhite` that of the destination.
double plainValue(float sample, float white, float destinationWhite, int levels);
double thresholdValue(float sample, float threshold, float white, float destinationWhite, int levels);

// The greatest number of levels that a function takes.
int mostLevels(const interface::Function& function);

// A whole image.
void reduceBits(const interface::Function& function, const Pixels& source, Pixels& destination,
                const interface::Extra& extra);

} // namespace zorcc::reference
