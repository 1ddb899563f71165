// SPDX-License-Identifier: MIT
// Row drivers and kernels of the gradient-directed Bayer interpolation, compiled once for every tier.
#include <stddef.h>

#include "demosaic/bayer_formula.h"
#include "demosaic/region.h"
#include "frame/parallel.h"

namespace zorcc::ZORCC_TIER {

#include "demosaic/bayer_rows.h"

namespace {

// The outer two columns and rows of the image, its frame, have no neighbours at a distance of two on every side: there
// green is not directed, and a neighbour outside the image is replaced by the one on the other side of the pixel.
constexpr int frame = 2;

// The index before i, and the one behind; a neighbour outside is mirrored.
ZORCC_INLINE int before(int i) { return i == 0 ? 1 : i - 1; }
ZORCC_INLINE int behind(int i, int count) { return i == count - 1 ? count - 2 : i + 1; }

ZORCC_INLINE int between(int low, int v, int high) { return v < low ? low : v > high ? high : v; }

template <class Sample> struct Source {
    const Sample* p;
    ptrdiff_t step;
    ZorSize size;
    ZorBayerGrid grid;

    const Sample* row(int y) const { return sampleAt(p, step, 0, y); }
    bool inFrame(int y) const { return y < frame || y >= size.height - frame; }

    // Rows outside the image are not looked at, where a row is in the frame.
    RowWindow<Sample> window(int y) const
    {
        const int up = before(y), down = behind(y, size.height);
        if (inFrame(y)) return {{nullptr, row(up), row(y), row(down), nullptr}};
        return {{row(y - 2), row(up), row(y), row(down), row(y + 2)}};
    }
};

// Pixels first .. last - 1 of a row, in columns of the frame.
template <bool red, class Sample>
void frameColumns(const RowWindow<Sample>& window, RowColours colours, int width, int first, int last, Sample* dst)
{
    const Sample *const up = window.row[1], *const row = window.row[2], *const down = window.row[3];
    for (int x = first; x < last; ++x, dst += 3) {
        const int l = before(x), r = behind(x, width);
        const bool site = colours.isSite(x);
        const int horizontal = row[l] + row[r], vertical = up[x] + down[x];
        const int diagonal = up[l] + up[r] + down[l] + down[r];
        dst[red ? 0 : 2] = static_cast<Sample>(site ? row[x] : (horizontal + 1) >> 1);
        dst[1] = static_cast<Sample>(site ? (horizontal + vertical + 2) >> 2 : row[x]);
        dst[red ? 2 : 0] = static_cast<Sample>(site ? (diagonal + 2) >> 2 : (vertical + 1) >> 1);
    }
}

// Fewer pixels than a vector holds, from column x on: through padded copies of what they need.
template <bool red, bool directed, class Sample>
void shortRow(const RowWindow<Sample>& window, RowColours colours, int x, int count, Sample* dst)
{
    constexpr int lanes = vectorBytes / sizeof(Sample);
    Sample source[5][lanes + 2 * frame] = {}, result[3 * lanes];
    RowWindow<Sample> staged;
    for (int k = 0; k < 5; ++k) {
        if (directed || (k >= 1 && k <= 3))
            __builtin_memcpy(source[k], window.row[k] + x - frame,
                             static_cast<size_t>(count + 2 * frame) * sizeof(Sample));
        staged.row[k] = source[k] + frame;
    }
    Vec<Sample> colour[3];
    interpolate<directed>(staged, 0, alternate<Vec<Sample>>(!colours.isSite(x)), colour);
    storeRgb<red>(result, colour);
    __builtin_memcpy(dst, result, 3 * static_cast<size_t>(count) * sizeof(Sample));
}

// Pixels first .. last - 1 of a row, outside the frame's columns.
template <bool red, bool directed, class Sample>
void owncnBayerRect(const RowWindow<Sample>& window, RowColours colours, int first, int last, Sample* dst)
{
    constexpr int lanes = vectorBytes / sizeof(Sample);
    if (last - first < lanes) {
        if (first < last) shortRow<red, directed>(window, colours, first, last - first, dst);
        return;
    }
    const auto vectorAt = [&](int x, Vec<Sample> sites) {
        Vec<Sample> colour[3];
        interpolate<directed>(window, x, sites, colour);
        storeRgb<red>(dst + 3 * (x - first), colour);
    };
    const Vec<Sample> sites = alternate<Vec<Sample>>(!colours.isSite(first));
    int x = first;
    for (; x <= last - lanes; x += lanes) vectorAt(x, sites);
    if (x < last) vectorAt(last - lanes, alternate<Vec<Sample>>(!colours.isSite(last - lanes)));
}

template <bool red, bool directed, class Sample>
void bayerRow(const Source<Sample>& source, RowColours colours, int y, Region region, Sample* dst)
{
    const RowWindow<Sample> window = source.window(y);
    const int left = between(region.x0, frame, region.x1);
    const int right = between(left, source.size.width - frame, region.x1);
    frameColumns<red>(window, colours, source.size.width, region.x0, left, dst);
    owncnBayerRect<red, directed>(window, colours, left, right, dst + 3 * (left - region.x0));
    frameColumns<red>(window, colours, source.size.width, right, region.x1, dst + 3 * (right - region.x0));
}

// One row of the region; dst is its first pixel.
template <bool directed, class Sample> void fillRow(const Source<Sample>& source, int y, Region region, Sample* dst)
{
    const RowColours colours = rowColours(source.grid, y);
    (colours.red ? bayerRow<true, directed, Sample> : bayerRow<false, directed, Sample>)(source, colours, y, region,
                                                                                         dst);
}

// The frame's rows, then all others, whose first and last columns are filled on the way: each row is visited once.
template <class Sample> void cfaToRgb(const Source<Sample>& source, Region region, Sample* dst, ptrdiff_t dstStep)
{
    const auto rowOf = [&](int y) { return sampleAt(dst, dstStep, 0, y - region.y0); };
    const auto [width, height] = source.size;
    for (int y = region.y0; y < region.y1; ++y)
        if (source.inFrame(y)) fillRow<false>(source, y, region, rowOf(y));
    const int columns = between(region.x0, width - frame, region.x1) - between(region.x0, frame, region.x1);
    const int y0 = between(region.y0, frame, region.y1), y1 = between(region.y0, height - frame, region.y1);
    if (y0 >= y1) return;
    bandsAboveThreshold(columns, y1 - y0, [&](int first, int count) {
        for (int y = y0 + first; y < y0 + first + count; ++y) fillRow<true>(source, y, region, rowOf(y));
    });
}

} // namespace

void myCFAToRGB_8u_C1C3R(const uint8_t* src, ptrdiff_t srcStep, ZorSize size, Region region, uint8_t* dst,
                         ptrdiff_t dstStep, ZorBayerGrid grid)
{
    cfaToRgb(Source<uint8_t>{src, srcStep, size, grid}, region, dst, dstStep);
}

void myCFAToRGB_16u_C1C3R(const uint16_t* src, ptrdiff_t srcStep, ZorSize size, Region region, uint16_t* dst,
                          ptrdiff_t dstStep, ZorBayerGrid grid)
{
    cfaToRgb(Source<uint16_t>{src, srcStep, size, grid}, region, dst, dstStep);
}

} // namespace zorcc::ZORCC_TIER
