// SPDX-License-Identifier: MIT
#include "frame/memory.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "core_stand_in.h"

namespace zorcc::test {
namespace {

template <class Element> void expectBlocksOf(Element* (*allocate)(int count))
{
    constexpr int bytes = sizeof(Element);
    const int before = liveBlocks();
    for (const int count : {1, 2, 31, 32, 33, 1024, 70000}) {
        Element* const block = allocate(count);
        ASSERT_TRUE(block) << count;
        EXPECT_EQ(lastAllocation(), count * bytes);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 64, 0u);
        EXPECT_EQ(liveBlocks(), before + 1);
        zorsFree(block);
        EXPECT_EQ(liveBlocks(), before);
    }
    // Counts that make no size. Four times 2^30 + 1 is 4 modulo 2^32.
    for (const int count : {0, -1, INT_MIN, INT_MIN / bytes, INT_MAX / bytes + 1, (1 << 30) + 1, INT_MAX})
        EXPECT_FALSE(allocate(count)) << count;
    const AllocationFailure failure(0);
    EXPECT_FALSE(allocate(10));
    EXPECT_EQ(liveBlocks(), before);
}

TEST(Memory, BlocksOfEveryElement)
{
    expectBlocksOf(zorsMalloc_16s);
    expectBlocksOf(zorsMalloc_16u);
    expectBlocksOf(zorsMalloc_32f);
    zorsFree(nullptr);
}

} // namespace
} // namespace zorcc::test
