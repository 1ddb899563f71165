// SPDX-License-Identifier: MIT
// Fill and copy of one-channel 8-bit images and rows. Source and destination must not overlap.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "zorcc/types.h"

namespace zorcc {

// Non-temporal stores bypass the caches: for images that are larger than the caches. They are ordered before the
// caller's later stores.
enum class Stores { ordinary, nonTemporal };

// One row of `length` bytes.
void copyBytes(const uint8_t* src, uint8_t* dst, size_t length, Stores stores);
// `height` rows of `width` bytes, rows without gaps as one.
void copyRows(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, size_t width, int height,
              Stores stores);
void fillBytes(uint8_t value, uint8_t* dst, size_t length, Stores stores);

// zorStatusNullPointer, zorStatusBadSize.
ZorStatus zoriCopy_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ZorSize roiSize);

// The same; images of at least the size of the largest cache are written with non-temporal stores.
ZorStatus zoriSet_8u_C1R(uint8_t value, uint8_t* dst, int dstStep, ZorSize roiSize);

} // namespace zorcc
