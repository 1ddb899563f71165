// SPDX-License-Identifier: MIT
// Images of shared chroma as sequences of rows.
#pragma once

#include "frame/fill_copy.h"
#include "lumachroma/sampled_image.h"
#include "lumachroma/sampling_formulas.h"
#include "simd/row_loop.h"
#include "zortypes.h"

namespace zorcc::ZORCC_TIER {
namespace {

// ---- planes of chroma, a pixel being a sample of the narrowest ------------------------------------------------------

// Of `bytes` bytes a pixel each.
template <class Byte, int... bytes> using Planes = Streams<Byte, vectorBytes, Unit{bytes, 0}...>;

constexpr int chromaPlanes[] = {1, 2}; // of an image with three

// Plane p, every `every`th row of it.
template <int bytes = 1, class Byte>
Image<Planes<Byte, bytes>> planeOf(const SampledImage<Byte>& image, int p, int every = 1)
{
    return {{image.plane[p]}, {every * image.step[p]}};
}

// The pairs of its rows.
template <int bytes = 1, class Byte>
Image<Planes<Byte, bytes, bytes>> rowPairsOf(const SampledImage<Byte>& image, int p)
{
    const ptrdiff_t step = image.step[p];
    return {{image.plane[p], image.plane[p] + step}, {2 * step, 2 * step}};
}

// Both chroma planes.
template <int bytes = 1, class Byte>
Image<Planes<Byte, bytes, bytes>> chromaOf(const SampledImage<Byte>& image, int every = 1)
{
    return {{image.plane[1], image.plane[2]}, {every * image.step[1], every * image.step[2]}};
}

// The pairs of rows of both: two rows of the first, two of the second.
template <class Byte> Image<Planes<Byte, 1, 1, 1, 1>> chromaRowPairsOf(const SampledImage<Byte>& image)
{
    const ptrdiff_t first = image.step[1], second = image.step[2];
    return {{image.plane[1], image.plane[1] + first, image.plane[2], image.plane[2] + second},
            {2 * first, 2 * first, 2 * second, 2 * second}};
}

// ---- luma with chroma -----------------------------------------------------------------------------------------------

// Packed 4:2:2, one row or two. Chroma shared by 2 * columns pixels makes loads that much longer.
template <class Byte, int rows, int columns> struct PackedRowsOf;
template <class Byte, int columns> struct PackedRowsOf<Byte, 1, columns> {
    using Type = Streams<Byte, 2 * columns * vectorBytes, Unit{4, 1}>;
};
template <class Byte, int columns> struct PackedRowsOf<Byte, 2, columns> {
    using Type = Streams<Byte, 2 * columns * vectorBytes, Unit{4, 1}, Unit{4, 1}>;
};

template <int rows, int columns, class Byte> auto packedRows(const SampledImage<Byte>& image)
{
    Image<typename PackedRowsOf<Byte, rows, columns>::Type> all;
    for (int r = 0; r < rows; ++r) {
        all.plane[r] = image.plane[0] + r * image.step[0];
        all.step[r] = rows * image.step[0];
    }
    return all;
}

// `rows` rows of luma and one of chroma, a sample of it for 2 * columns pixels.
template <class Byte, Chroma form, int rows, int columns> struct ApartRowsOf;
template <class Byte, int columns> struct ApartRowsOf<Byte, Chroma::planes, 1, columns> {
    using Type = Streams<Byte, 2 * columns * vectorBytes, Unit{1, 0}, Unit{1, columns}, Unit{1, columns}>;
};
template <class Byte, int columns> struct ApartRowsOf<Byte, Chroma::pairs, 1, columns> {
    using Type = Streams<Byte, 2 * columns * vectorBytes, Unit{1, 0}, Unit{2, columns}>;
};
template <class Byte, int columns> struct ApartRowsOf<Byte, Chroma::planes, 2, columns> {
    using Type = Streams<Byte, 2 * columns * vectorBytes, Unit{1, 0}, Unit{1, 0}, Unit{1, columns}, Unit{1, columns}>;
};
template <class Byte, int columns> struct ApartRowsOf<Byte, Chroma::pairs, 2, columns> {
    using Type = Streams<Byte, 2 * columns * vectorBytes, Unit{1, 0}, Unit{1, 0}, Unit{2, columns}>;
};

template <Chroma form, int rows, int columns, class Byte> auto apartRows(const SampledImage<Byte>& image)
{
    using Layout = typename ApartRowsOf<Byte, form, rows, columns>::Type;
    Image<Layout> all;
    for (int r = 0; r < rows; ++r) {
        all.plane[r] = image.plane[0] + r * image.step[0];
        all.step[r] = rows * image.step[0];
    }
    for (int p = rows; p < Layout::planes; ++p) {
        all.plane[p] = image.plane[p - rows + 1];
        all.step[p] = image.step[p - rows + 1];
    }
    return all;
}

template <PackedOrder order, Chroma form, int rows = 1, int columns = 1>
void pack(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    convertImage(apartRows<form, rows, columns>(from), Pack<order, form, rows, columns>{},
                 packedRows<rows, columns>(to), size.width, size.height / rows);
}

template <PackedOrder order, Chroma form, int rows = 1, int columns = 1>
void unpack(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    convertImage(packedRows<rows, columns>(from), Unpack<order, form, rows, columns>{},
                 apartRows<form, rows, columns>(to), size.width, size.height / rows);
}

// One vector at a time: more of them do not help a formula of one instruction.
template <class Byte> using PackedVector = Streams<Byte, 32, Unit{4, 1}>;

template <class Formula> void repack(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    const Image<PackedVector<In>> source = {{from.plane[0]}, {from.step[0]}};
    const Image<PackedVector<Out>> destination = {{to.plane[0]}, {to.step[0]}};
    convertImage(source, Formula{}, destination, size.width, size.height);
}

// Non-temporal stores do not pay: a frame of up to 4K is copied faster without them, and single rows much faster.
inline void copyLuma(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    copyRows(from.plane[0], from.step[0], to.plane[0], to.step[0], static_cast<size_t>(size.width), size.height,
             Stores::ordinary);
}

} // namespace
} // namespace zorcc::ZORCC_TIER
