// SPDX-License-Identifier: MIT
// 8-bit layouts in which two or four columns, or four pixels, share chroma. Widths are even.
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

// A luma plane and two chroma planes with a sample for four columns, one row of each: 4:1:1. Widths are multiples of 4.
template <class Byte> struct Planar411 : Rows<Byte, Unit{1, 0}, Unit{1, 2}, Unit{1, 2}> {
    Subsampled<1> load(int x) const
    {
        return {{zorcc::ZORCC_TIER::load(this->at(0, x))}, loadQuarters(this->at(1, x), this->at(2, x))};
    }
};

// Packed 4:2:2: luma and chroma bytes take turns, the chroma bytes being of the first channel and of the second in
// turn.
enum class PackedOrder { lumaFirst, chromaFirst };

// Pairs of columns as they are in memory. Formulas may take them so; the others get luma and chroma apart.
template <PackedOrder order> struct PackedPairs {
    u8v memory[2];

    operator Subsampled<1>() const
    {
        u8v v[2];
        toBlocks(memory, v);
        const u8v even = packUnsigned(firstOfPairs(v[0]), firstOfPairs(v[1]));
        const u8v odd = packUnsigned(secondOfPairs(v[0]), secondOfPairs(v[1]));
        if constexpr (order == PackedOrder::lumaFirst) return {{even}, unzipHalves(odd)};
        return {{odd}, unzipHalves(even)};
    }
};

template <class Byte, PackedOrder order = PackedOrder::lumaFirst> struct Packed422 : Rows<Byte, Unit{4, 1}> {
    PackedPairs<order> load(int x) const
    {
        const uint8_t* p = this->at(0, x);
        return {{zorcc::ZORCC_TIER::load(p), zorcc::ZORCC_TIER::load(p + vectorBytes)}};
    }

    void store(int x, const Subsampled<1>& s) const
    {
        const u8v chroma = zipHalves(s.chroma);
        const u8v even = order == PackedOrder::lumaFirst ? s.y[0] : chroma;
        const u8v odd = order == PackedOrder::lumaFirst ? chroma : s.y[0];
        storeBlocks(this->at(0, x), {zipLow(even, odd), zipHigh(even, odd)});
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
