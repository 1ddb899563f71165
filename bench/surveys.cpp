// SPDX-License-Identifier: MIT
#include "bench/surveys.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <sched.h>
#include <set>
#include <span>
#include <thread>

#include "bench/race.h"
#include "bench/ranking.h"
#include "bench/tiers.h"
#include "bench/workload.h"

namespace zorcc::bench {

namespace {

using interface::Function;

constexpr std::size_t shown = 10;
constexpr double growthLimit = 0.9;
constexpr double busyLimit = 0.5;
constexpr double longCall = 0.01; // seconds
constexpr ZorSize largeSize = {7680, 4320};

template <class Visit> void forEachVariant(const std::regex& filter, Visit visit)
{
    for (const Function& function : interface::functions())
        for (const Variant& variant : variantsOf(function))
            if (const std::string name = nameOf(function, variant); std::regex_search(name, filter))
                visit(function, variant, name);
}

// Functions that do the same kind of work.
std::string groupOf(const Function& function, const Variant& variant)
{
    return std::string(function.family) + " " + std::string(variant.name);
}

// Speeds at each size, the largest first, in multiples of a memcpy of the same bytes, all of one race.
std::vector<double> speedsToCopy(const Function& function, const Variant& variant, std::span<const ZorSize> sizes,
                                 double seconds)
{
    std::vector<Runner> runners;
    for (const ZorSize size : sizes) {
        runners.push_back({"", {}, [work = std::make_shared<Workload>(function, variant, size)] { (*work)(); }});
        runners.push_back({"", {}, [copy = std::make_shared<Copy>(function, size)] { (*copy)(); }});
    }
    race(runners, seconds);
    std::vector<double> speeds;
    for (std::size_t i = 0; i < runners.size(); i += 2) speeds.push_back(runners[i + 1].seconds / runners[i].seconds);
    return speeds;
}

double processorSeconds(clockid_t clock)
{
    timespec time;
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// Seconds of processors that other threads of this process have used.
double secondsOfOthers()
{
    return processorSeconds(CLOCK_PROCESS_CPUTIME_ID) - processorSeconds(CLOCK_THREAD_CPUTIME_ID);
}

// Whether other threads work in a call. The first one starts them. Time is read while they sleep: that of a thread that
// runs on another processor is brought up to date when it stops, at the latest some milliseconds later.
bool forks(const Workload& work)
{
    const auto timeOfOthers = [&] {
        work();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return secondsOfOthers();
    };
    const double first = timeOfOthers(), second = timeOfOthers(), third = timeOfOthers();
    return std::min(second - first, third - second) > 2e-5;
}

// Something else that wants the processor which this process may use last.
class BusyProcessor {
public:
    BusyProcessor()
        : worker([](const std::stop_token& end) {
              cpu_set_t own;
              sched_getaffinity(0, sizeof own, &own);
              int last = CPU_SETSIZE - 1;
              while (!CPU_ISSET(last, &own)) --last;
              CPU_ZERO(&own);
              CPU_SET(last, &own);
              sched_setaffinity(0, sizeof own, &own);
              while (!end.stop_requested()) continue;
          })
    {
    }

private:
    std::jthread worker;
};

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

bool printSlowest(const std::regex& filter)
{
    struct Figure {
        std::string name, group;
        double toCopy;
    };
    std::vector<Figure> figures;
    std::map<std::string, std::vector<double>> groups;
    forEachVariant(filter, [&](const Function& function, const Variant& variant, const std::string& name) {
        const double speed = speedsToCopy(function, variant, std::array{cachedSize}, 0.03)[0];
        figures.push_back({name, groupOf(function, variant), speed});
        groups[figures.back().group].push_back(figures.back().toCopy);
    });
    Ranking toCopy, toFamily;
    for (const Figure& figure : figures) {
        toCopy.add(figure.name, figure.toCopy);
        toFamily.add(figure.name, figure.toCopy / median(groups[figure.group]));
    }
    toCopy.print("Speed at " + sizeName(cachedSize) + " in multiples of a memcpy of the same bytes", 0.1, shown);
    toFamily.print("The same in multiples of the family's median", 0.5, shown);
    return true;
}

bool printGrowth(const std::regex& filter)
{
    Ranking growth;
    std::set<std::string> seen;
    forEachVariant(filter, [&](const Function& function, const Variant& variant, const std::string& name) {
        if (!seen.insert(groupOf(function, variant)).second) return;
        const auto speeds = speedsToCopy(function, variant, std::array{largeSize, frameSize}, 2);
        growth.add(name, speeds[0] / speeds[1]);
    });
    growth.print("Speed relative to memcpy at " + sizeName(largeSize) + " in multiples of that at " +
                     sizeName(frameSize),
                 growthLimit, std::string::npos);
    return growth.below(growthLimit) == 0;
}

bool printForks(const std::regex& filter)
{
    std::map<std::string, double> best;
    std::set<std::string> done;
    // Something else may keep the second processor busy for a while: slow ones get other chances later.
    for (int pass = 0; pass < 4; ++pass)
        forEachVariant(filter, [&](const Function& function, const Variant& variant, const std::string& name) {
            if (done.contains(name)) return;
            const Workload work(function, variant, frameSize);
            zorSetNumThreads(2);
            if (pass == 0 && !forks(work)) {
                done.insert(name);
                return;
            }
            std::vector<Runner> runners;
            for (const int threads : {1, 2})
                runners.push_back({"", [=] { zorSetNumThreads(threads); }, [&] { work(); }});
            race(runners, 0.3);
            best[name] = std::max(best[name], runners[0].seconds / runners[1].seconds);
            if (best[name] >= 1) done.insert(name);
        });
    Ranking gain;
    for (const auto& [name, figure] : best) gain.add(name, figure);
    gain.print("Speed at " + sizeName(frameSize) + " on two threads in multiples of that on one", 1, std::string::npos);
    return gain.below(1) == 0;
}

bool printBusy(const std::regex& filter)
{
    constexpr int calls = 100;
    Ranking longCalls, shortCalls;
    std::set<std::string> seen;
    forEachVariant(filter, [&](const Function& function, const Variant& variant, const std::string& name) {
        if (seen.contains(groupOf(function, variant))) return;
        for (const ZorSize size : {frameSize, largeSize}) {
            const Workload work(function, variant, size);
            zorSetNumThreads(2);
            if (!forks(work)) return;
            seen.insert(groupOf(function, variant));
            const BusyProcessor busy;
            std::map<int, std::vector<double>> seconds;
            for (int i = 0; i < calls; ++i)
                for (const int threads : {1, 2}) {
                    zorSetNumThreads(threads);
                    seconds[threads].push_back(secondsOf(work));
                }
            const double alone = median(seconds[1]);
            (alone < longCall ? shortCalls : longCalls).add(name + " " + sizeName(size), alone / median(seconds[2]));
            if (alone >= longCall) return;
        }
    });
    const std::string title = "Speed on two threads in multiples of that on one, one processor busy, calls of ";
    longCalls.print(title + "at least 10 ms", busyLimit, std::string::npos);
    shortCalls.print(title + "less", busyLimit, std::string::npos);
    return longCalls.below(busyLimit) == 0;
}

} // namespace zorcc::bench
