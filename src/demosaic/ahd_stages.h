// SPDX-License-Identifier: MIT
// The steps of adaptive homogeneity-directed demosaicing, each a loop along one line of floats.
//
// Green is estimated at the sites (red or blue pixels) once along the row and once along the column. A *difference*
// line holds, at the sites, the site's colour less its green, and zeros between: what the other pixels miss is the tent
// filter of these. All samples, greens and differences are exact: multiples of 1/64 below 2^17.
//
// Pointers are to lines that have room at both ends; all loops run over whole vectors, and what they compute beyond the
// ends of a line is not used.
#pragma once

#include "demosaic/ahd_lab.h"
#include "demosaic/ahd_scratch.h"
#include "demosaic/mosaic.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A stage is a function of its own, so that its loop has all registers to itself.
#define ZORCC_STAGE static __attribute__((noinline))

ZORCC_INLINE f32v at(const float* p, int i) { return load<f32v>(p + i); }

template <class Body> ZORCC_INLINE void alongLine(int length, Body body)
{
    for (int i = 0; i < length; i += floatsPerVector) body(i);
}

// ---- green ----------------------------------------------------------------------------------------------------------

// The samples on both sides of a site along one direction.
struct Sides {
    f32v nearSum, low, high; // of the greens beside it
    f32v bend;               // twice the site less its colour two pixels before and behind

    Sides(f32v site, f32v before, f32v behind, f32v before2, f32v behind2)
        : nearSum(before + behind), low(minimum(before, behind)), high(maximum(before, behind)),
          bend((site + site) - (before2 + behind2))
    {
    }

    f32v within(f32v green) const { return minimum(maximum(green, low), high); }

    // The average of the greens, corrected by a quarter of the bend.
    f32v green() const { return within(nearSum * 0.5f + bend * 0.25f); }

    // The same from integers, the average and the quarter each rounded down.
    f32v greenRoundedDown() const
    {
        const s32v quarter = truncate(bend * 0.25f + 65536.f) - 65536; // truncation of a positive number
        return within(toFloat(truncate(nearSum * 0.5f) + quarter));
    }
};

// Five rows of samples; row[2] is the row itself.
struct Samples {
    const float* row[5];

    f32v own(int i) const { return at(row[2], i); }
    Sides across(int i) const
    {
        return {own(i), at(row[2], i - 1), at(row[2], i + 1), at(row[2], i - 2), at(row[2], i + 2)};
    }
    Sides down(int i) const { return {own(i), at(row[1], i), at(row[3], i), at(row[0], i), at(row[4], i)}; }
};

ZORCC_STAGE void greenDifferences(Samples samples, s32v sites, float* across, float* down, int length)
{
    alongLine(length, [&](int i) {
        const f32v own = samples.own(i);
        store(across + i, (s32v)(own - samples.across(i).green()) & sites);
        store(down + i, (s32v)(own - samples.down(i).green()) & sites);
    });
}

// ---- red and blue ---------------------------------------------------------------------------------------------------

// From rows of differences: that of the colour of the row's sites, and that of the colour of the sites above and below.
ZORCC_INLINE f32v sameRow(const ThreeRows& d, int i)
{
    return at(d.line[1], i) + (at(d.line[1], i - 1) + at(d.line[1], i + 1)) * 0.5f;
}
ZORCC_INLINE f32v otherRows(const ThreeRows& d, int i)
{
    const auto both = [&](int k) { return at(d.line[0], k) + at(d.line[2], k); };
    return both(i) * 0.5f + (both(i - 1) + both(i + 1)) * 0.25f;
}

ZORCC_STAGE void chroma(ThreeRows differences, float* same, float* other, int length)
{
    alongLine(length, [&](int i) {
        store(same + i, sameRow(differences, i));
        store(other + i, otherRows(differences, i));
    });
}

// A candidate's pixels in the space that its homogeneity is judged in.
template <bool red>
ZORCC_STAGE void candidateLab(const float* samples, ThreeRows differences, float scale, LabLines lab, int length)
{
    alongLine(length, [&](int i) {
        const f32v green = at(samples, i) - at(differences.line[1], i);
        const f32v same = sameRow(differences, i), other = otherRows(differences, i);
        storeLab(toLab(green * scale, (red ? same : other) * scale, (red ? other : same) * scale), lab, i);
    });
}

// ---- homogeneity ----------------------------------------------------------------------------------------------------

// Distances of a pixel to a neighbour, for each direction: of lightness, and of colour, squared.
struct Distances {
    float *light, *colour;
};

ZORCC_INLINE void storeDistance(const Lab& a, const Lab& b, const Distances& to, int i)
{
    const f32v redness = a.red - b.red, blueness = a.blue - b.blue;
    store(to.light + i, (s32v)(a.light - b.light) & 0x7fffffff);
    store(to.colour + i, redness * redness + blueness * blueness);
}

ZORCC_STAGE void distances(LabLines row, LabLines below, Distances right, Distances down, int length)
{
    alongLine(length, [&](int i) {
        const Lab own = loadLab(row, i);
        storeDistance(own, loadLab(row, i + 1), right, i);
        storeDistance(own, loadLab(below, i), down, i);
    });
}

