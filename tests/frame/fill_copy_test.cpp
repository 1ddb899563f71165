// SPDX-License-Identifier: MIT
#include "frame/fill_copy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>

#include "core_stand_in.h"
#include "tests/harness/guarded.h"

namespace zorcc::test {
namespace {

constexpr Stores allStores[] = {Stores::ordinary, Stores::nonTemporal};
constexpr int maxLength = 300;
constexpr int margin = 80; // more than a block and an alignment
constexpr uint8_t untouched = 0xcd;

// No two neighbours, nor bytes that are a power of two apart, are equal; never `untouched`.
uint8_t sourceByte(size_t i) { return static_cast<uint8_t>(i % 199); }

const char* nameOf(Stores stores) { return stores == Stores::ordinary ? "ordinary" : "non-temporal"; }

// A destination row between margins, at every alignment.
class Target {
public:
    explicit Target(int alignment) : offset(margin + alignment) {}

    void clear() { std::fill(std::begin(bytes), std::end(bytes), untouched); }
    uint8_t* row() { return bytes + offset; }

    template <class Expected> [[nodiscard]] testing::AssertionResult holds(int length, Expected expected) const
    {
        for (int i = -offset; i < static_cast<int>(sizeof bytes) - offset; ++i) {
            const uint8_t want = i >= 0 && i < length ? expected(i) : untouched;
            const uint8_t got = bytes[offset + i];
            if (got != want)
                return testing::AssertionFailure() << "byte " << i << " of " << length << ", alignment " << offset % 16
                                                   << ": " << +got << ", not " << +want;
        }
        return testing::AssertionSuccess();
    }

private:
    int offset;
    alignas(64) uint8_t bytes[margin + 16 + maxLength + margin];
};

// Both functions of rows. Filling takes the first byte of the source.
struct RowFunction {
    const char* name;
    void (*write)(const uint8_t* src, uint8_t* dst, size_t length, Stores stores);
    uint8_t (*expected)(const uint8_t* src, int i);
};

const RowFunction rowFunctions[] = {
    {"copy",
     [](const uint8_t* src, uint8_t* dst, size_t length, Stores stores) {
         ownccCopy_8u_C1_M7(src, dst, length, stores);
     },
     [](const uint8_t* src, int i) { return src[i]; }},
    {"fill",
     [](const uint8_t* src, uint8_t* dst, size_t length, Stores stores) {
         owniSet_8u_C1_M7(src[0], dst, length, stores);
     },
     [](const uint8_t* src, int) { return src[0]; }},
};

class Row : public testing::TestWithParam<RowFunction> {};
INSTANTIATE_TEST_SUITE_P(, Row, testing::ValuesIn(rowFunctions), [](const auto& test) { return test.param.name; });

TEST_P(Row, EveryLengthAndAlignment)
{
    alignas(64) uint8_t source[16 + maxLength];
    for (size_t i = 0; i < sizeof source; ++i) source[i] = i < 16 ? static_cast<uint8_t>(17 * i) : sourceByte(i);
    for (const Stores stores : allStores)
        for (int to = 0; to < 16; ++to) {
            Target target(to);
            for (int from = 0; from < 16; ++from)
                for (int length = 0; length <= maxLength; ++length) {
                    target.clear();
                    GetParam().write(source + from, target.row(), static_cast<size_t>(length), stores);
                    ASSERT_TRUE(target.holds(length, [&](int i) { return GetParam().expected(source + from, i); }))
                        << nameOf(stores) << ", source alignment " << from;
                }
        }
}

TEST_P(Row, StaysInsideItsPages)
{
    for (const Edge from : edges)
        for (const Edge to : edges)
            for (size_t length = 0; length <= maxLength; ++length) {
                const GuardedBuffer source(std::max<size_t>(length, 1), from), target(length, to);
                source.data()[0] = 9;
                for (size_t i = 1; i < length; ++i) source.data()[i] = sourceByte(i);
                for (const Stores stores : allStores) {
                    std::fill_n(target.data(), length, untouched);
                    GetParam().write(source.data(), target.data(), length, stores);
                    for (size_t i = 0; i < length; ++i)
                        ASSERT_EQ(target.data()[i], GetParam().expected(source.data(), static_cast<int>(i)))
                            << i << " of " << length << " bytes, " << nameOf(stores);
                }
            }
}

// An image in a larger block of bytes, all of it `untouched` at first.
struct Plane {
    Plane(ZorSize imageSize, int padding, bool upwards)
        : size(imageSize), pitch(imageSize.width + padding), step(upwards ? -pitch : pitch),
          bytes(margin + static_cast<size_t>(pitch) * imageSize.height + margin, untouched),
          first(bytes.data() + margin + (upwards ? static_cast<ptrdiff_t>(pitch) * (imageSize.height - 1) : 0))
    {
    }

