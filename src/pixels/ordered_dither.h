// SPDX-License-Identifier: MIT
// 8-bit colours to the fields of 16-bit pixels, dithered by a 4 x 4 matrix of thresholds that begins at the image's
// first pixel.
#pragma once

#include "pixels/packed_bits.h"

namespace zorcc::dither {

constexpr int side = 4; // of the matrix

// ---- the definition: a sample becomes the level below it or, where what is left is above a threshold, the next ------

// Thresholds for levels of 4 bits, and of 5 and 6 bits, in 1/256 of an 8-bit unit.
using Matrix = int[side][side];
inline constexpr Matrix thresholds4 = {
    {0, 2312, 578, 2890}, {3468, 1156, 4046, 1734}, {867, 3179, 289, 2601}, {4335, 2023, 3757, 1445}};
inline constexpr Matrix thresholds56 = {
    {0, 1118, 279, 1398}, {1678, 559, 1957, 839}, {419, 1538, 139, 1258}, {2097, 978, 1817, 699}};

constexpr int definition(int bits, int sample, int x, int y)
{
    const int distance = bits == 4 ? 4352 : bits == 5 ? 2105 : 1036; // of two levels
    const int threshold = bits == 4 ? thresholds4[y][x] : bits == 5 ? thresholds56[y][x] : thresholds56[y][x] >> 1;
    const int level = sample * ((1 << bits) - 1) >> 8, left = 256 * sample - level * distance;
    return left > threshold ? level + 1 : level;
}

// ---- the same in fewer steps: the top bits of (256 sample + bias) factor / 65536 ------------------------------------

// For most thresholds the factor is 2^(32 - bits) / distance and the bias distance - 1 - threshold, or nearly so.
// Levels are a little more than 256 / (2^bits - 1) units apart, so that small thresholds need a smaller factor, one of
// them a curve: what is below 256 in its bias is added to the sample once more, in place of being a constant.
struct Place {
    int bias, factor;
    bool isCurved = false;

    constexpr int operator()(int sample) const
    {
        const int upper = sample + bias / 256, lower = bias % 256 + (isCurved ? sample : 0);
        return static_cast<int>(int64_t{256 * (upper < 255 ? upper : 255) + (lower < 255 ? lower : 255)} * factor >>
                                16);
    }
};

using Places = Place[side][side];
inline constexpr Places places4 = {{{4351, 61680}, {2039, 61680}, {3773, 61680}, {1461, 61680}},
                                   {{883, 61680}, {3195, 61680}, {305, 61680}, {2617, 61680}},
                                   {{3484, 61680}, {1172, 61680}, {4062, 61680}, {1750, 61680}},
                                   {{16, 61680}, {2328, 61680}, {594, 61680}, {2906, 61680}}};
inline constexpr Places places5 = {{{2038, 63626}, {986, 63761}, {1825, 63761}, {706, 63761}},
                                   {{426, 63761}, {1545, 63761}, {147, 63761}, {1265, 63761}},
                                   {{1685, 63761}, {566, 63761}, {2018, 63626}, {846, 63761}},
                                   {{7, 63761}, {1126, 63761}, {288, 63761}, {1405, 63761}}};
inline constexpr Places places6 = {{{1023, 64549}, {477, 64776}, {896, 64549, true}, {337, 64776}},
                                   {{197, 64776}, {757, 64776}, {57, 64776}, {617, 64776}},
                                   {{826, 64776}, {266, 64776}, {1019, 64549}, {406, 64776}},
                                   {{0, 64764}, {546, 64776}, {127, 64776}, {686, 64776}}};

template <int bits> inline constexpr const Places& places = bits == 4 ? places4 : bits == 5 ? places5 : places6;

template <int bits> constexpr bool isExact()
{
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            for (int sample = 0; sample < 256; ++sample)
                if (places<bits>[y][x](sample) >> (16 - bits) != definition(bits, sample, x, y)) return false;
    return true;
}
static_assert(isExact<4>() && isExact<5>() && isExact<6>());

// A row of places as the blocks that begin at each of its columns: bytes in the order of pixels or, where even and odd
// columns are apart, the even ones first; factors in the order of zipped bytes.
struct Row {
    alignas(16) uint8_t upper[side][16], lower[side][16], curved[side][16];
    alignas(16) uint16_t factor[side][2][8];

