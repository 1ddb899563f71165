// SPDX-License-Identifier: MIT
// The same bytes whatever the number of threads, and from several threads at once.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/harness/family_test.h"
#include "tests/harness/thread_count.h"

namespace zorcc::test {
namespace {

class Threads : public FamilyTest {};

TEST_P(Threads, AnyNumber)
{
    for (const int threads : {1, 2, 3, 4, 5, 6, 7, 8, 40}) {
        const OnThreads chosen(threads);
        for (const ZorSize size : {ZorSize{65, 37}, {641, 203}, {128, 160}, {128, 129}, {130, 140}, {196, 196}})
            ASSERT_TRUE(checker.check({size, {Steps::sample}, {Steps::sample}})) << threads << " threads";
    }
}

TEST_P(Threads, CallsAtTheSameTime)
{
    constexpr ZorSize size{320, 8};
    constexpr int callers = 4, calls = 50;
    std::vector<Images> images;
    for (std::uint32_t caller = 0; caller < callers; ++caller) {
        auto& [source, destination] = images.emplace_back(function, size);
        fill(source, Contents::random, caller);
        destination.fillPattern(caller);
        if (function.signature.inPlace) fill(destination, Contents::random, caller);
        destination.copyToShadow();
        reference::convert(GetParam(), function, source.image(), destination.shadow(), size);
    }
    std::vector<std::thread> threads;
    for (std::uint32_t caller = 0; caller < callers; ++caller)
        threads.emplace_back([&, caller] {
            auto& [source, destination] = images[caller];
            for (int i = 0; i < calls; ++i) {
                if (function.signature.inPlace) fill(destination, Contents::random, caller);
                static_cast<void>(function(source.image(), destination.image(), size));
            }
        });
    for (std::thread& thread : threads) thread.join();
    for (const Images& own : images) EXPECT_EQ(own.destination.difference(), std::nullopt);
}

ZORCC_FOR_EVERY_FUNCTION(Threads);

} // namespace
} // namespace zorcc::test
