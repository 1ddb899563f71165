// SPDX-License-Identifier: MIT
// Rows of samples that change places: loops that the compiler makes vectors of.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/tier.h"

namespace zorcc::convert {

// Pixels of three or four samples, of which the first three keep or reverse their order. A fourth one that the source
// does not have is the greatest.
using PixelMove = void(const void* from, void* to, int pixels);

// Samples between a row where they are `count` to a pixel and as many rows of one each.
using Split = void(const void* from, void* const to[], int pixels);
using Merge = void(const void* const from[], void* to, int pixels);

struct MoveRows {
    struct OfSample {
        PixelMove* pixels[2][2][2]; // [source has four][destination has four][reversed]
        Split* split[3];            // into 2, 3, 4
        Merge* merge[3];
    };
    OfSample bytes, words;
    // Between words of packed bits and bytes of three channels, which have the given bits, the first lowest.
    void (*unpack)(const void* from, void* to, int pixels, const int bits[3]);
    void (*pack)(const void* from, void* to, int pixels, const int bits[3]);
};

} // namespace zorcc::convert

ZORCC_TABLE_OF_EACH_TIER(convert::MoveRows, moveRows)
