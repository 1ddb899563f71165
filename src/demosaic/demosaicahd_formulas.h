// SPDX-License-Identifier: MIT
// The steps of adaptive homogeneity-directed demosaicing, each a loop along one line of floats.
//
// Green is estimated at the sites (red or blue pixels) once along the row and once along the column. A *difference*
// line holds, at the sites, the site's colour less its green, and zeros between: what the other pixels of a candidate
// miss is the tent filter of these. The candidates' samples, greens and differences are exact: multiples of 1/64 below
// 2^17. What is mixed from them is rounded to single precision, in the order that is written here.
#pragma once

#include "demosaic/demosaicahd_lab.h"
#include "demosaic/demosaicahd_lines.h"
#include "demosaic/mosaic.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- green ----------------------------------------------------------------------------------------------------------

// The average of the greens on both sides, corrected by a quarter of how far the site is above its colour two pixels
// before and after it, and limited to the range of both greens.
ZORCC_INLINE f32v greenBetween(f32v site, f32v before, f32v after, f32v before2, f32v after2)
{
    const f32v bend = (site + site) - (before2 + after2);
    const f32v green = (before + after) * 0.5f + bend * 0.25f;
    return min(max(green, min(before, after)), max(before, after));
}

ZORCC_STAGE void greenDifferences(Rows<5> samples, s32v sites, float* across, float* down, int length)
{
    const float* const row = samples.line[2];
    alongLine(length, [&](int i) {
        const auto beside = [&](int k) { return at(row, i + k); };
        const auto above = [&](int k) { return at(samples.line[2 + k], i); };
        const f32v own = at(row, i);
        store(across + i, (s32v)(own - greenBetween(own, beside(-1), beside(1), beside(-2), beside(2))) & sites);
        store(down + i, (s32v)(own - greenBetween(own, above(-1), above(1), above(-2), above(2))) & sites);
    });
}

// ---- candidates -----------------------------------------------------------------------------------------------------

// A candidate's pixels in the space that its homogeneity is judged in.
template <bool red>
ZORCC_STAGE void candidateLab(const float* samples, Rows<3> differences, float scale, LabLines lab, int length)
{
    // Differences of the colour of the row's sites, and of the colour of the sites above and below.
    const auto columns = [&](int i) {
        return Values<2>{{at(differences.line[1], i), at(differences.line[0], i) + at(differences.line[2], i)}};
    };
    alongNeighbours(length, columns, [&](int i, const Values<2>& left, const Values<2>& here, const Values<2>& right) {
        const f32v same = here.v[0] + (left.v[0] + right.v[0]) * 0.5f;
        const f32v other = here.v[1] * 0.5f + (left.v[1] + right.v[1]) * 0.25f;
        const f32v green = at(samples, i) - at(differences.line[1], i);
        storeLab(toLab(green * scale, (red ? same : other) * scale, (red ? other : same) * scale), lab, i);
    });
}

// ---- homogeneity ----------------------------------------------------------------------------------------------------

// Distances of pixels to a neighbour: of lightness, and of colour, squared.
struct Distance {
    f32v light, colour;
};

ZORCC_INLINE Distance distance(const Lab& a, const Lab& b)
{
    const f32v redness = a.red - b.red, blueness = a.blue - b.blue;
    return {abs(a.light - b.light), redness * redness + blueness * blueness};
}

struct DistanceLines {
    float *light, *colour;
};

ZORCC_INLINE Distance loadDistance(const DistanceLines& from, int i) { return {at(from.light, i), at(from.colour, i)}; }

ZORCC_INLINE void storeDistance(const Distance& d, const DistanceLines& to, int i)
{
    store(to.light + i, d.light);
    store(to.colour + i, d.colour);
}

ZORCC_INLINE Distance farther(const Distance& a, const Distance& b)
{
    return {max(a.light, b.light), max(a.colour, b.colour)};
}

ZORCC_INLINE Distance nearer(const Distance& a, const Distance& b)
{
    return {min(a.light, b.light), min(a.colour, b.colour)};
}

