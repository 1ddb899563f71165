// SPDX-License-Identifier: MIT
// Every allocation made to fail in turn: zorStatusNoMemory, nothing written, nothing kept.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/frame/core_stand_in.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

constexpr ZorDitherMethod methods[] = {zorDitherMethodNone, zorDitherMethodFloydSteinberg,
                                       zorDitherMethodJarvisJudiceNinke, zorDitherMethodStucki, zorDitherMethodOrdered};

// Noise takes two tables and two generators, where the method takes noise; error diffusion the rows of errors.
int allocationsFor(ZorDitherMethod method, int noise)
{
    const bool diffuses = method != zorDitherMethodNone && method != zorDitherMethodOrdered;
    return (noise > 0 && method != zorDitherMethodNone ? 4 : 0) + diffuses;
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
                const ZorStatus status =
                    zoriReduceBits_16u8u_C3R(source.data(), 600, destination.data(), 300, {100, 3}, noise, method, 2);
                const bool fails = failing < allocationsFor(method, noise);
                EXPECT_EQ(status, fails ? zorStatusNoMemory : zorStatusOk)
                    << "method " << method << ", noise " << noise << ", allocation " << failing;
                EXPECT_EQ(destination == before, fails);
                EXPECT_EQ(liveBlocks(), 0);
            }
}

// Rows of errors that no int can count. The sizes are never reached: nothing is read.
TEST(ReduceMemory, RowsOfErrorsMayBeTooLong)
{
    std::uint8_t pixel[4] = {1, 2, 3, 4}, result[4] = {9, 9, 9, 9};
    for (const int method : {1, 2, 3})
        for (const int width : {1 << 29, 1 << 30, 2147483647})
            EXPECT_EQ(
                zoriReduceBits_8u_C4R(pixel, 4, result, 4, {width, 1}, 0, static_cast<ZorDitherMethod>(method), 2),
                zorStatusNoMemory);
    EXPECT_TRUE(std::all_of(result, result + 4, [](int byte) { return byte == 9; }));
    EXPECT_EQ(liveBlocks(), 0);
}

} // namespace
} // namespace zorcc::test
