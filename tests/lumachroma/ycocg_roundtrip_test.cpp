// SPDX-License-Identifier: MIT
// The reversible form comes back.
#include <gtest/gtest.h>

#include <string>

#include "tests/harness/family_test.h"

namespace zorcc::test {
namespace {

constexpr ZorSize size{4096, 16};

struct Pair {
    const char *there, *back;
};

class Reversible : public testing::TestWithParam<Pair> {};

TEST_P(Reversible, ComesBack)
{
    const interface::Function &there = *interface::findFunction(GetParam().there),
                              &back = *interface::findFunction(GetParam().back);
    Images images(there, size);
    TestImage result;
    result.arrange(*back.destination, size, size, {}, destinationSteps(back.signature));
    const auto expectBack = [&] {
        ASSERT_EQ(there(images.source.image(), images.destination.image(), size), zorStatusOk);
        ASSERT_EQ(back(images.destination.image(), result.image(), size), zorStatusOk);
        const reference::Pixels before(*there.source, images.source.image(), size),
            after(*back.destination, result.image(), size);
        reference::eachPixel(size, [&](int x, int y) {
            for (int c = 0; c < 3; ++c)
                ASSERT_EQ(after.get(c, x, y), before.get(c, x, y))
                    << "channel " << c << " of (" << x << ", " << y << ")";
        });
    };
    for (const Contents contents : allContents) {
        fill(images.source, contents, baseSeed());
        expectBack();
        if (HasFailure()) return;
    }
    if (there.source->sample != interface::Sample::u8) return;
    reference::Pixels source(*there.source, images.source.image(), size);
    for (int first = 0; first < 1 << 24 && !HasFailure(); first += size.width * size.height) {
        reference::eachPixel(size, [&](int x, int y) {
            const int colour = first + y * size.width + x;
            for (int c = 0; c < 3; ++c) source.put(c, x, y, colour >> 8 * c & 255);
        });
        expectBack();
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, Reversible,
                         testing::Values(Pair{"zoriBGRToYCoCg_Rev_8u16s_C3P3R", "zoriYCoCgToBGR_Rev_16s8u_P3C3R"},
                                         Pair{"zoriSBGRToYCoCg_Rev_16s_C3P3R", "zoriYCoCgToSBGR_Rev_16s_P3C3R"},
                                         Pair{"zoriSBGRToYCoCg_Rev_16s32s_C4P3R", "zoriYCoCgToSBGR_Rev_32s16s_P3C4R"}),
                         [](const auto& pair) { return std::string(pair.param.there); });

} // namespace
} // namespace zorcc::test
