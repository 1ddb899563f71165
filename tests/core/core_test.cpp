// SPDX-License-Identifier: MIT
#include "zorcore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <thread>

namespace {

using Block = std::unique_ptr<uint8_t, decltype(&zorFree)>;

Block allocate(int bytes)
{
    Block block(static_cast<uint8_t*>(zorMalloc(bytes)), zorFree);
    EXPECT_EQ(block == nullptr, bytes < 1) << bytes;
    EXPECT_EQ(reinterpret_cast<uintptr_t>(block.get()) % 64, 0u) << bytes;
    return block;
}

TEST(Malloc, EveryByteBelongsToItsBlockAlone)
{
    for (const int bytes : {1, 2, 63, 64, 65, 100, 127, 128, 129, 4095, 4096, 4097, 1000003}) {
        const Block first = allocate(bytes), second = allocate(bytes);
        ASSERT_TRUE(first && second);
        std::memset(first.get(), 0x5a, bytes);
        std::memset(second.get(), 0xa5, bytes);
        EXPECT_EQ(std::count(first.get(), first.get() + bytes, 0x5a), bytes);
        EXPECT_EQ(std::count(second.get(), second.get() + bytes, 0xa5), bytes);
    }
    for (const int bytes : {0, -1, -64, INT_MIN}) allocate(bytes);
    zorFree(nullptr);
}

TEST(Malloc, LargestSizes)
{
    void* const enough = std::aligned_alloc(64, size_t{1} << 31);
    std::free(enough);
    if (!enough) GTEST_SKIP() << "2 GiB of address space are not to be had";
    for (const int bytes : {INT_MAX, INT_MAX - 1, INT_MAX - 62, INT_MAX - 63, INT_MAX - 64}) {
        const Block block = allocate(bytes);
        ASSERT_TRUE(block);
        block.get()[0] = block.get()[bytes - 1] = 1;
    }
}

TEST(CacheSize, LargestOfThoseTheKernelLists)
{
    EXPECT_EQ(zorGetMaxCacheSizeB(nullptr), zorStatusNullPointer);
    int bytes = 0;
    ASSERT_EQ(zorGetMaxCacheSizeB(&bytes), zorStatusOk);
    EXPECT_GE(bytes, 16 * 1024);
    long long largest = 0, kilobytes = 0; // sizes are such as "2048K"
    std::string type;
    for (int index = 0;; ++index) {
        const std::string cache = "/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index);
        if (!(std::ifstream(cache + "/type") >> type && std::ifstream(cache + "/size") >> kilobytes)) break;
        if (type != "Instruction") largest = std::max(largest, kilobytes * 1024);
    }
    if (largest == 0) GTEST_SKIP() << "the kernel lists no caches";
    EXPECT_EQ(bytes, std::min<long long>(largest, INT_MAX));
}

// The count is read at load from the environment, so each case runs in a process of its own.
TEST(ThreadsDeathTest, EnvironmentDecidesUntilACountIsSet)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const struct {
        const char* environment;
        int set, count;
    } cases[] = {{"1", 0, 1}, {"3", 0, 3}, {"7", -2, 7}, {"3", 5, 5}, {"3", 1, 1}};
    for (const auto& c : cases) {
        setenv("OMP_NUM_THREADS", c.environment, 1);
        EXPECT_EXIT(
            {
                if (c.set != 0) zorSetNumThreads(c.set); // a bad count changes nothing
                std::_Exit(ownGetNumThreads());
            },
            testing::ExitedWithCode(c.count), "");
    }
    unsetenv("OMP_NUM_THREADS");
}

TEST(Threads, SetAndGetForTheWholeProcess)
{
    EXPECT_GE(ownGetNumThreads(), 1);
    for (const int count : {1, 2, 17, 1000, INT_MAX, 4}) {
        EXPECT_EQ(zorSetNumThreads(count), zorStatusOk);
        EXPECT_EQ(ownGetNumThreads(), count);
    }
    for (const int count : {0, -1, INT_MIN}) {
        EXPECT_EQ(zorSetNumThreads(count), zorStatusBadArgument);
        EXPECT_EQ(ownGetNumThreads(), 4);
    }
    std::thread([] { EXPECT_EQ(zorSetNumThreads(6), zorStatusOk); }).join();
    EXPECT_EQ(ownGetNumThreads(), 6);
}

} // namespace
