// SPDX-License-Identifier: MIT
// Row drivers of the conversions that keep the two fields of an interlaced image apart, compiled once for every tier.
// Rows y and y + 2 are neighbours in a field.
#include "frame/parallel.h"
#include "lumachroma/sampled_rows.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/interlace_rows.h"

namespace {

constexpr PackedOrder UYVY = PackedOrder::chromaFirst;

// (upper a + lower b) / 2^shift, rounded, of two rows; a + b is 2^shift.
template <int a, int b, int shift> struct Mix {
    static_assert(a + b == 1 << shift && shift <= 3); // so that 16 bits and signed coefficients of 8 are enough
    static u8v mix(u8v upper, u8v lower)
    {
        const auto weigh = [](u8v both) {
            return (mulAddPairs(both, fillPair8(a, b)) + static_cast<int16_t>(1 << (shift - 1))) >> shift;
        };
        return packUnsigned(weigh(zipLow(upper, lower)), weigh(zipHigh(upper, lower)));
    }

    template <int n> [[gnu::always_inline]] Vectors<n / 2> operator()(const Vectors<n>& rows) const
    {
        return collect<n / 2>([&](auto k) { return mix(rows.v[k], rows.v[n / 2 + k]); });
    }
};

using Copy = Mix<8, 0, 3>;

// ---- 4:2:2 to 4:2:0: of each field's row pair in four rows, the outer row counts 3, the inner 1 --------------------

// Calls mixed(formula, chroma row, upper 4:2:2 row), the lower one being two further down.
template <class Mixed> void eachRowOf420(const GroupBand& band, Mixed mixed)
{
    for (int m = band.firstGroup; m < band.firstGroup + band.groupCount; ++m) {
        mixed(Mix<3, 1, 2>{}, 2 * m, 4 * m);
        mixed(Mix<1, 3, 2>{}, 2 * m + 1, 4 * m + 1);
    }
}

// Two packed rows to two rows of luma and one of chroma.
template <class Formula> struct UnpackMixed {
    [[gnu::always_inline]] Vectors<6> operator()(const Vectors<8>& s) const
    {
        const Vectors<4> upper = unweave<UYVY>(part<0, 4>(s)), lower = unweave<UYVY>(part<4, 4>(s));
        return together(part<0, 2>(upper), part<0, 2>(lower),
                        Unzip{}(Formula{}(together(part<2, 2>(upper), part<2, 2>(lower)))));
    }
};

// ---- 4:2:0 to 4:2:2: each row lies between two of its field, at eighths of their distance --------------------------

// Calls mixed(formula, 4:2:2 row, upper, lower chroma row). Bands overlap by half a group: the first two rows and the
// last two are copies, and four rows between them belong together.
template <class Mixed> void eachRowOf422(const GroupBand& band, int height, Mixed mixed)
{
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

// Luma and two rows of each chroma plane to a packed row.
template <class Formula> struct PackMixed {
    [[gnu::always_inline]] Vectors<4> operator()(const Vectors<6>& s) const
    {
        return Pack<UYVY, Chroma::planes>{}(
            together(part<0, 2>(s), Formula{}(part<2, 2>(s)), Formula{}(part<4, 2>(s))));
    }
};

void copyLumaRows(const SampledSource& from, const SampledDestination& to, ZorSize size, int first, int end)
{
    copyRows(from.plane[0] + first * from.step[0], from.step[0], to.plane[0] + first * to.step[0], to.step[0],
             static_cast<size_t>(size.width), end - first, Stores::ordinary);
}

template <class Byte> Byte* rowOf(const SampledImage<Byte>& image, int p, int y)
{
    return image.plane[p] + y * image.step[p];
}

} // namespace

void myUYVYTo420_Interlace_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        eachRowOf420(band, [&]<class Formula>(Formula, int row, int upper) {
            using Packed = PackedRowsOf<In, 2, 1>::Type;
            using Apart = ApartRowsOf<Out, Chroma::planes, 2, 1>::Type;
            const Packed packed = {{{rowOf(from, 0, upper), rowOf(from, 0, upper + 2)}}};
            const Apart apart = {
                {{rowOf(to, 0, upper), rowOf(to, 0, upper + 2), rowOf(to, 1, row), rowOf(to, 2, row)}}};
            convertRow(packed, UnpackMixed<Formula>{}, apart, size.width);
        });
    });
}

void my422To420_Interlace_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        copyLumaRows(from, to, size, 4 * band.firstGroup, 4 * (band.firstGroup + band.groupCount));
        eachRowOf420(band, [&](auto formula, int row, int upper) {
            for (const int p : chromaPlanes) {
                const Planes<In, 1, 1> both = {{{rowOf(from, p, upper), rowOf(from, p, upper + 2)}}};
                convertRow(both, formula, Planes<Out, 1>{{{rowOf(to, p, row)}}}, size.width / 2);
            }
        });
    });
}

void my420To422_Interlace_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        copyLumaRows(from, to, size, 4 * band.firstGroup, 4 * (band.firstGroup + band.groupCount));
        eachRowOf422(band, size.height, [&](auto formula, int row, int upper, int lower) {
            for (const int p : chromaPlanes) {
                const Planes<In, 1, 1> both = {{{rowOf(from, p, upper), rowOf(from, p, lower)}}};
                convertRow(both, formula, Planes<Out, 1>{{{rowOf(to, p, row)}}}, size.width / 2);
            }
        });
    });
}

void my420ToUYVY_Interlace_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    groupsAboveThreshold(size.width, size.height, [&](GroupBand band) {
        eachRowOf422(band, size.height, [&]<class Formula>(Formula, int row, int upper, int lower) {
            using Apart = Streams<In, 2 * vectorBytes, Unit{1, 0}, Unit{1, 1}, Unit{1, 1}, Unit{1, 1}, Unit{1, 1}>;
            using Packed = PackedRowsOf<Out, 1, 1>::Type;
            const Apart apart = {{{rowOf(from, 0, row), rowOf(from, 1, upper), rowOf(from, 1, lower),
                                   rowOf(from, 2, upper), rowOf(from, 2, lower)}}};
            convertRow(apart, PackMixed<Formula>{}, Packed{{{rowOf(to, 0, row)}}}, size.width);
        });
    });
}

} // namespace zorcc::ZORCC_TIER
