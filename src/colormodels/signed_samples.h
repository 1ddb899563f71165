// SPDX-License-Identifier: MIT
// 16-bit signed samples are handled as the value plus 32768.
#pragma once

#include "simd/layout.h"

namespace zorcc::ZORCC_TIER {
namespace {

// 16-bit signed samples by the formula of unsigned ones.
template <template <class> class Formula> struct SignedSamples {
    using Unsigned = Formula<uint16_t>;

    auto prepare(const Samples<int16_t>& from) const requires worksInTwoSteps<Unsigned, Samples<uint16_t>>
    {
        return Unsigned{}.prepare(flipped<uint16_t>(from));
    }

    template <class Prepared> Samples<int16_t> operator()(const Prepared& of) const
    {
        return flipped<int16_t>(Unsigned{}(of));
    }
    Samples<int16_t> operator()(const Samples<int16_t>& from) const { return operator()(flipped<uint16_t>(from)); }

private:
    template <class To, class From> static Samples<To> flipped(const Samples<From>& from)
    {
        Samples<To> to;
        for (int c = 0; c < 3; ++c) to.c[0][c] = (Vec<To>)((u16v)from.c[0][c] ^ 0x8000);
        return to;
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
