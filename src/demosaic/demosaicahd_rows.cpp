// SPDX-License-Identifier: MIT
// Row drivers of the adaptive homogeneity-directed demosaicing, compiled once for every tier.
#include "demosaic/demosaicahd_formulas.h"
#include "demosaic/demosaicahd_samples.h"
#include "frame/parallel.h"

namespace zorcc::ZORCC_TIER {

namespace {

// What a pixel depends on: the median looks at neighbours, a difference is mixed from neighbours and at them from
// diagonal neighbours, the choice sums over 5 x 5 pixels, nearness is to neighbours, a candidate's differences are
// tents, and green looks two pixels far.
constexpr int greenReach = 2, reach = 1 + 1 + 1 + 2 + 1 + 1 + greenReach;

// Columns beyond each side of the strip in all lines but those of samples, which alone have all of `reach`.
constexpr int border = reach - greenReach;

// The strip of columns that is worked on at a time: a stage's lines stay in the first-level cache.
constexpr int stripWidth = 256;

// Lines of both candidates.
struct LabRing {
    Ring<2> light, red, blue;

    LabLines operator[](int row) const { return {light[row], red[row], blue[row]}; }
};

struct DistanceRing {
    Ring<2> light, colour;

    DistanceLines operator[](int row) const { return {light[row], colour[row]}; }
};

struct Candidate {
    Ring<5> differences;
    LabRing lab;
    DistanceRing down; // to the row below

