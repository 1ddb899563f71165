// SPDX-License-Identifier: MIT
// What no function of the table does, because nothing is computed: samples change places, from one format to another
// with the same colours and the same chroma sampling. Channels are reordered, planes interleaved and divided, grey is
// repeated, alpha added (opaque) or left out, samples are scaled to another type, packed bits cut and filled.
#pragma once

#include "convert/catalogue.h"

namespace zorcc::conversion {

using interface::Image;

// Whether samples of one format can be moved to another. Red, green, blue and grey are left to functions where they
// become 8 bits, unless they are truncated.
bool canMove(const Format& from, const Format& to, bool truncate);

// For each plane of `to` the plane of `from` that is the same, so that it need not be moved; -1 where there is none.
struct SamePlanes {
    int of[interface::maxPlanes] = {-1, -1, -1, -1};

    bool any() const { return of[0] >= 0 || of[1] >= 0 || of[2] >= 0 || of[3] >= 0; }
};
SamePlanes samePlanes(const Format& from, const Format& to);

// Bytes of 16 pixels that are read and written, without the planes that are the same.
int movedBytes(const Format& from, const Format& to, const SamePlanes& same);

// Moves an image whose size is whole groups of shared chroma. Planes of `to` that are those of `from` stay.
void move(const Format& from, const Image& source, const Format& to, const Image& destination, ZorSize size,
          bool truncate);

// Alpha alone; without a source it becomes opaque.
void moveAlpha(const Format& from, const Image* source, const Format& to, const Image& destination, ZorSize size,
               bool truncate);

// An image of `size`, of which `filled` pixels are given, has its last samples repeated to the right and downwards.
void repeatEdges(const Format& format, const Image& image, ZorSize filled, ZorSize size);

// Rows of a plane of bytes.
void copyRows(const void* from, std::ptrdiff_t fromStep, void* to, std::ptrdiff_t toStep, std::size_t bytes, int rows);

} // namespace zorcc::conversion
