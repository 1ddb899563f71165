// SPDX-License-Identifier: MIT
// The harness must find what it is there for: broken conversions pass through it, and each must be caught.
#include <gtest/gtest.h>

#include <utility>

#include "tests/harness/argument_checks.h"
#include "tests/harness/arrangements.h"
#include "tests/reference/chromasampling.h"
#include "tests/reference/yuv.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using interface::Call;
using interface::Function;
using reference::Case;
using reference::Checks;
using reference::OddSize;

constexpr Case interleaved{"zoriRGBToYUV_8u_C3R", reference::rgbToYuv};
constexpr Case withAlpha{"zoriRGBToYUV_8u_AC4R", reference::rgbToYuv};
constexpr Case planar422{"zoriRGBToYUV422_8u_C3P3R", reference::rgbToYuvPairs};
constexpr Case planar420{"zoriRGBToYUV420_8u_C3P3R", reference::rgbToYuvBlocksQ14, OddSize::warning};
constexpr Case toInterleaved{"zoriYUV420ToRGB_8u_P3C3R", reference::subsampledYuvToRgb, OddSize::warning};
// Semi-planar to planar, where every pointer comes before the size.
constexpr Case semiPlanar{
    "zoriYCbCr420_8u_P2P3R", reference::moveChroma, OddSize::cutOff, Checks::pointersFirst, {2, 2}, {2, 2}};
constexpr Case mosaic{.name = "zoriCFAToRGB_8u_C1C3R", .minimum = {2, 2}, .demosaic = reference::alongGradients};

const Function& sound(const Case& c) { return *interface::findFunction(c.name); }

// What the function of a case does, as a part of another body.
ZorStatus right(const Case& c, const Call& call) { return sound(c).bound(call); }

using Body = ZorStatus (*)(const Call&);

Function withBody(const Case& c, Body body)
{
    Function function = sound(c);
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

// Whether the sweep fails with another body in the function's place.
bool isCaught(const Case& c, Body body) { return !sweep(c, withBody(c, body)); }

using Byte = std::uint8_t;

Byte* row(const interface::Image& image, int y)
{
    return static_cast<Byte*>(image.plane[0]) + std::ptrdiff_t{image.step[0]} * y;
}

// The right work on interleaved pixels of 3 bytes; then changes every row of the destination, given it and the width.
template <class Damage> ZorStatus damaged(const Call& call, Damage damage)
{
    const ZorStatus status = right(interleaved, call);
    if (status == zorStatusOk)
        for (int y = 0; y < call.size.height; ++y) damage(row(call.destination, y), call.size.width);
    return status;
}

ZorStatus wrongLastPixel(const Call& call)
{
    return damaged(call, [](Byte* row, int width) { row[3 * width - 1] ^= 1; });
}

ZorStatus oneByteTooFar(const Call& call)
{
    return damaged(call, [](Byte* row, int width) { row[3 * width] ^= 1; });
}

TEST(Harness, PassesWhatIsRight)
{
    for (const Case& c : {interleaved, withAlpha, planar422, planar420, toInterleaved, semiPlanar, mosaic})
        EXPECT_TRUE(sweep(c, sound(c)));
    EXPECT_FALSE(isCaught(interleaved, [](const Call& call) { return damaged(call, [](Byte*, int) {}); }));
}

TEST(Harness, CatchesWrongPixels)
{
    EXPECT_TRUE(isCaught(interleaved, wrongLastPixel));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // the first pixel
        return damaged(call, [](Byte* row, int) { row[0] ^= 0x80; });
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // the last vector
        return damaged(call, [](Byte* row, int width) {
            for (int i = 3 * (width - 16); i >= 0 && i < 3 * width; i += 3) ++row[i];
        });
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // two neighbours exchanged
        return damaged(call, [](Byte* row, int width) {
            if (width >= 2) std::swap(row[1], row[4]);
        });
    }));
}

TEST(Harness, CatchesWritesOutside)
{
    EXPECT_TRUE(isCaught(interleaved, oneByteTooFar));
    EXPECT_TRUE(
        isCaught(interleaved, [](const Call& call) { return damaged(call, [](Byte* row, int) { row[-1] ^= 1; }); }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) {
        return damaged(call, [](Byte* row, int width) { row[3 * width + 60] ^= 1; });
    }));
}

// Reads that leave no trace in the results: one byte before or behind every row, or behind the last one only.
volatile Byte sink;

template <int before, int behind, bool lastRowOnly> ZorStatus strayRead(const Call& call)
{
    const ZorStatus status = right(interleaved, call);
    for (int y = lastRowOnly ? call.size.height - 1 : 0; y < call.size.height; ++y) {
        if (before > 0) sink = row(call.source, y)[-before];
        if (behind > 0) sink = row(call.source, y)[3 * call.size.width - 1 + behind];
    }
    return status;
}

