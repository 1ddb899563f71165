// SPDX-License-Identifier: MIT
// Every pair of formats that a plan connects gives what its functions give when they are called by hand.
#include <gtest/gtest.h>
#include <unistd.h>

#include <climits>
#include <filesystem>
#include <map>
#include <thread>

#include "tests/convert/by_hand.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {

namespace {

std::vector<std::string> formats()
{
    std::vector<std::string> all;
    for (int i = 0; zorFormatAt(i); ++i) all.push_back(zorFormatAt(i));
    return all;
}

bool isLumaAndChroma(const std::string& format)
{
    const ZorLayout layout = layoutOf(format, {8, 8});
    const std::string_view channels = layout.channels;
    return channels.find('U') != std::string_view::npos && channels.find('Y') != std::string_view::npos;
}

struct Colour {
    const char* matrix;
    ZorRange range;
};
constexpr Colour colours[] = {
    {"bt601", zorRangeLimited}, {"bt709", zorRangeLimited}, {"bt709", zorRangeFull}, {"yuv", zorRangeFull}};

struct Pair {
    std::string from, to;
    Colour fromColour, toColour;
};

ZorPicture picture(const std::string& format, const Colour& colour, ZorSize size)
{
    return isLumaAndChroma(format) ? ZorPicture{format.c_str(), colour.matrix, colour.range, size}
                                   : ZorPicture{format.c_str(), nullptr, zorRangeDefault, size};
}

struct Freed {
    void operator()(ZorPlan* plan) const { zorPlanFree(plan); }
};
using Plan = std::unique_ptr<ZorPlan, Freed>;

Plan planOf(const Pair& pair, ZorSize size, const ZorPlanOptions& options)
{
    const ZorPicture from = picture(pair.from, pair.fromColour, size), to = picture(pair.to, pair.toColour, size);
    return Plan(zorPlanCreate(&from, &to, &options));
}

constexpr float weights[3] = {0.25f, 0.5f, 0.125f};

ZorPlanOptions optionsOf(int threads, int stripRows, ZorDepth depth = zorDepthNearest, ZorAlpha alpha = zorAlphaDrop,
                         ZorFields fields = zorFieldsTruncate, ZorGrey grey = zorGreyLuma)
{
    return {
        sizeof(ZorPlanOptions), threads, stripRows, alpha, depth, fields, grey, {weights[0], weights[1], weights[2]}};
}

ZorStatus run(const Plan& plan, const PictureInMemory& source, const PictureInMemory& destination)
{
    return zorPlanRun(plan.get(), source.plane, source.step, destination.plane, destination.step);
}

void expectByHand(const Pair& pair, const Plan& plan, const ZorPlanOptions& options, ZorSize size, Random& random)
{
    const Rows rows[] = {Rows::tight, Rows::padded, Rows::upwards};
    PictureInMemory source(pair.from, size, random.anyOf(rows), random.anyOf(edges));
    PictureInMemory destination(pair.to, size, random.anyOf(rows), random.anyOf(edges));
    source.fill(random);
    destination.fill(random);
    const std::vector<std::uint8_t> before = source.bytes();
    ASSERT_EQ(run(plan, source, destination), zorStatusOk) << zorPlanDescribe(plan.get());
    EXPECT_EQ(source.bytes(), before) << "the source was written";
    const auto expected =
        byHand(plan.get(), source, pair.to,
               {options.depth, options.alpha == zorAlphaOpaque, options.grey == zorGreyWeights ? weights : nullptr});
    EXPECT_TRUE(isSame(destination, *expected)) << zorPlanDescribe(plan.get());
}

} // namespace

// Colours, options, sizes, tiers, steps and edges of memory take turns.
TEST(Plans, EveryPairAsByHand)
{
    constexpr ZorSize sizes[] = {{24, 12}, {21, 9}, {2, 2}, {35, 5}, {1, 1}};
    const ZorPlanOptions options[] = {
        optionsOf(1, 0), optionsOf(1, 4, zorDepthOrdered, zorAlphaOpaque),
        optionsOf(1, 1, zorDepthTruncate, zorAlphaDrop, zorFieldsTruncate, zorGreyWeights),
        optionsOf(1, 8, zorDepthFloydSteinberg)};
    Random random(20);
    std::map<std::string, int> reached;
    int turn = 0, connected = 0, failures = 0;
    for (const std::string& from : formats())
        for (const std::string& to : formats()) {
            ++turn;
            const Pair pair{from, to, random.anyOf(colours), random.anyOf(colours)};
            const ZorSize size = sizes[turn % 5];
            const OnTier tier(tiersHere()[random.below(static_cast<int>(tiersHere().size()))]);
            const ZorPlanOptions& chosen = random.anyOf(options);
            const Plan plan = planOf(pair, size, chosen);
            ASSERT_TRUE(plan);
            if (zorPlanStatus(plan.get()) == zorStatusNoConversion) continue;
            ASSERT_EQ(zorPlanStatus(plan.get()), zorStatusOk) << from << " to " << to << zorPlanDescribe(plan.get());
            expectByHand(pair, plan, chosen, size, random);
            if (HasFailure() && ++failures > 12) return;
            ++connected;
            reached[to] += from != to;
        }
    EXPECT_GT(connected, turn / 2);
    for (const char* format :
         {"nv12", "nv21", "yuv420p", "yuyv", "uyvy", "rgb24", "bgra", "argb", "gbrp", "grey8", "rgb565"})
        EXPECT_GT(reached[format], 40) << format;
}

