// SPDX-License-Identifier: MIT
// Noise for thresholds: fixed pseudo-random numbers, the same in every call with the same bounds.
#pragma once

#include <stdint.h>

#include "zorcc/types.h"

namespace zorcc {

class Noise {
public:
    static constexpr int period = 1024; // pixels after which a row's noise repeats, and rows in pairs

    Noise() = default;
    ~Noise();
    Noise(const Noise&) = delete;
    Noise& operator=(const Noise&) = delete;

    // Numbers between the bounds; zorStatusNoMemory.
    ZorStatus create(float low, float high);

    // The noise of the pixel in column x of row y, whatever its channels.
    [[gnu::always_inline]] float at(int64_t x, int64_t y) const
    {
        const unsigned column = static_cast<unsigned>(x), start = static_cast<unsigned>(offset[column % period]);
        return amount[(start + 2 * static_cast<unsigned>(y) + column) % period];
    }

private:
    float* amount = nullptr;
    int16_t* offset = nullptr; // of every column: where it starts in `amount`
};

} // namespace zorcc
