// SPDX-License-Identifier: MIT
// Row drivers of the support primitives: fills and copies that bypass the caches, and reductions.
#pragma once

#include "frame/convert.h"
#include "simd/tier.h"

namespace zorcc {

struct SupportRows {
    // At least `streamedBytes` bytes. The stores are ordered before the caller's later ones.
    void (&streamCopy)(const uint8_t* src, uint8_t* dst, size_t length);
    void (&streamFill)(uint8_t value, uint8_t* dst, size_t length);

    // Reduce a one-channel image of floats, as frame/reductions.h says.
    float (&maximum)(const Image& image, ZorSize size);
    double (&sum)(const Image& image, ZorSize size);
};

inline constexpr size_t streamedBytes = 256;

} // namespace zorcc

ZORCC_TABLE_OF_EACH_TIER(SupportRows, supportRows)
