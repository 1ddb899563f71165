// SPDX-License-Identifier: MIT
// The missing colours of mosaic pixels, on planes of every other column, in which the sites of a row fill whole
// vectors. All averages are rounded half up.
#pragma once

#include "demosaic/mosaic.h"
#include "simd/interleave.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Two vectors of samples to one of every other column each.
template <class Sample> ZORCC_INLINE void splitColumns(const Sample* p, Sample* first, Sample* second)
{
    using V = Vec<Sample>;
    const u64v a = (u64v)unzipHalves(load<V>(p)), b = (u64v)unzipHalves(load<V>(p + vectorBytes / sizeof(Sample)));
    store(first, orderHalves(zipLow(a, b)));
    store(second, orderHalves(zipHigh(a, b)));
}

template <class V> ZORCC_INLINE V distance(V a, V b) { return subSaturate(a, b) | subSaturate(b, a); }

// The average of two samples, and in bit 0 whether it was rounded up.
template <class V> struct Average {
    V value, rounded;

    Average(V a, V b) : value(averageUp(a, b)), rounded(a ^ b) {}
};

// The average of the four samples of two averages. Their sum is 2 (p + q) less one for each that was rounded up,
// so that averageUp(p, q) is one too high where it rounds up and p or q was.
template <class V> ZORCC_INLINE V averageOfFour(const Average<V>& p, const Average<V>& q)
{
    return averageUp(p.value, q.value) - ((p.rounded | q.rounded) & (p.value ^ q.value) & 1);
}

// A row of the mosaic and its neighbours. `like` are planes of the columns that hold the row's sites, `other` those
// between; [2] is the row itself, [0] and [1] are the two rows above it, [3] and [4] the two below.
template <class Sample> struct PlaneWindow {
    const Sample *like[5], *other[5];
    int left; // the plane of the other columns has the left neighbour of site i at i + left, the right one after it
};

// The colours of sites i .. and of the green pixels beside them: the colour of the row's sites, green, the third
// colour. Without `directed` green is the average of four neighbours, and the rows at a distance of two are not looked
// at.
template <bool directed, class Sample, class V>
ZORCC_INLINE void interpolate(const PlaneWindow<Sample>& w, int i, V (&site)[3], V (&between)[3])
{
    const auto like = [&](int row, int k) { return load<V>(w.like[2 + row] + i + k); };
    const auto other = [&](int row, int k) { return load<V>(w.other[2 + row] + i + k); };
    const int left = w.left, right = w.left + 1;
    const Average<V> horizontal(other(0, left), other(0, right)), vertical(like(-1, 0), like(1, 0));
    site[0] = like(0, 0);
    site[1] = averageOfFour(horizontal, vertical);
    if constexpr (directed)
        site[1] = selectByOrder(distance(like(-2, 0), like(2, 0)), distance(like(0, -1), like(0, 1)), vertical.value,
                                horizontal.value, site[1]);
    site[2] = averageOfFour(Average<V>(other(-1, left), other(1, left)), Average<V>(other(-1, right), other(1, right)));
    between[0] = averageUp(like(0, -right), like(0, -left));
    between[1] = other(0, 0);
    between[2] = averageUp(other(-1, 0), other(1, 0));
}

} // namespace
} // namespace zorcc::ZORCC_TIER
