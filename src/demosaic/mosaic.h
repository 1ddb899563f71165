// SPDX-License-Identifier: MIT
// Where the colours of a Bayer mosaic are. A row holds green and one other colour, red or blue, in turn: the other
// colour's pixels are the row's *sites*.
#pragma once

#include <stddef.h>

#include "demosaic/region.h"
#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// What a driver is to do: fill `dst` with the region of the mosaic.
template <class Sample> struct Job {
    const Sample* src;
    ptrdiff_t srcStep;
    ZorSize size;
    Region region;
    Sample* dst;
    ptrdiff_t dstStep;
    ZorBayerGrid grid;
};

struct RowColours {
    bool red;         // the sites are red, not blue
    bool sitesAreOdd; // they lie in the odd columns

    bool isSite(int x) const { return (x & 1) == sitesAreOdd; }
};

// Of row y of an image whose first cell is `grid`.
ZORCC_INLINE RowColours rowColours(ZorBayerGrid grid, int y)
{
    const bool odd = (y & 1) != 0;
    return {(grid == zorBayerRGGB || grid == zorBayerGRBG) != odd,
            (grid == zorBayerGBRG || grid == zorBayerGRBG) != odd};
}

// A sample of an image whose rows are `step` bytes apart.
template <class Sample> ZORCC_INLINE Sample* sampleAt(Sample* p, ptrdiff_t step, int x, int y)
{
    return (Sample*)((uintptr_t)p + (uintptr_t)(step * y)) + x;
}

// The index inside 0 .. count - 1 that stands for one outside: the image is mirrored at its first and last pixel, which
// keeps every colour at its place in the mosaic.
ZORCC_INLINE int mirrored(int i, int count)
{
    for (;;) {
        if (i < 0)
            i = -i;
        else if (i >= count)
            i = 2 * (count - 1) - i;
        else
            return i;
    }
}

// All bits in the even elements, or in the odd ones.
template <class V> ZORCC_INLINE V alternate(bool odd)
{
    V mask = {};
    for (size_t i = 0; i < sizeof(V) / sizeof(mask[0]); ++i) mask[i] = (i & 1) == odd ? ~mask[i] : mask[i];
    return mask;
}

// Bit by bit: a where the mask is set, otherwise b.
template <class V> ZORCC_INLINE V blend(V mask, V a, V b)
{
#if defined(ZORCC_TIER_avx512)
    return (V)_mm512_ternarylogic_epi32(reg(mask), reg(a), reg(b), 0xca);
#elif defined(ZORCC_TIER_avx2)
    return (V)_mm256_blendv_epi8(reg(b), reg(a), reg(mask));
#else
    return (a & mask) | (b & ~mask);
#endif
}

} // namespace
} // namespace zorcc::ZORCC_TIER