// A row of a candidate with the row below, and its distances to the rows above (known) and below (to be stored).
struct JudgedRow {
    LabLines row, below;
    DistanceLines up, down;
};

ZORCC_STAGE void distancesDown(LabLines row, LabLines below, DistanceLines down, int length)
{
    alongLine(length, [&](int i) { storeDistance(distance(loadLab(row, i), loadLab(below, i)), down, i); });
}

// Adds 1, or with -1 subtracts 1, where both distances are within their limits.
template <int sign> ZORCC_INLINE s32v countNear(s32v count, const Distance& d, const Distance& limit)
{
    return addWhereBothWithin<sign>(count, d.light, limit.light, d.colour, limit.colour);
}

// Neighbours that are near in the candidate across, less those that are near in the candidate down. What is near adapts
// to the picture: the farther of the two neighbours along each direction, in the direction's own candidate; of the two
// directions the nearer.
ZORCC_STAGE void homogeneity(JudgedRow across, JudgedRow down, float* to, int length)
{
    const auto rightAt = [](const JudgedRow& c, int i) { return distance(loadLab(c.row, i), loadLab(c.row, i + 1)); };
    const auto downAt = [](const JudgedRow& c, int i) { return distance(loadLab(c.row, i), loadLab(c.below, i)); };
    const auto leftAt = [](const Distance& previous, const Distance& here) {
        return Distance{leftOf(previous.light, here.light), leftOf(previous.colour, here.colour)};
    };
    // Vectors are carried one by one: compilers copy structures of them through memory.
    const auto carry = [](Distance& previous, const Distance& here) {
        previous.light = here.light;
        previous.colour = here.colour;
    };
    Distance previousAcross = rightAt(across, -lanes), previousDown = rightAt(down, -lanes);
    alongLine(length, [&](int i) {
        const Distance right = rightAt(across, i), left = leftAt(previousAcross, right), below = downAt(across, i);
        const Distance downRight = rightAt(down, i), downLeft = leftAt(previousDown, downRight);
        const Distance downUp = loadDistance(down.up, i), downBelow = downAt(down, i);
        const Distance limit = nearer(farther(left, right), farther(downUp, downBelow));
        s32v sum = countNear<1>(countNear<1>(s32v{}, left, limit), right, limit);
        sum = countNear<1>(countNear<1>(sum, loadDistance(across.up, i), limit), below, limit);
        sum = countNear<-1>(countNear<-1>(sum, downLeft, limit), downRight, limit);
        sum = countNear<-1>(countNear<-1>(sum, downUp, limit), downBelow, limit);
        store(to + i, toFloat(sum));
        storeDistance(below, across.down, i);
        storeDistance(downBelow, down.down, i);
        carry(previousAcross, right);
        carry(previousDown, downRight);
    });
}

// ---- the choice -----------------------------------------------------------------------------------------------------

// The share of the candidate across in a pixel. It is half where both candidates have as many near neighbours around
// the 5 x 5 pixels, and all or nothing from a lead of 32 of the 100: hard choices of one candidate by less than that
// are wrong too often.
ZORCC_INLINE f32v shareAcross(f32v lead) { return min(max(lead * (1 / 64.f) + 0.5f, f32v{}), fillFloat(1)); }

// `near` are five rows of homogeneity, of which `columns` takes the sums of the columns.
ZORCC_STAGE void choose(Rows<5> near, float* columns, const float* samples, const float* across, const float* down,
                        float* share, float* green, float* differences, int length)
{
    alongLine(length, [&](int i) {
        const auto row = [&](int r) { return at(near.line[r], i); };
        store(columns + i, row(0) + row(1) + row(2) + row(3) + row(4));
    });
    alongLine(length, [&](int i) {
        const auto column = [&](int k) { return at(columns, i + k); };
        const f32v t = shareAcross(column(-2) + column(-1) + column(0) + column(1) + column(2));
        const f32v d = at(down, i), difference = d + (at(across, i) - d) * t;
        store(share + i, t);
        store(differences + i, difference);
        store(green + i, at(samples, i) - difference);
    });
}

