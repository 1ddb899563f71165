// SPDX-License-Identifier: MIT
// Frames that are deinterlaced slice by slice.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include "tests/harness/golden.h"
#include "tests/harness/guarded.h"
#include "tests/harness/tiers.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

constexpr int first = 1, middle = 4, last = 16, whole = 21;
constexpr std::uint8_t untouched = 0xa5;

// Rows of one plane, of which `perPair` belong to every two rows of luma.
struct Plane {
    int rowBytes, perPair;
    Bytes bytes;

    Plane(int width, int rowsPerPair, int height) : rowBytes(width), perPair(rowsPerPair)
    {
        bytes.assign(static_cast<std::size_t>(rowBytes * rowsOf(height)), untouched);
    }

    int rowsOf(int height) const { return perPair * height / 2; }
};

// The first rows of a plane at the end of accessible memory.
class UpTo {
public:
    UpTo(Plane& plane, int height)
        : origin(plane), size(static_cast<std::size_t>(plane.rowsOf(height) * plane.rowBytes)), memory(size, Edge::end)
    {
        std::memcpy(memory.data(), plane.bytes.data(), size);
    }
    ~UpTo() { std::memcpy(origin.bytes.data(), memory.data(), size); }

    std::uint8_t* from(int height) const { return memory.data() + origin.rowsOf(height) * origin.rowBytes; }

private:
    Plane& origin;
    std::size_t size;
    GuardedBuffer memory;
};

// A semi-planar frame and its result, packed or in three planes.
struct Frame {
    ZorSize size;
    Plane luma, pairs;
    std::vector<Plane> result;

    Frame(ZorSize frameSize, bool packed)
        : size(frameSize), luma(size.width, 2, size.height), pairs(size.width, 1, size.height)
    {
        std::mt19937 random(static_cast<unsigned>(size.width * 100 + size.height));
        for (Plane* plane : {&luma, &pairs})
            for (std::uint8_t& byte : plane->bytes) byte = static_cast<std::uint8_t>(random() >> 24);
        if (packed) result.emplace_back(2 * size.width, 2, size.height);
        if (!packed) result.emplace_back(size.width, 2, size.height);
        for (int p = 1; !packed && p < 3; ++p) result.emplace_back(size.width / 2, 1, size.height);
    }

    // Converts the rows from `start` to `end`; there is no memory below them.
    ZorStatus convert(int start, int end, int slice)
    {
        const UpTo y(luma, end), c(pairs, end);
        std::vector<std::unique_ptr<UpTo>> to;
        for (Plane& plane : result) to.push_back(std::make_unique<UpTo>(plane, end));
        const ZorSize part{size.width, end - start};
        if (to.size() == 1)
            return zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R(y.from(start), size.width, c.from(start), size.width,
                                                          to[0]->from(start), 2 * size.width, part, slice);
        std::uint8_t* const planes[] = {to[0]->from(start), to[1]->from(start), to[2]->from(start)};
        const int steps[] = {size.width, size.width / 2, size.width / 2};
        return zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R(y.from(start), size.width, c.from(start), size.width, planes,
                                                      steps, part, slice);
    }

    Bytes bytes() const
    {
        Bytes all;
        for (const Plane& plane : result) all.insert(all.end(), plane.bytes.begin(), plane.bytes.end());
        return all;
    }
};

class DeinterlaceSlices : public testing::TestWithParam<bool> {};

TEST_P(DeinterlaceSlices, AnyThreeAreTheWholeFrame)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (const int width : {2, 6, 8, 14, 62, 64, 70, 130, 262})
            for (int height = 6; height <= 14; height += 2) {
                Frame expected({width, height}, GetParam());
                ASSERT_EQ(expected.convert(0, height, whole), zorStatusOk);
                for (int upper = 2; upper < height; upper += 2)
                    for (int lower = upper + 2; lower < height; lower += 2) {
                        Frame frame({width, height}, GetParam());
                        ASSERT_EQ(frame.convert(0, upper, first), zorStatusOk);
                        ASSERT_EQ(frame.convert(upper, lower, middle), zorStatusOk);
                        ASSERT_EQ(frame.convert(lower, height, last), zorStatusOk);
                        ASSERT_EQ(frame.bytes(), expected.bytes())
                            << nameOf(tier) << " " << width << "x" << height << " at " << upper << ", " << lower;
                    }
            }
    }
}

