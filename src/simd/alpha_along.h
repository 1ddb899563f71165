// SPDX-License-Identifier: MIT
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// A formula on three channels beside a fourth that goes along unchanged.
template <class Formula> struct AlphaAlong {
    template <class Prepared, class Sample> struct WithAlpha {
        Prepared three;
        Vec<Sample> alpha;
    };

    template <class Sample>
    requires worksInTwoSteps<Formula, Samples<Sample>>
    auto prepare(const Samples<Sample, 4>& from) const { return split(from); }

    template <class Prepared, class Sample> Samples<Sample, 4> operator()(const WithAlpha<Prepared, Sample>& from) const
    {
        const auto [a, b, c] = Formula{}(from.three).c[0];
        return {{{a, b, c, from.alpha}}};
    }

    template <class Sample> Samples<Sample, 4> operator()(const Samples<Sample, 4>& from) const
    {
        return operator()(split(from));
    }

private:
    template <class Sample> static auto split(const Samples<Sample, 4>& from)
    {
        const auto [a, b, c, alpha] = from.c[0];
        const auto three = prepared(Formula{}, Samples<Sample>{{{a, b, c}}});
        return WithAlpha<std::remove_const_t<decltype(three)>, Sample>{three, alpha};
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
