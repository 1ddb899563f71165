// SPDX-License-Identifier: MIT
#include "bench/peers/results.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "bench/picture.h"
#include "bench/ranking.h"

namespace zorcc::bench {

namespace {

bool isOtherLibrary(const PeerSpeed& peer) { return peer.name != "memcpy" && !peer.name.starts_with("zorcc "); }

// Mpx/s, or nanoseconds of a call on a tiny image.
double shown(ZorSize size, double speed) { return isTiny(size) ? 1e3 * pixels(size) / speed : speed; }

// "name": number, ...
template <class Entries, class Entry> void writeNumbers(std::ofstream& file, const Entries& entries, Entry entry)
{
    const char* separator = "";
    for (const auto& each : entries)
        if (const auto [name, number] = entry(each); !name.empty()) {
            file << separator << '"' << name << "\": " << number;
            separator = ", ";
        }
}

} // namespace

const PeerSpeed* Result::bestPeer(bool ssse3Only) const
{
    const PeerSpeed* best = nullptr;
    for (const PeerSpeed& peer : peers)
        if (isOtherLibrary(peer) && peer.ssse3Only == ssse3Only && (!best || peer.speed > best->speed)) best = &peer;
    return best;
}

const PeerSpeed* Result::find(std::string_view peer) const
{
    for (const PeerSpeed& each : peers)
        if (each.name == peer) return &each;
    return nullptr;
}

void print(const Result& result)
{
    std::printf("%-46s %9s", result.name.c_str(), sizeName(result.size).c_str());
    for (const auto& [tier, our] : result.ours) std::printf(" %8s", nameOf(tier));
    std::printf("\n  %-44s %9s", "zorcc", isTiny(result.size) ? "ns" : "Mpx/s");
    for (const auto& [tier, our] : result.ours) std::printf(" %8.0f", shown(result.size, our));
    std::printf("\n");
    for (const PeerSpeed& peer : result.peers) {
        std::printf("  %-44s %9.0f", peer.name.c_str(), shown(result.size, peer.speed));
        for (const auto& [tier, our] : result.ours) std::printf(" %7.2fx", our / peer.speed);
        std::printf("\n");
    }
    std::printf("\n");
    std::fflush(stdout);
}

void printSummary(const std::vector<Result>& results)
{
    std::map<Tier, Ranking> speeds, calls;
    for (const Result& result : results)
        for (const auto& [tier, our] : result.ours)
            if (const PeerSpeed* const peer = result.bestPeer(tier == Tier::ssse3 && !isTiny(result.size)))
                (isTiny(result.size) ? calls : speeds)[tier].add(
                    result.name + " " + sizeName(result.size) + " " + peer->name, our / peer->speed);
    for (auto& [tier, ranking] : speeds)
        ranking.print(std::string("Speed on ") + nameOf(tier) + " in multiples of the best peer's", 1, 10);
    for (auto& [tier, ranking] : calls)
        ranking.print(std::string("Time of libyuv's calls on small images in multiples of ours on ") + nameOf(tier), 1,
                      10);
}

void writeJson(const std::string& path, const std::string& tier, const std::vector<std::string>& versions,
               const std::vector<Result>& results)
{
    using Number = std::pair<std::string, double>;
    std::ofstream file(path);
    file << "{\"tier\": \"" << tier << "\", \"libraries\": [";
    for (const std::string& version : versions)
        file << (&version == versions.data() ? "" : ", ") << '"' << version << '"';
    file << "],\n\"results\": [";
    for (const Result& result : results) {
        file << (&result == results.data() ? "\n" : ",\n") << "{\"function\": \"" << result.name << "\", \"size\": \""
             << sizeName(result.size) << "\", \"zorcc\": {";
        writeNumbers(file, result.ours, [](const auto& our) { return Number(nameOf(our.first), our.second); });
        for (const bool ssse3Only : {false, true}) {
            file << "}, \"" << (ssse3Only ? "peers held to SSSE3" : "peers") << "\": {";
            writeNumbers(file, result.peers, [=](const PeerSpeed& peer) {
                const bool wanted = isOtherLibrary(peer) && peer.ssse3Only == ssse3Only;
                return Number(wanted ? peer.name : "", peer.speed);
            });
        }
        file << "}, \"memcpy\": " << result.find("memcpy")->speed << "}";
    }
    file << "\n]}\n";
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

} // namespace zorcc::bench
