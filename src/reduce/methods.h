// SPDX-License-Identifier: MIT
// What every exported bit-depth reduction does: its checks in their order, then the method that was asked for.
#pragma once

#include "reduce/reduce_rows.h"

namespace zorcc {

struct Method {
    ZorDitherMethod dither;
    int noise, levels;
};

ZorStatus reduceBits(const ReduceDrivers& drivers, ReduceLayout layout, const Image& from, const Image& to,
                     ZorSize size, const Method& method);

template <class Src, class Dst>
ZorStatus reduceBits(const ReduceDrivers& drivers, ReduceLayout layout, const Src* src, int srcStep, Dst* dst,
                     int dstStep, ZorSize size, int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(drivers, layout, interleaved(src, srcStep), interleaved(dst, dstStep), size,
                      {method, noise, levels});
}

} // namespace zorcc
