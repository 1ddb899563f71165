// SPDX-License-Identifier: MIT
// Speed of every conversion of the library, each with a memcpy of the same traffic.
#include <regex>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <benchmark/benchmark.h>

#include "bench/surveys.h"
#include "bench/tiers.h"
#include "bench/workload.h"

namespace {

using namespace zorcc;
using namespace zorcc::bench;
using interface::Function;

void report(benchmark::State& state, ZorSize size, std::size_t bytes)
{
    state.counters["pixels"] =
        benchmark::Counter(pixels(size), benchmark::Counter::kIsIterationInvariantRate, benchmark::Counter::kIs1000);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void measure(benchmark::State& state, const Function& function, const Variant& variant, ZorSize size)
{
    const Workload work(function, variant, size);
    if (work() != zorStatusOk) {
        state.SkipWithError("the conversion reports an error");
        return;
    }
    for (auto _ : state) {
        work();
        benchmark::ClobberMemory();
    }
    report(state, size, trafficBytes(function, size));
}

void measureCopy(benchmark::State& state, const Function& function, const Variant&, ZorSize size)
{
    const Copy copy(function, size);
    for (auto _ : state) {
        copy();
        benchmark::ClobberMemory();
    }
    report(state, size, trafficBytes(function, size));
}

// The clock is the processor time of the calling thread, which a busy machine does not spoil; with several threads it
// is that on the wall.
void registerAll(bool wallClock)
{
    auto add = [&](const std::string& name, auto work, const Function& function, const Variant& variant, ZorSize size) {
        auto* benchmark = benchmark::RegisterBenchmark(name.c_str(), work, function, variant, size);
        if (wallClock) benchmark->UseRealTime();
    };
    for (const Function& function : interface::functions())
        for (const Variant& variant : variantsOf(function))
            for (ZorSize size : {cachedSize, frameSize}) {
                const std::string name = nameOf(function, variant) + "/" + sizeName(size);
                add(name, measure, function, variant, size);
                add(name + "/memcpy", measureCopy, function, variant, size);
            }
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Speed of every conversion at two image sizes.");
    app.footer("All other options go to Google Benchmark, such as --benchmark_filter=REGEX.");
    const auto tiers = tiersHere();
    std::string tier(nameOf(bestTier()));
    int threads = 1;
    app.add_option("--tier", tier, "SIMD tier to run on")->check(CLI::IsMember(tiers))->capture_default_str();
    app.add_option("--threads", threads, "Threads that one call may use")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    std::string filter;
    app.add_option("--filter", filter, "Only the functions whose names match this regular expression, of the lists");
    struct {
        const char *option, *help;
        bool (*print)(const std::regex&);
        bool wanted = false;
    } surveys[] = {
        {"--summary", "List the slowest relative to memcpy, and to their family", printSlowest},
        {"--growth", "List speeds at 8K in multiples of those at 1080p; exit 1 if one is below 0.9", printGrowth},
        {"--forks", "List speeds on two threads in multiples of those on one; exit 1 if one is below 1", printForks},
        {"--busy", "The same with one processor busy; exit 1 if a call of 10 ms is below 0.5", printBusy},
    };
    for (auto& survey : surveys) app.add_flag(survey.option, survey.wanted, survey.help);
    app.allow_extras();
    CLI11_PARSE(app, argc, argv);

    setActiveTier(tiers.at(tier));
    zorSetNumThreads(threads);
    bool surveyed = false, ok = true;
    for (const auto& survey : surveys)
        if (survey.wanted) {
            ok = survey.print(std::regex(filter)) && ok;
            surveyed = true;
        }
    if (surveyed) return ok ? 0 : 1;

    benchmark::AddCustomContext("tier", tier);
    benchmark::AddCustomContext("threads", std::to_string(threads));
    benchmark::AddCustomContext("bytes_per_second", "bytes read plus bytes written");
    benchmark::AddCustomContext("memcpy", "reads and writes as many bytes as the conversion, on 1 thread");

    std::vector<std::string> others = app.remaining();
    std::vector<char*> arguments{argv[0]};
    for (std::string& other : others) arguments.push_back(other.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    registerAll(threads > 1);
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 1;
}
