// SPDX-License-Identifier: MIT
// The harness must find what it is there for: broken conversions pass through it, and each must be caught.
#include <gtest/gtest.h>

#include <utility>

#include "tests/harness/argument_checks.h"
#include "tests/harness/arrangements.h"
#include "tests/reference/sampling.h"
#include "tests/reference/yuv.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using interface::Bound;
using interface::Function;
using reference::Case;
using reference::OddSize;

constexpr Case interleaved{"zoriRGBToYUV_8u_C3R", reference::rgbToYuv};
constexpr Case withAlpha{"zoriRGBToYUV_8u_AC4R", reference::rgbToYuv};
constexpr Case planar422{"zoriRGBToYUV422_8u_C3P3R", reference::rgbToYuvPairs};
constexpr Case planar420{"zoriRGBToYUV420_8u_C3P3R", reference::rgbToYuvBlocksQ14, OddSize::warning};
constexpr Case toInterleaved{"zoriYUV420ToRGB_8u_P3C3R", reference::subsampledYuvToRgb, OddSize::warning};

// A function of the library with another body.
Function withBody(const Case& c, ZorStatus (*body)(const interface::Call&))
{
    Function function = *interface::findFunction(c.name);
    function.bound = body;
    return function;
}

// Runs the sizes that every function runs, as far as needed.
testing::AssertionResult sweep(const Case& c, const Function& function)
{
    Checker checker(c, function);
    Arrangements arrangements;
    for (int width = 1; width <= 70; ++width)
        for (int height = 1; height <= 5; ++height)
            if (auto result = arrangements.check(checker, {width, height}); !result) return result;
    return testing::AssertionSuccess();
}

// Rows of the images below: interleaved pixels of 3 bytes.
std::uint8_t* row(std::uint8_t* image, int step, int y) { return image + std::ptrdiff_t{step} * y; }
const std::uint8_t* row(const std::uint8_t* image, int step, int y) { return image + std::ptrdiff_t{step} * y; }

using Src = const std::uint8_t*;
using Dst = std::uint8_t*;

// Broken after the right work: changes one row of the destination, given the row, the width, and the row's number.
template <auto damage> ZorStatus damaged(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
    if (status == zorStatusOk)
        for (int y = 0; y < size.height; ++y) damage(row(dst, dstStep, y), size.width);
    return status;
}

void wrongLastPixel(Dst row, int width) { row[3 * width - 1] ^= 1; }
void wrongFirstPixel(Dst row, int) { row[0] ^= 0x80; }
void wrongLastVector(Dst row, int width)
{
    if (width >= 48)
        for (int i = 3 * (width - 16); i < 3 * width; i += 3) row[i] = static_cast<std::uint8_t>(row[i] + 1);
}
void oneByteTooFar(Dst row, int width) { row[3 * width] ^= 1; }
void oneByteBefore(Dst row, int) { row[-1] ^= 1; }
void farOutside(Dst row, int width) { row[3 * width + 60] ^= 1; }
void swappedNeighbours(Dst row, int width)
{
    if (width >= 2) std::swap(row[1], row[4]);
}

template <auto damage> bool isCaught()
{
    return !sweep(interleaved, withBody(interleaved, Bound<damaged<damage>>::call));
}

TEST(Harness, PassesWhatIsRight)
{
    for (const Case& c : {interleaved, withAlpha, planar422, planar420, toInterleaved})
        EXPECT_TRUE(sweep(c, *interface::findFunction(c.name)));
}

TEST(Harness, CatchesWrongPixels)
{
    EXPECT_TRUE(isCaught<wrongLastPixel>());
    EXPECT_TRUE(isCaught<wrongFirstPixel>());
    EXPECT_TRUE(isCaught<wrongLastVector>());
    EXPECT_TRUE(isCaught<swappedNeighbours>());
}

TEST(Harness, CatchesWritesOutside)
{
    EXPECT_TRUE(isCaught<oneByteTooFar>());
    EXPECT_TRUE(isCaught<oneByteBefore>());
    EXPECT_TRUE(isCaught<farOutside>());
}