TEST_P(DeinterlaceSlices, ManyMiddleOnes)
{
    Frame expected({70, 20}, GetParam()), frame({70, 20}, GetParam());
    ASSERT_EQ(expected.convert(0, 20, whole), zorStatusOk);
    frame.convert(0, 2, first);
    for (int y = 2; y < 18; y += 2) frame.convert(y, y + 2, middle);
    frame.convert(18, 20, last);
    EXPECT_EQ(frame.bytes(), expected.bytes());
}

TEST_P(DeinterlaceSlices, BitsBesideThoseOfTheWholeFrameDoNotMatter)
{
    Frame expected({20, 6}, GetParam());
    expected.convert(0, 6, whole);
    for (const int slice : {23, 21 | 8, 21 | 64, 255, -1}) {
        Frame frame({20, 6}, GetParam());
        EXPECT_EQ(frame.convert(0, 6, slice), zorStatusOk);
        EXPECT_EQ(frame.bytes(), expected.bytes()) << slice;
    }
}

TEST_P(DeinterlaceSlices, OtherValuesConvertNothing)
{
    for (const int slice : {0, 2, 3, 5, 6, 8, 12, 17, 18, 20, 32, -2, 64}) {
        Frame frame({20, 6}, GetParam());
        const Bytes before = frame.bytes();
        EXPECT_EQ(frame.convert(0, 6, slice), zorStatusOk);
        EXPECT_EQ(frame.bytes(), before) << slice;
    }
}

// Of the last row of the first slice nothing is known yet, of the row above only its luma.
TEST(DeinterlaceSlice, FirstLeavesWhatDependsOnRowsBelow)
{
    Frame frame({10, 6}, true);
    ASSERT_EQ(frame.convert(0, 6, first), zorStatusOk);
    const Bytes bytes = frame.bytes();
    Frame done({10, 6}, true);
    done.convert(0, 6, whole);
    const Bytes complete = done.bytes();
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 20; ++x) {
            const bool isLuma = x % 2 == 0, finished = isLuma ? y < 5 : y < 4;
            EXPECT_EQ(bytes[20 * y + x], finished ? complete[20 * y + x] : untouched) << x << ", " << y;
        }
}

INSTANTIATE_TEST_SUITE_P(Results, DeinterlaceSlices, testing::Bool(),
                         [](const auto& result) { return result.param ? "Packed" : "Planar"; });

// Worked out by hand: a row of 101 between rows of 0, ten columns, of which eight round up: (0 + 51 + 1) / 2 = 26
// beside it, (51 + 51 + 1) / 2 = 51 in it; rounded down 101 / 4 = 25, 202 / 4 = 50. Both rows of chroma take the
// average of the only two: Cb 11.5 and Cr 20.5.
TEST(DeinterlaceGolden, OneBrightRow)
{
    expectGolden({"zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R",
                  {10, 4},
                  {{0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   //
                    101, 101, 101, 101, 101, 101, 101, 101, 101, 101, //
                    0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   //
                    0,   0,   0,   0,   0,   0,   0,   0,   0,   0},
                   {10, 20, 10, 20, 10, 20, 10, 20, 10, 20, //
                    13, 21, 13, 21, 13, 21, 13, 21, 13, 21}},
                  {{26, 26, 26, 26, 26, 26, 26, 26, 25, 25, //
                    51, 51, 51, 51, 51, 51, 51, 51, 50, 50, //
                    26, 26, 26, 26, 26, 26, 26, 26, 25, 25, //
                    0,  0,  0,  0,  0,  0,  0,  0,  0,  0},
                   {21, 21, 21, 21, 20, 21, 21, 21, 21, 20},
                   {12, 12, 12, 12, 11, 12, 12, 12, 12, 11}}});
}

} // namespace
} // namespace zorcc::test
