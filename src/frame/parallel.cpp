// SPDX-License-Identifier: MIT
#include "frame/parallel.h"

#include <limits.h>
#include <linux/futex.h>
#include <omp.h>
#include <stdint.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>

#include "frame/team_size.h"
#include "zorcore.h"

namespace zorcc {
namespace {

constexpr int64_t maxSerialPixels = 4096;
constexpr int minTallHeight = 192;
constexpr int minBandedSize = 192; // width and height
constexpr int minGroupedWidth = 128;
constexpr int maxSerialGroupedHeight = 128;
constexpr int rowsPerGroup = 4;

// Calls body(0) .. body(count - 1), contiguous ranges on each of at most `wanted` threads.
void forEach(int wanted, int count, FunctionRef<void(int)> body)
{
    const int threads = std::min(wanted, count);
    if (threads <= 1) {
        for (int i = 0; i < count; ++i) body(i);
        return;
    }
#pragma omp parallel for schedule(static) num_threads(threads)
    for (int i = 0; i < count; ++i) body(i);
}

} // namespace

// A barrier that soon sleeps. OpenMP's first spins for some milliseconds, on a processor that a member which is behind
// may need: two share one while something else keeps the others busy. The C++ library's would have to be linked.
class MeetingPoint {
public:
    void wait(int members)
    {
        const int now = round.load(std::memory_order_relaxed); // ends when all have arrived, this one too
        if (arrived.fetch_add(1, std::memory_order_acq_rel) + 1 < members) {
            const auto isGoingOn = [&] { return round.load(std::memory_order_acquire) == now; };
            for (int i = 0; i < turns && isGoingOn(); ++i) __builtin_ia32_pause();
            while (isGoingOn()) futex(FUTEX_WAIT_PRIVATE, now);
        } else {
            arrived.store(0, std::memory_order_relaxed);
            round.store(now ^ 1, std::memory_order_release);
            futex(FUTEX_WAKE_PRIVATE, INT_MAX);
        }
    }

private:
    static constexpr int turns = 1000; // some ten microseconds: waking up takes as long
    std::atomic<int> arrived = 0, round = 0;

    void futex(int operation, int value) { syscall(SYS_futex, &round, operation, value, nullptr, nullptr, 0); }
};

// A caller that is parallel itself already keeps the processors busy.
int threadsHere() { return omp_in_parallel() ? 1 : teamSize(ownGetNumThreads()); }

void Member::waitForOthers() const
{
    if (count > 1) meetingPoint->wait(count);
}

void team(int threads, FunctionRef<void(const Member&)> work)
{
    if (threads == 1 || omp_in_parallel()) {
        work({0, 1, nullptr});
        return;
    }
    MeetingPoint meetingPoint;
#pragma omp parallel num_threads(threads)
    work({omp_get_thread_num(), omp_get_num_threads(), &meetingPoint});
}

void rowsAboveThreshold(int width, int height, FunctionRef<void(int)> row)
{
    forEach(int64_t{width} * height > maxSerialPixels ? threadsHere() : 1, height, row);
}

void rowsOfTallImages(int height, FunctionRef<void(int)> row)
{
    forEach(height >= minTallHeight ? threadsHere() : 1, height, row);
}

void rowsAlways(int height, FunctionRef<void(int)> row) { forEach(threadsHere(), height, row); }

void bandsAboveThreshold(int width, int height, FunctionRef<void(int, int)> band)
{
    bandsAboveThreshold(width, height, INT_MAX, [&](int, int first, int count) { band(first, count); });
}

void bandsAboveThreshold(int width, int height, int mostBands, FunctionRef<void(int, int, int)> band)
{
    const int threads = width >= minBandedSize && height >= minBandedSize ? threadsHere() : 1;
    const int bands = std::max(1, std::min({threads, mostBands, height}));
    const int share = height / bands;
    forEach(bands, bands, [&](int index) {
        const int first = index * share;
        const int count = index == bands - 1 ? height - first : share;
        if (count > 0) band(index, first, count);
    });
}

void groupsAboveThreshold(int width, int height, FunctionRef<void(GroupBand)> band)
{
    const int groups = height / rowsPerGroup;
    const bool isLarge = width >= minGroupedWidth && height > maxSerialGroupedHeight;
    const int threads = isLarge ? std::min(threadsHere(), groups) : 1;
    if (threads == 1) {
        band({0, groups, true, true});
        return;
    }
#pragma omp parallel num_threads(threads)
    {
        // The team may be smaller than asked for, so shares are formed here, by each member for itself.
        const int members = omp_get_num_threads();
        const int member = omp_get_thread_num();
        const int share = (height - rowsPerGroup) / rowsPerGroup / members;
        const int first = member * share;
        const bool isLast = member == members - 1;
        const int count = isLast ? groups - first : share;
        if (count > 0) band({first, count, first == 0, isLast});
    }
}

} // namespace zorcc
