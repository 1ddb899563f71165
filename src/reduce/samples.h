// SPDX-License-Identifier: MIT
// Rows of samples, whatever channel they are of, as floats from 0 to white, and back. A pixel of these layouts is a
// sample; keepsAlpha leaves every fourth sample as it is.
#pragma once

#include "pixels/sequences.h"
#include "reduce/reduce_rows.h"
#include "simd/samples.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int signedBias = 32768; // what is added to a signed sample for the value that it stands for

// The least signed sample has the same bits as the unsigned word of the middle.
ZORCC_INLINE s32v loadSamples(const int16_t* p) { return loadIntegers((const uint16_t*)p) ^ signedBias; }
template <class Unsigned> ZORCC_INLINE s32v loadSamples(const Unsigned* p) { return loadIntegers(p); }

ZORCC_INLINE f32v loadFloats(const float* p) { return load<f32v>(p); }
template <class Integer> ZORCC_INLINE f32v loadFloats(const Integer* p) { return toFloat(loadSamples(p)); }

// Values about 0 to white, saturated.
ZORCC_INLINE void storeSamples(int16_t* p, s32v v) { storeIntegers(p, v - signedBias); }
template <class Unsigned> ZORCC_INLINE void storeSamples(Unsigned* p, s32v v) { storeIntegers(p, v); }

constexpr Block fourthOfFour32 = {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 255, 255, 255}};
template <class Sample, bool keepsAlpha = false> struct SampleRow : Lines<Line{{sizeof(Sample)}}> {
    static constexpr int pixelsAtOnce = lanes;

    f32v load(int x) const { return loadFloats((const Sample*)this->at(0, x)); }
    void store(int x, s32v v) const
    {
        Sample* const p = (Sample*)this->at(0, x);
        if constexpr (keepsAlpha) v = select((s32v)fillBlock(fourthOfFour32), loadSamples(p), v);
        storeSamples(p, v);
    }
};

// Bytes that stay bytes, several vectors at a time.
using ByteRow = Sequences<3 * vectorBytes, Line{{1}}>;
struct ColourByteRow : ByteRow {
    void store(int x, const Vectors<3>& v) const
    {
        const u8v alpha = (u8v)fill32(static_cast<int>(0xff000000));
        const Vectors<3> old = this->load(x);
        ByteRow::store(x, collect<3>([&](auto k) { return select(alpha, old.v[k], v.v[k]); }));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
