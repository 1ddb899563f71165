// SPDX-License-Identifier: MIT
// Our conversions on every tier of this machine compared with what other libraries offer for the same pixel formats.
#include <cstdio>
#include <cstring>
#include <regex>
#include <stdexcept>

#include <CLI/CLI.hpp>

#include "bench/peers/peer.h"
#include "bench/peers/race.h"
#include "bench/peers/targets.h"
#include "bench/picture.h"
#include "bench/tiers.h"
#include "bench/variants.h"

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

// All ways to do the job of `function`: ours on every tier, a memcpy of the same traffic, the peers.
Result compare(const Function& function, const Variant& variant, ZorSize size, const std::vector<const Peer*>& peers,
               double seconds)
{
    const Picture source(*function.source, size), destination(*function.destination, size);
    const std::size_t copyBytes = trafficBytes(function, size) / 2;
    const Buffer copySource(copyBytes), copyDestination(copyBytes);
    const Job job{function, source.image, destination.image, size, variant.arguments};

    const interface::Call call {
        source.image, destination.image, size, function.withScratch(variant.arguments, size)
    };
    std::vector<Runner> runners;
    for (const auto& [name, tier] : tiersHere())
        runners.push_back({name, [t = tier] { setActiveTier(t); }, [&] { function.bound(call); }});
    runners.push_back({"memcpy", {}, [&] { std::memcpy(copyDestination.data(), copySource.data(), copyBytes); }});
    for (const Peer* peer : peers) runners.push_back({peer->name, peer->select, peer->prepare(job)});
    race(runners, seconds);

    auto speed = [&, runner = runners.begin()]() mutable { return pixels(size) / 1e6 / runner++->seconds; };
    Result result{&function, nameOf(function, variant), size, {}, {}};
    for (const auto& [name, tier] : tiersHere()) result.ours[tier] = speed();
    const double copy = speed();
    for (const Peer* peer : peers) result.peers.push_back({peer->name, peer->ssse3Only, speed()});
    result.peers.push_back({"memcpy", false, copy});
    return result;
}

void printRow(const std::string& name, double speed, const std::map<Tier, double>& ours)
{
    std::printf("  %-44s %9.0f", name.c_str(), speed);
    for (const auto& [tier, our] : ours) std::printf(" %7.2fx", our / speed);
    std::printf("\n");
}

void print(const Result& result)
{
    std::printf("%-46s %9s", result.name.c_str(), sizeName(result.size).c_str());
    for (const auto& [tier, our] : result.ours) std::printf(" %8s", nameOf(tier));
    std::printf("\n  %-44s %9s", "zorcc", "");
    for (const auto& [tier, our] : result.ours) std::printf(" %8.0f", our);
    std::printf("\n");
    for (const PeerSpeed& peer : result.peers) printRow(peer.name, peer.speed, result.ours);
    std::printf("\n");
    std::fflush(stdout);
}

// False if a target is missed.
bool compareAll(const std::string& filter, double seconds, bool check)
{
    const std::regex wanted(filter);
    const std::vector<Library> all = libraries();
    for (const Library& library : all)
        if (!library.version.empty()) std::printf("%s\n", library.version.c_str());
    std::printf(
        "Mpx/s of one thread, the best of many short batches in turn; under each tier our speed in multiples of "
        "the row's.\nmemcpy reads and writes as many bytes as the conversion.\n\n");

    std::vector<Result> results;
    for (const Function& function : interface::functions())
        for (const Variant& variant : variantsOf(function)) {
            const std::string name = nameOf(function, variant);
            if (!std::regex_search(name, wanted)) continue;
            std::vector<const Peer*> peers;
            for (const Library& library : all)
                for (const Peer& peer : library.peers)
                    if (peer.function == name) peers.push_back(&peer);
            // There are targets for functions without peers, but not for variants of them.
            if (peers.empty() && !(check && variant.name.empty())) continue;
            for (ZorSize size : {cachedSize, frameSize}) {
                results.push_back(compare(function, variant, size, peers, seconds));
                print(results.back());
            }
        }
    if (results.empty()) throw std::runtime_error("no function with a peer matches '" + filter + "'");
    return !check || checkTargets(results);
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Conversions of zorcc and of other libraries, all on one thread.");
    std::string filter;
    double seconds = 0.5;
    bool check = false;
    app.add_option("--filter", filter, "Only the functions whose names match this regular expression");
    app.add_option("--seconds", seconds, "Time for one function at one size")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    app.add_flag("--check", check, "Compare the figures with the project's targets; exit 1 if one is missed");
    CLI11_PARSE(app, argc, argv);

    zorSetNumThreads(1);
    try {
        return compareAll(filter, seconds, check) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zorcc_peers: %s\n", error.what());
        return 2;
    }
}
