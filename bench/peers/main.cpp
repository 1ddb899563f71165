// SPDX-License-Identifier: MIT
// Our conversions on every tier of this machine compared with what other libraries offer for the same pixel formats.
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <regex>
#include <span>
#include <stdexcept>

#include <CLI/CLI.hpp>

#include "bench/peers/peer.h"
#include "bench/peers/targets.h"
#include "bench/race.h"
#include "bench/tiers.h"
#include "bench/workload.h"

namespace {

using namespace zorcc;
using namespace zorcc::bench;
using interface::Function;

std::vector<Library> libraries()
{
    std::vector<Library> all;
#ifdef ZORCC_PEER_LIBYUV
    all.push_back(libyuv());
#endif
#ifdef ZORCC_PEER_SWSCALE
    all.push_back(swscale());
#endif
#ifdef ZORCC_PEER_OPENCV
    all.push_back(openCV());
#endif
#ifdef ZORCC_PEER_ZIMG
    all.push_back(zimg());
#endif
    all.push_back(libM());
    all.push_back(ourselves());
#ifdef ZORCC_PEER_LIBRAW
    all.push_back(libRaw());
#endif
    return all;
}

// All ways to do the job of `function`: ours on every tier, a memcpy of the same traffic, the peers. Nothing if it does
// not take images of this size.
std::optional<Result> compare(const Function& function, const Variant& variant, ZorSize size,
                              const std::vector<const Peer*>& peers, const Tiers& tiers, double seconds)
{
    // Where planes are smaller than the image, peers write the one sample of a smaller plane that ours may not.
    const Workload ours(function, variant, size, isTiny(size) ? tinySizes[0] : size);
    if (isTiny(size) && ours() != zorStatusOk) return std::nullopt;
    const Copy copy(function, size);
    const Job job{function, ours.source.image, ours.destination.image, size, variant.arguments};

    std::vector<Runner> runners;
    for (const auto& [name, tier] : tiers) runners.push_back({name, [t = tier] { setActiveTier(t); }, [&] { ours(); }});
    runners.push_back({"memcpy", {}, [&] { copy(); }});
    for (const Peer* peer : peers) runners.push_back({peer->name, peer->select, peer->prepare(job)});
    race(runners, seconds);

    auto speed = [&, runner = runners.begin()]() mutable { return pixels(size) / 1e6 / runner++->seconds; };
    Result result{&function, nameOf(function, variant), size, {}, {}};
    for (const auto& [name, tier] : tiers) result.ours[tier] = speed();
    const double copySpeed = speed();
    for (const Peer* peer : peers) result.peers.push_back({peer->name, peer->ssse3Only, speed()});
    result.peers.push_back({"memcpy", false, copySpeed});
    return result;
}

// How far the bytes that each peer gives are from ours, for an image of random bytes.
void printDifferences(const Function& function, const Variant& variant, const std::vector<const Peer*>& peers)
{
    if (function.source->sample != interface::Sample::u8 || function.destination->sample != interface::Sample::u8)
        return;
    Variant opaque = variant;
    opaque.arguments.alpha = 255;
    const Workload ours(function, opaque, cachedSize);
    ours();
    const auto* const first = static_cast<const std::uint8_t*>(ours.destination.image.plane[0]);
    const std::vector<std::uint8_t> expected(first, first + imageBytes(*function.destination, cachedSize));
    for (const Peer* peer : peers) {
        if (peer->select) peer->select();
        peer->prepare({function, ours.source.image, ours.destination.image, cachedSize, variant.arguments})();
        int largest = 0, different = 0;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            largest = std::max(largest, std::abs(expected[i] - first[i]));
            different += expected[i] != first[i];
        }
        std::printf("%-50s %-50s largest %3d, %5.1f %% differ\n", nameOf(function, variant).c_str(), peer->name.c_str(),
                    largest, 100.0 * different / static_cast<double>(expected.size()));
    }
}

