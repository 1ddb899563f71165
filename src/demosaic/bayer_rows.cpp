// SPDX-License-Identifier: MIT
// Row drivers and kernels of the gradient-directed Bayer interpolation, compiled once for every tier.
#include <stddef.h>

#include "demosaic/bayer_columns.h"
#include "demosaic/bayer_formula.h"
#include "frame/parallel.h"

namespace zorcc::ZORCC_TIER {

#include "demosaic/bayer_rows.h"

namespace {

// The outer two columns and rows of the image, its frame, have no neighbours at a distance of two on every side: there
// green is not directed, and a neighbour outside the image is replaced by the one on the other side of the pixel.
constexpr int frame = 2;

ZORCC_INLINE int between(int low, int v, int high) { return v < low ? low : v > high ? high : v; }

// Columns x .. x + width - 1 of the region: the rows of the mosaic that the row in work needs, as planes. Plane 0 holds
// columns x, x + 2, ..., plane 1 those between; a pair of columns before and one behind come with them.
template <class Sample> class Strip {
public:
    static constexpr int lanes = vectorBytes / sizeof(Sample);
    static constexpr int maxWidth = 2048 / sizeof(Sample); // keeps the planes within the first-level cache

    Strip(const Job<Sample>& work, int firstColumn, int columns) : job(work), x(firstColumn), width(columns) {}

    // Rows of the frame: y and its neighbours.
    void fillFrameRow(int y)
    {
        const int up = mirrored(y - 1, job.size.height), down = mirrored(y + 1, job.size.height);
        load(up);
        load(y);
        load(down);
        fillRow<false>(y, y, up, y, down, y);
    }

    // Rows y0 .. y1 - 1, none of them in the frame.
    void fillRows(int y0, int y1)
    {
        for (int row = y0 - 2; row < y0 + 2; ++row) load(row);
        for (int y = y0; y < y1; ++y) {
            load(y + 2);
            fillRow<true>(y, y - 2, y - 1, y, y + 1, y + 2);
            plainFrameColumns(y);
        }
    }

private:
    static constexpr int room = 64 / sizeof(Sample); // before column 0, to keep it on a cache line's boundary
    static constexpr int planeLength = room + maxWidth / 2 + 2 * lanes;
    static constexpr int ring = 8;

    const Job<Sample>& job;
    const int x, width;
    alignas(64) Sample planes[ring][2][planeLength];

    Sample* plane(int row, int which) { return planes[row % ring][which] + room; }
    const Sample* source(int row) const { return sampleAt(job.src, job.srcStep, 0, row); }
    Sample* destination(int y) const
    {
        return sampleAt(job.dst, job.dstStep, 3 * (x - job.region.x0), y - job.region.y0);
    }

    // Sets one column of the planes, counted from x.
    void put(int row, int column, Sample value) { plane(row, column & 1)[column >> 1] = value; }

    void load(int row)
    {
        const Sample* const samples = source(row);
        const auto at = [&](int column) { return samples[mirrored(x + column, job.size.width)]; };
        put(row, -2, at(-2));
        put(row, -1, at(-1));
        const int inside = between(0, job.size.width - x, width + 2);
        Sample *const first = plane(row, 0), *const second = plane(row, 1);
        if (inside >= 2 * lanes) {
            const auto split = [&](int i) { splitColumns(samples + x + i, first + i / 2, second + i / 2); };
            const int last = (inside - 2 * lanes) & ~1; // overlaps the one before it
            for (int i = 0; i < last; i += 2 * lanes) split(i);
            split(last);
            put(row, inside - 1, at(inside - 1));
        } else {
            Sample staged[2 * lanes] = {};
            __builtin_memcpy(staged, samples + x, static_cast<size_t>(inside) * sizeof(Sample));
            splitColumns(staged, first, second);
        }
        for (int column = inside; column < width + 2; ++column) put(row, column, at(column));
    }

    template <bool directed> void fillRow(int y, int up2, int up, int row, int down, int down2)
    {
        const RowColours colours = rowColours(job.grid, y);
        const int sites = colours.isSite(x) ? 0 : 1; // their plane
        PlaneWindow<Sample> window;
        const int rows[5] = {up2, up, row, down, down2};
        for (int k = 0; k < 5; ++k) {
            window.like[k] = plane(rows[k], sites);
            window.other[k] = plane(rows[k], 1 - sites);
        }
        window.left = sites - 1;
        const auto kernel = colours.red
                                ? sites == 0 ? owncnBayerRect<true, 0, directed> : owncnBayerRect<true, 1, directed>
                            : sites == 0 ? owncnBayerRect<false, 0, directed>
                                         : owncnBayerRect<false, 1, directed>;
        kernel(window, destination(y), width);
    }

    // One row of pixels. `sites` is the plane that holds the row's sites, whose colour is red or blue.
    template <bool red, int sites, bool directed>
    static void owncnBayerRect(const PlaneWindow<Sample>& window, Sample* dst, int width)
    {
        const PlaneWindow<Sample> w = window; // which the stores below cannot change
        const auto pixelsTo = [&](Sample* p, int i) {
            Vec<Sample> site[3], green[3];
            interpolate<directed>(w, i, site, green);
            constexpr int r = red ? 0 : 2, b = red ? 2 : 0;
            const Vec<Sample> atSite[3] = {site[r], site[1], site[b]}, atGreen[3] = {green[r], green[1], green[b]};
            if constexpr (sites == 0)
                joinColumns(p, atSite, atGreen);
            else
                joinColumns(p, atGreen, atSite);
        };
        const auto staged = [&](int i) {
            Sample pixels[3 * 2 * lanes];
            pixelsTo(pixels, i / 2);
            __builtin_memcpy(dst + 3 * i, pixels, 3 * static_cast<size_t>(width - i) * sizeof(Sample));
        };
        if (width < 2 * lanes) return staged(0);
        const int last = (width - 2 * lanes) & ~1; // overlaps the one before it
        for (int i = 0; i < last; i += 2 * lanes) pixelsTo(dst + 3 * i, i / 2);
        pixelsTo(dst + 3 * last, last / 2);
        if (width % 2 != 0) staged(width - 1);
    }

    // In the columns of the frame green at the sites is not directed.
    void plainFrameColumns(int y)
    {
        const RowColours colours = rowColours(job.grid, y);
        const auto plain = [&](int column) {
            if (column < x || column >= x + width || !colours.isSite(column)) return;
            const Sample* const row = source(y);
            const int sum = row[mirrored(column - 1, job.size.width)] + row[mirrored(column + 1, job.size.width)] +
                            source(y - 1)[column] + source(y + 1)[column];
            destination(y)[3 * (column - x) + 1] = static_cast<Sample>((sum + 2) >> 2);
        };
        for (int k = 0; k < frame; ++k) {
            plain(k);
            plain(job.size.width - 1 - k);
        }
    }
};

// The frame's rows, then the others, whose first and last columns are filled on the way: each row is visited once.
template <class Sample> void cfaToRgb(const Job<Sample>& job)
{
    const Region& region = job.region;
    const auto [width, height] = job.size;
    const int left = between(region.x0, frame, region.x1), right = between(left, width - frame, region.x1);
    const int top = between(region.y0, frame, region.y1), bottom = between(top, height - frame, region.y1);
    const auto eachStrip = [&](auto fill) {
        for (int x = region.x0; x < region.x1; x += Strip<Sample>::maxWidth) {
            Strip<Sample> strip(job, x, between(0, region.x1 - x, Strip<Sample>::maxWidth));
            fill(strip);
        }
    };
    eachStrip([&](Strip<Sample>& strip) {
        for (int y = region.y0; y < top; ++y) strip.fillFrameRow(y);
        for (int y = bottom; y < region.y1; ++y) strip.fillFrameRow(y);
    });
    bandsAboveThreshold(right - left, bottom - top, [&](int first, int count) {
        eachStrip([&](Strip<Sample>& strip) { strip.fillRows(top + first, top + first + count); });
    });
}

} // namespace

void myCFAToRGB_8u_C1C3R(const uint8_t* src, ptrdiff_t srcStep, ZorSize size, Region region, uint8_t* dst,
                         ptrdiff_t dstStep, ZorBayerGrid grid)
{
    cfaToRgb(Job<uint8_t>{src, srcStep, size, region, dst, dstStep, grid});
}

void myCFAToRGB_16u_C1C3R(const uint16_t* src, ptrdiff_t srcStep, ZorSize size, Region region, uint16_t* dst,
                          ptrdiff_t dstStep, ZorBayerGrid grid)
{
    cfaToRgb(Job<uint16_t>{src, srcStep, size, region, dst, dstStep, grid});
}

} // namespace zorcc::ZORCC_TIER