// Reads that leave no trace in the results: one byte before or behind every row, or behind the last one only.
volatile std::uint8_t sink;

template <int before, int behind, bool lastRowOnly>
ZorStatus strayRead(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
    for (int y = lastRowOnly ? size.height - 1 : 0; y < size.height; ++y) {
        if (before > 0) sink = row(src, srcStep, y)[-before];
        if (behind > 0) sink = row(src, srcStep, y)[3 * size.width - 1 + behind];
    }
    return status;
}

TEST(Harness, CatchesStrayReads)
{
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<strayRead<1, 0, false>>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<strayRead<0, 1, false>>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<strayRead<0, 1, true>>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<strayRead<0, 16, true>>::call)));
}

// Every row but the last, which an image that merely ends at a page cannot tell.
ZorStatus strayReadInside(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
    if (size.height == 3) sink = row(src, srcStep, 1)[3 * size.width];
    return status;
}

TEST(Harness, CatchesStrayReadsBetweenRows)
{
    Checker checker(interleaved, withBody(interleaved, Bound<strayReadInside>::call));
    EXPECT_TRUE(checker.check({{20, 3}, {Steps::tight}}));
    EXPECT_FALSE(checker.check({{20, 3}, {Steps::isolated}}));
}

ZorStatus changesSource(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
    ++const_cast<Dst>(src)[0];
    return status;
}

ZorStatus changesSourcePadding(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
    if (srcStep > 3 * size.width) ++const_cast<Dst>(src)[3 * size.width];
    return status;
}

ZorStatus touchesDestinationPadding(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
    if (dstStep > 3 * size.width && size.height > 1) ++dst[dstStep - 1];
    return status;
}

ZorStatus doesNothing(Src, int, Dst, int, ZorSize) { return zorStatusOk; }

ZorStatus wrongStatus(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    static_cast<void>(zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size));
    return zorStatusOddSize;
}

// Addresses rows with 32 bits.
ZorStatus narrowAddresses(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    for (int y = 0; y < size.height; ++y) {
        const auto offset = static_cast<std::int32_t>(static_cast<unsigned>(srcStep) * static_cast<unsigned>(y));
        static_cast<void>(zoriRGBToYUV_8u_C3R(src + offset, srcStep, row(dst, dstStep, y), dstStep, {size.width, 1}));
    }
    return zorStatusOk;
}

TEST(Harness, CatchesOtherDamage)
{
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<changesSource>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<changesSourcePadding>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<touchesDestinationPadding>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<doesNothing>::call)));
    EXPECT_FALSE(sweep(interleaved, withBody(interleaved, Bound<wrongStatus>::call)));
    Checker checker(interleaved, withBody(interleaved, Bound<narrowAddresses>::call));
    EXPECT_TRUE(checker.check({{20, 5}, {Steps::isolated}}));
    EXPECT_FALSE(checker.check({{20, 5}, {Steps::huge}}));
}

ZorStatus touchesAlpha(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV_8u_AC4R(src, srcStep, dst, dstStep, size);
    for (int y = 0; y < size.height; ++y) row(dst, dstStep, y)[4 * size.width - 1] = 0;
    return status;
}

ZorStatus confusesSteps(Src src, int srcStep, Dst const dst[3], const int dstStep[3], ZorSize size)
{
    const int steps[] = {dstStep[0], dstStep[1], dstStep[1]};
    return zoriRGBToYUV422_8u_C3P3R(src, srcStep, dst, steps, size);
}

ZorStatus confusesPlanes(Src src, int srcStep, Dst const dst[3], const int dstStep[3], ZorSize size)
{
    Dst const planes[] = {dst[0], dst[2], dst[1]};
    const int steps[] = {dstStep[0], dstStep[2], dstStep[1]};
    return zoriRGBToYUV422_8u_C3P3R(src, srcStep, planes, steps, size);
}

