// SPDX-License-Identifier: MIT
// Drivers of plain quantisation, on the calling thread, and of ordered dithering.
#pragma once

#include "reduce/quantise_formulas.h"
#include "reduce/staircase.h"

namespace zorcc::ZORCC_TIER {
namespace {

// An image of one pair of types, whose fourth channels are left as they are or not.
template <class Src, class Dst, bool keepAlpha> class Quantisation {
public:
    Quantisation(const Image& source, const Image& destination, ZorSize imageSize, const Reduction& reduction)
        : from(source), to(destination), size(imageSize), intervals(reduction.intervals),
          channels(samplesPerPixel(reduction.layout))
    {
    }

    void plain() const
    {
        const Nearest<Src, Dst> nearest(intervals);
        constexpr float anyThreshold[bayerSide][bayerSide] = {};
        const auto serially = [&](auto row) {
            for (int y = 0; y < size.height; ++y) row(y);
        };
        if (byStaircases(nearest, anyThreshold, serially)) return;
        serially([&](int y) { convertRow<SampleRow<Src>, Destination>(y, nearest, longPiece); });
    }

    void ordered() const
    {
        float threshold[bayerSide][bayerSide];
        for (int y = 0; y < bayerSide; ++y)
            for (int x = 0; x < bayerSide; ++x) threshold[y][x] = bayer_thresh[y][x] * step.step;
        const auto inParallel = [&](auto row) { rowsAlways(size.height, row); };
        const AboveThreshold<Src, Dst> above(intervals, step);
        if (byStaircases(above, threshold, inParallel)) return;
        constexpr int period = 64; // a multiple of the matrix's side and of the lanes
        RowThresholds<period> row[bayerSide];
        for (int y = 0; y < bayerSide; ++y)
            row[y].fill(period, channels, [&](int x) { return threshold[y][x % bayerSide]; });
        inParallel([&](int y) { quantiseRow(y, row[y % bayerSide].of, period); });
    }

    void noisy(const Noise& noise) const
    {
        rowsAlways(size.height, [&](int y) {
            constexpr int period = Noise::period, least = vectorBytes; // a row is read in whole vectors
            RowThresholds<period> row;
            const int pixels = size.width > period ? period : size.width < least ? least : size.width;
            row.fill(pixels, channels,
                     [&](int x) { return (noise.at(x, y) + bayer_thresh[y % bayerSide][x % bayerSide]) * step.step; });
            quantiseRow(y, row.of, period);
        });
    }

private:
    using Destination = std::conditional_t<keepAlpha, ColourSampleRow<Dst>, SampleRow<Dst>>;
    static constexpr int longPiece = 48 << 24; // samples of whole pixels and vectors; the walk counts them in an int

    const Image& from;
    const Image& to;
    const ZorSize size;
    const int intervals, channels;
    const StepSize step{white<Src>, intervals};

    // Row y in pieces, for each of which the formula starts anew.
    template <class From, class To, class Formula>
    void convertRow(int y, const Formula& formula, ptrdiff_t pieceSamples) const
    {
        const ptrdiff_t samples = ptrdiff_t{size.width} * channels;
        for (ptrdiff_t start = 0; start < samples; start += pieceSamples) {
            const ptrdiff_t count = samples - start < pieceSamples ? samples - start : pieceSamples;
            From source;
            To destination;
            source.start[0] = from.row(0, y) + start * sizeof(Src);
            destination.start[0] = to.row(0, y) + start * sizeof(Dst);
            convertPixels(source, formula, destination, static_cast<int>(count));
        }
    }

    // `thresholds` holds those of the first `period` pixels, after which they repeat.
    void quantiseRow(int y, const float* thresholds, int period) const
    {
        const AboveThresholds<Src, Dst> formula{{intervals, step}, thresholds};
        convertRow<SampleRow<Src>, Destination>(y, formula, period * channels);
    }

    // False where it is left to the formula.
    template <class Formula, class EachRow>
    bool byStaircases(const Formula& formula, const float (&threshold)[bayerSide][bayerSide], EachRow eachRow) const
    {
        if constexpr (sizeof(Src) == 1) {
            using ByteDestination = std::conditional_t<keepAlpha, ColourByteRow, ByteRow>;
            if (int64_t{size.width} * channels * size.height < Staircases::minSamples) return false;
            Staircases staircases;
            if (!staircases.build(formula, threshold)) return false;
            staircases.spread(channels);
            eachRow([&](int y) { convertRow<ByteRow, ByteDestination>(y, staircases.row(y), longPiece); });
            return true;
        } else {
            return false;
        }
    }
};

template <class Src, class Dst, class Work>
void quantise(const Image& from, const Image& to, ZorSize size, const Reduction& reduction, Work work)
{
    if (reduction.layout == ReduceLayout::AC4)
        work(Quantisation<Src, Dst, true>(from, to, size, reduction));
    else
        work(Quantisation<Src, Dst, false>(from, to, size, reduction));
}

template <class Src, class Dst> void plain(const Image& from, const Image& to, ZorSize size, const Reduction& reduction)
{
    quantise<Src, Dst>(from, to, size, reduction, [](const auto& quantisation) { quantisation.plain(); });
}

template <class Src, class Dst>
void ordered(const Image& from, const Image& to, ZorSize size, const Reduction& reduction, const Noise* noise)
{
    quantise<Src, Dst>(from, to, size, reduction, [&](const auto& quantisation) {
        if (noise)
            quantisation.noisy(*noise);
        else
            quantisation.ordered();
    });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