// Whatever the strips and threads.
TEST(Plans, SameBytesInStripsAndThreads)
{
    const Colour hd = colours[1], sd = colours[0];
    const struct {
        Pair pair;
        ZorDepth depth = zorDepthNearest;
        ZorFields fields = zorFieldsTruncate;
    } cases[] = {
        {{"nv12", "rgb24", hd, hd}},
        {{"rgb24", "nv12", sd, sd}},
        {{"yuyv", "bgra", sd, sd}},
        {{"yuv420p", "yuv420p", sd, hd}},
        {{"yuv410p", "rgba", sd, sd}}, // interpolated in both directions
        {{"rgb48", "rgb24", sd, sd}, zorDepthStucki},
        {{"rgba64", "bgra", sd, sd}, zorDepthOrdered},
        {{"nv12", "bgr565", sd, sd}, zorDepthNearest, zorFieldsDither},
        {{"rgb24", "hls24", sd, sd}}, // functions that are parallel themselves
    };
    Random random(7);
    for (const auto& row : cases)
        for (const ZorSize size : {ZorSize{480, 280}, ZorSize{301, 223}}) {
            PictureInMemory source(row.pair.from, size), expected(row.pair.to, size), result(row.pair.to, size);
            source.fill(random);
            const ZorPlanOptions inOnePiece = optionsOf(1, size.height + 3, row.depth, zorAlphaDrop, row.fields);
            const Plan plan = planOf(row.pair, size, inOnePiece);
            ASSERT_EQ(run(plan, source, expected), zorStatusOk) << zorPlanDescribe(plan.get());
            EXPECT_TRUE(isSame(expected, *byHand(plan.get(), source, row.pair.to, {row.depth}))) << row.pair.from;
            for (const auto& [threads, stripRows] :
                 {std::pair{1, 0}, std::pair{1, 36}, std::pair{2, 0}, std::pair{2, 150}, std::pair{3, 1}}) {
                result.fill(random);
                const Plan other =
                    planOf(row.pair, size, optionsOf(threads, stripRows, row.depth, zorAlphaDrop, row.fields));
                ASSERT_EQ(run(other, source, result), zorStatusOk);
                EXPECT_TRUE(isSame(result, expected)) << zorPlanDescribe(other.get());
            }
        }
}

// Neither do functions that divide their rows among threads themselves.
TEST(PlansDeathTest, OneMeansOne)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a new process
    const auto tasks = [] {
        int count = 0;
        for ([[maybe_unused]] const auto& task : std::filesystem::directory_iterator("/proc/self/task")) ++count;
        return count;
    };
    const auto newThreads = [&](int threads, ZorSize size = {640, 480}) {
        const Plan plan = planOf({"rgb24", "hls24", colours[0], colours[0]}, size, optionsOf(threads, 0));
        const PictureInMemory source("rgb24", size), destination("hls24", size);
        const int before = tasks();
        return run(plan, source, destination) == zorStatusOk ? tasks() - before : -1;
    };
    EXPECT_EXIT(std::exit(newThreads(1)), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(std::exit(newThreads(3)), testing::ExitedWithCode(2), "");
    // Enough pixels for 64.
    const unsigned most = std::max(32u, 4 * std::thread::hardware_concurrency()) - 1;
    EXPECT_EXIT(std::exit(newThreads(INT_MAX, {64, 1 << 16})), testing::ExitedWithCode(std::min(64, int(most))), "");
}

// A child has none of the runtime's threads.
TEST(PlansDeathTest, WorkInChildrenOfAFork)
{
    GTEST_FLAG_SET(death_test_style, "fast");
    const ZorSize size{640, 480};
    const Plan plan = planOf({"rgb24", "nv12", colours[0], colours[0]}, size, optionsOf(3, 0));
    PictureInMemory source("rgb24", size), expected("nv12", size), result("nv12", size);
    Random random(8);
    source.fill(random);
    ASSERT_EQ(run(plan, source, expected), zorStatusOk);
    EXPECT_EXIT((alarm(20), std::_Exit(run(plan, source, result) + !isSame(result, expected))),
                testing::ExitedWithCode(0), "");
}

