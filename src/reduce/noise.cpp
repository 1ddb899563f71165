// SPDX-License-Identifier: MIT
#include "reduce/noise.h"

#include "frame/memory.h"
#include "frame/random.h"

namespace zorcc {
namespace {

constexpr uint32_t seed = 0;

template <class Sample>
ZorStatus fillBetween(Sample low, Sample high, Sample* dst, auto initAlloc, auto fill, auto release)
{
    RandUniform<Sample>* generator = nullptr;
    if (const ZorStatus s = initAlloc(&generator, low, high, seed); s != zorStatusOk) return s;
    const ZorStatus filled = fill(dst, Noise::period, generator);
    release(generator);
    return filled;
}

} // namespace

Noise::~Noise()
{
    zorsFree(amount);
    zorsFree(offset);
}

ZorStatus Noise::create(float low, float high)
{
    amount = zorsMalloc_32f(period);
    if (!amount) return zorStatusNoMemory;
    offset = zorsMalloc_16s(period);
    if (!offset) return zorStatusNoMemory;
    const ZorStatus offsets = fillBetween<int16_t>(0, period, offset, zorsRandUniformInitAlloc_16s, zorsRandUniform_16s,
                                                   zorsRandUniformFree_16s);
    if (offsets != zorStatusOk) return offsets;
    return fillBetween(low, high, amount, zorsRandUniformInitAlloc_32f, zorsRandUniform_32f, zorsRandUniformFree_32f);
}

} // namespace zorcc
