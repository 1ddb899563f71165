// SPDX-License-Identifier: MIT
// The harness must find what it is there for: broken conversions pass through it, and each must be caught.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <utility>

#include "tests/harness/argument_checks.h"
#include "tests/harness/arrangements.h"
#include "tests/harness/cases.h"
#include "tests/reference/chromasampling.h"
#include "tests/reference/lumachroma.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

using interface::Call;
using interface::Function;
using namespace reference;

constexpr Case interleaved{"zoriRGBToYUV_8u_C3R", rgbToYuv};
constexpr Case withAlpha{"zoriRGBToYUV_8u_AC4R", rgbToYuv};
constexpr Case planar422{"zoriRGBToYUV422_8u_C3P3R", rgbToYuv};
constexpr Case planar420{"zoriRGBToYUV420_8u_C3P3R", rgbToYuvQ14, OddSize::warning};
constexpr Case toInterleaved{"zoriYUV420ToRGB_8u_P3C3R", toRgb<yuvWeights>, OddSize::warning};
// Semi-planar to planar, where every pointer comes before the size.
constexpr Case semiPlanar{"zoriYCbCr420_8u_P2P3R", resample<moved>, OddSize::cutOff,
                          Checks::pointersFirst,   {2, 2},          {2, 2}};
constexpr Case mosaic{.name = "zoriCFAToRGB_8u_C1C3R", .minimum = {2, 2}, .demosaic = alongGradients};
constexpr Case mosaicInScratch{.name = "zoriDemosaicAHD_8u_C1C3R", .minimum = {5, 5}, .demosaic = adaptive};

using Body = ZorStatus (*)(const Call&);
using Byte = std::uint8_t;

const Function* sound = nullptr; // what the broken body that is tested is made of

Function withBody(const Case& c, Body body)
{
    sound = interface::findFunction(c.name);
    Function function = *sound;
    function.bound = body;
    return function;
}

// Broken bodies: change(call) before the right work,
template <class Change> Body changed(Change)
{
    return [](const Call& call) {
        Call confused = call;
        Change{}(confused);
        return sound->bound(confused);
    };
}

// or a status of its own where check(call) holds,
template <ZorStatus status, class Check> Body refused(Check)
{
    return [](const Call& call) -> ZorStatus { return Check{}(call) ? status : sound->bound(call); };
}

// or damage to every row of interleaved pixels after the right work.
struct Row {
    Byte *from, *to;
    int bytes, fromStep, toStep, y;
    bool isLast;
};
template <class Damage> Body damaged(Damage)
{
    return [](const Call& call) {
        const ZorStatus status = sound->bound(call);
        const int bytes = static_cast<int>(sound->source->channels.size()) * call.size.width;
        for (int y = 0; y < call.size.height && (status == zorStatusOk || status == zorStatusOddSize); ++y)
            Damage{}(Row{rowOf(call.source, 0, y), rowOf(call.destination, 0, y), bytes, call.source.step[0],
                         call.destination.step[0], y, y == call.size.height - 1});
        return status;
    };
}

volatile Byte sink; // of reads that leave no trace in the results

const Body unbroken = changed([](Call&) {});
const Body wrongLastPixel = damaged([](Row r) { r.to[r.bytes - 1] ^= 1; });
const Body oneByteTooFar = damaged([](Row r) { r.to[r.bytes] ^= 1; });
const Body warns = [](const Call& call) -> ZorStatus {
    const ZorStatus status = sound->bound(call);
    return status == zorStatusOk ? zorStatusOddSize : status;
};
const Body exchangesPlanes = changed([](Call& call) {
    std::swap(call.destination.plane[1], call.destination.plane[2]);
    std::swap(call.destination.step[1], call.destination.step[2]);
});

struct Fault {
    const char* name;
    const Case& c;
    Body body;
};

