// SPDX-License-Identifier: MIT
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A formula on three channels beside a fourth that goes along unchanged.
template <class Formula> struct AlphaAlong {
    template <class Sample> Samples<Sample, 4> operator()(const Samples<Sample, 4>& from) const
    {
        const auto [a, b, c, alpha] = from.c[0];
        const auto to = Formula{}(Samples<Sample>{{{a, b, c}}});
        return {{{to.c[0][0], to.c[0][1], to.c[0][2], alpha}}};
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
