// SPDX-License-Identifier: MIT
// Loops along lines of floats. They run over whole vectors; a line has room for a vector at both ends, and what is
// computed beyond its ends is not used.
#pragma once

#include "simd/neighbours.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A stage is a function of its own, so that its loop has all registers to itself.
#define ZORCC_STAGE static __attribute__((noinline))

ZORCC_INLINE f32v at(const float* p, int i) { return load<f32v>(p + i); }

template <class Body> ZORCC_INLINE void alongLine(int length, Body body)
{
    for (int i = 0; i < length; i += floatsPerVector) body(i);
}

template <int count> struct Values {
    f32v v[count];
};

// Calls body(i, left, here, right) with the values at i and at their neighbours. value(i) gives Values for any i from a
// vector before the line to one behind it, and is called once for each.
template <class Value, class Body> ZORCC_INLINE void alongNeighbours(int length, Value value, Body body)
{
    auto before = value(-floatsPerVector), here = value(0);
    for (int i = 0; i < length; i += floatsPerVector) {
        const auto behind = value(i + floatsPerVector);
        decltype(before) left, right;
        for (size_t k = 0; k < sizeof here / sizeof(f32v); ++k) {
            left.v[k] = leftOf(before.v[k], here.v[k]);
            right.v[k] = rightOf(here.v[k], behind.v[k]);
        }
        body(i, left, here, right);
        for (size_t k = 0; k < sizeof here / sizeof(f32v); ++k) { // one by one: see homogeneity()
            before.v[k] = here.v[k];
            here.v[k] = behind.v[k];
        }
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
