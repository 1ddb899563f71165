// SPDX-License-Identifier: MIT
#include "tests/reference/case.h"

#include <algorithm>
#include <utility>

#include "tests/reference/dither.h"

namespace zorcc::reference {

using interface::Alpha;

namespace {

// The pixels of a region that are inside an image; all of it where there is no region.
ZorRect inside(const interface::Extra& extra, ZorSize size)
{
    const ZorRect region = extra.region.value_or(ZorRect{0, 0, size.width, size.height});
    const int x0 = std::max(region.x, 0), y0 = std::max(region.y, 0);
    const auto x1 = std::min<std::int64_t>(size.width, std::int64_t{region.x} + region.width);
    const auto y1 = std::min<std::int64_t>(size.height, std::int64_t{region.y} + region.height);
    if (x0 >= x1 || y0 >= y1) return {};
    return {x0, y0, static_cast<int>(x1 - x0), static_cast<int>(y1 - y0)};
}

// Regions of one mosaic follow each other in tests: the last picture is kept.
void convertRegion(Demosaic demosaic, const Pixels& from, Pixels& to, const interface::Extra& extra)
{
    Mosaic mosaic{from.size(), static_cast<ZorBayerGrid>(extra.grid), static_cast<int>(from.white())};
    eachPixel(from.size(), [&](int x, int y) { mosaic(x, y) = from.get(0, x, y); });
    static Demosaic last = nullptr;
    static Mosaic lastMosaic{};
    static Picture picture{};
    if (last != demosaic || lastMosaic != mosaic) picture = demosaic(mosaic);
    last = demosaic;
    lastMosaic = std::move(mosaic);
    const ZorRect region = inside(extra, from.size());
    for (int c = 0; c < 3; ++c)
        eachPixel(to.size(), [&](int x, int y) { to.put(c, x, y, picture(region.x + x, region.y + y, c)); });
}

} // namespace

DestinationSize destinationSize(const Case& c, ZorSize size, const interface::Extra& extra)
{
    const ZorSize used = usedSize(c, size);
    if (!c.demosaic) return {size, used};
    const ZorRect region = inside(extra, used);
    return {{region.width, region.height}, {region.width, region.height}};
}

void convert(const Case& c, const interface::Function& function, const interface::Image& source,
             const interface::Image& destination, ZorSize size, const interface::Extra& extra)
{
    const ZorSize used = usedSize(c, size), written = destinationSize(c, size, extra).used;
    if (written.width == 0 || written.height == 0) return;
    const Pixels from(*function.source, source, used);
    Pixels to(*function.destination, destination, written);
    if (c.demosaic) return convertRegion(c.demosaic, from, to, extra);
    if (c.imageReference) return c.imageReference(function, from, to, extra);
    if (function.dithers) return dither(c.reference, from, to);
    c.reference(from, to);
    if (function.alpha == Alpha::none || function.alpha == Alpha::keep) return;
    eachPixel(used, [&](int x, int y) {
        to.put(alpha, x, y,
               function.alpha == Alpha::copy       ? from.get(alpha, x, y)
               : function.alpha == Alpha::argument ? extra.alpha
                                                   : 0);
    });
}

} // namespace zorcc::reference
