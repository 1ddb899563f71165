// SPDX-License-Identifier: MIT
// What the comparison needs of another library. A new operation is a row in its file, a new library one more file.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "interface/functions.h"
#include "simd/tier.h"

namespace zorcc::bench {

// The highest tier that ours runs on. Without AVX-512, other libraries do without it, too: all is as on a processor
// that has none. Set before libraries are asked for their operations.
inline Tier highestTier = bestTier();

// One conversion of ours with images to run it on; the images outlive all work on them.
struct Job {
    const interface::Function& function;
    const interface::Image& source;
    const interface::Image& destination;
    ZorSize size;
    interface::Extra arguments = {};
};

using Work = std::function<void()>;

// One way of another library to do what a function of ours does, on one thread: the same two pixel formats, be it with
// other coefficients or other rounding.
struct Peer {
    std::string_view function;               // ours, with its variant (bench/variants.h)
    std::string name;                        // "library operation"
    std::function<Work(const Job&)> prepare; // allocations and set-up, which are not timed
    void (*select)() = nullptr;              // puts the library into the state wanted, before each batch of calls
    bool ssse3Only = false;                  // measured against our lowest tier
};

struct Library {
    std::string version;
    std::vector<Peer> peers;
};

Library libyuv();
Library swscale();
Library openCV();
Library zimg();
Library libRaw();

// Formulas as a loop over the C library's mathematical functions.
Library libM();

// Our own functions, to be compared with each other.
Library ourselves();

} // namespace zorcc::bench
