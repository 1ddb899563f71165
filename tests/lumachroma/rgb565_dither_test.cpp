// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/harness/family_test.h"
#include "tests/reference/dither.h"

namespace zorcc::test {
namespace {

using reference::Pixels;

// Grey of every level at every place of the matrix, from planes without colour: all fields of all formats.
TEST(Dither, EveryLevelAtEveryPlace)
{
    constexpr ZorSize size{4 * 256, 4};
    for (const interface::Function& function : interface::functions()) {
        if (!function.dithers || !function.name.starts_with("zoriYUV420To")) continue;
        Images images(function, size);
        Pixels from(*function.source, images.source.image(), size);
        reference::eachPixel(size, [&](int x, int y) {
            from.put(reference::luma, x, y, x / 4);
            for (const int c : {reference::chromaU, reference::chromaV}) from.put(c, x, y, 128);
        });
        for (const Tier tier : tiersHere()) {
            const OnTier chosen(tier);
            images.destination.fillPattern(1);
            ASSERT_EQ(function(images.source.image(), images.destination.image(), size), zorStatusOk);
            const Pixels to(*function.destination, images.destination.image(), size);
            const int outerBits = to.bits(reference::red);
            reference::eachPixel(size, [&](int x, int y) {
                for (int c = 0; c < 3; ++c) {
                    const int bits = to.bits(c);
                    ASSERT_EQ(to.get(c, x, y) >> (8 - bits), reference::ditheredField(x / 4, bits, outerBits, x, y))
                        << function.name << " on " << nameOf(tier) << ", level " << x / 4 << " at (" << x % 4 << ", "
                        << y << "), channel " << c;
                }
            });
        }
    }
}

} // namespace
} // namespace zorcc::test
