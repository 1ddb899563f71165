// SPDX-License-Identifier: MIT
// Without memory for a table large images of words give zorStatusNoMemory; small ones need none.
#include <gtest/gtest.h>

#include <vector>

#include "tests/frame/core_stand_in.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

TEST(GammaMemory, TheTable)
{
    constexpr int small = 21845, large = 21846; // pixels; 65536 samples lie between them
    for (const auto& gamma : {zoriGammaFwd_16u_C3IR, zoriGammaInv_16u_C3IR}) {
        const std::vector<std::uint16_t> before(3 * large, 9);
        std::vector<std::uint16_t> image = before;
        const AllocationFailure failure(0);
        EXPECT_EQ(gamma(image.data(), 6 * small, {small, 1}), zorStatusOk);
        EXPECT_NE(image, before);
        image = before;
        EXPECT_EQ(gamma(image.data(), 6 * large, {large, 1}), zorStatusNoMemory);
        EXPECT_EQ(image, before);
        EXPECT_EQ(gamma(image.data(), 6 * large, {large, 1}), zorStatusOk);
        EXPECT_EQ(lastAllocation(), 131072);
        EXPECT_NE(image, before);
        EXPECT_EQ(liveBlocks(), 0);
    }
}

} // namespace
} // namespace zorcc::test
