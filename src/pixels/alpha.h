// SPDX-License-Identifier: MIT
// Formulas on three channels of pixels that have alpha as a fourth.
#pragma once

#include "pixels/rows.h"

namespace zorcc::ZORCC_TIER {
namespace {

// The source's alpha.
template <class Formula> struct CopyingAlpha {
    template <class Prepared, class Sample> struct BesideAlpha {
        Prepared colour;
        Vec<Sample> alpha;
    };

    template <class Sample>
    requires WorksInTwoSteps<Formula, Samples<Sample>>
    [[gnu::always_inline]] auto prepare(const Samples<Sample, 4>& from) const { return split(from); }

    template <class Prepared, class Sample>
    [[gnu::always_inline]] Samples<Sample, 4> operator()(const BesideAlpha<Prepared, Sample>& from) const
    {
        const auto [a, b, c] = Formula{}(from.colour).c[0];
        return {{{a, b, c, from.alpha}}};
    }

    template <class Sample> [[gnu::always_inline]] Samples<Sample, 4> operator()(const Samples<Sample, 4>& from) const
    {
        return operator()(split(from));
    }

private:
    template <class Sample> static auto split(const Samples<Sample, 4>& from)
    {
        const auto [a, b, c, alpha] = from.c[0];
        const auto colour = prepared(Formula{}, Samples<Sample>{{{a, b, c}}});
        return BesideAlpha<std::remove_const_t<decltype(colour)>, Sample>{colour, alpha};
    }
};

// The same alpha for all pixels.
template <class Formula, class Sample = uint8_t> struct WithAlpha {
    Sample alpha;
    Formula formula{};

    template <class Source>
    requires WorksInTwoSteps<Formula, Source>
    [[gnu::always_inline]] auto prepare(const Source& source) const { return formula.prepare(source); }

    template <class Source>
    [[gnu::always_inline]] auto operator()(const Source& source) const requires Takes<Formula, Source>
    {
        return withAlpha(formula(source), alpha);
    }

    auto single() const
    {
        using Single = decltype(singleOf(formula));
        return WithAlpha<Single, Sample>{alpha};
    }
};

template <int rows, Columns columns, class Sample>
ZORCC_INLINE Pixels<4, rows, columns, Sample> withAlpha(const Pixels<3, rows, columns, Sample>& rgb,
                                                        std::type_identity_t<Sample> alpha)
{
    Pixels<4, rows, columns, Sample> rgba;
    for (int row = 0; row < rows; ++row) {
        for (int c = 0; c < 3; ++c) rgba.c[row][c] = rgb.c[row][c];
        rgba.c[row][3] = (Vec<Sample>)(sizeof(Sample) == 1 ? fill8(alpha) : (u8v)fill16(alpha));
    }
    return rgba;
}

} // namespace
} // namespace zorcc::ZORCC_TIER
