// SPDX-License-Identifier: MIT
// Row drivers of the deinterlacing conversions, compiled once for every tier.
#include "lumachroma/frame_edges.h"
#include "lumachroma/rounded_averages.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/deinterlace_rows.h"

namespace {

constexpr PackedOrder YUY2 = PackedOrder::lumaFirst;

// ---- formulas over rows ---------------------------------------------------------------------------------------------

// The middle one of three rows.
template <class Rounding> struct LowPass {
    template <int n> [[gnu::always_inline]] Vectors<n / 3> operator()(const Vectors<n>& s) const
    {
        constexpr int row = n / 3;
        return collect<row>([&](auto k) { return Rounding::lowPass(s.v[k], s.v[row + k], s.v[2 * row + k]); });
    }
};

// The row halfway between two.
template <class Rounding> struct Between {
    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& s) const
    {
        return collect<n / 2>([&](auto k) { return Rounding::average(s.v[k], s.v[n / 2 + k]); });
    }
};

template <class Rounding> using PlanesBetween = Then<Between<Rounding>, Unzip>;

// Three rows of luma and two of chroma pairs.
template <class Rounding> struct PackedRow {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<10>& s) const
    {
        return weave<YUY2>(LowPass<Rounding>{}(part<0, 6>(s)), Between<Rounding>{}(part<6, 4>(s)));
    }
};

// The packed row as it is, and three rows of luma, or two of chroma, for its own.
template <class Rounding> struct PackedLuma {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<10>& s) const
    {
        return weave<YUY2>(LowPass<Rounding>{}(part<4, 6>(s)), part<2, 2>(unweave<YUY2>(part<0, 4>(s))));
    }
};

template <class Rounding> struct PackedChroma {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<8>& s) const
    {
        return weave<YUY2>(lumaOf<YUY2>(part<0, 4>(s)), Between<Rounding>{}(part<4, 4>(s)));
    }
};

// ---- rows -----------------------------------------------------------------------------------------------------------

// A slice of a frame: its rows, and which of them it completes.
struct Slice {
    const SampledSource& image;
    ZorSize size;
    FrameEdges edges;

    int firstLuma() const { return edges.top ? 0 : 1; }
    int endLuma() const { return size.height - (edges.bottom ? 0 : 1); }
    int endChroma() const { return size.height / 2 - (edges.bottom ? 0 : 1); }

    bool hasLuma(int y) const { return y >= firstLuma() && y < endLuma(); }
    bool hasChroma(int y) const { return y / 2 < endChroma(); }

    // Pixels of a row that round up, of those that begin with a whole block.
    int whole() const { return size.width / roundedBlock * roundedBlock; }

    const uint8_t* luma(int y) const
    {
        const int inside = y < 0 ? 0 : y < size.height ? y : size.height - 1;
        return image.plane[0] + inside * image.step[0];
    }

    // The upper of the two chroma rows, and the lower, for row `pair` of 4:2:0: this one and the next, but for the
    // last.
    const uint8_t* upper(int pair) const
    {
        const int rows = size.height / 2, row = pair + 1 < rows ? pair : rows - 2;
        return image.plane[1] + (row < 0 ? 0 : row) * image.step[1];
    }
    const uint8_t* lower(int pair) const { return size.height > 2 ? upper(pair) + image.step[1] : upper(pair); }
};

template <Unit... units> using PackedSource = Streams<In, 2 * vectorBytes, units...>;
constexpr Unit lumaUnit{1, 0}, pairUnit{2, 1}, packedUnit{4, 1};

} // namespace

void my420To422_Deinterlace_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size,
                                     FrameEdges edges)
{
    const Slice slice{from, size, edges};
    for (int y = 0; y < size.height; ++y) {
        uint8_t* const row = to.plane[0] + y * to.step[0];
        const uint8_t* const luma[] = {slice.luma(y - 1), slice.luma(y), slice.luma(y + 1)};
        const uint8_t* const chroma[] = {slice.upper(y / 2), slice.lower(y / 2)};
        const Streams<Out, 2 * vectorBytes, packedUnit> packed = {{{row}}};
        if (slice.hasLuma(y) && slice.hasChroma(y)) {
            const PackedSource<lumaUnit, lumaUnit, lumaUnit, pairUnit, pairUnit> rows = {
                {{luma[0], luma[1], luma[2], chroma[0], chroma[1]}}};
            convertRounded<PackedRow>(rows, packed, size.width, slice.whole());
        } else if (slice.hasLuma(y)) {
            const PackedSource<packedUnit, lumaUnit, lumaUnit, lumaUnit> rows = {{{row, luma[0], luma[1], luma[2]}}};
            convertRounded<PackedLuma>(rows, packed, size.width, slice.whole());
        } else if (slice.hasChroma(y)) {
            const PackedSource<packedUnit, pairUnit, pairUnit> rows = {{{row, chroma[0], chroma[1]}}};
            convertRounded<PackedChroma>(rows, packed, size.width, slice.whole());
        }
    }
}

void my420To420_Deinterlace_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size,
                                     FrameEdges edges)
{
    const Slice slice{from, size, edges};
    for (int y = slice.firstLuma(); y < slice.endLuma(); ++y) {
        const Planes<In, 1, 1, 1> rows = {{{slice.luma(y - 1), slice.luma(y), slice.luma(y + 1)}}};
        convertRounded<LowPass>(rows, Planes<Out, 1>{{{to.plane[0] + y * to.step[0]}}}, size.width, slice.whole());
    }
    for (int k = 0; k < slice.endChroma(); ++k) {
        const Planes<In, 2, 2> rows = {{{slice.upper(k), slice.lower(k)}}};
        const Planes<Out, 1, 1> planes = {{{to.plane[1] + k * to.step[1], to.plane[2] + k * to.step[2]}}};
        convertRounded<PlanesBetween>(rows, planes, size.width / 2, slice.whole() / 2);
    }
}

} // namespace zorcc::ZORCC_TIER
