// SPDX-License-Identifier: MIT
// Every allocation made to fail in turn: zorStatusNoMemory, nothing written, nothing kept.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/frame/core_stand_in.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

struct Use {
    ZorDitherMethod method;
    int noise;
    int allocations;
};

// Noise takes two tables and two generators, error diffusion the rows of errors.
constexpr Use uses[] = {
    {zorDitherMethodNone, 0, 0},
    {zorDitherMethodNone, 50, 0},
    {zorDitherMethodOrdered, 0, 0},
    {zorDitherMethodOrdered, 50, 4},
    {zorDitherMethodFloydSteinberg, 0, 1},
    {zorDitherMethodFloydSteinberg, 50, 5},
    {zorDitherMethodJarvisJudiceNinke, 0, 1},
    {zorDitherMethodJarvisJudiceNinke, 50, 5},
    {zorDitherMethodStucki, 0, 1},
    {zorDitherMethodStucki, 50, 5},
};

TEST(ReduceMemory, EveryAllocationMayFail)
{
    const std::vector<std::uint16_t> source(3 * 100 * 3, 12345);
    const std::vector<std::uint8_t> before(source.size(), 99);
    for (const Use& use : uses)
        for (int failing = 0; failing <= use.allocations; ++failing) {
            std::vector<std::uint8_t> destination = before;
            const AllocationFailure failure(failing);
            const ZorStatus status = zoriReduceBits_16u8u_C3R(source.data(), 600, destination.data(), 300, {100, 3},
                                                              use.noise, use.method, 2);
            const bool fails = failing < use.allocations;
            EXPECT_EQ(status, fails ? zorStatusNoMemory : zorStatusOk)
                << "method " << use.method << ", noise " << use.noise << ", allocation " << failing;
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
