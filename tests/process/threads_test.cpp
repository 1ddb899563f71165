// SPDX-License-Identifier: MIT
// Callers' threads of all kinds: with small stacks, short lives, inside parallel regions.
#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <cstdlib>
#include <thread>
#include <vector>

#include "tests/harness/thread_count.h"
#include "tests/harness/tiers.h"
#include "tests/process/prepared_call.h"

namespace zorcc::test {
namespace {

constexpr ZorSize size{200, 196}; // enough for every function that shares out its work

#ifndef ZORCC_SANITIZED // which makes frames larger
// Calls work() on a thread that has a stack of `bytes` bytes, and waits for it.
template <class Work> void onStackOf(std::size_t bytes, Work work)
{
    pthread_attr_t attributes;
    pthread_t thread;
    pthread_attr_init(&attributes);
    if (pthread_attr_setstacksize(&attributes, bytes) != 0) std::abort();
    const auto run = [](void* w) -> void* {
        (*static_cast<Work*>(w))();
        return nullptr;
    };
    if (pthread_create(&thread, &attributes, run, &work) != 0) std::abort();
    pthread_attr_destroy(&attributes);
    pthread_join(thread, nullptr);
}

TEST(CallersThreads, WithSmallStacks)
{
    const OnThreads one(1);
    for (const interface::Function& function : interface::functions())
        for (const ZorDitherMethod method : {zorDitherMethodNone, zorDitherMethodOrdered, zorDitherMethodStucki}) {
            if (method != zorDitherMethodNone && function.family != "Bit-depth reduction") continue;
            PreparedCall call(function, size, method);
            for (const Tier tier : tiersHere()) {
                const OnTier chosen(tier);
                onStackOf(64 << 10, [&] { call(); });
                if (tier == tiersHere()[0])
                    call.expectThisAgain();
                else
                    ASSERT_TRUE(call.isAsExpected()) << function.name << " on " << nameOf(tier);
            }
        }
}
#endif

TEST(CallersThreads, WithShortLives)
{
    const OnThreads three(3);
    PreparedCall call(*interface::findFunction("zoriRGBToXYZ_16u_C3R"), size);
    call();
    call.expectThisAgain();
    for (int i = 0; i < 300; ++i) std::thread([&] { ASSERT_TRUE(call.givesTheSameAgain()); }).join();
}

TEST(CallersThreads, InsideParallelRegions)
{
    const OnThreads four(4);
    std::atomic<int> wrong = 0;
    const auto all = interface::functions();
#pragma omp parallel for num_threads(4) schedule(dynamic)
    for (std::size_t i = 0; i < all.size(); ++i) {
        PreparedCall call(all[i], size);
        call();
        call.expectThisAgain();
        std::thread([&] { wrong += !call.givesTheSameAgain(); }).join(); // outside the region, on threads
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace zorcc::test
