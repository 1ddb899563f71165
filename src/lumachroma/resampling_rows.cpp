// SPDX-License-Identifier: MIT
// Row drivers of the changes of chroma sampling that interpolate, compiled once for every tier.
#include "lumachroma/rounded_averages.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/resampling_rows.h"

namespace {

// Of samples and their right neighbours: each, and its average with the neighbour.
template <class Rounding> struct DoubleColumns {
    Vectors<2> operator()(const Vectors<2>& s) const
    {
        return zip(part<0, 1>(s), Vectors<1>{{Rounding::average(s.v[0], s.v[1])}});
    }
};

// The row halfway between two such.
template <class Rounding> struct DoubleColumnsBetween {
    Vectors<2> operator()(const Vectors<4>& s) const
    {
        const DoubleColumns<Rounding> doubled;
        const Vectors<2> upper = doubled(part<0, 2>(s)), lower = doubled(part<2, 2>(s));
        return {{Rounding::average(upper.v[0], lower.v[0]), Rounding::average(upper.v[1], lower.v[1])}};
    }
};

// The even columns of the row halfway between two.
template <class Rounding> struct EvenColumnsBetween {
    Vectors<1> operator()(const Vectors<4>& s) const
    {
        const Vectors<2> rows = OnBoth<EvenColumns>{}(s);
        return {{Rounding::average(rows.v[0], rows.v[1])}};
    }
};

// For each row: samples, and the samples to their right.
template <int rows> struct NeighboursOf;
template <> struct NeighboursOf<1> {
    using Type = Planes<In, 1, 1>;
};
template <> struct NeighboursOf<2> {
    using Type = Planes<In, 1, 1, 1, 1>;
};

// One row of 2 n samples from rows of n. The last sample is its own right neighbour; it and those before it that make
// no whole block round down.
template <template <class> class Formula, int rows>
void doubleRow(const uint8_t* const (&row)[rows], uint8_t* to, int n)
{
    const int whole = (n - 1) / roundedBlock * roundedBlock, rest = n - whole;
    typename NeighboursOf<rows>::Type inside, end;
    uint8_t last[rows][roundedBlock + 1];
    for (int r = 0; r < rows; ++r) {
        inside.plane[2 * r] = row[r];
        inside.plane[2 * r + 1] = row[r] + 1;
        __builtin_memcpy(last[r], row[r] + whole, static_cast<size_t>(rest));
        last[r][rest] = last[r][rest - 1];
        end.plane[2 * r] = last[r];
        end.plane[2 * r + 1] = last[r] + 1;
    }
    const Planes<Out, 2> doubled = {{{to}}};
    convertRow(inside, Formula<Up>{}, doubled, whole);
    convertShortRow(end, Formula<Down>{}, from(doubled, whole), rest);
}

} // namespace

void myYCbCr420To1620_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        convertImage(planeOf<2>(from, p, 2), EvenColumns{}, planeOf(to, p), size.width / 4, size.height / 4);
}

void myYCbCr1620To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    const int columns = size.width / 4, rows = size.height / 4;
    for (const int p : chromaPlanes)
        for (ptrdiff_t y = 0; y < rows; ++y) {
            const uint8_t* const row = from.plane[p] + y * from.step[p];
            const uint8_t* const next = y + 1 < rows ? row + from.step[p] : row;
            uint8_t* const doubled = to.plane[p] + 2 * y * to.step[p];
            doubleRow<DoubleColumns>({row}, doubled, columns);
            doubleRow<DoubleColumnsBetween>({row, next}, doubled + to.step[p], columns);
        }
}

void myYCbCr411To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        for (ptrdiff_t y = 0; y < size.height / 2; ++y)
            doubleRow<DoubleColumns>({from.plane[p] + 2 * y * from.step[p]}, to.plane[p] + y * to.step[p],
                                     size.width / 4);
}

void myYCbCr420To411_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    const int columns = size.width / 4, rows = size.height / 2;
    for (const int p : chromaPlanes)
        for (ptrdiff_t y = 0; y < rows; ++y) {
            const uint8_t* const row = from.plane[p] + y * from.step[p];
            const uint8_t* const next = y + 1 < rows ? row + from.step[p] : row;
            uint8_t* const kept = to.plane[p] + 2 * y * to.step[p];
            convertRow(Planes<In, 2>{{{row}}}, EvenColumns{}, Planes<Out, 1>{{{kept}}}, columns);
            convertRounded<EvenColumnsBetween>(Planes<In, 2, 2>{{{row, next}}}, Planes<Out, 1>{{{kept + to.step[p]}}},
                                               columns, columns / roundedBlock * roundedBlock);
        }
}

} // namespace zorcc::ZORCC_TIER
