// SPDX-License-Identifier: MIT
// The rows of an image on several threads.
#pragma once

#include "frame/parallel.h"
#include "simd/row_loop.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Above 4096 pixels.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void convertRowsOnThreads(const Image<Source> from, const Formula formula, const Image<Destination> to,
                                       int width, int height)
{
    rowsAboveThreshold(width, height, [&](int y) { convertRow(from[y], formula, to[y], width); });
}

// Of any size.
template <class Source, class Formula, class Destination>
ZORCC_INLINE void alwaysOnThreads(const Image<Source> from, const Formula formula, const Image<Destination> to,
                                  int width, int height)
{
    rowsAlways(height, [&](int y) { convertRow(from[y], formula, to[y], width); });
}

} // namespace
} // namespace zorcc::ZORCC_TIER
