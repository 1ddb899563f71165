// SPDX-License-Identifier: MIT
// A layout of interleaved bytes for formulas that take pixels in lanes.
#pragma once

#include "pixels/layouts.h"
#include "simd/avx512/pixel_quads.h"

namespace zorcc::ZORCC_TIER {
namespace {

template <class Layout> struct InQuads : Layout::Base {
    using Base = typename Layout::Base;

    [[gnu::always_inline]] PixelQuads<1> load(int x) const
    {
        return loadQuads<Layout::line[0].unit.bytes>(this->at(0, x));
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
