// SPDX-License-Identifier: MIT
// Uniform pseudo-random numbers: a subtract-with-borrow generator plus a linear congruential one, modulo 2^32. Streams
// depend on seed and bounds alone, and a stream continues from call to call.
#pragma once

#include <stdint.h>

#include "zorcc/types.h"

namespace zorcc {

// State of one generator; one thread at a time may use it.
template <class Sample> struct RandUniform {
    int32_t kind; // which generator this is: 37 for 32f, 36 for 16s
    uint32_t seed;
    Sample low, high;
    double mid;          // (low + high) / 2
    double scale;        // (high - low) / 2^32
    uint32_t lcg;        // state of the linear congruential generator
    uint32_t x1, x2, x3; // the last three values of the other one, newest first
    uint32_t borrow;     // 0 or 0xffffffff
};
using RandUniform_32f = RandUniform<float>;
using RandUniform_16s = RandUniform<int16_t>;

// Stores a new state to *state. zorStatusNullPointer, zorStatusNoMemory; then *state is as it was.
ZorStatus zorsRandUniformInitAlloc_32f(RandUniform_32f** state, float low, float high, uint32_t seed);
ZorStatus zorsRandUniformInitAlloc_16s(RandUniform_16s** state, int16_t low, int16_t high, uint32_t seed);

// Fills `length` values between the bounds; 16s rounds to nearest. zorStatusNullPointer, zorStatusBadSize for lengths
// below 1, zorStatusContextMismatch for a state of another kind.
ZorStatus zorsRandUniform_32f(float* dst, int length, RandUniform_32f* state);
ZorStatus zorsRandUniform_16s(int16_t* dst, int length, RandUniform_16s* state);

// zorStatusNullPointer, zorStatusContextMismatch; then nothing is freed.
ZorStatus zorsRandUniformFree_32f(RandUniform_32f* state);
ZorStatus zorsRandUniformFree_16s(RandUniform_16s* state);

} // namespace zorcc