TEST(Harness, CatchesStrayReads)
{
    EXPECT_TRUE(isCaught(interleaved, strayRead<1, 0, false>));
    EXPECT_TRUE(isCaught(interleaved, strayRead<0, 1, false>));
    EXPECT_TRUE(isCaught(interleaved, strayRead<0, 1, true>));
    EXPECT_TRUE(isCaught(interleaved, strayRead<0, 16, true>));
}

// Every row but the last, which an image that merely ends at a page cannot tell.
TEST(Harness, CatchesStrayReadsBetweenRows)
{
    Checker checker(interleaved, withBody(interleaved, [](const Call& call) {
                        const ZorStatus status = right(interleaved, call);
                        if (call.size.height == 3) sink = row(call.source, 1)[3 * call.size.width];
                        return status;
                    }));
    EXPECT_TRUE(checker.check({{20, 3}, {Steps::tight}}));
    EXPECT_FALSE(checker.check({{20, 3}, {Steps::isolated}}));
}

TEST(Harness, CatchesOtherDamage)
{
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // the source's pixels
        const ZorStatus status = right(interleaved, call);
        ++row(call.source, 0)[0];
        return status;
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // the source's padding
        const ZorStatus status = right(interleaved, call);
        if (call.source.step[0] > 3 * call.size.width) ++row(call.source, 0)[3 * call.size.width];
        return status;
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // the destination's padding
        const ZorStatus status = right(interleaved, call);
        const int step = call.destination.step[0];
        if (step > 3 * call.size.width && call.size.height > 1) ++row(call.destination, 0)[step - 1];
        return status;
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call&) -> ZorStatus { return zorStatusOk; })); // does nothing
}

TEST(Harness, CatchesAddressesOf32Bits)
{
    Checker checker(interleaved, withBody(interleaved, [](const Call& call) -> ZorStatus {
                        for (int y = 0; y < call.size.height; ++y) {
                            Call one = call;
                            const unsigned step = static_cast<unsigned>(call.source.step[0]);
                            one.source.plane[0] =
                                row(call.source, 0) + static_cast<std::int32_t>(step * static_cast<unsigned>(y));
                            one.destination.plane[0] = row(call.destination, y);
                            one.size.height = 1;
                            static_cast<void>(right(interleaved, one));
                        }
                        return zorStatusOk;
                    }));
    EXPECT_TRUE(checker.check({{20, 5}, {Steps::isolated}}));
    EXPECT_FALSE(checker.check({{20, 5}, {Steps::huge}}));
}

Call withPlanesExchanged(Call call)
{
    std::swap(call.destination.plane[1], call.destination.plane[2]);
    std::swap(call.destination.step[1], call.destination.step[2]);
    return call;
}

TEST(Harness, KnowsLayouts)
{
    EXPECT_TRUE(isCaught(withAlpha, [](const Call& call) { // writes an alpha
        const ZorStatus status = right(withAlpha, call);
        for (int y = 0; y < call.size.height; ++y) row(call.destination, y)[4 * call.size.width - 1] = 0;
        return status;
    }));
    EXPECT_TRUE(isCaught(planar422, [](const Call& call) { // takes one step for another
        Call confused = call;
        confused.destination.step[2] = call.destination.step[1];
        return right(planar422, confused);
    }));
    EXPECT_TRUE(isCaught(planar422, [](const Call& call) { return right(planar422, withPlanesExchanged(call)); }));
    EXPECT_TRUE(isCaught(semiPlanar, [](const Call& call) { return right(semiPlanar, withPlanesExchanged(call)); }));
    EXPECT_TRUE(isCaught(planar420, [](const Call& call) { // reads an odd column
        const ZorStatus status = right(planar420, call);
        if (call.size.width > 1 && call.size.height > 1) sink = row(call.source, 0)[3 * call.size.width - 1];
        return status;
    }));
    EXPECT_TRUE(isCaught(toInterleaved, [](const Call& call) { // writes to an odd row
        const ZorStatus status = right(toInterleaved, call);
        if (call.size.height % 2 != 0) row(call.destination, call.size.height - 1)[0] ^= 1;
        return status;
    }));
}

TEST(Harness, KnowsRegions)
{
    EXPECT_TRUE(isCaught(mosaic, [](const Call& call) { // forgets the region
        Call fixed = call;
        fixed.extra.region.reset();
        return right(mosaic, fixed);
    }));
    EXPECT_TRUE(isCaught(mosaic, [](const Call& call) { // takes the region's first pixel for the image's
        Call moved = call;
        if (const auto& region = call.extra.region) moved.extra.grid ^= region->x & 1 ? 2 : 0;
        return right(mosaic, moved);
    }));
}

