// SPDX-License-Identifier: MIT
// Drivers of samples that change places.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc::conversion {

struct MoveRows {
    // Three channels and maybe alpha, which is opaque where it is new.
    struct OfPixels {
        Driver* of[2][2]; // [source has alpha][destination has alpha]
    };
    struct OfSample {
        OfPixels pixels, reversed; // channels in the same order, in reverse
        // Interleaved channels, and a plane for each: [all four].
        Driver *split[2], *merge[2];
    };
    OfSample bytes, words;
    Driver *splitPairs, *mergePairs; // two channels of bytes

    // Packed pixels, and bytes whose top bits are their fields, with the same channel first.
    struct OfBits {
        int digits; // bits of the fields, the lowest first: 565
        Driver *unpack, *pack;
    };
    OfBits bits[3];
};

} // namespace zorcc::conversion

ZORCC_TABLE_OF_EACH_TIER(conversion::MoveRows, moveRows)