    JudgedRow judged(int row) const { return {lab[row], lab[row + 1], down[row - 1], down[row]}; }
};

// All lines of a strip. How many rows of each are kept follows from Strip::step.
struct Lines {
    Ring<10> samples;
    Candidate candidate[2]; // across: along the row; down: along the column
    Ring<5> near;
    Ring<1> nearColumns;
    Ring<3> share, green;     // of the candidate across; of the mix
    Ring<4> differences;      // of the mix, of the sites' colour
    Ring<3> thirdDifferences; // at the sites
    Ring<3> red, blue;        // differences everywhere
    Ring<1> siteColour, resultGreen, thirdColour;
};
constexpr int lineCount = sizeof(Lines) / sizeof(float*);

// Columns x .. x + width - 1 of the region, and lines for them and for what they depend on.
template <class Sample> class Strip {
public:
    Strip(const MosaicOf<Sample>& m, const Scratch& scratch, int firstLine, int firstColumn, int columns)
        : mosaic(m), x(firstColumn), width(columns), length(lineLength(columns))
    {
        float* all[lineCount];
        for (int i = 0; i < lineCount; ++i) all[i] = scratch.line(firstLine + i);
        __builtin_memcpy(&lines, all, sizeof lines);
    }

    static int lineLength(int columns) { return (columns + 2 * border + 15) / 16 * 16; }

    // Rows y0 .. y1 - 1 of the result.
    void run(int y0, int y1)
    {
        top = ptrdiff_t{y0} - reach;
        for (int i = 0; i < y1 - y0 + 2 * reach; ++i) step(i);
    }

private:
    static constexpr bool is8Bit = sizeof(Sample) == 1;

    const MosaicOf<Sample>& mosaic;
    const int x, width, length;
    ptrdiff_t top = 0; // the image row of row 0, as mirrored
    Lines lines;

    // Brings in row i and takes everything that now can be done one row further.
    void step(int i)
    {
        loadLine(mosaic.row(mirrored(top + i, mosaic.size.height)), mosaic.size.width, ptrdiff_t{x} - reach,
                 width + 2 * reach, lines.samples[i] - greenReach);
        if (i >= 4) estimateGreen(i - 2);
        if (i >= 6) judge(i - 3);
        if (i == 7) measure(i - 4);
        if (i >= 8) compare(i - 4);
        if (i >= 12) mix(i - 6);
        if (i >= 14) crossDiagonals(i - 7);
        if (i >= 16) interpolateColours(i - 8);
        if (i >= 18) result(i - 9);
    }

    RowColours coloursOf(int row) const { return mosaic.colours(top + row); }
    s32v sitesOf(int row) const
    {
        return alternatingMask<s32v>(coloursOf(row).sitesAreOdd != (((x - border) & 1) != 0));
    }

    void estimateGreen(int row)
    {
        greenDifferences(lines.samples.farAround(row), sitesOf(row), lines.candidate[0].differences[row],
                         lines.candidate[1].differences[row], length);
    }

    // Homogeneity is judged on a scale of 16 bits, so that 8-bit pictures are treated as the same at 16 bits would be.
    void judge(int row)
    {
        constexpr float scale = is8Bit ? 257.f : 1.f;
        const auto convert = coloursOf(row).red ? candidateLab<true> : candidateLab<false>;
        for (const Candidate& c : lines.candidate)
            convert(lines.samples[row], c.differences.around(row), scale, c.lab[row], length);
    }

    // The first row that has one below it.
    void measure(int row)
    {
        for (const Candidate& c : lines.candidate) distancesDown(c.lab[row], c.lab[row + 1], c.down[row], length);
    }

    void compare(int row)
    {
        homogeneity(lines.candidate[0].judged(row), lines.candidate[1].judged(row), lines.near[row], length);
    }

    void mix(int row)
    {
        choose(lines.near.farAround(row), lines.nearColumns[0], lines.samples[row], lines.candidate[0].differences[row],
               lines.candidate[1].differences[row], lines.share[row], lines.green[row], lines.differences[row], length);
    }

    void crossDiagonals(int row)
    {
        diagonals(lines.differences.around(row), lines.green.around(row), sitesOf(row),
                  is8Bit ? leastChange : leastChange * 257, lines.thirdDifferences[row], length);
    }

    const Ring<3>& siteColours(int row) const { return coloursOf(row).red ? lines.red : lines.blue; }
    const Ring<3>& thirdColours(int row) const { return coloursOf(row).red ? lines.blue : lines.red; }

    void interpolateColours(int row)
    {
        chroma(lines.differences.around(row), lines.thirdDifferences.around(row), lines.share[row],
               siteColours(row)[row], thirdColours(row)[row], length);
    }

    void result(int row)
    {
        const ResultLines to{lines.siteColour[0], lines.resultGreen[0], lines.thirdColour[0]};
        finish(lines.samples[row], siteColours(row).around(row), thirdColours(row).around(row), sitesOf(row), to,
               length);
        const bool red = coloursOf(row).red;
        storePixels({(red ? to.site : to.third) + border, to.green + border, (red ? to.third : to.site) + border},
                    width, mosaic.pixel(x, static_cast<int>(top + row)));
    }
};

template <class Sample> void demosaicAhd(const Mosaic& untyped, const Image& scratchImage)
{
    const MosaicOf<Sample> mosaic{untyped};
    const Region region = mosaic.region;
    const int width = region.x1 - region.x0, height = region.y1 - region.y0;
    const Scratch scratch(scratchImage, width, Strip<Sample>::lineLength(width < stripWidth ? width : stripWidth));
    bandsAboveThreshold(width, height, static_cast<int>(scratch.lines() / lineCount),
                        [&](int band, int first, int count) {
                            const int y0 = region.y0 + first;
                            eachStripOf<stripWidth>(region, [&](int x, int columns) {
                                Strip<Sample>(mosaic, scratch, band * lineCount, x, columns).run(y0, y0 + count);
                            });
                        });
}

} // namespace

const DemosaicAhdRows demosaicAhdRows = {
    .myDemosaicAHD_8u_C1C3R = demosaicAhd<uint8_t>,
    .myDemosaicAHD_16u_C1C3R = demosaicAhd<uint16_t>,
};

} // namespace zorcc::ZORCC_TIER
