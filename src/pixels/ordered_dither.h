// SPDX-License-Identifier: MIT
// 8-bit colours to the fields of 16-bit pixels, dithered by a 4 x 4 matrix of thresholds that begins at the image's
// first pixel.
#pragma once

#include "pixels/packed_bits.h"

namespace zorcc::ZORCC_TIER {
namespace {

// Thresholds of neighbouring rows and columns, in 1/256 of an 8-bit unit. Rows are continued as far as a block of eight
// that begins at any of the columns.
constexpr int ditherSide = 4;
struct DitherMatrix {
    uint16_t row[ditherSide][3 * ditherSide];

    constexpr DitherMatrix(const uint16_t (&matrix)[ditherSide][ditherSide]) : row{}
    {
        for (int y = 0; y < ditherSide; ++y)
            for (int x = 0; x < 3 * ditherSide; ++x) row[y][x] = matrix[y][x % ditherSide];
    }
};

// How a field is dithered: a sample is `levels` times itself / 256 levels, rounded down, of `distance` / 256 units
// each, and one more where what is left is greater than the threshold, shifted down.
struct DitheredField {
    int levels, distance, thresholdShift;
};
constexpr DitheredField ditheredField[] = {{15, 4352, 0}, {31, 2105, 0}, {63, 1036, 1}}; // 4, 5, 6 bits
constexpr DitherMatrix thresholds4 = {
    {{0, 2312, 578, 2890}, {3468, 1156, 4046, 1734}, {867, 3179, 289, 2601}, {4335, 2023, 3757, 1445}}};
constexpr DitherMatrix thresholds56 = {
    {{0, 1118, 279, 1398}, {1678, 559, 1957, 839}, {419, 1538, 139, 1258}, {2097, 978, 1817, 699}}};

template <int rows, Columns columns> ZORCC_INLINE const auto& inBytes(const Pixels<3, rows, columns>& rgb) { return rgb; }

// A formula of one row, or of two, whose colours are dithered.
template <FieldBits bits, class Formula> struct Dithered {
    Formula formula{};
    const uint16_t* threshold = matrix.row[0]; // of the first column in the first row

    [[gnu::always_inline]] Dithered onRow(int y) const { return {formula, matrix.row[y % ditherSide]}; }
    [[gnu::always_inline]] Dithered at(int x) const { return {formula, threshold + x % ditherSide}; }
    auto single() const { return Dithered<bits, decltype(singleOf(formula))>{singleOf(formula), threshold}; }

    template <class Source> [[gnu::always_inline]] auto operator()(const Source& source) const
    {
        return dither(inBytes(formula(source)));
    }

private:
    static constexpr const DitherMatrix& matrix = bits.outer == 4 ? thresholds4 : thresholds56;

    template <int rows, Columns columns>
    [[gnu::always_inline]] Fields<rows, columns> dither(const Pixels<3, rows, columns>& rgb) const
    {
        Fields<rows, columns> fields;
        for (int row = 0; row < rows; ++row) {
            u16v limit[2];
            limit[0] = limit[1] = (u16v)fillBlock(loadBlock(threshold + row * 3 * ditherSide));
            if constexpr (columns == Columns::evenThenOdd) {
                const u64v both = (u64v)unzipHalves(limit[0]);
                limit[0] = (u16v)zipLow(both, both);
                limit[1] = (u16v)zipHigh(both, both);
            }
            for (int c = 0; c < 3; ++c) {
                constexpr DitheredField outer = ditheredField[bits.outer - 4], green = ditheredField[bits.green - 4];
                const DitheredField& f = c == 1 ? green : outer;
                const u8v v = rgb.c[row][c];
                fields.c[row][c][0] = quantise(f, (u16v)zipLow(u8v{}, v), limit[0]);
                fields.c[row][c][1] = quantise(f, (u16v)zipHigh(u8v{}, v), limit[1]);
            }
        }
        return fields;
    }

    // Of samples times 256. What is left of them is at most 4352.
    ZORCC_INLINE u16v quantise(const DitheredField& f, u16v v, u16v limit)
    {
        const u16v lower = mulHigh(v, (u16v)fill16(f.levels)), rest = v - lower * (u16v)fill16(f.distance);
        return addOneWhere(lower, (s16v)rest, (s16v)(limit >> f.thresholdShift));
    }
};

template <FieldBits bits, class Formula> constexpr bool seesPlaceInRow<Dithered<bits, Formula>> = true;

} // namespace
} // namespace zorcc::ZORCC_TIER
