// SPDX-License-Identifier: MIT
// The same bytes whatever the number of threads, and from several threads at once.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/harness/cases.h"
#include "tests/harness/checker.h"
#include "zorcore.h"

namespace zorcc::test {
namespace {

using reference::Case;

class Threads : public testing::TestWithParam<Case> {
protected:
    const int before = ownGetNumThreads();
    ~Threads() override { static_cast<void>(zorSetNumThreads(before)); }
};

TEST_P(Threads, AnyNumber)
{
    Checker checker(GetParam(), functionOf(GetParam()));
    for (const int threads : {1, 2, 3, 4, 5, 6, 7, 8, 40}) {
        ASSERT_EQ(zorSetNumThreads(threads), zorStatusOk);
        for (const ZorSize size : {ZorSize{65, 37}, {641, 203}, {128, 160}, {128, 129}, {130, 140}, {196, 196}})
            ASSERT_TRUE(checker.check({size, {Steps::sample}, {Steps::sample}})) << threads << " threads";
    }
}

TEST_P(Threads, CallsAtTheSameTime)
{
    const interface::Function& function = functionOf(GetParam());
    constexpr ZorSize size{320, 8};
    constexpr int callers = 4, calls = 50;
    TestImage source;
    source.arrange(*function.source, size, size, {}, sourceSteps(function.signature));
    fill(source, Contents::random, 1);
    TestImage destination[callers];
    for (TestImage& image : destination) {
        image.arrange(*function.destination, size, size, {}, destinationSteps(function.signature));
        image.fillPattern(1);
        image.copyToShadow();
        reference::convert(GetParam(), function, source.image(), image.shadow(), size);
    }
    std::vector<std::thread> threads;
    for (TestImage& image : destination)
        threads.emplace_back([&] {
            for (int i = 0; i < calls; ++i) static_cast<void>(function(source.image(), image.image(), size));
        });
    for (std::thread& thread : threads) thread.join();
    for (const TestImage& image : destination) {
        const auto difference = image.difference();
        EXPECT_FALSE(difference) << describe(*difference);
    }
}

INSTANTIATE_TEST_SUITE_P(Functions, Threads, testing::ValuesIn(familyCases().begin(), familyCases().end()),
                         caseName<testing::TestParamInfo<Case>>);

} // namespace
} // namespace zorcc::test
