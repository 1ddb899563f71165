// SPDX-License-Identifier: MIT
// Luma-chroma images as the drivers take them: first pixels and steps in bytes of the planes Y, Cb, Cr, or of Y and
// interleaved chroma pairs, or of one packed plane.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace zorcc {

template <class Byte> struct SampledImage {
    Byte* plane[3];
    ptrdiff_t step[3];
};

using SampledSource = SampledImage<const uint8_t>;
using SampledDestination = SampledImage<uint8_t>;

} // namespace zorcc
