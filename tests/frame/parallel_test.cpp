// SPDX-License-Identifier: MIT
#include "frame/parallel.h"

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "zorcore.h"

namespace zorcc::test {
namespace {

// Rows that one call of a callback stands for.
using Take = std::function<void(int firstRow, int rowCount)>;

struct Pattern {
    const char* name;
    void (*run)(int width, int height, const Take& take);
};

const Pattern patterns[] = {
    {"rowsAboveThreshold",
     [](int width, int height, const Take& take) { rowsAboveThreshold(width, height, [&](int y) { take(y, 1); }); }},
    {"rowsAlways", [](int, int height, const Take& take) { rowsAlways(height, [&](int y) { take(y, 1); }); }},
    {"bandsAboveThreshold",
     [](int width, int height, const Take& take) {
         bandsAboveThreshold(width, height, [&](int first, int count) { take(first, count); });
     }},
    {"groupsAboveThreshold",
     [](int width, int height, const Take& take) {
         groupsAboveThreshold(width, height, [&](GroupBand band) {
             const int first = 4 * band.firstGroup;
             take(first, band.isLast ? height - first : 4 * band.groupCount);
         });
     }},
};

class Parallel : public testing::TestWithParam<Pattern> {
protected:
    void SetUp() override { ASSERT_EQ(zorSetNumThreads(4), zorStatusOk); }
};
INSTANTIATE_TEST_SUITE_P(, Parallel, testing::ValuesIn(patterns), [](const auto& test) { return test.param.name; });

void expectEveryRowOnce(const Pattern& pattern, int width, int height)
{
    std::vector<std::atomic<int>> times(height);
    pattern.run(width, height, [&](int first, int count) {
        for (int y = first; y < first + count; ++y) ++times.at(y);
    });
    for (int y = 0; y < height; ++y)
        ASSERT_EQ(times[y], 1) << "row " << y << " of " << width << " x " << height << ", " << ownGetNumThreads()
                               << " threads";
}

void expectEveryRowOnce(const Pattern& pattern)
{
    for (int threads = 1; threads <= 8; ++threads) {
        ASSERT_EQ(zorSetNumThreads(threads), zorStatusOk);
        for (int height = 1; height <= 20; ++height)
            for (const int width : {1, 64, 300, 5000}) expectEveryRowOnce(pattern, width, height);
        const ZorSize sizes[] = {{64, 64},   {65, 64},   {4096, 1},  {4097, 1},  {1, 4096},  {1, 4097},
                                 {17, 241},  {191, 192}, {192, 191}, {192, 192}, {193, 199}, {127, 129},
                                 {128, 128}, {128, 129}, {128, 130}, {128, 131}, {128, 132}, {1000, 133}};
        for (const ZorSize size : sizes) expectEveryRowOnce(pattern, size.width, size.height);
    }
}

TEST_P(Parallel, EveryRowOnce) { expectEveryRowOnce(GetParam()); }

// The runtime makes teams as large as it sees fit, at most as large as asked for.
TEST_P(Parallel, EveryRowOnceWithDynamicTeams)
{
    omp_set_dynamic(1);
    expectEveryRowOnce(GetParam());
    omp_set_dynamic(0);
}

TEST_P(Parallel, EveryRowOnceWhenForkingIsRefused)
{
    const int levels = omp_get_max_active_levels();
    omp_set_max_active_levels(0);
    expectEveryRowOnce(GetParam());
    omp_set_max_active_levels(levels);
}

TEST_P(Parallel, EveryRowOnceFromSeveralThreadsAtOnce)
{
    std::vector<std::thread> callers;
    for (int i = 0; i < 4; ++i)
        callers.emplace_back([] {
            for (int height = 192; height < 200; ++height) expectEveryRowOnce(GetParam(), 192, height);
        });
    for (std::thread& caller : callers) caller.join();
}

TEST(ParallelSections, EachOnceAndOnAThreadOfItsOwn)
{
    ASSERT_EQ(zorSetNumThreads(1), zorStatusOk); // of no consequence: the caller says how many
    for (int count = 1; count <= 4; ++count) {
        std::vector<int> times(count);
        std::set<std::thread::id> threads;
        std::mutex mutex;
        sections(count, [&](int index) {
            const std::lock_guard lock(mutex);
            ++times.at(index);
            threads.insert(std::this_thread::get_id());
        });
        EXPECT_EQ(times, std::vector<int>(count, 1));
        EXPECT_EQ(static_cast<int>(threads.size()), count);
    }
}

TEST(ParallelSections, OnOneThreadInsideAParallelRegion)
{
    ASSERT_EQ(zorSetNumThreads(4), zorStatusOk);
    EXPECT_EQ(threadsHere(), 4);
    std::atomic<int> strangers = 0, inside = 0, done = 0;
#pragma omp parallel num_threads(2)
    {
        inside += threadsHere();
        const auto caller = std::this_thread::get_id();
        sections(3, [&](int) {
            ++done;
            strangers += std::this_thread::get_id() != caller;
        });
    }
    EXPECT_EQ(inside, 2);
    EXPECT_EQ(done, 6);
    EXPECT_EQ(strangers, 0);
}

struct Observation {
    bool forked = false;
    std::set<std::thread::id> threads;
};

Observation observe(const Pattern& pattern, int width, int height)
{
    Observation seen;
    std::mutex mutex;
    pattern.run(width, height, [&](int, int) {
        const std::lock_guard lock(mutex);
        seen.forked |= omp_in_parallel() != 0;
        seen.threads.insert(std::this_thread::get_id());
    });
    return seen;
}

TEST(ParallelThreshold, ForksFromItsSizeOn)
{
    ASSERT_EQ(zorSetNumThreads(4), zorStatusOk);
    const Pattern& rows = patterns[0];
    const Pattern& always = patterns[1];
    const Pattern& bands = patterns[2];
    const Pattern& groups = patterns[3];
    const struct {
        const Pattern& pattern;
        int width, height;
        bool forks;
    } cases[] = {
        {rows, 64, 64, false},      {rows, 65, 64, true},       {rows, 4096, 1, false},
        {rows, 4097, 1, true},      {rows, 1, 4096, false},     {rows, 1, 4097, true},
        {rows, 17, 241, true},      {rows, 65536, 65536, true}, // a product that 32 bits would lose
        {always, 1, 1, true},       {always, 1, 2, true},       {always, 4096, 2, true},
        {bands, 192, 192, true},    {bands, 191, 192, false},   {bands, 192, 191, false},
        {bands, 5000, 191, false},  {bands, 191, 5000, false},  {groups, 128, 129, true},
        {groups, 127, 129, false},  {groups, 128, 128, false},  {groups, 127, 5000, false},
        {groups, 5000, 128, false},
    };
    for (const auto& c : cases) {
        const Observation seen = observe(c.pattern, c.width, c.height);
        EXPECT_EQ(seen.forked, c.forks) << c.pattern.name << " " << c.width << " x " << c.height;
        if (!c.forks) {
            EXPECT_EQ(seen.threads, std::set{std::this_thread::get_id()});
        } else if (c.height >= 128) {
            EXPECT_EQ(seen.threads.size(), 4u) << c.pattern.name << " " << c.width << " x " << c.height;
        }
    }
}

TEST_P(Parallel, OneThreadDoesNotFork)
{
    ASSERT_EQ(zorSetNumThreads(1), zorStatusOk);
    const Observation seen = observe(GetParam(), 1000, 1000);
    EXPECT_FALSE(seen.forked);
    EXPECT_EQ(seen.threads, std::set{std::this_thread::get_id()});
}

TEST_P(Parallel, StaysOnTheCallingThreadInsideAParallelRegion)
{
    omp_set_max_active_levels(2); // so that the runtime would fork again
    std::atomic<int> callers = 0, elsewhere = 0;
#pragma omp parallel num_threads(2)
    {
        ++callers;
        const std::thread::id self = std::this_thread::get_id();
        GetParam().run(1000, 1000, [&](int, int) { elsewhere += std::this_thread::get_id() != self; });
    }
    omp_set_max_active_levels(1);
    EXPECT_EQ(callers, 2);
    EXPECT_EQ(elsewhere, 0);
}

TEST(ParallelRows, MembersTakeContiguousBandsInTheirOrder)
{
    for (const Pattern& pattern : {patterns[0], patterns[1]}) {
        for (int threads = 2; threads <= 5; ++threads) {
            ASSERT_EQ(zorSetNumThreads(threads), zorStatusOk);
            std::vector<int> member(203);
            pattern.run(100, 203, [&](int y, int) { member[y] = omp_get_thread_num(); });
            EXPECT_TRUE(std::is_sorted(member.begin(), member.end())) << pattern.name;
            for (int m = 0; m < threads; ++m) {
                const auto rows = std::count(member.begin(), member.end(), m);
                EXPECT_TRUE(rows == 203 / threads || rows == 203 / threads + 1) << pattern.name << ": " << rows;
            }
        }
    }
}

using Band = std::vector<int>; // numbers that a callback was given
using Bands = std::multiset<Band>;

class Recorder {
public:
    void add(const Band& band)
    {
        const std::lock_guard lock(mutex);
        bands.insert(band);
    }
    Bands bands;

private:
    std::mutex mutex;
};

TEST(ParallelBands, SharesByHand)
{
    const struct {
        int threads, width, height;
        Bands bands; // first row, row count
    } cases[] = {
        {1, 500, 200, {{0, 200}}},
        {2, 192, 193, {{0, 96}, {96, 97}}},
        {3, 200, 200, {{0, 66}, {66, 66}, {132, 68}}},
        {7, 192, 192, {{0, 27}, {27, 27}, {54, 27}, {81, 27}, {108, 27}, {135, 27}, {162, 30}}},
        {5, 5000, 191, {{0, 191}}},
        {193, 192, 192, {{0, 192}}}, // quotient 0: the remainder is everything
    };
    for (const auto& c : cases) {
        ASSERT_EQ(zorSetNumThreads(c.threads), zorStatusOk);
        Recorder recorder;
        bandsAboveThreshold(c.width, c.height, [&](int first, int count) { recorder.add({first, count}); });
        EXPECT_EQ(recorder.bands, c.bands) << c.width << " x " << c.height << ", " << c.threads << " threads";
    }
}

Bands groupBands(int width, int height)
{
    Recorder recorder;
    groupsAboveThreshold(width, height, [&](GroupBand band) {
        recorder.add({band.firstGroup, band.groupCount, band.isFirst, band.isLast});
    });
    return recorder.bands;
}

TEST(ParallelGroups, SharesByHand)
{
    const struct {
        int threads, width, height;
        Bands bands; // first group, group count, is first, is last
    } cases[] = {
        {1, 500, 200, {{0, 50, 1, 1}}},
        {2, 500, 4, {{0, 1, 1, 1}}},
        {2, 500, 3, {{0, 0, 1, 1}}},
        {4, 127, 200, {{0, 50, 1, 1}}},
        {4, 128, 128, {{0, 32, 1, 1}}},
        {2, 128, 132, {{0, 16, 1, 0}, {16, 17, 0, 1}}},                                 // 33 groups, 32 divided
        {3, 128, 129, {{0, 10, 1, 0}, {10, 10, 0, 0}, {20, 12, 0, 1}}},                 // 32 groups, 31 divided
        {3, 128, 131, {{0, 10, 1, 0}, {10, 10, 0, 0}, {20, 12, 0, 1}}},                 // three rows left over
        {4, 999, 256, {{0, 15, 1, 0}, {15, 15, 0, 0}, {30, 15, 0, 0}, {45, 19, 0, 1}}}, // 64 groups, 63 divided
        {40, 128, 131, {{0, 32, 1, 1}}},                                                // quotient 0
    };
    for (const auto& c : cases) {
        ASSERT_EQ(zorSetNumThreads(c.threads), zorStatusOk);
        EXPECT_EQ(groupBands(c.width, c.height), c.bands)
            << c.width << " x " << c.height << ", " << c.threads << " threads";
    }
}

TEST(ParallelGroups, OneBandWhenForkingIsRefused)
{
    ASSERT_EQ(zorSetNumThreads(3), zorStatusOk);
    const int levels = omp_get_max_active_levels();
    omp_set_max_active_levels(0);
    EXPECT_EQ(groupBands(128, 129), (Bands{{0, 32, 1, 1}}));
    omp_set_max_active_levels(levels);
}

} // namespace
} // namespace zorcc::test
