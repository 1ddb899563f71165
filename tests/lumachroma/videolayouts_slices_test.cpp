// SPDX-License-Identifier: MIT
// Frames that are deinterlaced slice by slice.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "tests/harness/golden.h"
#include "tests/harness/test_image.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

constexpr const char* functions[] = {"zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R",
                                     "zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R"};
constexpr int first = 1, middle = 4, last = 16, whole = 21;
constexpr std::uint8_t untouched = 0xa5;

using Planes = std::vector<Bytes>;

struct Slice {
    int start, end; // rows
    int kind;
};

// Between an image and the bytes of its planes.
void copyRows(const TestImage& image, Planes& planes, bool intoImage)
{
    image.eachRow([&](std::uint8_t* row, int bytes, int p, int y) {
        std::uint8_t* const kept = planes[p].data() + y * bytes;
        std::memcpy(intoImage ? row : kept, intoImage ? kept : row, static_cast<std::size_t>(bytes));
    });
}

interface::Image fromRow(int start, const TestImage& image)
{
    interface::Image rest = image.image();
    for (int p = 0; p < image.planes(); ++p) rest.plane[p] = rowOf(rest, p, interface::rows(image.format(), p, start));
    return rest;
}

Planes planesOf(const interface::Format& format, ZorSize size)
{
    Planes planes;
    for (int p = 0; p < format.planes; ++p)
        planes.emplace_back(interface::rowBytes(format, p, size.width) * interface::rows(format, p, size.height),
                            untouched);
    return planes;
}

// What slices, of which each has no memory below it, make of a random frame, the same for every size.
Planes converted(const char* name, ZorSize size, const std::vector<Slice>& slices)
{
    const interface::Function& function = *interface::findFunction(name);
    Planes source = planesOf(*function.source, size), result = planesOf(*function.destination, size);
    std::mt19937 random(static_cast<unsigned>(size.width * 100 + size.height));
    for (Bytes& plane : source)
        for (std::uint8_t& byte : plane) byte = static_cast<std::uint8_t>(random() >> 24);
    for (const auto& [start, end, kind] : slices) {
        const auto& [from, to] = Images(function, {size.width, end}); // up to the end of accessible memory
        copyRows(from, source, true);
        copyRows(to, result, true);
        EXPECT_EQ(function(fromRow(start, from), fromRow(start, to), {size.width, end - start}, {.slice = kind}),
                  zorStatusOk);
        copyRows(to, result, false);
    }
    return result;
}

TEST(DeinterlaceSlices, AnyThreeAreTheWholeFrame)
{
    for (const Tier tier : tiersHere())
        for (const char* name : functions)
            for (const int width : {2, 6, 8, 14, 62, 64, 70, 130, 262})
                for (int height = 6; height <= 14; height += 2) {
                    const OnTier chosen(tier);
                    const Planes expected = converted(name, {width, height}, {{0, height, whole}});
                    for (int upper = 2; upper < height; upper += 2)
                        for (int lower = upper + 2; lower < height; lower += 2)
                            ASSERT_EQ(converted(name, {width, height},
                                                {{0, upper, first}, {upper, lower, middle}, {lower, height, last}}),
                                      expected)
                                << nameOf(tier) << " " << width << "x" << height << " at " << upper << ", " << lower;
                }
}

TEST(DeinterlaceSlices, ManyMiddleOnes)
{
    std::vector<Slice> slices = {{0, 2, first}};
    for (int y = 2; y < 18; y += 2) slices.push_back({y, y + 2, middle});
    slices.push_back({18, 20, last});
    for (const char* name : functions)
        EXPECT_EQ(converted(name, {70, 20}, slices), converted(name, {70, 20}, {{0, 20, whole}}));
}

// Bits beside those of the whole frame do not matter; other values convert nothing.
TEST(DeinterlaceSlices, OtherKinds)
{
    for (const char* name : functions) {
        for (const int kind : {23, 21 | 8, 21 | 64, 255, -1})
            EXPECT_EQ(converted(name, {20, 6}, {{0, 6, kind}}), converted(name, {20, 6}, {{0, 6, whole}})) << kind;
        for (const int kind : {0, 2, 3, 5, 6, 8, 12, 17, 18, 20, 32, -2, 64})
            EXPECT_EQ(converted(name, {20, 6}, {{0, 6, kind}}), converted(name, {20, 6}, {})) << kind;
    }
}

// Of the last row of the first slice nothing is known yet, of the row above only its luma.
TEST(DeinterlaceSlices, FirstLeavesWhatDependsOnRowsBelow)
{
    const Bytes bytes = converted(functions[0], {10, 6}, {{0, 6, first}})[0],
                complete = converted(functions[0], {10, 6}, {{0, 6, whole}})[0];
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 20; ++x) {
            const bool isLuma = x % 2 == 0, finished = isLuma ? y < 5 : y < 4;
            EXPECT_EQ(bytes[20 * y + x], finished ? complete[20 * y + x] : untouched) << x << ", " << y;
        }
}

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
