// SPDX-License-Identifier: MIT
// Walks over images in which pixels share chroma, for any formula: what becomes of columns and rows that have no
// partner is written here once.
#pragma once

#include "simd/layouts_444.h"
#include "simd/layouts_subsampled.h"
#include "simd/row_loop.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- 4:2:2: the last pixel of an odd row has no partner -------------------------------------------------------------

struct YccPixel {
    uint8_t y, u, v;
};

// Packed, its own first chroma sample is there; the second is that of the pair before it, or the first where there is
// none.
template <PackedOrder order> ZORCC_INLINE YccPixel lastPixel(const Packed422<In, order>& row, int x)
{
    constexpr int y = order == PackedOrder::lumaFirst ? 0 : 1, chroma = 1 - y;
    const uint8_t* p = row.at(0, x);
    return {p[y], p[chroma], x > 0 ? p[chroma - 2] : p[chroma]};
}

// Planar, it shares the last chroma samples of the row; none exist at width 1.
ZORCC_INLINE YccPixel lastPixel(const Planar422<In>& row, int x)
{
    if (x == 0) return {*row.at(0, 0), 128, 128};
    return {*row.at(0, x), *(row.at(1, x) - 1), *(row.at(2, x) - 1)};
}

template <PackedOrder order> ZORCC_INLINE void storeLastPixel(const Packed422<Out, order>& row, int x, YccPixel pixel)
{
    constexpr int y = order == PackedOrder::lumaFirst ? 0 : 1;
    row.at(0, x)[y] = pixel.y;
    row.at(0, x)[1 - y] = pixel.u;
}

ZORCC_INLINE void storeLastPixel(const Planar422<Out>& row, int x, YccPixel pixel) { *row.at(0, x) = pixel.y; }

// `pairs` converts pairs of pixels, `single` the last pixel of an odd row.
template <class Source, class Pairs, class Single, class Destination>
void rgbTo422(const Image<Source> rgb, const Pairs pairs, const Single single, const Image<Destination> ycc, int width,
              int height)
{
    const int even = width & ~1;
    for (int y = 0; y < height; ++y) {
        convertRow(rgb[y], pairs, ycc[y], even);
        if (even == width) continue;
        YccPixel last;
        convertShortRow(from(rgb[y], even), single, P3<Out>{{{&last.y, &last.u, &last.v}}}, 1);
        storeLastPixel(ycc[y], even, last);
    }
}

template <class Source, class Formula, class Destination>
void rgbFrom422(const Image<Source> ycc, const Formula formula, const Image<Destination> rgb, int width, int height)
{
    const int even = width & ~1;
    for (int y = 0; y < height; ++y) {
        convertRow(ycc[y], formula, rgb[y], even);
        if (even == width) continue;
        const YccPixel last = lastPixel(ycc[y], even);
        convertShortRow(P3<In>{{{&last.y, &last.u, &last.v}}}, formula, from(rgb[y], even), 1);
    }
}

// ---- 4:1:1: the last one to three pixels of a row share its last chroma sample, or 128 where there is none ---------

template <class Formula, class Destination>
void rgbFrom411(const Image<Planar411<In>> ycc, const Formula formula, const Image<Destination> rgb, int width,
                int height)
{
    const int whole = width & ~3;
    for (int y = 0; y < height; ++y) {
        const Planar411<In> row = ycc[y];
        convertRow(row, formula, rgb[y], whole);
        if (whole == width) continue;
        const uint8_t u = whole > 0 ? *(row.at(1, whole) - 1) : 128, v = whole > 0 ? *(row.at(2, whole) - 1) : 128;
        const uint8_t chroma[2][3] = {{u, u, u}, {v, v, v}};
        const P3<In> rest = {{{row.at(0, whole), chroma[0], chroma[1]}}};
        convertShortRow(rest, formula, from(rgb[y], whole), width - whole);
    }
}

// ---- 4:2:0: whole 2 x 2 blocks -------------------------------------------------------------------------------------

template <class Source, class Formula>
void rgbTo420(const Image<Source> rgb, const Formula formula, uint8_t* const* dst, const PlaneSteps& dstStep, int width,
              int height)
{
    convertRows(inPairs(rgb), formula, planar420(dst, dstStep), width & ~1, height / 2);
}

template <class Formula, class Destination>
void rgbFrom420(const uint8_t* const* src, const PlaneSteps& srcStep, const Formula formula,
                const Image<Destination> rgb, int width, int height)
{
    convertRows(planar420(src, srcStep), formula, inPairs(rgb), width & ~1, height / 2);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
