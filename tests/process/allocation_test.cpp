// SPDX-License-Identifier: MIT
// Every allocation of every function made to fail in turn, and every thread that the runtime starts.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <vector>

#include "tests/frame/core_stand_in.h"
#include "tests/harness/thread_count.h"
#include "tests/process/prepared_call.h"
#include "tests/reduce/methods.h"

namespace {

[[maybe_unused]] constexpr int never = -1;
[[maybe_unused]] std::atomic<int> threadsStarted = 0, untilNoThread = never;

} // namespace

#ifndef ZORCC_SANITIZED // whose runtimes stand in for it themselves
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*), void* argument)
{
    static const auto create = reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    ++threadsStarted;
    if (untilNoThread != never && untilNoThread-- == 0) return EAGAIN;
    return create(thread, attributes, run, argument);
}
#endif

namespace zorcc::test {
namespace {

constexpr ZorSize size{200, 196};

TEST(AllocationFailures, GiveTheirStatusAndNothingIsWritten)
{
    int failures = 0;
    for (const interface::Function& function : interface::functions())
        for (const ZorDitherMethod method : methods) {
            if (method != plain && function.family != "Bit-depth reduction") continue;
            PreparedCall call(function, size, method);
            call.prepare();
            call.expectThisAgain();
            for (int failing = 0;; ++failing) {
                const AllocationFailure failure(failing);
                const ZorStatus status = call();
                EXPECT_EQ(liveBlocks(), 0) << function.name;
                if (status != zorStatusNoMemory) break;
                ASSERT_TRUE(call.isAsExpected()) << function.name << ", allocation " << failing;
                ++failures;
            }
        }
    EXPECT_GE(failures, 32 * (3 * 5 + 4)); // of bit-depth reduction alone
}

// A table of all words pays in images of more than 65536 samples.
TEST(AllocationFailures, DoNotMeetGammaOfSmallImages)
{
    std::vector<std::uint16_t> image(3 * 21846, 9);
    for (const auto& gamma : {zoriGammaFwd_16u_C3IR, zoriGammaInv_16u_C3IR})
        for (const int width : {21845, 21846}) {
            const AllocationFailure failure(0);
            EXPECT_EQ(gamma(image.data(), 6 * width, {width, 1}), width == 21845 ? zorStatusOk : zorStatusNoMemory);
        }
}

// Rows of errors that no int can count. The sizes are never reached: nothing is read.
TEST(AllocationFailures, OfRowsThatAreTooLong)
{
    const std::uint8_t pixel[] = {1, 2, 3, 4};
    std::uint8_t result[] = {9, 9, 9, 9};
    for (const ZorDitherMethod method : diffusions)
        for (const int width : {1 << 29, 1 << 30, INT_MAX})
            EXPECT_EQ(zoriReduceBits_8u_C4R(pixel, 4, result, 4, {width, 1}, 0, method, 2), zorStatusNoMemory);
    EXPECT_EQ(std::count(result, result + 4, 9), 4);
    EXPECT_EQ(liveBlocks(), 0);
}

#if !defined(ZORCC_SANITIZED) && !defined(__clang__) // which has another OpenMP runtime
// As zorcore.h says: the runtime ends the process, and with one thread it is not asked for any.
TEST(ThreadFailuresDeathTest, EndTheProcessWithAMessage)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (int failing = 0; failing < 3; ++failing)
        EXPECT_EXIT(
            {
                static_cast<void>(zorSetNumThreads(4));
                PreparedCall call(*interface::findFunction("zoriRGBToHLS_8u_C3R"), size);
                untilNoThread = failing;
                call();
                std::_Exit(0);
            },
            testing::ExitedWithCode(1), "Thread creation failed");
}

TEST(ThreadFailures, NeverMeetASingleThread)
{
    const OnThreads one(1);
    const int startedBefore = threadsStarted;
    for (const interface::Function& function : interface::functions()) PreparedCall(function, size)();
    EXPECT_EQ(threadsStarted, startedBefore);
}
#endif

} // namespace
} // namespace zorcc::test
