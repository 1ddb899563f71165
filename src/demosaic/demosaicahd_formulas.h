// SPDX-License-Identifier: MIT
// The steps of adaptive homogeneity-directed demosaicing, each a loop along one line of floats.
//
// Green is estimated at the sites (red or blue pixels) once along the row and once along the column. A *difference*
// line holds, at the sites, the site's colour less its green, and zeros between: what the other pixels miss is the tent
// filter of these. All samples, greens and differences are exact: multiples of 1/64 below 2^17.
#pragma once

#include "demosaic/demosaicahd_lab.h"
#include "demosaic/demosaicahd_lines.h"
#include "demosaic/mosaic.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- green ----------------------------------------------------------------------------------------------------------

// The samples on both sides of a site along one direction.
struct Sides {
    f32v nearSum, low, high; // of the greens beside it
    f32v bend;               // twice the site less its colour two pixels before and after it

    Sides(f32v site, f32v before, f32v after, f32v before2, f32v after2)
        : nearSum(before + after), low(min(before, after)), high(max(before, after)),
          bend((site + site) - (before2 + after2))
    {
    }

    f32v within(f32v green) const { return min(max(green, low), high); }

    // The average of the greens, corrected by a quarter of the bend.
    f32v green() const { return within(nearSum * 0.5f + bend * 0.25f); }

    // The same from integers, the average and the quarter each rounded down.
    f32v greenRoundedDown() const
    {
        // Truncation of a positive number. Unsigned, as lanes beyond the samples hold anything.
        const u32v quarter = (u32v)truncate(bend * 0.25f + 65536.f) - 65536;
        return within(toFloat((s32v)((u32v)truncate(nearSum * 0.5f) + quarter)));
    }
};

ZORCC_INLINE Sides sidesAcross(const Rows<5>& samples, int i)
{
    const float* const row = samples.line[2] + i;
    return {at(row, 0), at(row, -1), at(row, 1), at(row, -2), at(row, 2)};
}

ZORCC_INLINE Sides sidesDown(const Rows<5>& samples, int i)
{
    const auto row = [&](int r) { return at(samples.line[r], i); };
    return {row(2), row(1), row(3), row(0), row(4)};
}

ZORCC_STAGE void greenDifferences(Rows<5> samples, s32v sites, float* across, float* down, int length)
{
    alongLine(length, [&](int i) {
        const f32v own = at(samples.line[2], i);
        store(across + i, (s32v)(own - sidesAcross(samples, i).green()) & sites);
        store(down + i, (s32v)(own - sidesDown(samples, i).green()) & sites);
    });
}

// ---- red and blue ---------------------------------------------------------------------------------------------------

// From rows of differences, calls body(i, same, other) with that of the colour of the row's sites and that of the
// colour of the sites above and below.
template <class Body> ZORCC_INLINE void alongTents(const Rows<3>& rows, int length, Body body)
{
    alongNeighbours(
        length,
        [&](int i) {
            return Values<2>{{at(rows.line[1], i), at(rows.line[0], i) + at(rows.line[2], i)}};
        },
        [&](int i, const Values<2>& left, const Values<2>& here, const Values<2>& right) {
            body(i, here.v[0] + (left.v[0] + right.v[0]) * 0.5f, here.v[1] * 0.5f + (left.v[1] + right.v[1]) * 0.25f);
        });
}

ZORCC_STAGE void chroma(Rows<3> differences, float* sameRow, float* otherRows, int length)
{
    alongTents(differences, length, [&](int i, f32v same, f32v other) {
        store(sameRow + i, same);
        store(otherRows + i, other);
    });
}

// A candidate's pixels in the space that its homogeneity is judged in.
template <bool red>
ZORCC_STAGE void candidateLab(const float* samples, Rows<3> differences, float scale, LabLines lab, int length)
{
    alongTents(differences, length, [&](int i, f32v same, f32v other) {
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

// A lead of up to 4 near neighbours of the 36 in a 3 x 3 window is no lead: the mean of both directions is taken. On
// real pictures that is 0.1 dB better than taking a narrow winner.
constexpr float noLead = 4;

// `near` are three rows of homogeneity. `green` is the result's green, `differences` those of the unrounded choice.
ZORCC_STAGE void choose(Rows<3> near, Rows<5> samples, s32v sites, const float* across, const float* down, float* green,
                        float* differences, int length)
{
    const auto columns = [&](int i) {
        return Values<1>{{at(near.line[0], i) + at(near.line[1], i) + at(near.line[2], i)}};
    };
    alongNeighbours(length, columns, [&](int i, const Values<1>& left, const Values<1>& here, const Values<1>& right) {
        const f32v lead = left.v[0] + here.v[0] + right.v[0];
        const s32v isAcross = lead > fillFloat(noLead), isDown = lead < fillFloat(-noLead);
        const auto chosen = [&](f32v a, f32v d, f32v both) { return select(isAcross, a, select(isDown, d, both)); };
        const f32v a = at(across, i), d = at(down, i);
        store(differences + i, chosen(a, d, (a + d) * 0.5f));
        const f32v greenAcross = sidesAcross(samples, i).greenRoundedDown(),
                   greenDown = sidesDown(samples, i).greenRoundedDown();
        const f32v mean = (greenAcross + greenDown) * 0.5f; // to be rounded with all results
        store(green + i, select(sites, chosen(greenAcross, greenDown, mean), at(samples.line[2], i)));
    });
}

// ---- the result -----------------------------------------------------------------------------------------------------

ZORCC_INLINE f32v medianOfThree(f32v a, f32v b, f32v c) { return max(min(a, b), min(max(a, b), c)); }

// The differences of one colour in a row, from three rows of them. Where the colour is missing, its difference goes
// half of the way to the median of 3 x 3: that takes away single wrong choices, while the whole way would take away
// thin coloured lines, too. The median is that of the greatest of the columns' lowest, the median of the columns'
// medians, and the lowest of the columns' greatest.
ZORCC_STAGE void smooth(Rows<3> rows, float* to, int length)
{
    const auto column = [&](int i) {
        const f32v a = at(rows.line[0], i), b = at(rows.line[1], i), c = at(rows.line[2], i);
        const f32v less = min(a, b), more = max(a, b);
        return Values<3>{{min(less, c), max(less, min(more, c)), max(more, c)}};
    };
    alongNeighbours(length, column, [&](int i, const Values<3>& left, const Values<3>& here, const Values<3>& right) {
        const f32v low = max(max(left.v[0], here.v[0]), right.v[0]);
        const f32v high = min(min(left.v[2], here.v[2]), right.v[2]);
        const f32v median = medianOfThree(low, medianOfThree(left.v[1], here.v[1], right.v[1]), high);
        store(to + i, (at(rows.line[1], i) + median) * 0.5f);
    });
}

// A row of the result as numbers to be rounded: the colour of the row's sites and the third colour, each in place of
// its smoothed differences. Green comes from choose().
ZORCC_STAGE void addGreen(const float* samples, const float* differences, s32v sites, float* siteColour,
                          float* thirdColour, int length)
{
    alongLine(length, [&](int i) {
        const f32v own = at(samples, i), green = own - at(differences, i);
        store(siteColour + i, select(sites, own, green + at(siteColour, i)));
        store(thirdColour + i, green + at(thirdColour, i));
    });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
