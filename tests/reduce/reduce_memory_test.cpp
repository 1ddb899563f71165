// SPDX-License-Identifier: MIT
// Every allocation made to fail in turn: zorStatusNoMemory, nothing written, nothing kept.
#include <gtest/gtest.h>

#include <vector>

#include "tests/frame/core_stand_in.h"
#include "tests/reduce/methods.h"

namespace zorcc::test {
namespace {

// Noise takes two tables and two generators, where the method takes noise; error diffusion the rows of errors and what
// its threads work in.
int allocationsFor(ZorDitherMethod method, int noise)
{
    return (noise > 0 && method != plain ? 4 : 0) + (method != plain && method != ordered ? 2 : 0);
}

TEST(ReduceMemory, EveryAllocationMayFail)
{
    const std::vector<std::uint16_t> source(3 * 100 * 3, 12345);
    const std::vector<std::uint8_t> before(source.size(), 99);
    for (const ZorDitherMethod method : methods)
        for (const int noise : {0, 50})
            for (int failing = 0; failing <= allocationsFor(method, noise); ++failing) {
                std::vector<std::uint8_t> destination = before;
                const AllocationFailure failure(failing);
                const bool fails = failing < allocationsFor(method, noise);
                EXPECT_EQ(
                    zoriReduceBits_16u8u_C3R(source.data(), 600, destination.data(), 300, {100, 3}, noise, method, 2),
                    fails ? zorStatusNoMemory : zorStatusOk)
                    << "method " << method << ", noise " << noise << ", allocation " << failing;
                EXPECT_EQ(destination == before, fails);
                EXPECT_EQ(liveBlocks(), 0);
            }
}

// Rows of errors that no int can count. The sizes are never reached: nothing is read.
TEST(ReduceMemory, RowsOfErrorsMayBeTooLong)
{
    const std::vector<std::uint8_t> pixel = {1, 2, 3, 4}, before(4, 9);
    std::vector<std::uint8_t> result = before;
    for (const ZorDitherMethod method : diffusions)
        for (const int width : {1 << 29, 1 << 30, 2147483647})
            EXPECT_EQ(zoriReduceBits_8u_C4R(pixel.data(), 4, result.data(), 4, {width, 1}, 0, method, 2),
                      zorStatusNoMemory);
    EXPECT_EQ(result, before);
    EXPECT_EQ(liveBlocks(), 0);
}

} // namespace
} // namespace zorcc::test
