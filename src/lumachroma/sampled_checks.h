// SPDX-License-Identifier: MIT
// The checks that the conversions of shared chroma have in common: every pointer, those of planes included, then the
// size, which is cut down to whole blocks.
#pragma once

#include "frame/checks.h"
#include "lumachroma/sampled_image.h"

namespace zorcc {

// An image argument: as many planes as it must have, and none where the array of them is missing.
template <class Byte> struct SampledArgument {
    SampledImage<Byte> image;
    int planes;

    bool missing() const
    {
        for (int p = 0; p < planes; ++p)
            if (!image.plane[p]) return true;
        return false;
    }
};

template <class Byte> SampledArgument<Byte> packed(Byte* pixels, int step) { return {{{pixels}, {step}}, 1}; }

template <class Byte> SampledArgument<Byte> semiPlanar(Byte* luma, int lumaStep, Byte* pairs, int pairsStep)
{
    return {{{luma, pairs}, {lumaStep, pairsStep}}, 2};
}

// Planes Y, Cb, Cr.
template <class Byte> SampledArgument<Byte> cbFirst(Byte* const* plane, const int* step)
{
    if (!plane) return {{}, 3};
    return {{{plane[0], plane[1], plane[2]}, {step[0], step[1], step[2]}}, 3};
}

// Planes Y, Cr, Cb.
template <class Byte> SampledArgument<Byte> crFirst(Byte* const* plane, const int* step)
{
    if (!plane) return {{}, 3};
    return {{{plane[0], plane[2], plane[1]}, {step[0], step[2], step[1]}}, 3};
}

// The blocks of pixels that a conversion works on: at least one; the sides are powers of two.
struct Blocks {
    ZorSize block;
    bool wholeOnly = false; // other sizes are refused, not cut down

    ZorSize within(ZorSize size) const { return {size.width & -block.width, size.height & -block.height}; }
};

// By the pixels that share a chroma sample.
inline constexpr Blocks pairs = {{2, 1}}, squares = {{2, 2}}, quads = {{4, 1}};
inline constexpr Blocks quadPairs = {{4, 2}}; // both quads and squares

using SampledDriver = void(const SampledSource& from, const SampledDestination& to, ZorSize size);

inline bool isSame(ZorSize a, ZorSize b) { return a.width == b.width && a.height == b.height; }

// Checks, and then converts the whole blocks.
inline ZorStatus convertBlocks(const Blocks& blocks, ZorSize roiSize, const SampledArgument<const uint8_t>& from,
                               const SampledArgument<uint8_t>& to, SampledDriver driver)
{
    if (from.missing() || to.missing()) return zorStatusNullPointer;
    if (auto s = checkSize(roiSize, blocks.block.width, blocks.block.height); s != zorStatusOk) return s;
    const ZorSize size = blocks.within(roiSize);
    if (blocks.wholeOnly && !isSame(size, roiSize)) return zorStatusBadSize;
    driver(from.image, to.image, size);
    return zorStatusOk;
}

} // namespace zorcc