// ---- red and blue everywhere ----------------------------------------------------------------------------------------

// What differences and greens change at least along a diagonal, of 8-bit samples: below that all diagonals are alike.
constexpr float leastChange = 4;

// The third colour's differences at the sites, from both diagonals, weighted by the squares of how much differences and
// greens change along the other one.
ZORCC_STAGE void diagonals(Rows<3> differences, Rows<3> greens, s32v sites, float least, float* to, int length)
{
    alongLine(length, [&](int i) {
        const f32v green = at(greens.line[1], i);
        f32v sum[2], change[2];
        for (int d = 0; d < 2; ++d) { // falling to the right, rising to the right
            const int x = d == 0 ? 1 : -1;
            const f32v above = at(differences.line[0], i - x), below = at(differences.line[2], i + x);
            const f32v total = fillFloat(least) + abs(above - below) + abs(green - at(greens.line[0], i - x)) +
                               abs(green - at(greens.line[2], i + x));
            sum[d] = above + below;
            change[d] = total * total;
        }
        const f32v weights = change[0] + change[1];
        store(to + i, (s32v)((sum[0] * change[1] + sum[1] * change[0]) / (weights + weights)) & sites);
    });
}

// Differences everywhere, of the colour of the row's sites and of the third colour. At a green pixel the neighbours
// across and those down have both, and are mixed as the candidates are. Lines of both are zero at green pixels, so that
// sites keep their own.
ZORCC_STAGE void chroma(Rows<3> sites, Rows<3> thirds, const float* share, float* same, float* other, int length)
{
    alongLine(length, [&](int i) {
        const f32v across = at(share, i) * 0.5f, down = 0.5f - across; // of two neighbours each
        const auto mixed = [&](const Rows<3>& inRow, const Rows<3>& inColumn) {
            const float* const row = inRow.line[1];
            return at(row, i) + ((at(row, i - 1) + at(row, i + 1)) * across +
                                 (at(inColumn.line[0], i) + at(inColumn.line[2], i)) * down);
        };
        store(same + i, mixed(sites, thirds));
        store(other + i, mixed(thirds, sites));
    });
}

// ---- the result -----------------------------------------------------------------------------------------------------

ZORCC_INLINE f32v medianOfThree(f32v a, f32v b, f32v c) { return max(min(a, b), min(max(a, b), c)); }

// The middle one is between the greater minimum and the lesser maximum of two pairs.
ZORCC_INLINE f32v medianOfFive(f32v a, f32v b, f32v c, f32v d, f32v e)
{
    return medianOfThree(max(min(a, b), min(c, d)), min(max(a, b), max(c, d)), e);
}

// Differences go three quarters of the way to the median of the pixel and its four neighbours: that takes away single
// wrong choices, while the whole way would take away thin coloured lines, too.
ZORCC_INLINE f32v smoothed(const Rows<3>& rows, int i)
{
    const float* const row = rows.line[1];
    const f32v own = at(row, i);
    const f32v median = medianOfFive(at(row, i - 1), at(row, i + 1), at(rows.line[0], i), at(rows.line[2], i), own);
    return own + (median - own) * 0.75f;
}

// A row of the result as numbers to be rounded: the colour of the row's sites, green, and the third colour.
struct ResultLines {
    float *site, *green, *third;
};

// Sites have their colour and lack green, the other pixels have green: the smoothed difference is between both.
ZORCC_STAGE void finish(const float* samples, Rows<3> same, Rows<3> other, s32v sites, ResultLines to, int length)
{
    alongLine(length, [&](int i) {
        const f32v own = at(samples, i), difference = smoothed(same, i);
        const f32v green = own - (f32v)((s32v)difference & sites);
        store(to.green + i, green);
        store(to.site + i, own + (f32v)((s32v)difference & ~sites));
        store(to.third + i, green + smoothed(other, i));
    });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