const Fault faults[] = {
    {"last pixel", interleaved, wrongLastPixel},
    {"neighbours exchanged", interleaved, damaged([](Row r) { std::swap(r.to[1], r.to[r.bytes > 3 ? 4 : 1]); })},
    {"does nothing", interleaved, [](const Call&) -> ZorStatus { return zorStatusOk; }},
    {"warns of every size", interleaved, warns},
    {"writes one byte too far", interleaved, oneByteTooFar},
    {"writes before rows", interleaved, damaged([](Row r) { r.to[-1] ^= 1; })},
    {"writes far after rows", interleaved, damaged([](Row r) { r.to[r.bytes + 60] ^= 1; })},
    {"writes padding", interleaved, damaged([](Row r) {
         if (r.toStep == r.bytes + 1 && !r.isLast) r.to[r.bytes] ^= 1;
     })},
    {"writes the source", interleaved, damaged([](Row r) { r.from[0] ^= 1; })},
    {"writes the source's padding", interleaved, damaged([](Row r) {
         if (r.fromStep == r.bytes + 1 && !r.isLast) r.from[r.bytes] ^= 1;
     })},
    {"reads before rows", interleaved, damaged([](Row r) { sink = r.from[-1]; })},
    {"reads after the last row", interleaved, damaged([](Row r) { sink = r.from[r.isLast ? r.bytes : 0]; })},
    {"reads far after the last row", interleaved, damaged([](Row r) { sink = r.from[r.isLast ? r.bytes + 15 : 0]; })},
    {"writes an alpha", withAlpha, damaged([](Row r) { r.to[r.bytes - 1] = 0; })},
    {"takes one step for another", planar422,
     changed([](Call& call) { call.destination.step[2] = call.destination.step[1]; })},
    {"exchanges planes", planar422, exchangesPlanes},
    {"exchanges planes of pairs", semiPlanar, exchangesPlanes},
    {"reads an odd column", planar420, damaged([](Row r) {
         if (r.y == 0) sink = r.from[r.bytes - 1];
     })},
    {"writes to an odd row", toInterleaved, damaged([](Row r) { r.to[0] ^= r.isLast && r.y % 2 == 0; })},
    {"forgets the region", mosaic, changed([](Call& call) { call.extra.region.reset(); })},
    {"takes the region's first pixel for the image's", mosaic, changed([](Call& call) {
         if (const auto& region = call.extra.region) call.extra.grid ^= region->x & 1 ? 2 : 0;
     })},
    {"writes between the rows of the scratch memory", mosaicInScratch, changed([](Call& call) {
         const int step = call.extra.scratchStep, rowBytes = 32 * (call.size.width + 32);
         if (step == rowBytes + 1) static_cast<Byte*>(call.extra.scratch)[rowBytes] ^= 1;
     })},
};

// Runs the sizes that every function runs, as far as needed.
testing::AssertionResult sweep(const Case& c, Body body)
{
    Checker checker(c, withBody(c, body));
    Arrangements arrangements;
    for (int width = 1; width <= 70; ++width)
        for (int height = 1; height <= 5; ++height)
            if (auto result = arrangements.check(checker, {width, height}); !result) return result;
    return testing::AssertionSuccess();
}

testing::AssertionResult check(Body body, const Trial& trial)
{
    return Checker(interleaved, withBody(interleaved, body)).check(trial);
}

TEST(Harness, CatchesFaultsAndNothingElse)
{
    for (const Case& c : {interleaved, withAlpha, planar422, planar420, toInterleaved, semiPlanar, mosaic})
        EXPECT_TRUE(sweep(c, unbroken));
    EXPECT_TRUE(sweep(interleaved, damaged([](Row) {})));
    for (const Fault& fault : faults) EXPECT_FALSE(sweep(fault.c, fault.body)) << fault.name;
}

// Every row but the last: an image that merely ends at a page does not show it.
TEST(Harness, CatchesStrayReadsBetweenRows)
{
    const Body body = damaged([](Row r) { sink = r.from[r.isLast ? 0 : r.bytes]; });
    EXPECT_TRUE(check(body, {{20, 3}, {Steps::tight}}));
    EXPECT_FALSE(check(body, {{20, 3}, {Steps::isolated}}));
}

TEST(Harness, CatchesAddressesOf32Bits)
{
    const Body body = [](const Call& call) -> ZorStatus {
        Call one = call;
        one.size.height = 1;
        for (int y = 0; y < call.size.height; ++y) {
            const unsigned offset = static_cast<unsigned>(call.source.step[0]) * static_cast<unsigned>(y);
            one.source.plane[0] = rowOf(call.source, 0, 0) + static_cast<std::int32_t>(offset);
            one.destination.plane[0] = rowOf(call.destination, 0, y);
            static_cast<void>(sound->bound(one));
        }
        return zorStatusOk;
    };
    EXPECT_TRUE(check(body, {{20, 5}, {Steps::isolated}}));
    EXPECT_FALSE(check(body, {{20, 5}, {Steps::huge}}));
}

