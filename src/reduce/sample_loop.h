// SPDX-License-Identifier: MIT
// The loop over the samples of a row: whole vectors, then the end of the row, never a byte outside it. Source and
// destination may be the same row.
#pragma once

#include <stddef.h>

#include "simd/vec.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Calls convert(src, dst, i) for `step` samples at a time, of which the first is number i of the row. The last call
// repeats samples that are done already, from a copy; a row of less than `step` samples is converted in a copy with
// zeros behind it.
template <int step, class Src, class Dst, class Convert>
ZORCC_INLINE void convertSamples(const Src* src, Dst* dst, ptrdiff_t samples, Convert convert)
{
    const ptrdiff_t rest = samples % step;
    if (rest == 0) {
        for (ptrdiff_t i = 0; i < samples; i += step) convert(src + i, dst + i, i);
    } else if (samples > step) {
        const ptrdiff_t last = samples - step;
        Src copy[step];
        __builtin_memcpy(copy, src + last, sizeof copy);
        for (ptrdiff_t i = 0; i < last; i += step) convert(src + i, dst + i, i);
        convert(copy, dst + last, last);
    } else {
        Src source[step] = {};
        Dst destination[step] = {};
        __builtin_memcpy(source, src, static_cast<size_t>(samples) * sizeof(Src));
        __builtin_memcpy(destination, dst, static_cast<size_t>(samples) * sizeof(Dst)); // with what is kept
        convert(source, destination, 0);
        __builtin_memcpy(dst, destination, static_cast<size_t>(samples) * sizeof(Dst));
    }
}

} // namespace
} // namespace zorcc::ZORCC_TIER
