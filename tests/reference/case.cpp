// SPDX-License-Identifier: MIT
#include "tests/reference/case.h"

#include <algorithm>

namespace zorcc::reference {

using interface::Alpha;

namespace {

// Regions of one mosaic follow each other in tests: the last picture is kept.
const Picture& pictureOf(Demosaic demosaic, const Mosaic& mosaic)
{
    static Demosaic lastDemosaic = nullptr;
    static Mosaic last{};
    static Picture picture{};
    if (lastDemosaic != demosaic || last != mosaic) {
        picture = demosaic(mosaic);
        last = mosaic;
        lastDemosaic = demosaic;
    }
    return picture;
}

void convertRegion(const Case& c, const Pixels& from, Pixels& to, ZorRect region, int grid)
{
    Mosaic mosaic{{from.width(), from.height()},
                  static_cast<ZorBayerGrid>(grid),
                  from.sample() == interface::Sample::u8 ? 255 : 65535};
    for (int y = 0; y < from.height(); ++y)
        for (int x = 0; x < from.width(); ++x) mosaic(x, y) = from.get(0, x, y);
    const Picture& picture = pictureOf(c.demosaic, mosaic);
    for (int y = 0; y < region.height; ++y)
        for (int x = 0; x < region.width; ++x)
            for (int channel = 0; channel < 3; ++channel)
                to.put(channel, x, y, picture(region.x + x, region.y + y, channel));
}

ZorRect regionOf(ZorSize size, const interface::Extra& extra)
{
    return inside(extra.region.value_or(ZorRect{0, 0, size.width, size.height}), size);
}

} // namespace

ZorRect inside(ZorRect region, ZorSize size)
{
    const int x0 = std::max(region.x, 0), y0 = std::max(region.y, 0);
    const auto x1 = std::min<std::int64_t>(size.width, std::int64_t{region.x} + region.width);
    const auto y1 = std::min<std::int64_t>(size.height, std::int64_t{region.y} + region.height);
    if (x0 >= x1 || y0 >= y1) return {};
    return {x0, y0, static_cast<int>(x1 - x0), static_cast<int>(y1 - y0)};
}

DestinationSize destinationSize(const Case& c, ZorSize size, const interface::Extra& extra)
{
    const ZorSize used = usedSize(c, size);
    if (!c.demosaic) return {size, used};
    const ZorRect region = regionOf(used, extra);
    return {{region.width, region.height}, {region.width, region.height}};
}

void convert(const Case& c, const interface::Function& function, const interface::Image& source,
             const interface::Image& destination, ZorSize size, const interface::Extra& extra)
{
    const ZorSize used = usedSize(c, size), written = destinationSize(c, size, extra).used;
    if (written.width == 0 || written.height == 0) return;
    if (c.imageReference) return c.imageReference(function, source, destination, used, extra);
    const Pixels from(*function.source, source, used);
    Pixels to(*function.destination, destination, written);
    if (c.demosaic) return convertRegion(c, from, to, regionOf(used, extra), extra.grid);
    c.reference(from, to);
    if (function.alpha == Alpha::none || function.alpha == Alpha::keep) return;
    for (int y = 0; y < used.height; ++y)
        for (int x = 0; x < used.width; ++x)
            to.put(alpha, x, y,
                   function.alpha == Alpha::copy       ? from.get(alpha, x, y)
                   : function.alpha == Alpha::argument ? extra.alpha
                                                       : 0);
}

} // namespace zorcc::reference
