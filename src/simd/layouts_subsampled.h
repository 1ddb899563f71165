// SPDX-License-Identifier: MIT
// 8-bit layouts in which two columns, or four pixels, share chroma. Widths are even.
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A luma plane and two chroma planes, one row of each: 4:2:2.
template <class Byte> struct Planar422 : Rows<Byte, Unit{1, 0}, Unit{1, 1}, Unit{1, 1}> {
    Subsampled<1> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(this->at(0, x))}, loadHalves(this->at(1, x), this->at(2, x))};
    }

    void store(int x, const Subsampled<1>& s) const
    {
        zorcc::ZORCC_TIER::store(this->at(0, x), s.y[0]);
        storeHalves(this->at(1, x), this->at(2, x), s.chroma);
    }
};

// Two rows of a luma plane and one of each chroma plane: 4:2:0.
template <class Byte> struct Planar420 : Rows<Byte, Unit{1, 0}, Unit{1, 0}, Unit{1, 1}, Unit{1, 1}> {
    Subsampled<2> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(this->at(0, x)), zorcc::ZORCC_TIER::load(this->at(1, x))},
                loadHalves(this->at(2, x), this->at(3, x))};
    }

    void store(int x, const Subsampled<2>& s) const
    {
        zorcc::ZORCC_TIER::store(this->at(0, x), s.y[0]);
        zorcc::ZORCC_TIER::store(this->at(1, x), s.y[1]);
        storeHalves(this->at(2, x), this->at(3, x), s.chroma);
    }
};

// The pairs of luma rows of a planar 4:2:0 image with their chroma rows; planes in the order Y, U, V.
template <class Byte> Image<Planar420<Byte>> planar420(Byte* const* plane, const PlaneSteps& step)
{
    const ptrdiff_t y = step.of[0];
    return {{plane[0], plane[0] + y, plane[1], plane[2]}, {2 * y, 2 * y, step.of[1], step.of[2]}};
}

// Packed 4:2:2: luma, first chroma, luma, second chroma.
template <class Byte> struct Packed422 : Rows<Byte, Unit{4, 1}> {
    Subsampled<1> load(int x) const
    {
        u8v v[2];
        loadBlocks(this->at(0, x), v);
        const s16v a = (s16v)v[0], b = (s16v)v[1];
        const u8v chroma = packUnsigned((s16v)((u16v)a >> 8), (s16v)((u16v)b >> 8));
        return {{packUnsigned(a & 0xff, b & 0xff)}, unzipHalves(chroma)};
    }

    void store(int x, const Subsampled<1>& s) const
    {
        const u8v chroma = zipHalves(s.chroma);
        storeBlocks(this->at(0, x), {zipLow(s.y[0], chroma), zipHigh(s.y[0], chroma)});
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
