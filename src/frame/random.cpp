// SPDX-License-Identifier: MIT
#include "frame/random.h"

#include <math.h>

#include "frame/memory.h"

namespace zorcc {
namespace {

constexpr int stateElements = 56; // size of a state in samples of its generator

template <class Sample> struct Generator;

template <> struct Generator<float> {
    static constexpr int32_t kind = 37;
    static float* allocate() { return zorsMalloc_32f(stateElements); }
    static float convert(double value) { return static_cast<float>(value); }
};

template <> struct Generator<int16_t> {
    static constexpr int32_t kind = 36;
    static int16_t* allocate() { return zorsMalloc_16s(stateElements); }

    // No clamp: products and sums of a 32-bit integer and 17-bit bounds are exact, so no value leaves the bounds.
    static int16_t convert(double value) { return static_cast<int16_t>(lrint(value)); }
};

uint32_t congruent(uint32_t x) { return x * 69069u + 1013904243u; }

template <class Sample> ZorStatus initAlloc(RandUniform<Sample>** state, Sample low, Sample high, uint32_t seed)
{
    static_assert(sizeof(RandUniform<Sample>) <= stateElements * sizeof(Sample));
    if (!state) return zorStatusNullPointer;
    void* const block = Generator<Sample>::allocate();
    if (!block) return zorStatusNoMemory;

    auto* const record = static_cast<RandUniform<Sample>*>(block);
    const double from = low, to = high;
    record->kind = Generator<Sample>::kind;
    record->seed = seed;
    record->low = low;
    record->high = high;
    record->mid = (from + to) * 0.5;
    record->scale = (to - from) * 0x1p-32;
    record->lcg = 1131199209;
    record->x1 = seed;
    record->x2 = congruent(record->x1);
    record->x3 = congruent(record->x2);
    record->borrow = 0xffffffff;
    *state = record;
    return zorStatusOk;
}

template <class Sample> ZorStatus fill(Sample* dst, int length, RandUniform<Sample>* state)
{
    if (!dst || !state) return zorStatusNullPointer;
    if (length < 1) return zorStatusBadSize;
    if (state->kind != Generator<Sample>::kind) return zorStatusContextMismatch;

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
        dst[i] = Generator<Sample>::convert(static_cast<int32_t>(x + s.lcg) * s.scale + s.mid);
    }
    *state = s;
    return zorStatusOk;
}

template <class Sample> ZorStatus release(RandUniform<Sample>* state)
{
    if (!state) return zorStatusNullPointer;
    if (state->kind != Generator<Sample>::kind) return zorStatusContextMismatch;
    zorsFree(state);
    return zorStatusOk;
}

} // namespace

ZorStatus zorsRandUniformInitAlloc_32f(RandUniform_32f** state, float low, float high, uint32_t seed)
{
    return initAlloc(state, low, high, seed);
}

ZorStatus zorsRandUniformInitAlloc_16s(RandUniform_16s** state, int16_t low, int16_t high, uint32_t seed)
{
    return initAlloc(state, low, high, seed);
}

ZorStatus zorsRandUniform_32f(float* dst, int length, RandUniform_32f* state) { return fill(dst, length, state); }
ZorStatus zorsRandUniform_16s(int16_t* dst, int length, RandUniform_16s* state) { return fill(dst, length, state); }

ZorStatus zorsRandUniformFree_32f(RandUniform_32f* state) { return release(state); }
ZorStatus zorsRandUniformFree_16s(RandUniform_16s* state) { return release(state); }

} // namespace zorcc
