// SPDX-License-Identifier: MIT
// Steps of the planes of an image, in bytes, as the drivers take them.
#pragma once

#include <stddef.h>

namespace zorcc {

struct PlaneSteps {
    ptrdiff_t of[3];
};

inline PlaneSteps planeSteps(const int* step) { return {{step[0], step[1], step[2]}}; }

// Of an 8-bit interleaved image of three channels whose rows follow each other without gaps.
inline ptrdiff_t contiguousC3(int width) { return 3 * static_cast<ptrdiff_t>(width); }

// Of 8-bit planes whose rows follow each other without gaps; chroma has half the columns, rounded down.
inline PlaneSteps contiguousHalfWidthChroma(int width) { return {{width, width / 2, width / 2}}; }

// The planes and steps of an image whose second plane is Cr and third is Cb, in the order Y, Cb, Cr that the drivers
// expect.
template <class Byte> struct PlanePointers {
    Byte* of[3];

    operator Byte* const*() const { return of; }
};
template <class Byte> PlanePointers<Byte> crFirst(Byte* const* plane) { return {{plane[0], plane[2], plane[1]}}; }
inline PlaneSteps crFirst(const int* step) { return {{step[0], step[2], step[1]}}; }

} // namespace zorcc
