// SPDX-License-Identifier: MIT
// Where the colours of a Bayer mosaic are. The pixels of a row are green and one other colour, red or blue, in turn:
// the other colour's pixels are the row's *sites*.
#pragma once

#include "demosaic/demosaic_rows.h"
#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

struct RowColours {
    bool red;         // the sites are red, not blue
    bool sitesAreOdd; // they lie in the odd columns

    bool isSite(ptrdiff_t x) const { return (x & 1) == sitesAreOdd; }
};

template <class Sample> struct MosaicOf : Mosaic {
    const Sample* row(ptrdiff_t y) const { return (const Sample*)from.row(0, y); }
    Sample* pixel(int x, int y) const { return (Sample*)to.row(0, y - region.y0) + ptrdiff_t{3} * (x - region.x0); }

    RowColours colours(ptrdiff_t y) const // a row that may lie outside the image
    {
        const bool odd = (y & 1) != 0;
        return {(grid == zorBayerRGGB || grid == zorBayerGRBG) != odd,
                (grid == zorBayerGBRG || grid == zorBayerGRBG) != odd};
    }
};

// The index inside 0 .. count - 1 that stands for one outside: the image is mirrored at its first and last pixel, which
// keeps every colour at its place in the mosaic.
ZORCC_INLINE ptrdiff_t mirrored(ptrdiff_t i, ptrdiff_t count)
{
    while (i < 0 || i >= count) i = i < 0 ? -i : 2 * (count - 1) - i;
    return i;
}

// Calls strip(first column, columns) for strips of `width` columns of a region, from left to right; the last may be
// narrower. A region may end at the greatest int.
template <int width, class Strip> ZORCC_INLINE void eachStripOf(const Region& region, Strip strip)
{
    for (ptrdiff_t x = region.x0; x < region.x1; x += width) {
        const ptrdiff_t columns = region.x1 - x;
        strip(static_cast<int>(x), columns < width ? static_cast<int>(columns) : width);
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
