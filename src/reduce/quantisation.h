// SPDX-License-Identifier: MIT
// Drivers of plain quantisation, on the calling thread, and of ordered dithering.
#pragma once

#include "reduce/quantise_formulas.h"
#include "reduce/staircase.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Src, class Dst, bool keepsAlpha> struct Quantisation : Reduction {
    void plain() const
    {
        const Nearest<Src, Dst> nearest(*this);
        constexpr float anyThreshold[1][1] = {};
        const auto serially = [&](auto row) {
            for (int y = 0; y < size.height; ++y) row(y);
        };
        if (byStaircases(nearest, anyThreshold, serially)) return;
        serially([&](int y) { convertRow<SampleRow<Src>, SampleRow<Dst, keepsAlpha>>(y, nearest, longPiece); });
    }

    void ordered() const
    {
        const AboveThreshold<Src, Dst> above(*this);
        const float unit = step(white<Src>);
        float threshold[bayerSide][bayerSide];
        for (int y = 0; y < bayerSide; ++y)
            for (int x = 0; x < bayerSide; ++x) threshold[y][x] = bayerMatrix[y][x] * unit;
        const auto inParallel = [&](auto row) { rowsAlways(size.height, row); };
        if (byStaircases(above, threshold, inParallel)) return;
        constexpr int period = 64; // a multiple of the matrix's side and of the lanes
        alignas(64) float row[bayerSide][maxChannels * period];
        for (int y = 0; y < bayerSide; ++y)
            fillThresholds(row[y], period, [&](int x) { return threshold[y][x % bayerSide]; });
        inParallel([&](int y) { quantiseRow(y, above, row[y % bayerSide], period); });
    }

    void noisy(const Noise& noise) const
    {
        const AboveThreshold<Src, Dst> above(*this);
        const float unit = step(white<Src>);
        rowsAlways(size.height, [&](int y) {
            constexpr int period = Noise::period, least = vectorBytes; // a row is read in whole vectors
            const int pixels = size.width > period ? period : size.width < least ? least : size.width;
            alignas(64) float row[maxChannels * period];
            fillThresholds(row, pixels,
                           [&](int x) { return (noise.at(x, y) + bayerMatrix[y % bayerSide][x % bayerSide]) * unit; });
            quantiseRow(y, above, row, period);
        });
    }

private:
    static constexpr int longPiece = 48 << 24; // samples of whole pixels and vectors; the walk counts them in an int

    // All samples of a pixel have one threshold.
    template <class Pixel> void fillThresholds(float* next, int pixels, Pixel thresholdOf) const
    {
        for (int x = 0; x < pixels; ++x) {
            const float threshold = thresholdOf(x);
            for (int c = 0; c < samplesPerPixel; ++c) *next++ = threshold;
        }
    }

    // Row y in pieces, for each of which the formula starts anew.
    template <class From, class To, class Formula>
    void convertRow(int y, const Formula& formula, ptrdiff_t pieceSamples) const
    {
        const ptrdiff_t samples = ptrdiff_t{size.width} * samplesPerPixel;
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
    void quantiseRow(int y, const AboveThreshold<Src, Dst>& above, const float* thresholds, int period) const
    {
        const AboveThresholds<Src, Dst> formula{above, thresholds}; // a copy, which stores cannot change
        convertRow<SampleRow<Src>, SampleRow<Dst, keepsAlpha>>(y, formula, period * samplesPerPixel);
    }

    // False where it is left to the formula: the construction pays from some number of samples on.
    template <class Formula, int side, class EachRow>
    bool byStaircases(const Formula& formula, const float (&threshold)[side][side], EachRow eachRow) const
    {
        if constexpr (sizeof(Src) == 1) {
            constexpr int64_t minSamples = 1 << 13;
            Staircases<side> staircases;
            if (int64_t{size.width} * samplesPerPixel * size.height < minSamples ||
                !staircases.build(formula, threshold, samplesPerPixel))
                return false;
            using Destination = std::conditional_t<keepsAlpha, ColourByteRow, ByteRow>;
            eachRow([&](int y) { convertRow<ByteRow, Destination>(y, staircases.row(y), longPiece); });
            return true;
        }
        return false;
    }
};

// Calls work with the quantisation of images whose fourth channels are left as they are, or not.
template <class Src, class Dst, class Work> void quantise(const Reduction& reduction, Work work)
{
    if (reduction.channels < reduction.samplesPerPixel)
        work(Quantisation<Src, Dst, true>{reduction});
    else
        work(Quantisation<Src, Dst, false>{reduction});
}

template <class Src, class Dst> void plain(const Reduction& reduction)
{
    quantise<Src, Dst>(reduction, [](const auto& quantisation) { quantisation.plain(); });
}

template <class Src, class Dst> void ordered(const Reduction& reduction, const Noise* noise)
{
    quantise<Src, Dst>(reduction, [&](const auto& q) { noise ? q.noisy(*noise) : q.ordered(); });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
