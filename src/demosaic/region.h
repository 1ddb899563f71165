// SPDX-License-Identifier: MIT
// What the exported demosaicing functions share: their checks, and the part of the image that they fill.
#pragma once

#include <stdint.h>

#include "frame/checks.h"

namespace zorcc {

// The checks in their order. The smallest image has `minSize` pixels on each side.
[[nodiscard]] inline ZorStatus checkMosaic(const void* src, const void* dst, ZorSize size, int minSize,
                                           ZorBayerGrid grid)
{
    if (!src || !dst) return zorStatusNullPointer;
    if (const ZorStatus status = checkSize(size, minSize, minSize); status != zorStatusOk) return status;
    return static_cast<uint32_t>(grid) > zorBayerGRBG ? zorStatusBadArgument : zorStatusOk;
}

// The part of a rectangle that lies inside the image.
struct Region {
    int x0, y0, x1, y1; // the first pixel inside, the first behind

    bool empty() const { return x0 >= x1 || y0 >= y1; }
};

inline Region regionInside(ZorRect rect, ZorSize size)
{
    const auto inside = [](int64_t position, int limit) {
        return static_cast<int>(position < 0 ? 0 : position > limit ? limit : position);
    };
    return {inside(rect.x, size.width), inside(rect.y, size.height), inside(int64_t{rect.x} + rect.width, size.width),
            inside(int64_t{rect.y} + rect.height, size.height)};
}

} // namespace zorcc
