// SPDX-License-Identifier: MIT
// Files of one picture. Decoders give a format of pictureFormat(); encoders take any RGB or grey picture. Both throw
// Cause.
#pragma once

#include "../picture.h"
#include "atomic_file.h"
#include "input_file.h"

namespace zorcc::tool {

// The visible part in the format of a file, with a warning where that loses alpha or bits.
Picture toEncode(const AtomicFile& file, Picture picture, const Format& format);

// 1 to 16 bits, palettes, grey, alpha and interlaced files, as 8 or 16 bits.
Picture decodePng(InputFile& file);
void encodePng(AtomicFile& file, Picture picture);

// 8-bit grey and colour.
Picture decodeJpeg(InputFile& file);
// Quality 95, chroma in full resolution.
void encodeJpeg(AtomicFile& file, Picture picture);

// PGM and PPM, binary and as text, scaled to 8 bits up to a maximum of 255, otherwise to 16 bits; PFM.
Picture decodePnm(InputFile& file);
void encodePgm(AtomicFile& file, Picture picture); // grey pictures only
void encodePpm(AtomicFile& file, Picture picture);
void encodePfm(AtomicFile& file, Picture picture); // full scale is 1.0

} // namespace zorcc::tool
