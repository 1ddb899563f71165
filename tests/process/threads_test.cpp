// SPDX-License-Identifier: MIT
// Callers' threads of all kinds: with small stacks, short lives, inside parallel regions.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/harness/tiers.h"
#include "tests/process/calls.h"
#include "tests/process/small_threads.h"
#include "zorcore.h"

namespace zorcc::test {
namespace {

constexpr ZorSize size{200, 196}; // enough for every function that shares out its work

struct CallersThreads : testing::Test {
    const int before = ownGetNumThreads();
    ~CallersThreads() override { static_cast<void>(zorSetNumThreads(before)); }
};

#ifndef ZORCC_SANITIZED // which makes frames larger
TEST_F(CallersThreads, WithSmallStacks)
{
    constexpr std::size_t stack = 64 << 10;
    for (const interface::Function& function : interface::functions())
        for (const ZorDitherMethod method : {zorDitherMethodNone, zorDitherMethodOrdered, zorDitherMethodStucki}) {
            if (method != zorDitherMethodNone && function.family != "Bit-depth reduction") continue;
            PreparedCall call(function, size, method);
            static_cast<void>(zorSetNumThreads(1));
            for (const Tier tier : tiersHere()) {
                const OnTier chosen(tier);
                onStackOf(stack, [&] { call(); });
                if (tier == tiersHere()[0])
                    call.expectThisAgain();
                else
                    ASSERT_TRUE(call.isAsExpected()) << function.name << " on " << nameOf(tier);
            }
        }
}
#endif

TEST_F(CallersThreads, WithShortLives)
{
    static_cast<void>(zorSetNumThreads(3));
    PreparedCall call(*interface::findFunction("zoriRGBToXYZ_16u_C3R"), size);
    call();
    call.expectThisAgain();
    for (int i = 0; i < 300; ++i) std::thread([&] { ASSERT_TRUE(call.givesTheSameAgain()); }).join();
}

TEST_F(CallersThreads, InsideParallelRegions)
{
    static_cast<void>(zorSetNumThreads(4));
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
