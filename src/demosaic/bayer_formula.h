// SPDX-License-Identifier: MIT
// The missing colours of a vector of mosaic pixels. All averages are rounded half up.
#pragma once

#include "demosaic/mosaic.h"
#include "simd/interleave16.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Row y of the mosaic with the two above and the two below; rows[2] is the row itself.
template <class Sample> struct RowWindow {
    const Sample* row[5];
};

template <class V> ZORCC_INLINE V distance(V a, V b) { return subSaturate(a, b) | subSaturate(b, a); }

// The average of two samples, and in bit 0 whether it was rounded up.
template <class V> struct Average {
    V value, rounded;

    Average(V a, V b) : value(averageUp(a, b)), rounded(a ^ b) {}
};

// The average of the four samples behind two averages. Their sum is 2 (p + q) less one for each that was rounded up,
// so that averageUp(p, q) is one too high where it rounds up and p or q was.
template <class V> ZORCC_INLINE V averageOfFour(const Average<V>& p, const Average<V>& q)
{
    return averageUp(p.value, q.value) - ((p.rounded | q.rounded) & (p.value ^ q.value) & 1);
}

// The one whose gradient is smaller; `both` where they are equal.
template <class V> ZORCC_INLINE V alongSmaller(V gradientV, V gradientH, V vertical, V horizontal, V both)
{
#if defined(ZORCC_TIER_avx512)
    if constexpr (sizeof(gradientV[0]) == 1) {
        const __mmask64 v = _mm512_cmplt_epu8_mask(reg(gradientV), reg(gradientH));
        const __mmask64 h = _mm512_cmplt_epu8_mask(reg(gradientH), reg(gradientV));
        return (V)_mm512_mask_mov_epi8(_mm512_mask_mov_epi8(reg(both), v, reg(vertical)), h, reg(horizontal));
    } else {
        const __mmask32 v = _mm512_cmplt_epu16_mask(reg(gradientV), reg(gradientH));
        const __mmask32 h = _mm512_cmplt_epu16_mask(reg(gradientH), reg(gradientV));
        return (V)_mm512_mask_mov_epi16(_mm512_mask_mov_epi16(reg(both), v, reg(vertical)), h, reg(horizontal));
    }
#else
    const V notV = (V)(subSaturate(gradientH, gradientV) == 0), notH = (V)(subSaturate(gradientV, gradientH) == 0);
    return blend(notV, blend(notH, both, horizontal), vertical);
#endif
}

// Interpolates the pixels from column x on: the colour of the row's sites, green, the third colour. `sites` are all
// bits where the sites are. Without `directed` green is the average of four neighbours and the rows at a distance of
// two are not looked at.
template <bool directed, class Sample, class V>
ZORCC_INLINE void interpolate(const RowWindow<Sample>& window, int x, V sites, V (&colour)[3])
{
    const auto at = [&](int row, int column) { return load<V>(window.row[2 + row] + x + column); };
    const V own = at(0, 0);
    const Average<V> horizontal(at(0, -1), at(0, 1)), vertical(at(-1, 0), at(1, 0));
    const Average<V> left(at(-1, -1), at(1, -1)), right(at(-1, 1), at(1, 1));
    V green = averageOfFour(horizontal, vertical);
    if constexpr (directed)
        green = alongSmaller(distance(at(-2, 0), at(2, 0)), distance(at(0, -2), at(0, 2)), vertical.value,
                             horizontal.value, green);
    colour[0] = blend(sites, own, horizontal.value);
    colour[1] = blend(sites, green, own);
    colour[2] = blend(sites, averageOfFour(left, right), vertical.value);
}

// To red, green, blue in memory.
template <bool red> ZORCC_INLINE void storeRgb(uint8_t* p, const u8v (&colour)[3])
{
    interleave3<Columns::inOrder>(p, {colour[red ? 0 : 2], colour[1], colour[red ? 2 : 0]});
}
template <bool red> ZORCC_INLINE void storeRgb(uint16_t* p, const u16v (&colour)[3])
{
    interleave3(p, {colour[red ? 0 : 2], colour[1], colour[red ? 2 : 0]});
}

} // namespace
} // namespace zorcc::ZORCC_TIER
