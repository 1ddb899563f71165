// SPDX-License-Identifier: MIT
// Row drivers of the chroma sampling conversions, compiled once for every tier.
#include "lumachroma/chromasampling_rows.h"

#include "lumachroma/chromasampling_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

constexpr ChromaForm planes = ChromaForm::planes, pairs = ChromaForm::pairs;

// ---- filtered rows --------------------------------------------------------------------------------------------------

template <int bytes>
using FourRows = Sequences<vectorBytes, Line{{bytes}}, Line{{bytes}}, Line{{bytes}}, Line{{bytes}}>;

// Rows of plane 1 and those between them; the edges repeat.
template <int bytes, class Formula, class Destination>
void filterOddRows(const Image& from, const Image& to, int width, int height)
{
    const RowsOf<Destination> destination(to);
    const auto row = [&](int k) { return from.row(1, k < 0 ? 0 : k < height ? k : height - 1); };
    for (int k = 0; k < height; ++k) {
        const FourRows<bytes> four = {{{row(k - 1), row(k), row(k + 1), row(k + 2)}}};
        convertRow(four, Formula{}, destination[k], width);
    }
}

void filter420To422_P3(const Image& from, const Image& to, ZorSize size)
{
    copyLuma(from, to, size.width, 0, size.height);
    const auto [width, height] = samples(size, per2x2);
    filterOddRows<1, FilterOddRow, RowPairs<1>>(from, to, width, height);
    filterOddRows<1, FilterOddRow, RowPairs<1>>(onSecondChroma(from), onSecondChroma(to), width, height);
}

// The filtered pairs of two rows: their even bytes are Cb of both, the odd ones Cr.
void filter420To422_P2P3(const Image& from, const Image& to, ZorSize size)
{
    copyLuma(from, to, size.width, 0, size.height);
    const auto [width, height] = samples(size, per2x2);
    filterOddRows<2, Then<FilterOddRow, Unzip>, RowPairsOfBoth>(from, to, width, height);
}

// ---- averages of neighbouring samples -------------------------------------------------------------------------------

// For each row: samples, and the samples to their right.
template <int rows>
using NeighboursOf = std::conditional_t<rows == 1, Sequences<vectorBytes, Line{{1}}, Line{{1}}>, FourRows<1>>;

// One row of 2 n samples from rows of n. The last sample is its own right neighbour; it and those before it that make
// no whole block round down.
template <template <class> class Formula, int rows> void doubleRow(uint8_t* const (&row)[rows], uint8_t* to, int n)
{
    const int whole = (n - 1) / roundedBlock * roundedBlock, rest = n - whole;
    NeighboursOf<rows> inside, end;
    uint8_t last[rows][roundedBlock + 1];
    for (int r = 0; r < rows; ++r) {
        inside.start[2 * r] = row[r];
        inside.start[2 * r + 1] = row[r] + 1;
        __builtin_memcpy(last[r], row[r] + whole, static_cast<size_t>(rest));
        last[r][rest] = last[r][rest - 1];
        end.start[2 * r] = last[r];
        end.start[2 * r + 1] = last[r] + 1;
    }
    const Chroma<2> doubled = {{{to}}};
    convertPixels(inside, Formula<Up>{}, doubled, whole);
    convertShortRow(end, Formula<Down>{}, fromPixel(doubled, whole), rest);
}

// Calls plane(from, to), the chroma as plane 1, for both chroma planes.
template <class Plane> void copyLumaAndConvert(const Image& from, const Image& to, ZorSize size, Plane plane)
{
    copyLuma(from, to, size.width, 0, size.height);
    plane(from, to);
    plane(onSecondChroma(from), onSecondChroma(to));
}

void doubleBoth(const Image& from, const Image& to, ZorSize size)
{
    const auto [columns, rows] = samples(size, per4x4);
    copyLumaAndConvert(from, to, size, [columns = columns, rows = rows](const Image& source, const Image& doubled) {
        for (int y = 0; y < rows; ++y) {
            uint8_t *const row = source.row(1, y), *const next = source.row(1, y + 1 < rows ? y + 1 : y);
            doubleRow<DoubleColumns>({row}, doubled.row(1, 2 * y), columns);
            doubleRow<DoubleColumnsBetween>({row, next}, doubled.row(1, 2 * y + 1), columns);
        }
    });
}

void doubleColumnsOfEvenRows(const Image& from, const Image& to, ZorSize size)
{
    const auto [columns, rows] = samples(size, per4x2);
    copyLumaAndConvert(from, to, size, [columns = columns, rows = rows](const Image& source, const Image& doubled) {
        for (int y = 0; y < rows; ++y) doubleRow<DoubleColumns>({source.row(1, 2 * y)}, doubled.row(1, y), columns);
    });
}

