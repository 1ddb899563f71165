// SPDX-License-Identifier: MIT
// Scalar references of the changes of chroma sampling: one for every rule, whatever the formats of source and
// destination.
#pragma once

#include "tests/reference/pixels.h"

namespace zorcc::reference {

// A channel of an image by its samples instead of by pixels.
struct Samples {
    const Pixels& image;
    int channel;

    ZorSize shared() const { return image.shared(channel); }
    int columns() const { return image.width() / shared().width; }
    int rows() const { return image.height() / shared().height; }
    int at(int x, int y) const { return image.get(channel, x * shared().width, y * shared().height); }
    int nearest(int x, int y) const; // inside
};

// What sample (x, y) of a channel of the destination is.
using SampleRule = int(const Samples& from, const Samples& to, int x, int y);

// That of the pixel it starts at: columns and rows are kept, dropped or repeated.
SampleRule moved;

// Two rows of 4:1:1 chroma are the even and the odd columns of a row of 4:2:0.
SampleRule rearranged411As420, rearranged420As411;

// Odd rows of 4:2:2 chroma from four of 4:2:0.
SampleRule filteredOddRows;

// Each field on its own.
SampleRule mixedFields420, mixedFields422;

// Averages between samples.
SampleRule doubledColumnsAndRows;
SampleRule doubledColumns; // rows halved
SampleRule doubledRows;    // columns halved

// Low-passed vertically.
SampleRule deinterlacedLuma, deinterlacedChroma;

void resample(const Pixels& source, Pixels& destination, SampleRule& lumaRule, SampleRule& chromaRule);
template <SampleRule& chromaRule, SampleRule& lumaRule = moved> void resample(const Pixels& source, Pixels& destination)
{
    resample(source, destination, lumaRule, chromaRule);
}

} // namespace zorcc::reference
