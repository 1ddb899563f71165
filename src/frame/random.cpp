// SPDX-License-Identifier: MIT
#include "frame/random.h"

#include <math.h>

#include <new>
#include <type_traits>

#include "frame/memory.h"

namespace zorcc {
namespace {

constexpr int stateElements = 56; // size of a state in samples of its generator

template <class Sample> constexpr bool isFloat = std::is_same_v<Sample, float>;
template <class Sample> constexpr int32_t kind = isFloat<Sample> ? 37 : 36;

uint32_t congruent(uint32_t x) { return x * 69069u + 1013904243u; }

template <class Sample>
ZorStatus initAlloc(Sample* (&allocate)(int), RandUniform<Sample>** state, Sample low, Sample high, uint32_t seed)
{
    static_assert(sizeof(RandUniform<Sample>) <= stateElements * sizeof(Sample));
    if (!state) return zorStatusNullPointer;
    void* const block = allocate(stateElements);
    if (!block) return zorStatusNoMemory;

    const double from = low, to = high;
    const uint32_t x2 = congruent(seed);
    *state = new (block) RandUniform<Sample>{.kind = kind<Sample>,
                                             .seed = seed,
                                             .low = low,
                                             .high = high,
                                             .mid = (from + to) * 0.5,
                                             .scale = (to - from) * 0x1p-32,
                                             .lcg = 1131199209,
                                             .x1 = seed,
                                             .x2 = x2,
                                             .x3 = congruent(x2),
                                             .borrow = 0xffffffff};
    return zorStatusOk;
}

template <class Sample> ZorStatus fill(Sample* dst, int length, RandUniform<Sample>* state)
{
    if (!dst || !state) return zorStatusNullPointer;
    if (length < 1) return zorStatusBadSize;
    if (state->kind != kind<Sample>) return zorStatusContextMismatch;

    RandUniform<Sample> s = *state;
    for (int i = 0; i < length; ++i) {
        uint32_t x = s.x2 - s.x3 + s.borrow;
        const bool negative = x >> 31;
        s.borrow = negative ? 0xffffffff : 0;
        if (negative) x -= 18; // modulo 2^32 - 18
        s.lcg = congruent(s.lcg);
        s.x3 = s.x2;
        s.x2 = s.x1;
        s.x1 = x;
        // No clamp: products and sums of a 32-bit integer and 17-bit bounds are exact, so none leaves the bounds.
        const double value = static_cast<int32_t>(x + s.lcg) * s.scale + s.mid;
        if constexpr (isFloat<Sample>)
            dst[i] = static_cast<float>(value);
        else
            dst[i] = static_cast<int16_t>(lrint(value));
    }
    *state = s;
    return zorStatusOk;
}

template <class Sample> ZorStatus release(RandUniform<Sample>* state)
{
    if (!state) return zorStatusNullPointer;
    if (state->kind != kind<Sample>) return zorStatusContextMismatch;
    zorsFree(state);
    return zorStatusOk;
}

} // namespace

ZorStatus zorsRandUniformInitAlloc_32f(RandUniform_32f** state, float low, float high, uint32_t seed)
{
    return initAlloc(zorsMalloc_32f, state, low, high, seed);
}

ZorStatus zorsRandUniformInitAlloc_16s(RandUniform_16s** state, int16_t low, int16_t high, uint32_t seed)
{
    return initAlloc(zorsMalloc_16s, state, low, high, seed);
}

ZorStatus zorsRandUniform_32f(float* dst, int length, RandUniform_32f* state) { return fill(dst, length, state); }
ZorStatus zorsRandUniform_16s(int16_t* dst, int length, RandUniform_16s* state) { return fill(dst, length, state); }

ZorStatus zorsRandUniformFree_32f(RandUniform_32f* state) { return release(state); }
ZorStatus zorsRandUniformFree_16s(RandUniform_16s* state) { return release(state); }

} // namespace zorcc
