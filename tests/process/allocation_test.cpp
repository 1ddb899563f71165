// SPDX-License-Identifier: MIT
// Every allocation of every function made to fail in turn, and every thread that the runtime starts.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>

#include "tests/frame/core_stand_in.h"
#include "tests/process/calls.h"
#include "zorcore.h"

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
constexpr ZorDitherMethod methods[] = {zorDitherMethodNone, zorDitherMethodFloydSteinberg,
                                       zorDitherMethodJarvisJudiceNinke, zorDitherMethodStucki, zorDitherMethodOrdered};

TEST(AllocationFailures, GiveTheirStatusAndNothingIsWritten)
{
    int failures = 0;
    for (const interface::Function& function : interface::functions())
        for (const ZorDitherMethod method : methods) {
            if (method != zorDitherMethodNone && function.family != "Bit-depth reduction") continue;
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
    RecordProperty("failures", failures);
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
    const int before = ownGetNumThreads(), startedBefore = threadsStarted;
    static_cast<void>(zorSetNumThreads(1));
    for (const interface::Function& function : interface::functions()) PreparedCall(function, size)();
    EXPECT_EQ(threadsStarted, startedBefore);
    static_cast<void>(zorSetNumThreads(before));
}
#endif

} // namespace
} // namespace zorcc::test