ZorStatus readsOddColumn(Src src, int srcStep, Dst const dst[3], const int dstStep[3], ZorSize size)
{
    const ZorStatus status = zoriRGBToYUV420_8u_C3P3R(src, srcStep, dst, dstStep, size);
    if (size.width > 1 && size.height > 1) sink = src[3 * size.width - 1];
    return status;
}

ZorStatus writesOddRow(Src const src[3], const int srcStep[3], Dst dst, int dstStep, ZorSize size)
{
    const ZorStatus status = zoriYUV420ToRGB_8u_P3C3R(src, srcStep, dst, dstStep, size);
    if (size.height % 2 != 0) row(dst, dstStep, size.height - 1)[0] ^= 1;
    return status;
}

TEST(Harness, KnowsLayouts)
{
    EXPECT_FALSE(sweep(withAlpha, withBody(withAlpha, Bound<touchesAlpha>::call)));
    EXPECT_FALSE(sweep(planar422, withBody(planar422, Bound<confusesSteps>::call)));
    EXPECT_FALSE(sweep(planar422, withBody(planar422, Bound<confusesPlanes>::call)));
    EXPECT_FALSE(sweep(planar420, withBody(planar420, Bound<readsOddColumn>::call)));
    EXPECT_FALSE(sweep(toInterleaved, withBody(toInterleaved, Bound<writesOddRow>::call)));
}

TEST(Harness, CatchesDamageInPlace)
{
    Checker right(interleaved, *interface::findFunction(interleaved.name));
    EXPECT_TRUE(right.checkInPlace({{33, 3}}));
    Checker broken(interleaved, withBody(interleaved, Bound<damaged<wrongLastPixel>>::call));
    EXPECT_FALSE(broken.checkInPlace({{33, 3}}));
}

// What a failure tells.
TEST(Harness, SaysWhere)
{
    Checker wrong(interleaved, withBody(interleaved, Bound<damaged<wrongLastPixel>>::call));
    const std::string text = wrong.check({{20, 3}, {Steps::sample}, {Steps::wide, true}}).message();
    EXPECT_NE(text.find("zoriRGBToYUV_8u_C3R on ssse3, 20x3"), std::string::npos) << text;
    EXPECT_NE(text.find("plane 0, sample (59, "), std::string::npos) << text;
    EXPECT_NE(text.find("expected"), std::string::npos) << text;

    Checker outside(interleaved, withBody(interleaved, Bound<damaged<oneByteTooFar>>::call));
    const std::string beside = outside.check({{20, 1}, {}, {Steps::tight, false, Edge::start}}).message();
    EXPECT_NE(beside.find("outside the image, 60 bytes from the start of row 0"), std::string::npos) << beside;
    const std::string fault = outside.check({{20, 1}}).message();
    EXPECT_NE(fault.find("byte 60 of row 0, plane 0 of the destination"), std::string::npos) << fault;
}

// Statuses. The body looks at arguments in another order, or too late, or not at all.
ZorStatus sizeFirst(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    if (size.width < 1 || size.height < 1) return zorStatusBadSize;
    return zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
}

ZorStatus writesBeforeChecks(Src src, int srcStep, Dst dst, int dstStep, ZorSize size)
{
    if (dst) dst[0] ^= 1;
    return zoriRGBToYUV_8u_C3R(src, srcStep, dst, dstStep, size);
}

ZorStatus planesBeforeSize(Src src, int srcStep, Dst const dst[3], const int dstStep[3], ZorSize size)
{
    if (src && dst && !(dst[0] && dst[1] && dst[2])) return zorStatusNullPointer;
    return zoriRGBToYUV422_8u_C3P3R(src, srcStep, dst, dstStep, size);
}

ZorStatus forgetsLastPlane(Src src, int, Dst const dst[3], const int*, ZorSize size)
{
    if (!src || !dst) return zorStatusNullPointer;
    if (size.width < 1 || size.height < 1) return zorStatusBadSize;
    return dst[0] && dst[1] ? zorStatusOk : zorStatusNullPointer;
}