    constexpr Row(const Place (&row)[side], bool apart) : upper{}, lower{}, curved{}, factor{}
    {
        for (int x = 0; x < side; ++x)
            for (int i = 0; i < 16; ++i) {
                const Place& place = row[(x + (apart ? 2 * i + i / 8 : i)) % side];
                upper[x][i] = static_cast<uint8_t>(place.bias / 256);
                lower[x][i] = static_cast<uint8_t>(place.bias % 256);
                curved[x][i] = place.isCurved ? 0xff : 0;
                factor[x][i / 8][i % 8] = static_cast<uint16_t>(place.factor);
            }
    }
};

template <int bits, bool apart>
static constexpr Row rows[side] = {Row(places<bits>[0], apart), Row(places<bits>[1], apart),
                                   Row(places<bits>[2], apart), Row(places<bits>[3], apart)};

} // namespace zorcc::dither

namespace zorcc::ZORCC_TIER {
namespace {

template <int rows, Columns columns> ZORCC_INLINE const auto& inBytes(const Pixels<3, rows, columns>& rgb)
{
    return rgb;
}

// A formula of one row, or of two, whose colours are dithered.
template <FieldBits bits, class Formula> struct Dithered {
    Formula formula{};
    int x = 0, y = 0; // place in the matrix

    [[gnu::always_inline]] Dithered onRow(int row) const { return {formula, x, row % dither::side}; }
    [[gnu::always_inline]] Dithered at(int column) const { return {formula, column % dither::side, y}; }
    auto single() const { return Dithered<bits, decltype(singleOf(formula))>{singleOf(formula), x, y}; }

    template <class Source>
    requires WorksInTwoSteps<Formula, Source>
    [[gnu::always_inline]] auto prepare(const Source& source) const { return formula.prepare(source); }

    template <class Source>
    [[gnu::always_inline]] auto operator()(const Source& source) const requires Takes<Formula, Source>
    {
        return fieldsOf(inBytes(formula(source)));
    }

private:
    template <int rows, Columns columns>
    [[gnu::always_inline]] Fields<rows, columns> fieldsOf(const Pixels<3, rows, columns>& rgb) const
    {
        constexpr bool apart = columns == Columns::evenThenOdd;
        Fields<rows, columns> fields;
        for (int row = 0; row < rows; ++row)
            for (int c = 0; c < 3; ++c)
                quantise(c == 1 && bits.green == 6,
                         c == 1 ? dither::rows<bits.green, apart>[y + row] : dither::rows<bits.outer, apart>[y + row],
                         rgb.c[row][c], fields.c[row][c]);
        return fields;
    }

    [[gnu::always_inline]] void quantise(bool mayBeCurved, const dither::Row& row, u8v v, u16v (&fields)[2]) const
    {
        const auto block = [](const auto& bytes) { return fillBlock(loadBlock(bytes)); };
        u8v lower = block(row.lower[x]);
        if (mayBeCurved) lower = addSaturate(lower, v & block(row.curved[x]));
        const u8v upper = addSaturate(v, block(row.upper[x]));
        fields[0] = mulHigh((u16v)zipLow(lower, upper), (u16v)block(row.factor[x][0]));
        fields[1] = mulHigh((u16v)zipHigh(lower, upper), (u16v)block(row.factor[x][1]));
    }
};

template <FieldBits bits, class Formula> constexpr bool seesPlaceInRow<Dithered<bits, Formula>> = true;

} // namespace
} // namespace zorcc::ZORCC_TIER
