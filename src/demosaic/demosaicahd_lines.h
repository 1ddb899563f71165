// SPDX-License-Identifier: MIT
// Loops along lines of floats. They run over whole vectors; a line has a margin of a vector at both ends, and what is
// computed beyond its ends is not used.
#pragma once

#include "simd/floats.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A stage is a function of its own, so that its loop has all registers to itself.
#define ZORCC_STAGE static __attribute__((noinline))

ZORCC_INLINE f32v at(const float* p, int i) { return load<f32v>(p + i); }

template <class Body> ZORCC_INLINE void alongLine(int length, Body body)
{
    for (int i = 0; i < length; i += lanes) body(i);
}

template <int count> struct Values {
    f32v v[count];
};

// Calls body(i, left, here, right) with the values at i and at their neighbours. value(i) gives Values for any i from a
// vector before the line to one after it, and is called once for each.
template <class Value, class Body> ZORCC_INLINE void alongNeighbours(int length, Value value, Body body)
{
    auto previous = value(-lanes), here = value(0);
    for (int i = 0; i < length; i += lanes) {
        const auto next = value(i + lanes);
        decltype(previous) left, right;
        for (size_t k = 0; k < sizeof here / sizeof(f32v); ++k) {
            left.v[k] = leftOf(previous.v[k], here.v[k]);
            right.v[k] = rightOf(here.v[k], next.v[k]);
        }
        body(i, left, here, right);
        for (size_t k = 0; k < sizeof here / sizeof(f32v); ++k) { // one by one: see homogeneity()
            previous.v[k] = here.v[k];
            here.v[k] = next.v[k];
        }
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
