// SPDX-License-Identifier: MIT
#include "bench/race.h"

#include <algorithm>

namespace zorcc::bench {

namespace {

constexpr double batchSeconds = 2e-4; // long compared with reading the clock, short compared with a time slice
constexpr int fewestCalls = 3;        // in a batch, however long they take
constexpr int fewestBatches = 5;

// Seconds of one call. An untimed call comes first: caches and branch predictors still know the runner before.
double timeBatch(const Runner& runner, int calls)
{
    if (runner.select) runner.select();
    runner.work();
    const auto batch = [&] {
        for (int i = 0; i < calls; ++i) runner.work();
    };
    return secondsOf(batch) / calls;
}

} // namespace

void race(std::vector<Runner>& runners, double seconds)
{
    struct Turn {
        Runner& runner;
        int calls;       // in a batch
        int batches = 0; // run so far
        double used = 0; // seconds so far
    };
    std::vector<Turn> turns;
    for (Runner& runner : runners) {
        const double once = std::max(timeBatch(runner, 1), 1e-9);
        turns.push_back({runner, std::max(fewestCalls, static_cast<int>(batchSeconds / once))});
    }
    const double share = seconds / static_cast<double>(runners.size());
    for (bool again = true; again;) {
        again = false;
        for (Turn& turn : turns) {
            if (turn.batches >= fewestBatches && turn.used >= share) continue;
            turn.used += secondsOf(
                [&] { turn.runner.seconds = std::min(turn.runner.seconds, timeBatch(turn.runner, turn.calls)); });
            ++turn.batches;
            again = true;
        }
    }
}

} // namespace zorcc::bench