    // Calls visit(byte, x, y) for each byte of the image, visit(byte, -1, -1) for all others.
    template <class Visit> void each(Visit visit)
    {
        for (size_t i = 0; i < bytes.size(); ++i) {
            const ptrdiff_t inside = static_cast<ptrdiff_t>(i) - margin;
            const int x = static_cast<int>(inside % pitch), line = static_cast<int>(inside / pitch);
            const bool pixel = inside >= 0 && x < size.width && line < size.height;
            if (pixel)
                visit(bytes[i], x, step < 0 ? size.height - 1 - line : line);
            else
                visit(bytes[i], -1, -1);
        }
    }

    ZorSize size;
    int pitch, step;
    std::vector<uint8_t> bytes;
    uint8_t* first;
};

constexpr ZorSize imageSizes[] = {{1, 1}, {1, 9}, {63, 3}, {64, 2}, {65, 5}, {200, 4}, {641, 7}};

TEST(Copy, ImagesWithAnySteps)
{
    for (const ZorSize size : imageSizes)
        for (const int sourcePadding : {0, 1, 40})
            for (const int targetPadding : {0, 1, 40})
                for (const bool sourceUp : {false, true})
                    for (const bool targetUp : {false, true}) {
                        Plane source(size, sourcePadding, sourceUp), target(size, targetPadding, targetUp);
                        const auto pixel = [](int x, int y) { return sourceByte(static_cast<size_t>(x + 83 * y)); };
                        source.each([&](uint8_t& byte, int x, int y) {
                            if (x >= 0) byte = pixel(x, y);
                        });
                        ASSERT_EQ(zoriCopy_8u_C1R(source.first, source.step, target.first, target.step, size),
                                  zorStatusOk);
                        target.each([&](uint8_t& byte, int x, int y) {
                            ASSERT_EQ(byte, x < 0 ? untouched : pixel(x, y))
                                << size.width << " x " << size.height << " at " << x << ", " << y;
                        });
                    }
}

void expectFilled(ZorSize size, int padding, bool upwards)
{
    Plane target(size, padding, upwards);
    ASSERT_EQ(zoriSet_8u_C1R(0x42, target.first, target.step, size), zorStatusOk);
    target.each([&](uint8_t& byte, int x, int y) {
        ASSERT_EQ(byte, x < 0 ? untouched : 0x42) << size.width << " x " << size.height << " at " << x << ", " << y;
    });
}

TEST(Set, ImagesWithAnySteps)
{
    for (const ZorSize size : imageSizes)
        for (const int padding : {0, 1, 40})
            for (const bool upwards : {false, true}) expectFilled(size, padding, upwards);
}

TEST(Set, LargeImagesOnBothSidesOfTheCacheSize)
{
    constexpr ZorSize size = {1009, 601}; // 606409 bytes
    for (const int cacheBytes : {1, 606408, 606409, 606410, INT_MAX})
        for (const int padding : {0, 7})
            for (const bool upwards : {false, true}) {
                const CacheOf cache(cacheBytes);
                expectFilled(size, padding, upwards);
            }
    const CacheOf unknown(0, zorStatusNothingDone);
    expectFilled(size, 0, false);
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
    uint8_t source[4] = {1, 2, 3, 4}, target[4] = {9, 9, 9, 9};
    const struct {
        const uint8_t* source;
        uint8_t* target;
        ZorSize size;
        ZorStatus status;
    } cases[] = {
        {nullptr, target, {2, 2}, zorStatusNullPointer}, {source, nullptr, {2, 2}, zorStatusNullPointer},
        {source, target, {0, 2}, zorStatusBadSize},      {source, target, {2, 0}, zorStatusBadSize},
        {source, target, {-1, 2}, zorStatusBadSize},     {source, target, {2, INT_MIN}, zorStatusBadSize},
        {nullptr, target, {0, 2}, zorStatusNullPointer}, {source, nullptr, {2, 0}, zorStatusNullPointer},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(zoriCopy_8u_C1R(c.source, 2, c.target, 2, c.size), c.status);
        if (c.source) {
            EXPECT_EQ(zoriSet_8u_C1R(5, c.target, 2, c.size), c.status);
        }
        for (const uint8_t byte : target) EXPECT_EQ(byte, 9);
    }
}

} // namespace
} // namespace zorcc::test