// Pixels worked out by hand, and the ways to them.
TEST(Plans, GoldenPixelsAndWays)
{
    const Colour sd = colours[0], hd = colours[1], full = colours[2], tv = colours[3];
    const struct {
        Pair pair;
        std::vector<std::string> functions;
    } ways[] = {
        {{"nv12", "rgb24", sd, sd}, {"", "zoriYCbCr420ToRGB_8u_P3C3R"}},
        {{"nv12", "bgr24", hd, hd}, {"", "zoriYCbCr420ToBGR_709CSC_8u_P3C3R"}},
        {{"rgb24", "nv12", sd, sd}, {"zoriRGBToYCbCr420_8u_C3P3R", ""}},
        {{"yuyv", "bgra", sd, sd}, {"zoriYCbCr422ToBGR_8u_C2C4R"}},
        {{"yuv420p", "rgba", sd, sd}, {"", "zoriYCrCb420ToRGB_8u_P3C4R"}},
        {{"uyvy", "nv12", sd, sd}, {"zoriCbYCr422ToYCbCr420_8u_C2P2R"}},
        {{"nv12", "yuv420p", hd, hd}, {"zoriYCbCr420_8u_P2P3R"}},
        // Chroma is left out and repeated, never filtered.
        {{"yuv422p", "yuv420p", sd, sd}, {"zoriYCbCr422ToYCbCr420_8u_P3R"}},
        {{"yuv420p", "yuv422p", sd, sd}, {"zoriYCbCr420ToYCbCr422_8u_P3R"}},
        {{"yuyv", "nv12", hd, hd}, {"zoriYCbCr422ToYCbCr420_8u_C2P2R"}},
        {{"nv12", "yuyv", hd, hd}, {"zoriYCbCr420ToYCbCr422_8u_P2C2R"}},
        {{"yuyv", "nv11", sd, sd}, {"zoriYCbCr422ToYCbCr411_8u_C2P2R"}},
        {{"nv11", "yuyv", sd, sd}, {"zoriYCbCr411ToYCbCr422_8u_P2C2R"}},
        {{"bgr24", "uyvy", full, full}, {"zoriBGRToCbYCr422_709HDTV_8u_C3C2R"}},
        {{"rgb24", "yuv420p", tv, tv}, {"zoriRGBToYUV420_8u_C3P3R"}},
        {{"yuv420p", "yuv420p", sd, hd}, {"zoriYCbCr420ToBGR_8u_P3C3R", "zoriBGRToYCbCr420_709CSC_8u_C3P3R"}},
        {{"rgb24", "bgr24", sd, sd}, {""}},
        {{"rgb48", "grey8", sd, sd}, {"zoriRGBToGray_16u_C3C1R", "zoriReduceBits_16u8u_C1R"}},
        {{"rgb24", "xyz24", sd, sd}, {"zoriRGBToXYZ_8u_C3R"}},
        // Colours are converted in the wider samples, whichever end has them.
        {{"rgb24", "hls48", sd, sd}, {"", "zoriRGBToHLS_16u_C3R"}},
        {{"hls48", "lab24", sd, sd}, {"zoriHLSToRGB_16u_C3R", "zoriReduceBits_16u8u_C3R", "", "zoriBGRToLab_8u_C3R"}},
        {{"rgb24", "lab48", sd, sd}, {"", "zoriBGRToLab_8u16u_C3R"}},
    };
    for (const auto& way : ways) {
        const Plan plan = planOf(way.pair, {16, 16}, optionsOf(1, 0));
        std::vector<std::string> found;
        for (int i = 0; zorPlanStepFunction(plan.get(), i); ++i) found.push_back(zorPlanStepFunction(plan.get(), i));
        EXPECT_EQ(found, way.functions) << zorPlanDescribe(plan.get());
    }

    // Red: Y = 0.183 * 255 + 16, Cb = -0.101 * 255 + 128, Cr = 0.439 * 255 + 128.
    PictureInMemory red("rgb24", {3, 3}), nv21("nv21", {3, 3});
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) red.row(0, y)[3 * x] = 255;
    const Plan plan = planOf({"rgb24", "nv21", hd, hd}, {3, 3}, optionsOf(1, 0));
    ASSERT_EQ(run(plan, red, nv21), zorStatusOk);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) {
            EXPECT_EQ(*nv21.sample('Y', x, y), 63);
            EXPECT_EQ(*nv21.sample('U', x, y), 102);
            EXPECT_EQ(*nv21.sample('V', x, y), 240);
        }
}

} // namespace zorcc::test