TEST(Harness, CatchesDamageInPlace)
{
    EXPECT_TRUE(check(unbroken, {.size = {33, 3}, .inPlace = true}));
    EXPECT_FALSE(check(wrongLastPixel, {.size = {33, 3}, .inPlace = true}));
}

// What the message of a failure says.
TEST(Harness, SaysWhere)
{
    const struct {
        Body body;
        Trial trial;
        const char* text;
    } cases[] = {
        {wrongLastPixel, {{20, 3}}, "zoriRGBToYUV_8u_C3R on ssse3, 20x3"},
        {wrongLastPixel, {{20, 3}, {Steps::sample}, {Steps::wide, true}}, "plane 0, sample (59, 2): expected "},
        {oneByteTooFar, {{20, 1}, {}, {.edge = Edge::start}}, "outside the image, 60 bytes from the start of row 0"},
        {oneByteTooFar, {{20, 1}}, "byte 60 of row 0, plane 0 of the destination"},
    };
    for (const auto& c : cases) EXPECT_PRED_FORMAT2(testing::IsSubstring, c.text, check(c.body, c.trial).message());
}

// Bodies that look at arguments in another order, or too late, or not at all.
const Fault wrongChecks[] = {
    {"the size before pointers", interleaved,
     refused<zorStatusBadSize>([](const Call& c) { return c.size.width < 1 || c.size.height < 1; })},
    {"writes before it checks", interleaved, changed([](Call& call) {
         if (call.destination.plane[0]) rowOf(call.destination, 0, 0)[0] ^= 1;
     })},
    {"forgets the height", interleaved, changed([](Call& call) { call.size.height = 1; })},
    {"planes before the size", planar422, refused<zorStatusNullPointer>([](const Call& call) {
         const auto& plane = call.destination.plane;
         return call.source.plane[0] && !call.nullArrays[1] && !(plane[0] && plane[1] && plane[2]);
     })},
    {"forgets the last plane", planar422,
     changed([](Call& call) { call.destination.plane[2] = call.destination.plane[1]; })},
    {"the size before planes", semiPlanar, refused<zorStatusBadSize>([](const Call& call) {
         const bool images = call.source.plane[0] && call.source.plane[1] && !call.nullArrays[1];
         return images && (call.size.width < 2 || call.size.height < 2);
     })},
    {"forgets the pairs", semiPlanar, changed([](Call& call) { call.source.plane[1] = call.source.plane[0]; })},
    {"forgets the grid", mosaic, changed([](Call& call) { call.extra.grid &= 3; })},
};

TEST(Harness, CatchesWrongStatuses)
{
    for (const Case& c : {interleaved, planar422, semiPlanar, mosaic})
        EXPECT_TRUE(checkFaultyArguments(c, withBody(c, unbroken)));
    for (const Fault& fault : wrongChecks)
        EXPECT_FALSE(checkFaultyArguments(fault.c, withBody(fault.c, fault.body))) << fault.name;

    for (const Case& c : {interleaved, semiPlanar}) EXPECT_TRUE(checkOddSizes(c, withBody(c, unbroken)));
    EXPECT_FALSE(checkOddSizes(interleaved, withBody(interleaved, warns)));
    const Body hasNoMinimum =
        refused<zorStatusOk>([](const Call& c) { return c.size.width == 1 && c.size.height == 1; });
    EXPECT_FALSE(checkOddSizes(semiPlanar, withBody(semiPlanar, hasNoMinimum)));
}

// Every exported conversion has a reference and runs through the tests of a family.
TEST(Cases, CoverEveryFunction)
{
    std::istringstream names(ZORCC_FAMILIES);
    std::set<std::string> withTests;
    for (std::string name; names >> name;) withTests.insert(name);
    std::set<const Case*> used;
    for (const interface::Function& function : interface::functions()) {
        const Rule rule = ruleOf(function);
        ASSERT_TRUE(rule.expected) << function.name;
        EXPECT_TRUE(rule.expected->reference || rule.expected->imageReference || rule.expected->demosaic);
        EXPECT_TRUE(withTests.contains(std::string(rule.family->name))) << rule.family->name;
        used.insert(rule.expected);
    }
    for (const Family& family : families())
        for (const Case& rule : family.rules)
            EXPECT_TRUE(used.contains(&rule)) << "no function for " << rule.name << " of " << family.name;
}

} // namespace
} // namespace zorcc::test
