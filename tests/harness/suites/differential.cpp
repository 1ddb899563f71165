// SPDX-License-Identifier: MIT
// Every function against its reference, over sizes, arrangements and contents.
#include <gtest/gtest.h>

#include <vector>

#include "tests/harness/family_test.h"
#include "tests/harness/thread_count.h"

namespace zorcc::test {
namespace {

using reference::Case;

// Heights around those of the first blocks.
std::vector<int> smallHeights(const Case& c)
{
    std::vector<int> heights = {1, 2, 3, 4, 5};
    for (const int height : {c.minimum.height - 1, c.minimum.height, 2 * c.minimum.height + 1, 3 * c.minimum.height})
        if (height > heights.back()) heights.push_back(height);
    return heights;
}

class Differential : public FamilyTest {};

// On one thread: to fork a team for each of thousands of small images would take longer than all the rest.
TEST_P(Differential, EveryWidth)
{
    const OnThreads one(1);
    for (int width = 1; width <= 200; ++width)
        for (const int height : smallHeights(GetParam())) {
            if (HasFailure()) break;
            EXPECT_TRUE(arrangements.check(checker, {width, height}));
        }
}

TEST_P(Differential, LongRows)
{
    const int height = smallHeights(GetParam()).back();
    for (const int width : {255, 256, 257, 511, 512, 513, 640, 641})
        ASSERT_TRUE(arrangements.check(checker, {width, height}));
    for (const int width : {640, 641})
        for (const Contents contents : allContents) ASSERT_TRUE(checker.check({{width, height}, {}, {}, contents}));
}

TEST_P(Differential, Picture)
{
    for (const ZorSize size : {ZorSize{1921, 65}, ZorSize{333, 302}, ZorSize{1236, 64}}) {
        ASSERT_TRUE(checker.check({size, {Steps::wide}, {Steps::sample, true}, Contents::random, baseSeed()}));
        ASSERT_TRUE(checker.check({size, {Steps::sample, true}, {Steps::tight}, Contents::runs, baseSeed()}));
    }
}

TEST_P(Differential, TallColumn)
{
    for (int width = 1; width <= 4; ++width)
        for (const int height : {5001, 5000})
            ASSERT_TRUE(
                checker.check({{width, height}, {Steps::sample}, {Steps::tight}, Contents::random, baseSeed()}));
}

// Row times step passes what an int can hold.
TEST_P(Differential, HugeSteps)
{
    if (!function.signature.steps) GTEST_SKIP() << "takes no steps";
    for (const int width : {1, 33, 200})
        for (const bool upwards : {false, true}) {
            const Arrangement near{Steps::sample}, far{Steps::huge, upwards};
            const int height = smallHeights(GetParam()).back();
            ASSERT_TRUE(checker.check({{width, height}, far, near, Contents::random, baseSeed()}));
            ASSERT_TRUE(checker.check({{width, height}, near, far, Contents::random, baseSeed()}));
        }
}

TEST_P(Differential, InPlace)
{
    if (!hasImagesOfOneShape(function)) GTEST_SKIP() << "images of two shapes";
    for (int width = 1; width <= 200; ++width)
        for (const Steps steps : {Steps::tight, Steps::wide, Steps::isolated})
            for (const Edge edge : edges) {
                const Arrangement image = arrangements.any(steps, edge);
                ASSERT_TRUE(checker.check({.size = {width, 3},
                                           .source = image,
                                           .destination = image,
                                           .seed = arrangements.anySeed(),
                                           .inPlace = true}));
            }
}

ZORCC_FOR_EVERY_FUNCTION(Differential);

} // namespace
} // namespace zorcc::test