ZorStatus forgetsHeight(Src src, int, Dst dst, int, ZorSize size)
{
    if (!src || !dst) return zorStatusNullPointer;
    return size.width < 1 ? zorStatusBadSize : zorStatusOk;
}

// Semi-planar to planar, where every pointer comes before the size.
using reference::Checks;
constexpr Case semiPlanar{
    "zoriYCbCr420_8u_P2P3R", reference::moveChroma, OddSize::cutOff, Checks::pointersFirst, {2, 2}, {2, 2}};

ZorStatus sizeBeforePlanes(Src y, int yStep, Src pairs, int pairsStep, Dst const dst[3], const int dstStep[3],
                           ZorSize size)
{
    if (!y || !pairs || !dst) return zorStatusNullPointer;
    if (size.width < 2 || size.height < 2) return zorStatusBadSize;
    return zoriYCbCr420_8u_P2P3R(y, yStep, pairs, pairsStep, dst, dstStep, size);
}

ZorStatus forgetsPairs(Src y, int, Src, int, Dst const dst[3], const int*, ZorSize size)
{
    if (!y || !dst || !dst[0] || !dst[1] || !dst[2]) return zorStatusNullPointer;
    return size.width < 2 || size.height < 2 ? zorStatusBadSize : zorStatusOk;
}

ZorStatus forgetsMinimum(Src y, int yStep, Src pairs, int pairsStep, Dst const dst[3], const int dstStep[3],
                         ZorSize size)
{
    if (size.width == 1 && size.height == 1) return zorStatusOk;
    return zoriYCbCr420_8u_P2P3R(y, yStep, pairs, pairsStep, dst, dstStep, size);
}

ZorStatus exchangesPlanes(Src y, int yStep, Src pairs, int pairsStep, Dst const dst[3], const int dstStep[3],
                          ZorSize size)
{
    Dst const exchanged[] = {dst[0], dst[2], dst[1]};
    const int steps[] = {dstStep[0], dstStep[2], dstStep[1]};
    return zoriYCbCr420_8u_P2P3R(y, yStep, pairs, pairsStep, exchanged, steps, size);
}

TEST(Harness, KnowsSemiPlanarImages)
{
    const Function& sound = *interface::findFunction(semiPlanar.name);
    EXPECT_TRUE(sweep(semiPlanar, sound));
    EXPECT_TRUE(checkFaultyArguments(semiPlanar, sound));
    EXPECT_TRUE(checkOddSizes(semiPlanar, sound));
    EXPECT_FALSE(sweep(semiPlanar, withBody(semiPlanar, Bound<exchangesPlanes>::call)));
    EXPECT_FALSE(checkFaultyArguments(semiPlanar, withBody(semiPlanar, Bound<sizeBeforePlanes>::call)));
    EXPECT_FALSE(checkFaultyArguments(semiPlanar, withBody(semiPlanar, Bound<forgetsPairs>::call)));
    EXPECT_FALSE(checkOddSizes(semiPlanar, withBody(semiPlanar, Bound<forgetsMinimum>::call)));
}

TEST(Harness, CatchesWrongStatuses)
{
    EXPECT_FALSE(checkFaultyArguments({}, withBody(interleaved, Bound<sizeFirst>::call)));
    EXPECT_FALSE(checkFaultyArguments({}, withBody(interleaved, Bound<writesBeforeChecks>::call)));
    EXPECT_FALSE(checkFaultyArguments({}, withBody(interleaved, Bound<forgetsHeight>::call)));
    EXPECT_FALSE(checkFaultyArguments({}, withBody(planar422, Bound<planesBeforeSize>::call)));
    EXPECT_FALSE(checkFaultyArguments({}, withBody(planar422, Bound<forgetsLastPlane>::call)));
    EXPECT_FALSE(checkOddSizes(interleaved, withBody(interleaved, Bound<wrongStatus>::call)));
}

} // namespace
} // namespace zorcc::test
