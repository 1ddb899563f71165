// SPDX-License-Identifier: MIT
// Drivers of interleaved images by a formula on three channels of one sample type.
#pragma once

#include "simd/layouts_444.h"
#include "simd/threaded_rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

// `channels` is 3, or 4 of which the fourth stays as it is.
template <class Formula, class Sample>
ZORCC_INLINE void convertInterleaved(const Sample* src, ptrdiff_t srcStep, Sample* dst, ptrdiff_t dstStep, int width,
                                     int height, int channels)
{
    if (channels == 3)
        convertRowsOnThreads(rowsOf<C3<const Sample>>(src, srcStep), Formula{}, rowsOf<C3<Sample>>(dst, dstStep), width,
                             height);
    else
        convertRowsOnThreads(rowsOf<AC4<const Sample>>(src, srcStep), Formula{}, rowsOf<AC4<Sample>>(dst, dstStep),
                             width, height);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