// Adds 1, or with -1 takes 1 away, where both distances are within their limits.
template <int sign> ZORCC_INLINE s32v countNear(s32v count, f32v light, f32v colour, f32v lightLimit, f32v colourLimit)
{
#if defined(ZORCC_TIER_avx512)
    const __mmask16 both = _mm512_mask_cmp_ps_mask(_mm512_cmp_ps_mask(reg(light), reg(lightLimit), _CMP_LE_OQ),
                                                   reg(colour), reg(colourLimit), _CMP_LE_OQ);
    return (s32v)_mm512_mask_add_epi32(reg(count), both, reg(count), _mm512_set1_epi32(sign));
#else
    const s32v both = (light <= lightLimit) & (colour <= colourLimit); // true is -1
    return sign > 0 ? count - both : count + both;
#endif
}

// The distances of one direction's candidate around a row.
struct Around {
    Distances right, up, down; // to the right neighbour; of the row above to this one; of this row to the one below
};

// Neighbours that are near in the candidate along the row, less those that are near in the candidate along the column.
// What is near adapts to the picture: the farther of the two neighbours along each direction, in the direction's own
// candidate; of the two directions the nearer.
ZORCC_STAGE void homogeneity(Around across, Around along, float* to, int length)
{
    const auto limit = [](const float* right, const float* up, const float* down, int i) {
        return minimum(maximum(at(right, i - 1), at(right, i)), maximum(at(up, i), at(down, i)));
    };
    alongLine(length, [&](int i) {
        const f32v light = limit(across.right.light, along.up.light, along.down.light, i);
        const f32v colour = limit(across.right.colour, along.up.colour, along.down.colour, i);
        s32v count = {};
        const auto add = [&]<int sign>(const Distances& d, int k) {
            count = countNear<sign>(count, at(d.light, k), at(d.colour, k), light, colour);
        };
        const auto addAll = [&]<int sign>(const Around& a) {
            add.template operator()<sign>(a.right, i - 1);
            add.template operator()<sign>(a.right, i);
            add.template operator()<sign>(a.up, i);
            add.template operator()<sign>(a.down, i);
        };
        addAll.template operator()<1>(across);
        addAll.template operator()<-1>(along);
        store(to + i, count);
    });
}

// ---- the choice -----------------------------------------------------------------------------------------------------

// A lead of up to 4 near neighbours of the 36 in a 3 x 3 window is no lead: the mean of both directions is taken. On
// real pictures that is 0.1 dB better than taking a narrow winner.
constexpr int noLead = 4;

// `near` are three rows of homogeneity. `green` is the result's green, `differences` those of the unrounded choice.
// `sums` is a line to work with.
ZORCC_STAGE void choose(ThreeRows near, Samples samples, s32v sites, const float* across, const float* down,
                        float* green, float* differences, float* sums, int length)
{
    alongLine(length, [&](int i) {
        store(sums + i, load<s32v>(near.line[0] + i) + load<s32v>(near.line[1] + i) + load<s32v>(near.line[2] + i));
    });
    alongLine(length, [&](int i) {
        const s32v lead = load<s32v>(sums + i - 1) + load<s32v>(sums + i) + load<s32v>(sums + i + 1);
        const s32v isAcross = lead > noLead, isDown = lead < -noLead;
        const auto chosen = [&](f32v a, f32v d, f32v both) { return select(isAcross, a, select(isDown, d, both)); };
        const f32v a = at(across, i), d = at(down, i);
        store(differences + i, chosen(a, d, (a + d) * 0.5f));
        const f32v greenAcross = samples.across(i).greenRoundedDown(), greenDown = samples.down(i).greenRoundedDown();
        const f32v mean = toFloat((truncate(greenAcross + greenDown) + 1) >> 1);
        store(green + i, select(sites, chosen(greenAcross, greenDown, mean), samples.own(i)));
    });
}

// ---- the result -----------------------------------------------------------------------------------------------------

ZORCC_INLINE f32v medianOfThree(f32v a, f32v b, f32v c) { return maximum(minimum(a, b), minimum(maximum(a, b), c)); }

// Three lines to work with.
struct Columns3 {
    float *low, *middle, *high;
};

// The differences of one colour in a row, from three rows of them. Where the colour is missing, its difference goes
// half of the way to the median of 3 x 3: that takes away single wrong choices, while the whole way would take away
// thin coloured lines, too. The median is that of the greatest of the columns' lowest, the median of the columns'
// medians, and the lowest of the columns' greatest.
ZORCC_STAGE void smooth(ThreeRows rows, Columns3 column, float* to, int length)
{
    alongLine(length, [&](int i) {
        const f32v a = at(rows.line[0], i), b = at(rows.line[1], i), c = at(rows.line[2], i);
        const f32v less = minimum(a, b), more = maximum(a, b);
        store(column.low + i, minimum(less, c));
        store(column.middle + i, maximum(less, minimum(more, c)));
        store(column.high + i, maximum(more, c));
    });
    alongLine(length, [&](int i) {
        const auto three = [&](const float* p, auto combine) { return combine(at(p, i - 1), at(p, i), at(p, i + 1)); };
        const f32v low = three(column.low, [](f32v a, f32v b, f32v c) { return maximum(maximum(a, b), c); });
        const f32v high = three(column.high, [](f32v a, f32v b, f32v c) { return minimum(minimum(a, b), c); });
        const f32v median = medianOfThree(low, three(column.middle, medianOfThree), high);
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
