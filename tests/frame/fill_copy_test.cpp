// SPDX-License-Identifier: MIT
#include "frame/fill_copy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <vector>

#include "core_stand_in.h"
#include "image_arguments.h"

namespace zorcc::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr size_t maxLength = 300, alignments = 16;
constexpr size_t memoryBytes = maxLength + alignments + 80; // more than a block beside every row
constexpr uint8_t untouched = 0xcd;

// Rows at some distance from an inaccessible page, so that those without any must stay inside their pages.
TEST(Rows, EveryLengthAndAlignment)
{
    for (const Edge edge : edges) {
        const GuardedBuffer source(memoryBytes, edge), target(memoryBytes, edge);
        // No two neighbours, nor bytes that are a power of two from each other, are equal; never `untouched`.
        for (size_t i = 0; i < memoryBytes; ++i) source.data()[i] = static_cast<uint8_t>((i + 9) % 199);
        for (const Stores stores : {Stores::ordinary, Stores::nonTemporal})
            for (size_t to = 0; to < alignments; ++to)
                for (size_t from = 0; from < alignments; ++from)
                    for (size_t length = 0; length <= maxLength; ++length) {
                        const auto offset = [&](size_t distance) {
                            return edge == Edge::start ? distance : memoryBytes - length - distance;
                        };
                        const uint8_t* const src = source.data() + offset(from);
                        uint8_t* const dst = target.data() + offset(to);
                        Bytes wanted(memoryBytes, untouched);
                        std::fill_n(target.data(), memoryBytes, untouched);
                        std::copy_n(src, length, wanted.data() + offset(to));
                        copyBytes(src, dst, length, stores);
                        ASSERT_TRUE(std::equal(wanted.begin(), wanted.end(), target.data()))
                            << length << " bytes copied from " << from << " to " << to;
                        std::fill_n(wanted.data() + offset(to), length, uint8_t{0x42});
                        fillBytes(0x42, dst, length, stores);
                        ASSERT_TRUE(std::equal(wanted.begin(), wanted.end(), target.data()))
                            << length << " bytes filled at " << to;
                    }
    }
}

void arrange(TestImage& image, ZorSize size, const Arrangement& arrangement, uint32_t seed)
{
    image.arrange(interface::formats::grey8, size, size, arrangement, StepArguments::one);
    image.fillPattern(seed);
    image.copyToShadow();
}

void expectLikeShadow(const TestImage& image)
{
    const auto difference = image.difference();
    ASSERT_FALSE(difference) << *difference << ", " << image.size().width << " x " << image.size().height;
}

void expectFilled(ZorSize size, const Arrangement& arrangement)
{
    TestImage target;
    arrange(target, size, arrangement, 1);
    for (int y = 0; y < size.height; ++y) std::memset(rowOf(target.shadow(), 0, y), 0x42, size.width);
    ASSERT_EQ(zoriSet_8u_C1R(0x42, rowOf(target.image(), 0, 0), target.image().step[0], size), zorStatusOk);
    expectLikeShadow(target);
}

void expectCopied(ZorSize size, const Arrangement& from, const Arrangement& to)
{
    TestImage source, target;
    arrange(source, size, from, 2);
    arrange(target, size, to, 1);
    const interface::Image &src = source.image(), &dst = target.image();
    for (int y = 0; y < size.height; ++y) std::memcpy(rowOf(target.shadow(), 0, y), rowOf(src, 0, y), size.width);
    ASSERT_EQ(zoriCopy_8u_C1R(rowOf(src, 0, 0), src.step[0], rowOf(dst, 0, 0), dst.step[0], size), zorStatusOk);
    expectLikeShadow(target);
}

TEST(SetAndCopy, ImagesWithAnySteps)
{
    for (const ZorSize size : {ZorSize{1, 1}, {1, 9}, {63, 3}, {64, 2}, {65, 5}, {200, 4}, {641, 7}})
        for (const Arrangement& to : everyArrangement()) {
            expectFilled(size, to);
            for (const Arrangement& from : everyArrangement()) expectCopied(size, from, to);
        }
}

TEST(Set, LargeImagesOnBothSidesOfTheCacheSize)
{
    for (const ZorStatus status : {zorStatusOk, zorStatusNothingDone})
        for (const int cacheBytes : {1, 606408, 606409, 606410, INT_MAX})
            for (const Steps steps : {Steps::tight, Steps::wide})
                for (const bool upwards : {false, true}) {
                    const CacheOf cache(cacheBytes, status);
                    expectFilled({1009, 601}, {steps, upwards}); // 606409 bytes
                }
}

TEST(Set, AsksForTheCacheSizeOfLargeImagesOnly)
{
    const struct {
        ZorSize size;
        int asked;
    } cases[] = {{{1024, 512}, 0}, {{512, 1024}, 0}, {{524288, 1}, 0},
                 {{524289, 1}, 1}, {{3, 174763}, 1}, {{1025, 512}, 1}};
    for (const auto& c : cases)
        for (const Steps steps : {Steps::tight, Steps::sample}) {
            const CacheOf cache(1 << 20);
            expectFilled(c.size, {steps});
            EXPECT_EQ(cache.timesAsked, c.asked) << c.size.width << " x " << c.size.height;
        }
}

TEST(SetAndCopy, StatusesInTheirOrder)
{
    const Bytes source(4);
    Bytes target(4, untouched);
    for (const auto& c : faultyArguments) {
        uint8_t* const dst = c.second ? target.data() : nullptr;
        EXPECT_EQ(zoriCopy_8u_C1R(c.first ? source.data() : nullptr, 2, dst, 2, c.size), c.status);
        EXPECT_EQ(c.first ? zoriSet_8u_C1R(5, dst, 2, c.size) : c.status, c.status);
    }
    EXPECT_EQ(target, Bytes(4, untouched));
}

} // namespace
} // namespace zorcc::test