bool isLibyuv(const Peer* peer) { return peer->name.starts_with("libyuv ") && !peer->ssse3Only; }

struct Options {
    std::string filter, tier = nameOf(bestTier()), json;
    double seconds = 0.5;
    bool check = false, summary = false, differences = false;
};

// False if a target is missed.
bool compareAll(const Options& options)
{
    const std::regex wanted(options.filter);
    highestTier = tiersHere().at(options.tier);
    const Tiers tiers = tiersHere(highestTier);
    const std::vector<Library> all = libraries();
    std::vector<std::string> versions;
    for (const Library& library : all)
        if (!library.version.empty()) versions.push_back(library.version);
    for (const std::string& version : versions) std::printf("%s\n", version.c_str());
    if (!options.differences)
        std::printf(
            "Mpx/s of one thread, or nanoseconds of a call on a small image, the best of many short batches in "
            "turn; under each tier\nour speed in multiples of the row's. memcpy reads and writes as many bytes as "
            "the conversion.\n\n");

    std::vector<Result> results;
    const auto measure = [&](const Function& function, const Variant& variant, std::span<const ZorSize> sizes,
                             const std::vector<const Peer*>& peers) {
        for (const ZorSize size : sizes)
            if (const auto result = compare(function, variant, size, peers, tiers, options.seconds)) {
                results.push_back(*result);
                print(*result);
            }
    };
    for (const Function& function : interface::functions())
        for (const Variant& variant : variantsOf(function)) {
            const std::string name = nameOf(function, variant);
            if (!std::regex_search(name, wanted)) continue;
            std::vector<const Peer*> peers, libyuvs;
            for (const Library& library : all)
                for (const Peer& peer : library.peers)
                    if (peer.function == name) peers.push_back(&peer);
            std::ranges::copy_if(peers, std::back_inserter(libyuvs), isLibyuv);
            if (options.differences) {
                printDifferences(function, variant, peers);
                continue;
            }
            // There are targets for functions without peers, but not for variants of them.
            if (peers.empty() && !(options.check && variant.name.empty())) continue;
            measure(function, variant, std::array{cachedSize, frameSize}, peers);
            if (!libyuvs.empty()) measure(function, variant, tinySizes, libyuvs);
        }
    if (options.differences) return true;
    if (results.empty()) throw std::runtime_error("no function with a peer matches '" + options.filter + "'");
    if (!options.json.empty()) writeJson(options.json, options.tier, versions, results);
    if (options.summary) printSummary(results);
    return !options.check || checkTargets(results, options.filter.empty());
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Conversions of zorcc and of other libraries, all on one thread.");
    Options options;
    app.add_option("--filter", options.filter, "Only the functions whose names match this regular expression");
    app.add_option("--seconds", options.seconds, "Time for one function at one size")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    app.add_option("--tier", options.tier, "The highest SIMD tier; below avx512 the peers do without AVX-512, too")
        ->check(CLI::IsMember(tiersHere()))
        ->capture_default_str();
    app.add_option("--json", options.json, "File to write the figures to");
    app.add_flag("--summary", options.summary, "Print the geomean to the best peer, and the worst figures, at the end");
    app.add_flag("--check", options.check, "Compare the figures with the project's targets; exit 1 if one is missed");
    app.add_flag("--differences", options.differences, "Print how far the peers' bytes are from ours, and no speed");
    CLI11_PARSE(app, argc, argv);

    // OpenCV reads the instructions that it is not to use from the environment while it is loaded.
    constexpr const char* unused = "OPENCV_CPU_DISABLE";
    if (options.tier != nameOf(bestTier()) && !std::getenv(unused)) {
        setenv(unused, "AVX512-SKX", 1);
        execv("/proc/self/exe", argv);
    }

    zorSetNumThreads(1);
    try {
        return compareAll(options) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zorcc_peers: %s\n", error.what());
        return 2;
    }
}
