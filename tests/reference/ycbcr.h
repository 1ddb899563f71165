// SPDX-License-Identifier: MIT
// Scalar references of RGB and YCbCr: one for every formula, whatever the formats of source and destination.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// ITU-R BT.601, studio range
void rgbToBt601(const Pixels& source, Pixels& destination);
void rgbToBt601Pairs(const Pixels& source, Pixels& destination);  // 4:2:2
void rgbToBt601Blocks(const Pixels& source, Pixels& destination); // 4:2:0
void bt601ToRgb(const Pixels& source, Pixels& destination);
void bt601ToRgbPlanarWeights(const Pixels& source, Pixels& destination);
void bt601ToRgbPackedConstants(const Pixels& source, Pixels& destination);
void bt601ToRgb411(const Pixels& source, Pixels& destination);
void bt601ToRgbFiltered(const Pixels& source, Pixels& destination); // 4:2:0, chroma interpolated

// ITU-R BT.709, studio range
void rgbToBt709Blocks(const Pixels& source, Pixels& destination);
void bt709ToRgb(const Pixels& source, Pixels& destination);

// ITU-R BT.709, full range
void rgbToBt709FullPairs(const Pixels& source, Pixels& destination); // samples limited to 1..254
void rgbToBt709FullBlocks(const Pixels& source, Pixels& destination);
void bt709FullToRgb(const Pixels& source, Pixels& destination);

} // namespace zorcc::reference