TEST(Harness, CatchesDamageInPlace)
{
    EXPECT_TRUE(Checker(interleaved, sound(interleaved)).checkInPlace({{33, 3}}));
    EXPECT_FALSE(Checker(interleaved, withBody(interleaved, wrongLastPixel)).checkInPlace({{33, 3}}));
}

// What a failure tells.
TEST(Harness, SaysWhere)
{
    Checker wrong(interleaved, withBody(interleaved, wrongLastPixel));
    const std::string text = wrong.check({{20, 3}, {Steps::sample}, {Steps::wide, true}}).message();
    EXPECT_NE(text.find("zoriRGBToYUV_8u_C3R on ssse3, 20x3"), std::string::npos) << text;
    EXPECT_NE(text.find("plane 0, sample (59, "), std::string::npos) << text;
    EXPECT_NE(text.find("expected"), std::string::npos) << text;

    Checker outside(interleaved, withBody(interleaved, oneByteTooFar));
    const std::string beside = outside.check({{20, 1}, {}, {Steps::tight, false, Edge::start}}).message();
    EXPECT_NE(beside.find("outside the image, 60 bytes from the start of row 0"), std::string::npos) << beside;
    const std::string fault = outside.check({{20, 1}}).message();
    EXPECT_NE(fault.find("byte 60 of row 0, plane 0 of the destination"), std::string::npos) << fault;
}

// Statuses. The body looks at arguments in another order, or too late, or not at all.
TEST(Harness, CatchesWrongChecks)
{
    const auto isCaught = [](const Case& c, Body body) { return !checkFaultyArguments(c, withBody(c, body)); };
    for (const Case& c : {interleaved, planar422, semiPlanar, mosaic}) EXPECT_TRUE(checkFaultyArguments(c, sound(c)));
    EXPECT_TRUE(isCaught(mosaic, [](const Call& call) { // forgets the grid
        Call fixed = call;
        fixed.extra.grid &= 3;
        return right(mosaic, fixed);
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) -> ZorStatus { // the size before pointers
        return call.size.width < 1 || call.size.height < 1 ? zorStatusBadSize : right(interleaved, call);
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // writes before it checks
        if (call.destination.plane[0]) row(call.destination, 0)[0] ^= 1;
        return right(interleaved, call);
    }));
    EXPECT_TRUE(isCaught(interleaved, [](const Call& call) { // forgets the height
        Call fixed = call;
        fixed.size.height = 1;
        return right(interleaved, fixed);
    }));
    EXPECT_TRUE(isCaught(planar422, [](const Call& call) -> ZorStatus { // planes before the size
        const auto& plane = call.destination.plane;
        const bool images = call.source.plane[0] && !call.nullArrays[1];
        return images && !(plane[0] && plane[1] && plane[2]) ? zorStatusNullPointer : right(planar422, call);
    }));
    EXPECT_TRUE(isCaught(planar422, [](const Call& call) { // forgets the last plane
        Call fixed = call;
        if (!fixed.destination.plane[2]) fixed.destination.plane[2] = fixed.destination.plane[1];
        return right(planar422, fixed);
    }));
    EXPECT_TRUE(isCaught(semiPlanar, [](const Call& call) -> ZorStatus { // the size before planes
        const bool images = call.source.plane[0] && call.source.plane[1] && !call.nullArrays[1];
        return images && (call.size.width < 2 || call.size.height < 2) ? zorStatusBadSize : right(semiPlanar, call);
    }));
    EXPECT_TRUE(isCaught(semiPlanar, [](const Call& call) { // forgets the pairs
        Call fixed = call;
        if (!fixed.source.plane[1]) fixed.source.plane[1] = fixed.source.plane[0];
        return right(semiPlanar, fixed);
    }));
}

TEST(Harness, CatchesWrongStatusesOfSizes)
{
    for (const Case& c : {interleaved, semiPlanar}) EXPECT_TRUE(checkOddSizes(c, sound(c)));
    const Body warns = [](const Call& call) -> ZorStatus {
        static_cast<void>(right(interleaved, call));
        return zorStatusOddSize;
    };
    EXPECT_TRUE(isCaught(interleaved, warns));
    EXPECT_FALSE(checkOddSizes(interleaved, withBody(interleaved, warns)));
    const Body forgetsMinimum = [](const Call& call) -> ZorStatus {
        return call.size.width == 1 && call.size.height == 1 ? zorStatusOk : right(semiPlanar, call);
    };
    EXPECT_FALSE(checkOddSizes(semiPlanar, withBody(semiPlanar, forgetsMinimum)));
}

} // namespace
} // namespace zorcc::test
