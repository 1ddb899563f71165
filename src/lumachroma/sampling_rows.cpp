// SPDX-License-Identifier: MIT
// Row drivers of the changes of chroma sampling between planar and semi-planar images, compiled once for every tier.
#include "lumachroma/sampled_rows.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/sampling_rows.h"

namespace {

// Row k, then (9 (C[k] + C[k + 1]) - C[k - 1] - C[k + 2] + 8) / 16, of the rows C[k - 1] .. C[k + 2].
struct FilterOddRow {
    static u8v between(u8v above, u8v upper, u8v lower, u8v below)
    {
        const auto weigh = [](u8v nearPair, u8v farPair) {
            // -510 + 8 to 4590 + 8
            return (mulAddPairs(nearPair, fillPair8(9, 9)) + mulAddPairs(farPair, fillPair8(-1, -1)) + 8) >> 4;
        };
        return packUnsigned(weigh(zipLow(upper, lower), zipLow(above, below)),
                            weigh(zipHigh(upper, lower), zipHigh(above, below)));
    }

    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& s) const
    {
        constexpr int row = n / 4;
        return together(part<row, row>(s), collect<row>([&](auto k) {
                            return between(s.v[k], s.v[row + k], s.v[2 * row + k], s.v[3 * row + k]);
                        }));
    }
};

// The edges repeat.
template <int bytes, class Formula, class Destination>
void filterOddRows(const SampledSource& from, int plane, Formula formula, const Image<Destination>& to, int samples,
                   int rows)
{
    const auto row = [&](int k) {
        return from.plane[plane] + (k < 0 ? 0 : k < rows ? k : rows - 1) * from.step[plane];
    };
    for (int k = 0; k < rows; ++k) {
        const Planes<In, bytes, bytes, bytes, bytes> four = {{{row(k - 1), row(k), row(k + 1), row(k + 2)}}};
        convertRow(four, formula, to[k], samples);
    }
}

} // namespace

// ---- rows -----------------------------------------------------------------------------------------------------------

void my422To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        convertImage(planeOf(from, p, 2), Same{}, planeOf(to, p), size.width / 2, size.height / 2);
}

void my422To420_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(chromaOf(from, 2), Zip{}, planeOf<2>(to, 1), size.width / 2, size.height / 2);
}

void my420To422_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        convertImage(planeOf(from, p), OntoTwoRows{}, rowPairsOf(to, p), size.width / 2, size.height / 2);
}

void my420To422_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(planeOf<2>(from, 1), Then<Unzip, OnBoth<OntoTwoRows>>{}, chromaRowPairsOf(to), size.width / 2,
                 size.height / 2);
}

void my420To422_Filter_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        filterOddRows<1>(from, p, FilterOddRow{}, rowPairsOf(to, p), size.width / 2, size.height / 2);
}

void my420To422_Filter_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    // The filtered pairs of two rows: their even bytes are Cb of both, the odd ones Cr.
    filterOddRows<2>(from, 1, Then<FilterOddRow, Unzip>{}, chromaRowPairsOf(to), size.width / 2, size.height / 2);
}

// ---- columns --------------------------------------------------------------------------------------------------------

void my422To411_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        convertImage(planeOf<2>(from, p), EvenColumns{}, planeOf(to, p), size.width / 4, size.height);
}

void my422To411_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(chromaOf<2>(from), Then<OnBoth<EvenColumns>, Zip>{}, planeOf<2>(to, 1), size.width / 4, size.height);
}

void my411To422_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        convertImage(planeOf(from, p), EachColumnTwice{}, planeOf<2>(to, p), size.width / 4, size.height);
}

void my411To422_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(planeOf<2>(from, 1), Then<Unzip, OnBoth<EachColumnTwice>>{}, chromaOf<2>(to), size.width / 4,
                 size.height);
}

// ---- rows and columns -----------------------------------------------------------------------------------------------

void my411To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    for (const int p : chromaPlanes)
        convertImage(rowPairsOf(from, p), Zip{}, planeOf<2>(to, p), size.width / 4, size.height / 2);
}

void my411To420_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    // Two rows of pairs, zipped: Cb Cb Cr Cr ...
    convertImage(rowPairsOf<2>(from, 1), Then<Zip, UnzipPairs>{}, chromaOf<2>(to), size.width / 4, size.height / 2);
}

void my411To420_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(chromaRowPairsOf(from), Then<OnBoth<Zip>, Zip>{}, planeOf<4>(to, 1), size.width / 4, size.height / 2);
}

void my420To411_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(planeOf<4>(from, 1), Then<Unzip, OnBoth<Unzip>>{}, chromaRowPairsOf(to), size.width / 4,
                 size.height / 2);
}

void my420To411_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(chromaOf<2>(from), Then<Zip, UnzipPairs>{}, rowPairsOf<2>(to, 1), size.width / 4, size.height / 2);
}

// ---- order alone ----------------------------------------------------------------------------------------------------

void my411_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(planeOf<2>(from, 1), Unzip{}, chromaOf(to), size.width / 4, size.height);
}

void my411_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(chromaOf(from), Zip{}, planeOf<2>(to, 1), size.width / 4, size.height);
}

void myNV12ToYV12_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(planeOf<2>(from, 1), Unzip{}, chromaOf(to), size.width / 2, size.height / 2);
}

void myYV12ToNV12_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyLuma(from, to, size);
    convertImage(chromaOf(from), Zip{}, planeOf<2>(to, 1), size.width / 2, size.height / 2);
}

} // namespace zorcc::ZORCC_TIER
