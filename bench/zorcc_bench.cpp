// SPDX-License-Identifier: MIT
// Speed of every conversion of the library, each with a memcpy of the same traffic.
#include <cstring>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <benchmark/benchmark.h>

#include "bench/picture.h"
#include "bench/tiers.h"
#include "bench/variants.h"

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
    const Picture source(*function.source, size), destination(*function.destination, size);
    if (function(source.image, destination.image, size, variant.arguments) != zorStatusOk) {
        state.SkipWithError("the conversion reports an error");
        return;
    }
    for (auto _ : state) {
        function(source.image, destination.image, size, variant.arguments);
        benchmark::ClobberMemory();
    }
    report(state, size, trafficBytes(function, size));
}

// Half of the conversion's traffic is read and half is written.
void measureCopy(benchmark::State& state, const Function& function, const Variant&, ZorSize size)
{
    const std::size_t bytes = trafficBytes(function, size) / 2;
    const Buffer source(bytes), destination(bytes);
    for (auto _ : state) {
        std::memcpy(destination.data(), source.data(), bytes);
        benchmark::ClobberMemory();
    }
    report(state, size, 2 * bytes);
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
    app.allow_extras();
    CLI11_PARSE(app, argc, argv);

    setActiveTier(tiers.at(tier));
    zorSetNumThreads(threads);
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