void doubleRowsOfEvenColumns(const Image& from, const Image& to, ZorSize size)
{
    const auto [columns, rows] = samples(size, per4x2);
    copyLumaAndConvert(from, to, size, [columns = columns, rows = rows](const Image& source, const Image& doubled) {
        for (int y = 0; y < rows; ++y) {
            uint8_t *const row = source.row(1, y), *const next = source.row(1, y + 1 < rows ? y + 1 : y);
            convertPixels(Chroma<2>{{{row}}}, EvenColumns{}, Chroma<1>{{{doubled.row(1, 2 * y)}}}, columns);
            convertRow(BothChroma<2>{{{row, next}}}, Rounded<EvenColumnsBetween>{},
                       Chroma<1>{{{doubled.row(1, 2 * y + 1)}}}, columns);
        }
    });
}

// ---- interlaced images: rows y and y + 2 are neighbours in a field --------------------------------------------------

// 4:2:2 to 4:2:0: of each field's row pair in four rows, the outer row counts 3, the inner 1. Calls mixed(formula,
// chroma row, upper 4:2:2 row), the lower one being two further down.
template <class Mixed> void eachRowOf420(const GroupBand& band, Mixed mixed)
{
    for (int m = band.firstGroup; m < band.firstGroup + band.groupCount; ++m) {
        mixed(Mix<3, 1, 2>{}, 2 * m, 4 * m);
        mixed(Mix<1, 3, 2>{}, 2 * m + 1, 4 * m + 1);
    }
}

// 4:2:0 to 4:2:2: each row lies between two of its field, at eighths of their distance. Calls mixed(formula, 4:2:2 row,
// upper, lower chroma row). Bands overlap by half a group: the first two rows and the last two are copies, and four
// rows between them make one group.
template <class Mixed> void eachRowOf422(const GroupBand& band, int height, Mixed mixed)
{
    using Copy = Mix<8, 0, 3>;
    const int first = 4 * band.firstGroup + (band.isFirst ? 0 : 2);
    const int end = 4 * (band.firstGroup + band.groupCount) + (band.isLast ? 0 : 2);
    for (int y = first; y < end; ++y) {
        const int group = (y - 2) / 4, top = 2 * group, bottom = top + 1;
        if (y < 2)
            mixed(Copy{}, y, y, y);
        else if (y >= height - 2)
            mixed(Copy{}, y, y - height / 2, y - height / 2);
        else if ((y - 2) % 4 == 0)
            mixed(Mix<5, 3, 3>{}, y, top, top + 2);
        else if ((y - 2) % 4 == 1)
            mixed(Mix<7, 1, 3>{}, y, bottom, bottom + 2);
        else if ((y - 2) % 4 == 2)
            mixed(Mix<1, 7, 3>{}, y, top, top + 2);
        else
            mixed(Mix<3, 5, 3>{}, y, bottom, bottom + 2);
    }
}

void copyLumaOf(const GroupBand& band, const Image& from, const Image& to, int width)
{
    copyLuma(from, to, width, 4 * band.firstGroup, 4 * (band.firstGroup + band.groupCount));
}

// Rows upper and lower of the source's chroma planes to a row of the destination's.
template <class Formula>
void mixRows(Formula formula, const Image& from, int upper, int lower, const Image& to, int row, int width)
{
    for (int p = 1; p < 3; ++p)
        convertPixels(BothChroma<1>{{{from.row(p, upper), from.row(p, lower)}}}, formula, Chroma<1>{{{to.row(p, row)}}},
                      width);
}

void fieldsFromUYVYTo420(const Image& from, const Image& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        eachRowOf420(band, [&]<class Formula>(Formula, int row, int upper) {
            const PackedLines<2, 1> packed = {{{{from.row(0, upper), from.row(0, upper + 2)}}}};
            const SeparateLines<planes, 2, 1> separate = {
                {{{to.row(0, upper), to.row(0, upper + 2), to.row(1, row), to.row(2, row)}}}};
            convertPixels(packed, UnpackMixed<Formula>{}, separate, size.width);
        });
    });
}

void fieldsFrom422To420(const Image& from, const Image& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        copyLumaOf(band, from, to, size.width);
        eachRowOf420(band, [&](auto formula, int row, int upper) {
            mixRows(formula, from, upper, upper + 2, to, row, size.width / 2);
        });
    });
}

void fieldsFrom420To422(const Image& from, const Image& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        copyLumaOf(band, from, to, size.width);
        eachRowOf422(band, size.height, [&](auto formula, int row, int upper, int lower) {
            mixRows(formula, from, upper, lower, to, row, size.width / 2);
        });
    });
}

