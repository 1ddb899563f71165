// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YCbCr (ITU-R BT.601) conversions, compiled once for every tier.
#include "lumachroma/bt601_rows.h"

#include "lumachroma/bt601_formulas.h"

namespace zorcc::ZORCC_TIER {

namespace {

// ---- 4:2:0 with filtered chroma -------------------------------------------------------------------------------------

constexpr int tileChroma = 512;              // chroma samples of a row that are upsampled at a time
constexpr int wordsAtOnce = vectorBytes / 2; // of 16 bits

// 3 to 1 of two rows; not a byte beyond `count` is read.
void mixRows(const uint8_t* near, const uint8_t* far, int count, uint16_t* mixed)
{
    const auto mix = [=](int x) { store(mixed + x, 3 * loadWidened(near + x) + loadWidened(far + x)); };
    if (count < wordsAtOnce) {
        for (int x = 0; x < count; ++x) mixed[x] = static_cast<uint16_t>(3 * near[x] + far[x]);
        return;
    }
    for (int x = 0; x < count - wordsAtOnce; x += wordsAtOnce) mix(x);
    mix(count - wordsAtOnce);
}

// Columns 2 * first to 2 * (first + count) - 1 of a row of full size. Of its four nearest chroma samples the nearest
// counts 9, its neighbours in the row and in the column 3 each, the diagonal one 1, of 16. Edges repeat.
void upsample(const uint8_t* near, const uint8_t* far, int chromaWidth, int first, int count,
              uint8_t (&full)[2 * (tileChroma + wordsAtOnce)])
{
    uint16_t mixed[tileChroma + 2 + wordsAtOnce]; // a sample more on either side
    const int before = first > 0 ? 1 : 0, after = first + count < chromaWidth ? 1 : 0;
    uint16_t* const start = mixed + 1 - before;
    mixRows(near + first - before, far + first - before, before + count + after, start);
    if (before == 0) mixed[0] = mixed[1];
    if (after == 0) mixed[count + 1] = mixed[count];
    // The last vector may pass the samples: what it makes of the rest of the buffers is never used.
    for (int x = 0; x < count; x += wordsAtOnce) {
        const u16v nearest = 3 * load<u16v>(mixed + x + 1) + 8;
        const u16v even = (nearest + load<u16v>(mixed + x)) >> 4, odd = (nearest + load<u16v>(mixed + x + 2)) >> 4;
        store(full + 2 * x, even | odd << 8);
    }
}

// Upsamples the chroma of a tile at a time and converts it as 4:4:4.
template <class Formula, class Destination>
void filtered420(const Image& from, const Image& to, ZorSize size, uint8_t alpha)
{
    const RowsOf<Destination> destination(to);
    const int chromaWidth = size.width / 2, chromaHeight = size.height / 2;
    for (int y = 0; y < size.height; ++y) {
        const int near = y / 2, neighbour = y % 2 == 0 ? near - 1 : near + 1;
        const int far = neighbour < 0 || neighbour >= chromaHeight ? near : neighbour;
        for (int first = 0; first < chromaWidth; first += tileChroma) {
            const int count = chromaWidth - first < tileChroma ? chromaWidth - first : tileChroma;
            uint8_t full[2][2 * (tileChroma + wordsAtOnce)];
            for (int c = 0; c < 2; ++c)
                upsample(from.row(c + 1, near), from.row(c + 1, far), chromaWidth, first, count, full[c]);
            const P3<> ycc = {{{from.row(0, y) + 2 * first, full[0], full[1]}}};
            convertPixels(ycc, Formula{alpha}, fromPixel(destination[y], 2 * first), 2 * count);
        }
    }
}

// ---- 4:2:0 of any size ----------------------------------------------------------------------------------------------

// Chroma is that of whole 2 x 2 blocks; an odd last row and an odd last column have luma alone.
template <class Source> void rowsTo420(const Image& from, const Image& to, ZorSize size)
{
    const ZorSize whole = {size.width & ~1, size.height & ~1};
    rows<Source, RgbToBt601_420, Planar420>(from, to, whole);
    const RowsOf<Source> source(from);
    const RowsOf<LumaPlane> luma(to);
    if (const int y = whole.height; y < size.height) convertPixels(source[y], RgbToBt601{}, luma[y], size.width);
    if (const int x = whole.width; x < size.width)
        for (int y = 0; y < whole.height; ++y)
            convertShortRow(fromPixel(source[y], x), RgbToBt601{}, fromPixel(luma[y], x), 1);
}

} // namespace

const Bt601Rows bt601Rows = {
    .myRGBToYCbCr_8u_C3R = rows<C3<>, RgbToBt601, C3<>>,
    .myRGBToYCbCr_8u_AC4R = rows<AC4<>, RgbToBt601, AC4<>>,
    .myRGBToYCbCr_8u_C3P3R = rows<C3<>, RgbToBt601, P3<>>,
    .myRGBToYCbCr_8u_AC4P3R = rows<AC4<>, RgbToBt601, P3<>>,
    .myRGBToYCbCr_8u_P3R = rows<P3<>, RgbToBt601, P3<>>,
    .myYCbCrToRGB_8u_C3R = rows<C3<>, Bt601ToRgb, C3<>>,
    .myYCbCrToRGB_8u_AC4R = rows<AC4<>, Bt601ToRgb, AC4<>>,
    .myYCbCrToRGB_8u_P3R = rows<P3<>, Bt601ToRgb, P3<>>,
    .myYCbCrToRGB_8u_P3C3R = rows<P3<>, Bt601PlanesToRgb, C3<>>,
    .myYCbCrToRGB_8u_P3C4R = rows<P3<>, WithAlpha<Bt601PlanesToRgb>, C4<>>,

    .myRGBToYCbCr422_8u_C3C2R = rows<C3<>, RgbToBt601_422, Yuy2>,
    .myRGBToYCbCr422_8u_P3C2R = rows<P3<>, RgbToBt601_422, Yuy2>,
    .myYCbCr422ToRGB_8u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, C3<>>,
    .myYCbCr422ToRGB_8u_C2P3R = rows<Yuy2, Bt601FoldedToRgb, P3<>>,
    .myYCbCr422ToRGB_8u_P3C3R = rows<Planar422, Bt601PlanesToRgb, C3<>>,

    .myRGBToYCbCr420_8u_C3P3R = rows<C3<>, RgbToBt601_420, Planar420>,
    .myYCbCr420ToRGB_8u_P3C3R = rows<Planar420, Bt601ToRgb, C3<>>,
    .myYCbCr420ToBGR_8u_P3C3R = rows<Planar420, Bt601ToRgb, Bgr>,
    .myYCbCr420ToBGR_8u_P3C4R = rows<Planar420, WithAlpha<Bt601ToRgb>, Bgra>,
    .myYCrCb420ToRGB_8u_P3C4R = rows<Planar420, WithAlpha<Bt601ToRgb>, C4<>>,
    .myYCrCb420ToBGR_Filter_8u_P3C4R = filtered420<WithAlpha<Bt601ToRgb>, Bgra>,

    .myBGRToYCbCr422_8u_C3C2R = rows<Bgr, RgbToBt601_422By8th, Yuy2Pairs>,
    .myBGRToYCbCr422_8u_C3P3R = rows<Bgr, RgbToBt601_422By8th, Planar422>,
    .myBGRToYCbCr422_8u_AC4C2R = rows<Bgrx, RgbToBt601_422By8th, Yuy2Pairs>,
    .myBGRToYCbCr422_8u_AC4P3R = rows<Bgrx, RgbToBt601_422By8th, Planar422>,
    .myRGBToYCbCr422_8u_C3P3R = rows<C3<>, RgbToBt601_422By8th, Planar422>,
    .myBGRToYCbCr411_8u_C3P3R = rows<Bgr, RgbToBt601_411, Planar411>,
    .myBGRToYCbCr411_8u_AC4P3R = rows<Bgrx, RgbToBt601_411, Planar411>,
    .myBGRToYCbCr420_8u_C3P3R = rowsTo420<Bgr>,
    .myBGRToYCbCr420_8u_AC4P3R = rowsTo420<Bgrx>,
    .myRGBToYCrCb420_8u_AC4P3R = rowsTo420<AC4<>>,
    .myYCbCr422ToBGR_8u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Bgr>,
    .myYCbCr422ToBGR_8u_C2C4R = rows<Yuy2, WithAlpha<Bt601FoldedToRgb>, Bgra>,
    .myYCbCr422ToBGR_8u_P3C3R = rows<Planar422, Bt601FoldedToRgb, Bgr>,
    .myYCbCrToBGR_8u_P3C3R = rows<P3<>, Bt601FoldedToRgb, Bgr>,
    .myYCbCrToBGR_8u_P3C4R = rows<P3<>, WithAlpha<Bt601FoldedToRgb>, Bgra>,

    .myYCbCr411ToBGR_8u_P3C3R = rows<Planar411, Bt601_411ToRgb, Bgr>,
    .myYCbCr411ToBGR_8u_P3C4R = rows<Planar411, WithAlpha<Bt601_411ToRgb>, Bgra>,
};

} // namespace zorcc::ZORCC_TIER
