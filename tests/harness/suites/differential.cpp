// SPDX-License-Identifier: MIT
// Every function against its reference, over sizes, arrangements and contents.
#include <gtest/gtest.h>

#include <vector>

#include "tests/harness/family_test.h"
#include "zorcore.h"

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

// On one thread: to fork a team for each of so many small images would take longer than all the rest.
TEST_P(Differential, EveryWidth)
{
    const int before = ownGetNumThreads();
    ASSERT_EQ(zorSetNumThreads(1), zorStatusOk);
    for (int width = 1; width <= 200; ++width)
        for (const int height : smallHeights(GetParam())) {
            if (HasFailure()) break;
            EXPECT_TRUE(arrangements.check(checker, {width, height}));
        }
    ASSERT_EQ(zorSetNumThreads(before), zorStatusOk);
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

// Where both images have one shape they may be the same image.
TEST_P(Differential, InPlace)
{
    const interface::Format &from = *function.source, &to = *function.destination;
    bool sameShape = from.sample == to.sample && from.layout == to.layout && from.planes == to.planes;
    for (int p = 0; p < from.planes; ++p)
        sameShape = sameShape && from.plane[p].samples == to.plane[p].samples &&
                    from.plane[p].log2X == to.plane[p].log2X && from.plane[p].log2Y == to.plane[p].log2Y;
    if (!sameShape) GTEST_SKIP() << "images of two shapes";
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
