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

Block allocate(int bytes) { return {static_cast<uint8_t*>(zorMalloc(bytes)), zorFree}; }

TEST(Malloc, BlocksLieOn64Bytes)
{
    for (const int bytes : {1, 2, 63, 64, 65, 100, 127, 128, 129, 4095, 4096, 4097, 1000003}) {
        const Block first = allocate(bytes), second = allocate(bytes);
        for (const Block* block : {&first, &second}) {
            ASSERT_TRUE(*block) << bytes;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(block->get()) % 64, 0u) << bytes;
        }
        // Every byte belongs to its block alone.
        std::memset(first.get(), 0x5a, bytes);
        std::memset(second.get(), 0xa5, bytes);
        for (int i = 0; i < bytes; ++i) {
            ASSERT_EQ(first.get()[i], 0x5a) << bytes << " bytes, at " << i;
            ASSERT_EQ(second.get()[i], 0xa5) << bytes << " bytes, at " << i;
        }
    }
}

TEST(Malloc, NoBytesNoBlock)
{
    for (const int bytes : {0, -1, -64, INT_MIN}) EXPECT_FALSE(allocate(bytes)) << bytes;
}

TEST(Malloc, LargestSizes)
{
    void* const enough = std::aligned_alloc(64, size_t{1} << 31);
    std::free(enough);
    if (!enough) GTEST_SKIP() << "2 GiB of address space are not to be had";
    for (const int bytes : {INT_MAX, INT_MAX - 1, INT_MAX - 62, INT_MAX - 63, INT_MAX - 64}) {
        const Block block = allocate(bytes);
        ASSERT_TRUE(block) << bytes;
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block.get()) % 64, 0u) << bytes;
        block.get()[0] = 1;
        block.get()[bytes - 1] = 1;
    }
}

TEST(Free, IgnoresNull) { zorFree(nullptr); }

TEST(CacheSize, NullPointer) { EXPECT_EQ(zorGetMaxCacheSizeB(nullptr), zorStatusNullPointer); }

TEST(CacheSize, SameEveryTimeAndPlausible)
{
    int bytes = -1, again = -2;
    ASSERT_EQ(zorGetMaxCacheSizeB(&bytes), zorStatusOk);
    ASSERT_EQ(zorGetMaxCacheSizeB(&again), zorStatusOk);
    EXPECT_EQ(bytes, again);
    EXPECT_GE(bytes, 16 * 1024);
}

// What the kernel says of one cache, such as "coherency_line_size" or "size".
std::string kernelSays(int index, const char* what)
{
    std::ifstream file("/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index) + "/" + what);
    std::string text;
    file >> text;
    return text;
}

TEST(CacheSize, LargestOfThoseTheKernelLists)
{
    long long largest = 0;
    for (int index = 0; !kernelSays(index, "type").empty(); ++index) {
        if (kernelSays(index, "type") == "Instruction") continue;
        largest = std::max(largest, std::atoll(kernelSays(index, "size").c_str()) * 1024); // such as "2048K"
    }
    if (largest == 0) GTEST_SKIP() << "the kernel lists no caches";
    int bytes = 0;
    ASSERT_EQ(zorGetMaxCacheSizeB(&bytes), zorStatusOk);
    EXPECT_EQ(bytes, std::min<long long>(largest, INT_MAX));
}

// The count of a process is set once and read at load from the environment, so each case runs in a process of its own.
class Threads : public testing::Test {
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    void TearDown() override { unsetenv("OMP_NUM_THREADS"); }
};
using ThreadsDeathTest = Threads;

TEST_F(ThreadsDeathTest, EnvironmentDecidesUntilSet)
{
    for (const int count : {1, 3, 7}) {
        setenv("OMP_NUM_THREADS", std::to_string(count).c_str(), 1);
        EXPECT_EXIT(std::_Exit(ownGetNumThreads()), testing::ExitedWithCode(count), "");
    }
}

TEST_F(ThreadsDeathTest, SettingOverridesTheEnvironmentUnlessTheCountIsBad)
{
    setenv("OMP_NUM_THREADS", "3", 1);
    const struct {
        int set, count;
    } cases[] = {{5, 5}, {1, 1}, {0, 3}, {-2, 3}};
    for (const auto& c : cases)
        EXPECT_EXIT(
            {
                zorSetNumThreads(c.set);
                std::_Exit(ownGetNumThreads());
            },
            testing::ExitedWithCode(c.count), "");
}

TEST_F(Threads, SetAndGet)
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
}

TEST_F(Threads, CountIsTheProcesss)
{
    std::thread([] { EXPECT_EQ(zorSetNumThreads(6), zorStatusOk); }).join();
    EXPECT_EQ(ownGetNumThreads(), 6);
    std::thread([] { EXPECT_EQ(ownGetNumThreads(), 6); }).join();
}

} // namespace
