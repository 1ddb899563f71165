// SPDX-License-Identifier: MIT
// Processes in which many threads are asked for, some of them with little address space.
#include <gtest/gtest.h>
#include <omp.h>
#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>

#include "tests/process/prepared_call.h"
#include "zorcore.h"

namespace zorcc::test {
namespace {

// Address space of this process, in bytes.
rlim_t mappedBytes()
{
    long pages = 0;
    std::FILE* const file = std::fopen("/proc/self/statm", "r");
    if (!file || std::fscanf(file, "%ld", &pages) != 1) std::abort();
    std::fclose(file);
    return static_cast<rlim_t>(pages) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

// To what is mapped now, the stacks of `threads` threads, and 440 MiB for all else.
[[maybe_unused]] void limitAddressSpace(int threads)
{
    pthread_attr_t attributes;
    std::size_t stackBytes = 0;
    if (pthread_getattr_default_np(&attributes) != 0 || pthread_attr_getstacksize(&attributes, &stackBytes) != 0)
        std::abort();
    const rlim_t bytes = mappedBytes() + static_cast<rlim_t>(threads) * stackBytes + (440 << 20);
    const rlimit limit{bytes, bytes};
    if (setrlimit(RLIMIT_AS, &limit) != 0) std::abort();
}

// Calls of every function for a process of its own; how many were not as `expected`.
int wrongCalls(int threads, ZorSize size)
{
    int wrong = 0;
    static_cast<void>(zorSetNumThreads(threads));
    for (const interface::Function& function : interface::functions()) wrong += PreparedCall(function, size)() < -6;
    return wrong;
}

struct LimitsDeathTest : testing::Test {
    LimitsDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(LimitsDeathTest, NoCountOfThreadsIsTooManyForAPixel)
{
    EXPECT_EXIT(std::_Exit(wrongCalls(INT_MAX, {1, 1})), testing::ExitedWithCode(0), "");
}

TEST_F(LimitsDeathTest, NoCountOfThreadsIsTooManyForAPicture)
{
    EXPECT_EXIT(std::_Exit(wrongCalls(INT_MAX, {300, 300})), testing::ExitedWithCode(0), "");
}

#ifndef ZORCC_SANITIZED // which maps terabytes
TEST_F(LimitsDeathTest, ManyThreadsInLittleAddressSpace)
{
    const int largestTeam = std::max(32, 4 * omp_get_num_procs());
    EXPECT_EXIT((limitAddressSpace(largestTeam), std::_Exit(wrongCalls(3 * largestTeam, {300, 300}))),
                testing::ExitedWithCode(0), "");
}
#endif

} // namespace
} // namespace zorcc::test
