// SPDX-License-Identifier: MIT
// Row drivers of the gradient-directed Bayer interpolation, compiled once for every tier.
#include "demosaic/bayer_formulas.h"
#include "frame/parallel.h"

namespace zorcc::ZORCC_TIER {

namespace {

// The outer two columns and rows of the image, its border, have no neighbours at a distance of two on every side: there
// green is not directed, and a neighbour outside the image is replaced by the one on the other side of the pixel.
constexpr int border = 2;

ZORCC_INLINE int between(int low, int v, int high) { return v < low ? low : v > high ? high : v; }

// Columns x .. x + width - 1 of the region: the rows of the mosaic that the current row needs, as planes. Plane 0 holds
// columns x, x + 2, ..., plane 1 those between; a pair of columns before them and one after them are included.
template <class Sample> class Strip {
public:
    static constexpr int perVector = vectorBytes / sizeof(Sample);
    static constexpr int maxWidth = 2048 / sizeof(Sample); // keeps the planes within the first-level cache

    Strip(const MosaicOf<Sample>& m, int firstColumn, int columns) : mosaic(m), x(firstColumn), width(columns) {}

    // A row of the border: y and its neighbours.
    void fillBorderRow(int y)
    {
        const int up = rowNear(y, -1), down = rowNear(y, 1);
        load(up);
        load(y);
        load(down);
        fillRow<false>(y, {y, up, y, down, y});
    }

    // Rows y0 .. y1 - 1, none of them in the border.
    void fillRows(int y0, int y1)
    {
        for (int row = y0 - 2; row < y0 + 2; ++row) load(row);
        for (int y = y0; y < y1; ++y) {
            load(y + 2);
            fillRow<true>(y, {y - 2, y - 1, y, y + 1, y + 2});
            plainBorderColumns(y);
        }
    }

private:
    static constexpr int margin = 64 / sizeof(Sample); // before column 0, which it keeps on a cache line's boundary
    static constexpr int planeLength = margin + maxWidth / 2 + 2 * perVector;
    static constexpr int ring = 8;

    const MosaicOf<Sample>& mosaic;
    const int x, width;
    alignas(64) Sample planes[ring][2][planeLength];

    // A neighbour of row y, as which the image may be mirrored.
    int rowNear(int y, int distance) const
    {
        return static_cast<int>(mirrored(ptrdiff_t{y} + distance, mosaic.size.height));
    }

    Sample* plane(int row, int which) { return planes[row % ring][which] + margin; }

    // Sets one column of the planes, counted from x.
    void put(int row, int column, Sample value) { plane(row, column & 1)[column >> 1] = value; }

    void load(int row)
    {
        const Sample* const samples = mosaic.row(row);
        const auto at = [&](int column) { return samples[mirrored(ptrdiff_t{x} + column, mosaic.size.width)]; };
        put(row, -2, at(-2));
        put(row, -1, at(-1));
        const int inside = between(0, mosaic.size.width - x, width + 2);
        Sample *const first = plane(row, 0), *const second = plane(row, 1);
        if (inside >= 2 * perVector) {
            const auto split = [&](int i) { splitColumns(samples + x + i, first + i / 2, second + i / 2); };
            const int last = (inside - 2 * perVector) & ~1; // overlaps the one before it
            for (int i = 0; i < last; i += 2 * perVector) split(i);
            split(last);
            put(row, inside - 1, at(inside - 1));
        } else {
            Sample staged[2 * perVector] = {};
            __builtin_memcpy(staged, samples + x, static_cast<size_t>(inside) * sizeof(Sample));
            splitColumns(staged, first, second);
        }
        for (int column = inside; column < width + 2; ++column) put(row, column, at(column));
    }

    // Row y from itself, rows[2], and its neighbours.
    template <bool directed> void fillRow(int y, const int (&rows)[5])
    {
        const RowColours colours = mosaic.colours(y);
        const int sites = colours.isSite(x) ? 0 : 1; // their plane
        PlaneWindow<Sample> window;
        for (int k = 0; k < 5; ++k) {
            window.like[k] = plane(rows[k], sites);
            window.other[k] = plane(rows[k], 1 - sites);
        }
        window.left = sites - 1;
        const auto store = colours.red ? (sites == 0 ? storeRow<true, 0, directed> : storeRow<true, 1, directed>)
                                       : (sites == 0 ? storeRow<false, 0, directed> : storeRow<false, 1, directed>);
        store(window, mosaic.pixel(x, y), width);
    }

    // One row of pixels. `sites` is the plane that holds the row's sites, whose colour is red or blue.
    template <bool red, int sites, bool directed>
    static void storeRow(const PlaneWindow<Sample>& window, Sample* dst, int width)
    {
        const PlaneWindow<Sample> w = window; // which the stores below cannot change
        const auto pixelsTo = [&](Sample* p, int i) {
            Vec<Sample> site[3], green[3];
            interpolate<directed>(w, i, site, green);
            constexpr int r = red ? 0 : 2, b = red ? 2 : 0;
            const Vec<Sample> atSite[3] = {site[r], site[1], site[b]}, atGreen[3] = {green[r], green[1], green[b]};
            if constexpr (sites == 0)
                interleaveColumns3((uint8_t*)p, atSite, atGreen);
            else
                interleaveColumns3((uint8_t*)p, atGreen, atSite);
        };
        const auto staged = [&](int i) {
            Sample pixels[3 * 2 * perVector];
            pixelsTo(pixels, i / 2);
            __builtin_memcpy(dst + 3 * i, pixels, 3 * static_cast<size_t>(width - i) * sizeof(Sample));
        };
        if (width < 2 * perVector) return staged(0);
        const int last = (width - 2 * perVector) & ~1; // overlaps the one before it
        for (int i = 0; i < last; i += 2 * perVector) pixelsTo(dst + 3 * i, i / 2);
        pixelsTo(dst + 3 * last, last / 2);
        if (width % 2 != 0) staged(width - 1);
    }

    // In the columns of the border green at the sites is not directed.
    void plainBorderColumns(int y)
    {
        const RowColours colours = mosaic.colours(y);
        const auto plain = [&](ptrdiff_t column) {
            if (column < x || column - x >= width || !colours.isSite(column)) return;
            const Sample* const row = mosaic.row(y);
            const auto beside = [&](int distance) { return row[mirrored(column + distance, mosaic.size.width)]; };
            const int sum = beside(-1) + beside(1) + mosaic.row(y - 1)[column] + mosaic.row(y + 1)[column];
            mosaic.pixel(static_cast<int>(column), y)[1] = static_cast<Sample>((sum + 2) >> 2);
        };
        for (int k = 0; k < border; ++k) {
            plain(k);
            plain(mosaic.size.width - 1 - k);
        }
    }
};

// The border's rows, then the others, whose first and last columns are filled on the way: each row is visited once.
template <class Sample> void cfaToRgb(const Mosaic& untyped)
{
    const MosaicOf<Sample> mosaic{untyped};
    const auto [width, height] = mosaic.size;
    const Region region = mosaic.region;
    const int left = between(region.x0, border, region.x1), right = between(left, width - border, region.x1);
    const int top = between(region.y0, border, region.y1), bottom = between(top, height - border, region.y1);
    const auto eachStrip = [&](auto fill) {
        eachStripOf<Strip<Sample>::maxWidth>(region, [&](int x, int columns) {
            Strip<Sample> strip(mosaic, x, columns);
            fill(strip);
        });
    };
    eachStrip([&](Strip<Sample>& strip) {
        for (int y = region.y0; y < top; ++y) strip.fillBorderRow(y);
        for (int y = bottom; y < region.y1; ++y) strip.fillBorderRow(y);
    });
    bandsAboveThreshold(right - left, bottom - top, [&](int first, int count) {
        eachStrip([&](Strip<Sample>& strip) { strip.fillRows(top + first, top + first + count); });
    });
}

} // namespace

const BayerRows bayerRows = {
    .myCFAToRGB_8u_C1C3R = cfaToRgb<uint8_t>,
    .myCFAToRGB_16u_C1C3R = cfaToRgb<uint16_t>,
};

} // namespace zorcc::ZORCC_TIER
