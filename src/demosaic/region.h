// SPDX-License-Identifier: MIT
// What the exported demosaicing functions share: their checks, and the part of the image that they fill.
#pragma once

#include "frame/convert.h"

namespace zorcc {

// The part of a rectangle that lies inside the image.
struct Region {
    int x0, y0, x1, y1; // the first pixel inside, the first after it

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

// The smallest image has `minSize` pixels on each side.
template <class... Arguments>
ZorStatus demosaic(int minSize, DriverWith<const Region&, ZorBayerGrid, Arguments...>& driver, const Image& from,
                   const Image& to, ZorSize size, ZorRect rect, ZorBayerGrid grid,
                   std::type_identity_t<Arguments>... arguments)
{
    if (const ZorStatus status = check({.minimum = {minSize, minSize}}, from, to, size); status < 0) return status;
    if (static_cast<uint32_t>(grid) > zorBayerGRBG) return zorStatusBadArgument;
    const Region region = regionInside(rect, size);
    if (!region.empty()) driver(from, to, size, region, grid, arguments...);
    return zorStatusOk;
}

} // namespace zorcc
