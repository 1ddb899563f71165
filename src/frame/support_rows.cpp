// SPDX-License-Identifier: MIT
// Row drivers of the support primitives, compiled once for every tier.
#include "frame/support_rows.h"

#include "simd/doubles.h"

namespace zorcc::ZORCC_TIER {

namespace {

// ---- stores that bypass the caches ----------------------------------------------------------------------------------

// vectorFrom(i) gives the bytes for dst[i] and those after it. The first and the last vector are unaligned and may
// overlap the aligned blocks between them.
template <class VectorFrom> void stream(uint8_t* dst, size_t length, VectorFrom vectorFrom)
{
    constexpr size_t step = vectorBytes;
    static_assert(step <= streamedBytes);
    store(dst, vectorFrom(0));
    size_t i = step - reinterpret_cast<uintptr_t>(dst) % step;
    for (; i + step <= length; i += step) storeNonTemporal(dst + i, vectorFrom(i));
    if (i < length) store(dst + length - step, vectorFrom(length - step));
    fenceStores();
}

void streamCopy(const uint8_t* src, uint8_t* dst, size_t length)
{
    stream(dst, length, [=](size_t i) { return load(src + i); });
}

void streamFill(uint8_t value, uint8_t* dst, size_t length)
{
    stream(dst, length, [=](size_t) { return fill8(value); });
}

// ---- reductions -----------------------------------------------------------------------------------------------------

// Whole blocks of a row, then the rest with samples that leave the reduction as it is.
template <class Reduction> auto reduce(const Image& image, ZorSize size)
{
    Reduction reduction;
    constexpr int block = Reduction::block;
    const int whole = size.width - size.width % block;
    for (int y = 0; y < size.height; ++y) {
        const float* const row = reinterpret_cast<const float*>(image.row(0, y));
        for (int x = 0; x < whole; x += block) reduction.add(row + x);
        if (whole == size.width) continue;
        float last[block];
        for (float& sample : last) sample = Reduction::neutral;
        __builtin_memcpy(last, row + whole, sizeof(float) * static_cast<size_t>(size.width - whole));
        reduction.add(last);
    }
    return reduction.result();
}

struct Maximum {
    static constexpr float neutral = -__builtin_inff();
    static constexpr int vectors = 4, block = vectors * lanes; // so that the latency of a maximum does not set the pace

    f32v best[vectors] = {fillFloat(neutral), fillFloat(neutral), fillFloat(neutral), fillFloat(neutral)};

    // The one before where the sample is NaN.
    void add(const float* samples)
    {
        for (int v = 0; v < vectors; ++v) best[v] = max(load<f32v>(samples + v * lanes), best[v]);
    }

    float result() const
    {
        float largest = neutral;
        for (const f32v& v : best)
            for (int i = 0; i < lanes; ++i) largest = v[i] > largest ? v[i] : largest;
        return largest;
    }
};

// Every tier adds samples at distances of 16 and then the 16 sums in one order, so that all round alike.
struct Sum {
    static constexpr float neutral = 0;
    static constexpr int block = 16, doubles = vectorBytes / 8, vectors = block / doubles;

    Doubles<vectors> sums = {};

    void add(const float* samples)
    {
        for (int v = 0; v < vectors; v += 2) {
            const Doubles<2> two = toDoubles(load<f32v>(samples + v * doubles));
            sums.v[v] += two.v[0];
            sums.v[v + 1] += two.v[1];
        }
    }

    double result() const
    {
        const auto at = [&](int i) { return sums.v[i / doubles][i % doubles]; };
        double even = 0, odd = 0;
        for (int i = 0; i < block; i += 4) {
            even += at(i) + at(i + 2);
            odd += at(i + 1) + at(i + 3);
        }
        return even + odd;
    }
};

} // namespace

const SupportRows supportRows = {
    .streamCopy = streamCopy,
    .streamFill = streamFill,
    .maximum = reduce<Maximum>,
    .sum = reduce<Sum>,
};

} // namespace zorcc::ZORCC_TIER