void fieldsFrom420ToUYVY(const Image& from, const Image& to, ZorSize size)
{
    using LumaAndTwoRowsOfChroma =
        Sequences<2 * vectorBytes, Line{{1}}, Line{{1, 1}}, Line{{1, 1}}, Line{{1, 1}}, Line{{1, 1}}>;
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        eachRowOf422(band, size.height, [&]<class Formula>(Formula, int row, int upper, int lower) {
            const LumaAndTwoRowsOfChroma separate = {
                {{from.row(0, row), from.row(1, upper), from.row(1, lower), from.row(2, upper), from.row(2, lower)}}};
            convertPixels(separate, PackMixed<Formula>{}, PackedLines<1, 1>{{{{to.row(0, row)}}}}, size.width);
        });
    });
}

} // namespace

const ChromaSamplingRows chromaSamplingRows = {
    .my422To420_8u_P3R = eachChroma<per2x2, EvenRows<1>, Same, Chroma<1>>,
    .my422To420_8u_P3P2R = chroma<per2x2, EvenRowsOfBoth, Zip, Chroma<2>>,
    .my420To422_8u_P3R = eachChroma<per2x2, Chroma<1>, OntoTwoRows, RowPairs<1>>,
    .my420To422_8u_P2P3R = chroma<per2x2, Chroma<2>, Then<Unzip, OnBoth<OntoTwoRows>>, RowPairsOfBoth>,
    .my420To422_Filter_8u_P3R = filter420To422_P3,
    .my420To422_Filter_8u_P2P3R = filter420To422_P2P3,

    .my422To411_8u_P3R = eachChroma<per4x1, Chroma<2>, EvenColumns, Chroma<1>>,
    .my422To411_8u_P3P2R = chroma<per4x1, BothChroma<2>, Then<OnBoth<EvenColumns>, Zip>, Chroma<2>>,
    .my411To422_8u_P3R = eachChroma<per4x1, Chroma<1>, DoubledColumns, Chroma<2>>,
    .my411To422_8u_P2P3R = chroma<per4x1, Chroma<2>, Then<Unzip, OnBoth<DoubledColumns>>, BothChroma<2>>,

    // Two rows of pairs, zipped, are Cb Cb Cr Cr ...
    .my411To420_8u_P3R = eachChroma<per4x2, RowPairs<1>, Zip, Chroma<2>>,
    .my411To420_8u_P2P3R = chroma<per4x2, RowPairs<2>, Then<Zip, UnzipPairs>, BothChroma<2>>,
    .my411To420_8u_P3P2R = chroma<per4x2, RowPairsOfBoth, Then<OnBoth<Zip>, Zip>, Chroma<4>>,
    .my420To411_8u_P2P3R = chroma<per4x2, Chroma<4>, Then<Unzip, OnBoth<Unzip>>, RowPairsOfBoth>,
    .my420To411_8u_P3P2R = chroma<per4x2, BothChroma<2>, Then<Zip, UnzipPairs>, RowPairs<2>>,

    .my411_8u_P2P3R = chroma<per4x1, Chroma<2>, Unzip, BothChroma<1>>,
    .my411_8u_P3P2R = chroma<per4x1, BothChroma<1>, Zip, Chroma<2>>,
    .my420_8u_P2P3R = chroma<per2x2, Chroma<2>, Unzip, BothChroma<1>>,
    .my420_8u_P3P2R = chroma<per2x2, BothChroma<1>, Zip, Chroma<2>>,

    .myYUY2To422_8u_C2P3R = unpack<YUY2, planes>,
    .myUYVYTo422_8u_C2P3R = unpack<UYVY, planes>,
    .myYUY2To420_8u_C2P3R = unpack<YUY2, planes, 2>,
    .myUYVYTo420_8u_C2P3R = unpack<UYVY, planes, 2>,
    .myYUY2To411_8u_C2P3R = unpack<YUY2, planes, 1, 2>,
    .myUYVYTo411_8u_C2P3R = unpack<UYVY, planes, 1, 2>,
    .myYUY2To411_8u_C2P2R = unpack<YUY2, pairs, 1, 2>,
    .my422ToYUY2_8u_P3C2R = pack<YUY2, planes>,
    .my411ToYUY2_8u_P3C2R = pack<YUY2, planes, 1, 2>,
    .my411ToYUY2_8u_P2C2R = pack<YUY2, pairs, 1, 2>,
    .myYUY2ToYVYU_8u_C2R = repack<SwapChroma>,

    .my420To1620_8u_P3R = eachChroma<per4x4, EvenRows<2>, EvenColumns, Chroma<1>>,
    .my1620To420_8u_P3R = doubleBoth,
    .my411To420_Average_8u_P3R = doubleColumnsOfEvenRows,
    .my420To411_Average_8u_P3R = doubleRowsOfEvenColumns,

    .myUYVYTo420_Interlace_8u_C2P3R = fieldsFromUYVYTo420,
    .my422To420_Interlace_8u_P3R = fieldsFrom422To420,
    .my420To422_Interlace_8u_P3R = fieldsFrom420To422,
    .my420ToUYVY_Interlace_8u_P3C2R = fieldsFrom420ToUYVY,
};

} // namespace zorcc::ZORCC_TIER
