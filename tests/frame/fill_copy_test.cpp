// SPDX-License-Identifier: MIT
#include "frame/fill_copy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>

#include "core_stand_in.h"
#include "image_statuses.h"
#include "tests/harness/guarded.h"

namespace zorcc::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr Stores allStores[] = {Stores::ordinary, Stores::nonTemporal};
constexpr size_t maxLength = 300;
constexpr size_t margin = 80; // more than a block and an alignment
constexpr uint8_t untouched = 0xcd;

// No two neighbours, nor bytes that are a power of two from each other, are equal; never `untouched`.
uint8_t sourceByte(size_t i) { return static_cast<uint8_t>((i + 9) % 199); }

// Both functions of rows, and what they do. Filling takes the first byte of the source.
const struct {
    void (*write)(const uint8_t* src, uint8_t* dst, size_t length, Stores stores);
    void (*model)(const uint8_t* src, uint8_t* dst, size_t length);
} rowFunctions[] = {
    {ownccCopy_8u_C1_M7, [](const uint8_t* src, uint8_t* dst, size_t length) { std::copy_n(src, length, dst); }},
    {[](const uint8_t* src, uint8_t* dst, size_t length, Stores stores) {
         owniSet_8u_C1_M7(*src, dst, length, stores);
     },
     [](const uint8_t* src, uint8_t* dst, size_t length) { std::fill_n(dst, length, *src); }},
};

TEST(Rows, EveryLengthAndAlignment)
{
    alignas(64) uint8_t source[16 + maxLength], target[margin + 16 + maxLength + margin];
    for (size_t i = 0; i < sizeof source; ++i) source[i] = sourceByte(i);
    for (const auto& function : rowFunctions)
        for (const Stores stores : allStores)
            for (size_t to = margin; to < margin + 16; ++to)
                for (size_t from = 0; from < 16; ++from)
                    for (size_t length = 0; length <= maxLength; ++length) {
                        Bytes wanted(sizeof target, untouched);
                        std::copy(wanted.begin(), wanted.end(), target);
                        function.model(source + from, wanted.data() + to, length);
                        function.write(source + from, target + to, length, stores);
                        ASSERT_EQ(Bytes(std::begin(target), std::end(target)), wanted)
                            << length << " bytes from " << from << " to " << to;
                    }
}

TEST(Rows, StayInsideTheirPages)
{
    for (const auto& function : rowFunctions)
        for (const Stores stores : allStores)
            for (const Edge from : edges)
                for (const Edge to : edges)
                    for (size_t length = 1; length <= maxLength; ++length) {
                        const GuardedBuffer source(length, from), target(length, to);
                        for (size_t i = 0; i < length; ++i) source.data()[i] = sourceByte(i);
                        Bytes wanted(length);
                        function.model(source.data(), wanted.data(), length);
                        function.write(source.data(), target.data(), length, stores);
                        ASSERT_EQ(Bytes(target.data(), target.data() + length), wanted);
                    }
}

// An image in a larger block of bytes, all of it `untouched` at first.
struct Plane {
    Plane(ZorSize imageSize, int padding, bool upwards)
        : size(imageSize), pitch(imageSize.width + padding), step(upwards ? -pitch : pitch),
          bytes(2 * margin + static_cast<size_t>(pitch) * imageSize.height, untouched),
          first(bytes.data() + margin + (upwards ? static_cast<ptrdiff_t>(pitch) * (imageSize.height - 1) : 0))
    {
    }

    template <class Pixel> Plane& paint(Pixel pixel)
    {
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) first[static_cast<ptrdiff_t>(step) * y + x] = pixel(x, y);
        return *this;
    }

    ZorSize size;
    int pitch, step;
    Bytes bytes;
    uint8_t* first;
};

void expectFilled(ZorSize size, int padding, bool upwards)
{
    Plane target(size, padding, upwards), wanted(size, padding, upwards);
    wanted.paint([](int, int) { return uint8_t{0x42}; });
    ASSERT_EQ(zoriSet_8u_C1R(0x42, target.first, target.step, size), zorStatusOk);
    ASSERT_TRUE(target.bytes == wanted.bytes) << size.width << " x " << size.height << ", padding " << padding;
}

void expectCopied(ZorSize size, int padding, bool upwards, int sourcePadding, bool sourceUpwards)
{
    const auto pixel = [](int x, int y) { return sourceByte(static_cast<size_t>(x + 83 * y)); };
    Plane source(size, sourcePadding, sourceUpwards), target(size, padding, upwards), wanted(size, padding, upwards);
    source.paint(pixel);
    wanted.paint(pixel);
    ASSERT_EQ(zoriCopy_8u_C1R(source.first, source.step, target.first, target.step, size), zorStatusOk);
    ASSERT_TRUE(target.bytes == wanted.bytes)
        << size.width << " x " << size.height << ", padding " << sourcePadding << " and " << padding;
}

TEST(SetAndCopy, ImagesWithAnySteps)
{
    for (const ZorSize size : {ZorSize{1, 1}, {1, 9}, {63, 3}, {64, 2}, {65, 5}, {200, 4}, {641, 7}})
        for (const int padding : {0, 1, 40})
            for (const bool upwards : {false, true}) {
                expectFilled(size, padding, upwards);
                for (const int sourcePadding : {0, 1, 40})
                    for (const bool sourceUpwards : {false, true})
                        expectCopied(size, padding, upwards, sourcePadding, sourceUpwards);
            }
}

TEST(Set, LargeImagesOnBothSidesOfTheCacheSize)
{
    constexpr ZorSize size = {1009, 601}; // 606409 bytes
    for (const ZorStatus status : {zorStatusOk, zorStatusNothingDone})
        for (const int cacheBytes : {1, 606408, 606409, 606410, INT_MAX})
            for (const bool upwards : {false, true}) {
                const CacheOf cache(cacheBytes, status);
                expectFilled(size, 0, upwards);
                expectFilled(size, 7, upwards);
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
        for (const int padding : {0, 1}) {
            const CacheOf cache(1 << 20);
            expectFilled(c.size, padding, false);
            EXPECT_EQ(cache.timesAsked(), c.asked) << c.size.width << " x " << c.size.height;
        }
}

TEST(SetAndCopy, StatusesInTheirOrder)
{
    const Bytes source(4);
    Bytes target(4, untouched);
    for (const auto& c : imageStatuses) {
        uint8_t* const dst = c.second ? target.data() : nullptr;
        EXPECT_EQ(zoriCopy_8u_C1R(c.first ? source.data() : nullptr, 2, dst, 2, c.size), c.status);
        EXPECT_EQ(c.first ? zoriSet_8u_C1R(5, dst, 2, c.size) : c.status, c.status);
    }
    EXPECT_EQ(target, Bytes(4, untouched));
}

} // namespace
} // namespace zorcc::test
