// SPDX-License-Identifier: MIT
// Mosaics through a function of the library.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "tests/harness/cases.h"
#include "tests/harness/test_image.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {

using reference::green;
using reference::Mosaic;
using reference::Picture;
using Rgb = std::array<int, 3>;

inline constexpr ZorBayerGrid grids[] = {zorBayerBGGR, zorBayerRGGB, zorBayerGBRG, zorBayerGRBG};

inline Rgb at(const Picture& picture, int x, int y) { return {picture(x, y, 0), picture(x, y, 1), picture(x, y, 2)}; }

// What the function makes of a whole mosaic, the same on every tier.
inline Picture run(std::string_view name, const Mosaic& mosaic)
{
    const interface::Function& function = *interface::findFunction(name);
    auto [source, destination] = Images(function, mosaic.size);
    reference::Pixels from(*function.source, source.image(), mosaic.size);
    reference::eachPixel(mosaic.size, [&](int x, int y) { from.put(0, x, y, mosaic(x, y)); });
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        EXPECT_EQ(function(source.image(), destination.image(), mosaic.size, {.grid = mosaic.grid}), zorStatusOk);
        if (tier == tiersHere().front()) destination.copyToShadow();
        EXPECT_FALSE(destination.difference()) << nameOf(tier);
    }
    Picture picture{mosaic.size};
    const reference::Pixels to(*function.destination, destination.image(), mosaic.size);
    reference::eachPixel(mosaic.size, [&](int x, int y) {
        for (int c = 0; c < 3; ++c) picture(x, y, c) = to.get(c, x, y);
    });
    return picture;
}

// A mosaic of samples that are given by their place.
template <class Sample> Mosaic mosaicOf(ZorSize size, ZorBayerGrid grid, int maximum, Sample sample)
{
    Mosaic mosaic{size, grid, maximum};
    reference::eachPixel(size, [&](int x, int y) { mosaic(x, y) = sample(x, y); });
    return mosaic;
}

} // namespace zorcc::test
