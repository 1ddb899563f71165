// SPDX-License-Identifier: MIT
// Any bytes as a call of a function of the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zorcc::test {

// What the bytes stand for: missing ones are 0, so that every input is a call, and short ones are simple calls.
struct CallInput {
    std::uint16_t function;
    std::uint16_t width; // less one
    std::uint8_t height; // likewise
    std::uint8_t threads, contents;
    std::uint8_t source[3], destination[3]; // arrangement: steps, direction and edge; bytes off the edge; which plane
    std::uint8_t inPlace;
    std::uint8_t region[4]; // of a mosaic
    std::uint32_t seed;     // of samples and arguments
};

// Makes the call on every tier of this processor and compares all bytes with those of the scalar reference. Says what
// is wrong, or gives nothing. `visited` gets a number for each thing about the call that may be of interest.
class Calls {
public:
    static constexpr std::size_t interests = 1 << 16;
    bool run(std::span<const std::uint8_t> bytes, std::uint8_t (&visited)[interests]);
    static int functionCount();
};

} // namespace zorcc::test
