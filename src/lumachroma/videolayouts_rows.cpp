// SPDX-License-Identifier: MIT
// Row drivers between the layouts of video, and of deinterlacing, compiled once for every tier.
#include "lumachroma/videolayouts_rows.h"

#include "lumachroma/videolayouts_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

// A slice of a frame: its rows, and which of them it completes. Rows beyond the frame's edges repeat those at them. A
// slice that is not the first also completes what the one before it had to leave: it has two rows of luma more.
struct Slice {
    const Image& image;
    FrameEdges edges;
    ptrdiff_t height;

    Slice(const Image& from, int rowsGiven, FrameEdges frameEdges)
        : image(from), edges(frameEdges), height(ptrdiff_t{rowsGiven} + (edges.top ? 0 : 2))
    {
    }

    ptrdiff_t firstLuma() const { return edges.top ? 0 : 1; }
    ptrdiff_t endLuma() const { return height - (edges.bottom ? 0 : 1); }
    ptrdiff_t endChroma() const { return height / 2 - (edges.bottom ? 0 : 1); }

    bool hasLuma(ptrdiff_t y) const { return y >= firstLuma() && y < endLuma(); }
    bool hasChroma(ptrdiff_t y) const { return y / 2 < endChroma(); }

    uint8_t* luma(ptrdiff_t y) const { return image.row(0, y < 0 ? 0 : y < height ? y : height - 1); }

    // The upper and the lower of the two chroma rows that row `pair` of 4:2:0 lies between: this one and the next, for
    // the last one those before it.
    uint8_t* upper(ptrdiff_t pair) const
    {
        const ptrdiff_t rows = height / 2, row = pair + 1 < rows ? pair : rows - 2;
        return image.row(1, row < 0 ? 0 : row);
    }
    uint8_t* lower(ptrdiff_t pair) const { return height > 2 ? upper(pair) + image.step[1] : upper(pair); }
};

void deinterlaceToYUY2(const Image& from, const Image& to, ZorSize size, FrameEdges edges)
{
    constexpr Line luma{{1}}, pairs{{2, 1}}, packed{{4, 1}};
    const Slice slice(from, size.height, edges);
    for (ptrdiff_t y = 0; y < slice.height; ++y) {
        uint8_t* const row = to.row(0, y);
        const Sequences<2 * vectorBytes, packed, luma, luma, luma, pairs, pairs> source = {
            {{row, slice.luma(y - 1), slice.luma(y), slice.luma(y + 1), slice.upper(y / 2), slice.lower(y / 2)}}};
        const Sequences<2 * vectorBytes, packed> destination = {{{row}}};
        if (slice.hasLuma(y) && slice.hasChroma(y))
            convertRow(source, Rounded<Packed<true, true>::Row>{}, destination, size.width);
        else if (slice.hasLuma(y))
            convertRow(source, Rounded<Packed<true, false>::Row>{}, destination, size.width);
        else if (slice.hasChroma(y))
            convertRow(source, Rounded<Packed<false, true>::Row>{}, destination, size.width);
    }
}

void deinterlaceToYV12(const Image& from, const Image& to, ZorSize size, FrameEdges edges)
{
    using ThreeRows = Sequences<vectorBytes, Line{{1}}, Line{{1}}, Line{{1}}>;
    const Slice slice(from, size.height, edges);
    for (ptrdiff_t y = slice.firstLuma(); y < slice.endLuma(); ++y) {
        const ThreeRows rows = {{{slice.luma(y - 1), slice.luma(y), slice.luma(y + 1)}}};
        convertRow(rows, Rounded<LowPass>{}, Chroma<1>{{{to.row(0, y)}}}, size.width);
    }
    for (ptrdiff_t k = 0; k < slice.endChroma(); ++k) {
        const BothChroma<2> rows = {{{slice.upper(k), slice.lower(k)}}};
        const BothChroma<1> planes = {{{to.row(1, k), to.row(2, k)}}};
        convertRow(rows, Rounded<PlanesBetween, roundedBlock / 2>{}, planes, size.width / 2);
    }
}

} // namespace

const VideoLayoutsRows videoLayoutsRows = {
    .myYUY2ToUYVY_8u_C2R = repack<SwapLumaAndChroma>,
    .myUYVYToYUY2_8u_C2R = repack<SwapLumaAndChroma>,
    .myYUY2ToNV12_8u_C2P2R = unpack<YUY2, ChromaForm::pairs, 2>,
    .myUYVYToNV12_8u_C2P2R = unpack<UYVY, ChromaForm::pairs, 2>,
    .myNV12ToYUY2_8u_P2C2R = pack<YUY2, ChromaForm::pairs, 2>,
    .myNV12ToUYVY_8u_P2C2R = pack<UYVY, ChromaForm::pairs, 2>,
    .myYV12ToYUY2_8u_P3C2R = pack<YUY2, ChromaForm::planes, 2>,
    .myYV12ToUYVY_8u_P3C2R = pack<UYVY, ChromaForm::planes, 2>,
    .myDeinterlaceToYUY2_8u_P2C2R = deinterlaceToYUY2,
    .myDeinterlaceToYV12_8u_P2P3R = deinterlaceToYV12,
};

} // namespace zorcc::ZORCC_TIER
