// SPDX-License-Identifier: MIT
#include "frame/memory.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

#include "core_stand_in.h"

namespace zorcc::test {
namespace {

// One of the functions, with the element type forgotten.
struct Allocator {
    const char* name;
    int elementBytes;
    void* (*allocate)(int count);
};

const Allocator allocators[] = {
    {"zorsMalloc_16s", 2, [](int count) -> void* { return zorsMalloc_16s(count); }},
    {"zorsMalloc_16u", 2, [](int count) -> void* { return zorsMalloc_16u(count); }},
    {"zorsMalloc_32f", 4, [](int count) -> void* { return zorsMalloc_32f(count); }},
};

class Memory : public testing::TestWithParam<Allocator> {};

TEST_P(Memory, AsksForTheBytesOfItsElements)
{
    const Allocator& a = GetParam();
    const int before = liveBlocks();
    for (const int count : {1, 2, 31, 32, 33, 1024, 70000}) {
        void* const block = a.allocate(count);
        ASSERT_TRUE(block) << count;
        EXPECT_EQ(lastAllocation(), count * a.elementBytes);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 64, 0u);
        EXPECT_EQ(liveBlocks(), before + 1);
        zorsFree(block);
        EXPECT_EQ(liveBlocks(), before);
    }
}

TEST_P(Memory, NullForCountsThatMakeNoSize)
{
    const Allocator& a = GetParam();
    const int before = liveBlocks();
    // Four times 2^30 + 1 is 4 modulo 2^32.
    for (const int count :
         {0, -1, INT_MIN, INT_MIN / a.elementBytes, INT_MAX / a.elementBytes + 1, (1 << 30) + 1, INT_MAX})
        EXPECT_FALSE(a.allocate(count)) << count;
    EXPECT_EQ(liveBlocks(), before);
}

TEST_P(Memory, NullWhenMemoryIsOut)
{
    const AllocationFailure failure(0);
    EXPECT_FALSE(GetParam().allocate(10));
}

INSTANTIATE_TEST_SUITE_P(, Memory, testing::ValuesIn(allocators), [](const auto& test) { return test.param.name; });

TEST(MemoryFree, IgnoresNull) { zorsFree(nullptr); }

} // namespace
} // namespace zorcc::test
