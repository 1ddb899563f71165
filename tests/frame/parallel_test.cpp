// SPDX-License-Identifier: MIT
#include "frame/parallel.h"

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <utility>
#include <vector>

#include "zorcore.h"

namespace zorcc::test {
namespace {

// What one call of a callback stands for: rows, and the numbers that it was given.
using Share = std::vector<int>;
using Take = std::function<void(int firstRow, int rowCount, const Share& share)>;

struct Pattern {
    const char* name;
    void (*run)(int width, int height, const Take& take);
};
const Pattern rows{"rows", [](int width, int height, auto& take) {
                       rowsAboveThreshold(width, height, [&](int y) { take(y, 1, {y}); });
                   }};
const Pattern always{"always",
                     [](int, int height, auto& take) { rowsAlways(height, [&](int y) { take(y, 1, {y}); }); }};
const Pattern bands{
    "bands", [](int width, int height, auto& take) {
        bandsAboveThreshold(width, height, [&](int first, int count) { take(first, count, {first, count}); });
    }};
const Pattern groups{"groups", [](int width, int height, auto& take) {
                         groupsAboveThreshold(width, height, [&](GroupBand band) {
                             const int first = 4 * band.firstGroup;
                             take(first, band.isLast ? height - first : 4 * band.groupCount,
                                  {band.firstGroup, band.groupCount, band.isFirst, band.isLast});
                         });
                     }};
const Pattern patterns[] = {rows, always, bands, groups};

struct Observation {
    std::vector<int> times, member; // of each row
    std::multiset<Share> shares;
    std::set<std::thread::id> threads;
    bool forked = false;
};

Observation observe(const Pattern& pattern, int threads, int width, int height)
{
    EXPECT_EQ(zorSetNumThreads(threads), zorStatusOk);
    Observation seen{std::vector<int>(height), std::vector<int>(height), {}, {}};
    std::mutex mutex;
    pattern.run(width, height, [&](int first, int count, const Share& share) {
        const std::lock_guard lock(mutex);
        for (int y = first; y < first + count; ++y) {
            ++seen.times.at(y);
            seen.member.at(y) = omp_get_thread_num();
        }
        seen.shares.insert(share);
        seen.threads.insert(std::this_thread::get_id());
        seen.forked |= omp_in_parallel() != 0;
    });
    return seen;
}

void expectEveryRowOnce(int threads, int width, int height)
{
    for (const Pattern& pattern : patterns)
        EXPECT_EQ(observe(pattern, threads, width, height).times, std::vector<int>(height, 1))
            << pattern.name << ", width " << width << ", " << threads << " threads";
}

struct Parallel : testing::Test {
    const int levels = omp_get_max_active_levels();
    ~Parallel() override
    {
        omp_set_dynamic(0);
        omp_set_max_active_levels(levels);
    }
};

// The runtime makes teams as large as asked for, as large as it sees fit up to that, or none.
TEST_F(Parallel, EveryRowOnceWhateverTheTeam)
{
    for (const bool dynamic : {false, true})
        for (const int nested : {levels, 0}) {
            omp_set_dynamic(dynamic);
            omp_set_max_active_levels(nested);
            for (int threads = 1; threads <= 8; ++threads)
                for (const int width : {1, 64, 128, 192, 5000})
                    for (const int height :
                         {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 20, 64, 65, 128, 129, 130, 131, 132, 133, 191, 192, 193})
                        expectEveryRowOnce(threads, width, height);
        }
}

TEST_F(Parallel, EveryRowOnceFromSeveralThreadsAtOnce)
{
    std::vector<std::thread> callers;
    for (int i = 0; i < 4; ++i)
        callers.emplace_back([] {
            for (int height = 192; height < 200; ++height) expectEveryRowOnce(4, 192, height);
        });
    for (std::thread& caller : callers) caller.join();
}

TEST_F(Parallel, TeamsHaveAThreadForEachMemberAndWaitForAll)
{
    ASSERT_EQ(zorSetNumThreads(1), zorStatusOk); // of no consequence: the caller says how many
    for (int count = 1; count <= 4; ++count) {
        std::vector<std::thread::id> threadOf(count);
        std::vector<std::atomic<int>> rounds(count);
        std::atomic<int> behind = 0;
        team(count, [&](const Member& member) {
            EXPECT_EQ(member.count, count);
            EXPECT_EQ(std::exchange(threadOf.at(member.index), std::this_thread::get_id()), std::thread::id{});
            for (int round = 1; round <= 100; ++round) {
                rounds[member.index] = round;
                member.waitForOthers();
                for (const auto& reached : rounds) behind += reached < round;
            }
        });
        EXPECT_EQ(behind, 0);
        const std::set<std::thread::id> threads(threadOf.begin(), threadOf.end());
        EXPECT_EQ(static_cast<int>(threads.size()), count);
        EXPECT_FALSE(threads.contains({}));
    }
}

TEST_F(Parallel, TeamsAreNoLargerThanTheMachineOrTheWork)
{
    ASSERT_EQ(zorSetNumThreads(INT_MAX), zorStatusOk);
    const int largest = threadsHere();
    EXPECT_EQ(largest, std::max(32, 4 * omp_get_num_procs()));
    for (const Pattern& pattern : patterns)
        EXPECT_LE(static_cast<int>(observe(pattern, INT_MAX, 1000, 1000).threads.size()), largest) << pattern.name;
    EXPECT_FALSE(observe(rows, 4, 5000, 1).forked);
    EXPECT_FALSE(observe(always, 4, 5000, 1).forked);
    EXPECT_EQ(observe(always, 4, 1, 3).threads.size(), 3u);
}

TEST_F(Parallel, StaysOnTheCallingThreadInsideAParallelRegion)
{
    ASSERT_EQ(zorSetNumThreads(4), zorStatusOk);
    EXPECT_EQ(threadsHere(), 4);
    omp_set_max_active_levels(2); // so that the runtime would fork again
    std::atomic<int> inside = 0, calls = 0, strangers = 0;
#pragma omp parallel num_threads(2)
    {
        inside += threadsHere();
        const auto look = [&, self = std::this_thread::get_id()](auto...) {
            ++calls;
            strangers += std::this_thread::get_id() != self;
        };
        team(3, [&](const Member& member) {
            look();
            member.waitForOthers();
        });
        for (const Pattern& pattern : patterns) pattern.run(1000, 1000, look);
    }
    EXPECT_EQ(inside, 2);
    EXPECT_EQ(calls, 2 * (1 + 1000 + 1000 + 1 + 1)); // a team, rows twice, one band, one band of groups
    EXPECT_EQ(strangers, 0);
}

TEST_F(Parallel, ForksFromItsSizeOn)
{
    const struct {
        const Pattern& pattern;
        int threads, width, height;
        bool forks;
    } cases[] = {
        {rows, 4, 64, 64, false},     {rows, 4, 65, 64, true},       {rows, 4, 2048, 2, false},
        {rows, 4, 2049, 2, true},     {rows, 4, 1, 4096, false},     {rows, 4, 1, 4097, true},
        {rows, 4, 17, 241, true},     {rows, 4, 65536, 65536, true}, // a product that 32 bits would lose
        {rows, 1, 1000, 1000, false}, {always, 4, 1, 2, true},       {always, 4, 4096, 2, true},
        {always, 1, 9, 1000, false},  {bands, 4, 192, 192, true},    {bands, 4, 191, 192, false},
        {bands, 4, 192, 191, false},  {bands, 4, 5000, 191, false},  {bands, 4, 191, 5000, false},
        {bands, 1, 999, 999, false},  {groups, 4, 128, 129, true},   {groups, 4, 127, 129, false},
        {groups, 4, 128, 128, false}, {groups, 4, 127, 5000, false}, {groups, 4, 5000, 128, false},
        {groups, 1, 999, 999, false},
    };
    for (const auto& c : cases) {
        const Observation seen = observe(c.pattern, c.threads, c.width, c.height);
        EXPECT_EQ(seen.forked, c.forks) << c.pattern.name << " " << c.width << " x " << c.height;
        if (!c.forks) {
            EXPECT_EQ(seen.threads, std::set{std::this_thread::get_id()});
        } else if (c.height >= 128) {
            EXPECT_EQ(seen.threads.size(), 4u) << c.pattern.name << " " << c.width << " x " << c.height;
        }
    }
}

TEST_F(Parallel, MembersTakeContiguousBandsInTheirOrder)
{
    for (const Pattern& pattern : {rows, always})
        for (int threads = 2; threads <= 5; ++threads) {
            const std::vector<int> member = observe(pattern, threads, 100, 203).member;
            EXPECT_TRUE(std::is_sorted(member.begin(), member.end())) << pattern.name;
            for (int m = 0; m < threads; ++m) {
                const auto count = std::count(member.begin(), member.end(), m);
                EXPECT_TRUE(count == 203 / threads || count == 203 / threads + 1) << pattern.name << ": " << count;
            }
        }
}

TEST_F(Parallel, SharesByHand)
{
    const struct {
        const Pattern& pattern;
        int threads, width, height;
        std::multiset<Share> shares;
    } cases[] = {
        // first row, row count
        {bands, 1, 500, 200, {{0, 200}}},
        {bands, 2, 192, 193, {{0, 96}, {96, 97}}},
        {bands, 3, 200, 200, {{0, 66}, {66, 66}, {132, 68}}},
        {bands, 7, 192, 192, {{0, 27}, {27, 27}, {54, 27}, {81, 27}, {108, 27}, {135, 27}, {162, 30}}},
        {bands, 5, 5000, 191, {{0, 191}}},
        // first group, group count, is first, is last
        {groups, 2, 500, 4, {{0, 1, 1, 1}}},
        {groups, 2, 500, 3, {{0, 0, 1, 1}}},
        {groups, 4, 128, 128, {{0, 32, 1, 1}}},
        {groups, 2, 128, 132, {{0, 16, 1, 0}, {16, 17, 0, 1}}},                 // 33 groups, 32 divided
        {groups, 3, 128, 129, {{0, 10, 1, 0}, {10, 10, 0, 0}, {20, 12, 0, 1}}}, // 32 groups, 31 divided
        {groups, 3, 128, 131, {{0, 10, 1, 0}, {10, 10, 0, 0}, {20, 12, 0, 1}}}, // three rows left over
        // 64 groups, 63 divided
        {groups, 4, 999, 256, {{0, 15, 1, 0}, {15, 15, 0, 0}, {30, 15, 0, 0}, {45, 19, 0, 1}}},
        {groups, 32, 128, 131, {{0, 32, 1, 1}}}, // quotient 0
    };
    for (const auto& c : cases)
        EXPECT_EQ(observe(c.pattern, c.threads, c.width, c.height).shares, c.shares)
            << c.width << " x " << c.height << ", " << c.threads << " threads";
    omp_set_max_active_levels(0);
    EXPECT_EQ(observe(groups, 3, 128, 129).shares, (std::multiset<Share>{{0, 32, 1, 1}}));
}

} // namespace
} // namespace zorcc::test
