// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace zorcc::test {

// The same seed gives the same numbers. Quick to seed: images are small and many.
class Random {
public:
    explicit Random(std::uint32_t seed) : engine(seed) {}

    std::uint32_t operator()() { return static_cast<std::uint32_t>(engine() >> 32); }

    // From 0 to count - 1.
    int below(int count) { return static_cast<int>((*this)() % static_cast<unsigned>(count)); }

    template <class T, std::size_t n> T anyOf(const T (&values)[n]) { return values[(*this)() % n]; }

private:
    std::linear_congruential_engine<std::uint64_t, 6364136223846793005u, 1442695040888963407u, 0> engine;
};

} // namespace zorcc::test
