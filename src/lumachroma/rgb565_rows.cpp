// SPDX-License-Identifier: MIT
// Row drivers of the conversions from and to packed 16-bit RGB, compiled once for every tier.
#include "lumachroma/rgb565_rows.h"

#include "lumachroma/bt601_formulas.h"
#include "lumachroma/yuv_formulas.h"
#include "pixels/ordered_dither.h"

namespace zorcc::ZORCC_TIER {

namespace {

// 4:2:0 of any size: an odd last row and an odd last column have chroma of their own. Whole blocks first, then the row
// as 4:2:2, the column as 4:4:4.
template <class Formula, class Destination> void rows420(const Image& from, const Image& to, ZorSize size)
{
    const ZorSize whole = {size.width & ~1, size.height & ~1};
    rows<Planar420, Formula, Destination>(from, to, whole);
    const RowsOf<Destination> destination(to);
    const auto line = [&](int p, int x, int y) { return from.row(p, p == 0 ? y : y / 2) + (p == 0 ? x : x / 2); };
    if (const int y = whole.height; y < size.height) {
        const Planar422 row = {{{line(0, 0, y), line(1, 0, y), line(2, 0, y)}}};
        convertPixels(row, formulaOnRow(Formula{}, y), destination[y], whole.width);
    }
    if (const int x = whole.width; x < size.width)
        for (int y = 0; y < size.height; ++y) {
            const P3<> pixel = {{{line(0, x, y), line(1, x, y), line(2, x, y)}}};
            convertShortRow(pixel, singleOf(formulaOnRow(Formula{}, y)), fromPixel(destination[y], x), 1, x);
        }
}

} // namespace

const Rgb565Rows rgb565Rows = {
    .myYCbCrToRGB565_8u16u_P3C3R = rows<P3<>, Bt601PlanesToRgb, Rgb16<bits565>>,
    .myYCbCrToRGB565Dither_8u16u_P3C3R = rows<P3<>, Dithered<bits565, Bt601PlanesToRgb>, Rgb16<bits565>>,
    .myYCbCrToBGR565_8u16u_P3C3R = rows<P3<>, Bt601PlanesToRgb, Bgr16<bits565>>,
    .myYCbCrToBGR565Dither_8u16u_P3C3R = rows<P3<>, Dithered<bits565, Bt601PlanesToRgb>, Bgr16<bits565>>,
    .myYCbCrToRGB555_8u16u_P3C3R = rows<P3<>, Bt601PlanesToRgb, Rgb16<bits555>>,
    .myYCbCrToRGB555Dither_8u16u_P3C3R = rows<P3<>, Dithered<bits555, Bt601PlanesToRgb>, Rgb16<bits555>>,
    .myYCbCrToBGR555_8u16u_P3C3R = rows<P3<>, Bt601PlanesToRgb, Bgr16<bits555>>,
    .myYCbCrToBGR555Dither_8u16u_P3C3R = rows<P3<>, Dithered<bits555, Bt601PlanesToRgb>, Bgr16<bits555>>,
    .myYCbCrToRGB444_8u16u_P3C3R = rows<P3<>, Bt601PlanesToRgb, Rgb16<bits444>>,
    .myYCbCrToRGB444Dither_8u16u_P3C3R = rows<P3<>, Dithered<bits444, Bt601PlanesToRgb>, Rgb16<bits444>>,
    .myYCbCrToBGR444_8u16u_P3C3R = rows<P3<>, Bt601PlanesToRgb, Bgr16<bits444>>,
    .myYCbCrToBGR444Dither_8u16u_P3C3R = rows<P3<>, Dithered<bits444, Bt601PlanesToRgb>, Bgr16<bits444>>,

    .myYCbCrToRGB565_8u16u_C3R = rows<C3<>, Bt601ToRgb, Rgb16<bits565>>,
    .myYCbCrToRGB565Dither_8u16u_C3R = rows<C3<>, Dithered<bits565, Bt601ToRgb>, Rgb16<bits565>>,
    .myYCbCrToBGR565_8u16u_C3R = rows<C3<>, Bt601ToRgb, Bgr16<bits565>>,
    .myYCbCrToBGR565Dither_8u16u_C3R = rows<C3<>, Dithered<bits565, Bt601ToRgb>, Bgr16<bits565>>,
    .myYCbCrToRGB555_8u16u_C3R = rows<C3<>, Bt601ToRgb, Rgb16<bits555>>,
    .myYCbCrToRGB555Dither_8u16u_C3R = rows<C3<>, Dithered<bits555, Bt601ToRgb>, Rgb16<bits555>>,
    .myYCbCrToBGR555_8u16u_C3R = rows<C3<>, Bt601ToRgb, Bgr16<bits555>>,
    .myYCbCrToBGR555Dither_8u16u_C3R = rows<C3<>, Dithered<bits555, Bt601ToRgb>, Bgr16<bits555>>,
    .myYCbCrToRGB444_8u16u_C3R = rows<C3<>, Bt601ToRgb, Rgb16<bits444>>,
    .myYCbCrToRGB444Dither_8u16u_C3R = rows<C3<>, Dithered<bits444, Bt601ToRgb>, Rgb16<bits444>>,
    .myYCbCrToBGR444_8u16u_C3R = rows<C3<>, Bt601ToRgb, Bgr16<bits444>>,
    .myYCbCrToBGR444Dither_8u16u_C3R = rows<C3<>, Dithered<bits444, Bt601ToRgb>, Bgr16<bits444>>,

    .myYCbCr422ToRGB565_8u16u_P3C3R = rows<Planar422, Bt601PlanesToRgb, Rgb16<bits565>>,
    .myYCbCr422ToRGB565Dither_8u16u_P3C3R = rows<Planar422, Dithered<bits565, Bt601PlanesToRgb>, Rgb16<bits565>>,
    .myYCbCr422ToBGR565_8u16u_P3C3R = rows<Planar422, Bt601PlanesToRgb, Bgr16<bits565>>,
    .myYCbCr422ToBGR565Dither_8u16u_P3C3R = rows<Planar422, Dithered<bits565, Bt601PlanesToRgb>, Bgr16<bits565>>,
    .myYCbCr422ToRGB555_8u16u_P3C3R = rows<Planar422, Bt601PlanesToRgb, Rgb16<bits555>>,
    .myYCbCr422ToRGB555Dither_8u16u_P3C3R = rows<Planar422, Dithered<bits555, Bt601PlanesToRgb>, Rgb16<bits555>>,
    .myYCbCr422ToBGR555_8u16u_P3C3R = rows<Planar422, Bt601PlanesToRgb, Bgr16<bits555>>,
    .myYCbCr422ToBGR555Dither_8u16u_P3C3R = rows<Planar422, Dithered<bits555, Bt601PlanesToRgb>, Bgr16<bits555>>,
    .myYCbCr422ToRGB444_8u16u_P3C3R = rows<Planar422, Bt601PlanesToRgb, Rgb16<bits444>>,
    .myYCbCr422ToRGB444Dither_8u16u_P3C3R = rows<Planar422, Dithered<bits444, Bt601PlanesToRgb>, Rgb16<bits444>>,
    .myYCbCr422ToBGR444_8u16u_P3C3R = rows<Planar422, Bt601PlanesToRgb, Bgr16<bits444>>,
    .myYCbCr422ToBGR444Dither_8u16u_P3C3R = rows<Planar422, Dithered<bits444, Bt601PlanesToRgb>, Bgr16<bits444>>,

    .myYCbCr422ToRGB565_8u16u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Rgb16<bits565>>,
    .myYCbCr422ToRGB565Dither_8u16u_C2C3R = rows<Yuy2, Dithered<bits565, Bt601FoldedToRgb>, Rgb16<bits565>>,
    .myYCbCr422ToBGR565_8u16u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Bgr16<bits565>>,
    .myYCbCr422ToBGR565Dither_8u16u_C2C3R = rows<Yuy2, Dithered<bits565, Bt601FoldedToRgb>, Bgr16<bits565>>,
    .myYCbCr422ToRGB555_8u16u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Rgb16<bits555>>,
    .myYCbCr422ToRGB555Dither_8u16u_C2C3R = rows<Yuy2, Dithered<bits555, Bt601FoldedToRgb>, Rgb16<bits555>>,
    .myYCbCr422ToBGR555_8u16u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Bgr16<bits555>>,
    .myYCbCr422ToBGR555Dither_8u16u_C2C3R = rows<Yuy2, Dithered<bits555, Bt601FoldedToRgb>, Bgr16<bits555>>,
    .myYCbCr422ToRGB444_8u16u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Rgb16<bits444>>,
    .myYCbCr422ToRGB444Dither_8u16u_C2C3R = rows<Yuy2, Dithered<bits444, Bt601FoldedToRgb>, Rgb16<bits444>>,
    .myYCbCr422ToBGR444_8u16u_C2C3R = rows<Yuy2, Bt601FoldedToRgb, Bgr16<bits444>>,
    .myYCbCr422ToBGR444Dither_8u16u_C2C3R = rows<Yuy2, Dithered<bits444, Bt601FoldedToRgb>, Bgr16<bits444>>,

    .myYCbCr420ToRGB565_8u16u_P3C3R = rows420<Bt601ToRgb, Rgb16<bits565>>,
    .myYCbCr420ToRGB565Dither_8u16u_P3C3R = rows420<Dithered<bits565, Bt601ToRgb>, Rgb16<bits565>>,
    .myYCbCr420ToBGR565_8u16u_P3C3R = rows420<Bt601ToRgb, Bgr16<bits565>>,
    .myYCbCr420ToBGR565Dither_8u16u_P3C3R = rows420<Dithered<bits565, Bt601ToRgb>, Bgr16<bits565>>,
    .myYCbCr420ToRGB555_8u16u_P3C3R = rows420<Bt601ToRgb, Rgb16<bits555>>,
    .myYCbCr420ToRGB555Dither_8u16u_P3C3R = rows420<Dithered<bits555, Bt601ToRgb>, Rgb16<bits555>>,
    .myYCbCr420ToBGR555_8u16u_P3C3R = rows420<Bt601ToRgb, Bgr16<bits555>>,
    .myYCbCr420ToBGR555Dither_8u16u_P3C3R = rows420<Dithered<bits555, Bt601ToRgb>, Bgr16<bits555>>,
    .myYCbCr420ToRGB444_8u16u_P3C3R = rows420<Bt601ToRgb, Rgb16<bits444>>,
    .myYCbCr420ToRGB444Dither_8u16u_P3C3R = rows420<Dithered<bits444, Bt601ToRgb>, Rgb16<bits444>>,
    .myYCbCr420ToBGR444_8u16u_P3C3R = rows420<Bt601ToRgb, Bgr16<bits444>>,
    .myYCbCr420ToBGR444Dither_8u16u_P3C3R = rows420<Dithered<bits444, Bt601ToRgb>, Bgr16<bits444>>,

    .myYUV420ToRGB565_8u16u_P3C3R = rows420<YuvToRgb, Rgb16<bits565>>,
    .myYUV420ToRGB565Dither_8u16u_P3C3R = rows420<Dithered<bits565, YuvToRgb>, Rgb16<bits565>>,
    .myYUV420ToBGR565_8u16u_P3C3R = rows420<YuvToRgb, Bgr16<bits565>>,
    .myYUV420ToBGR565Dither_8u16u_P3C3R = rows420<Dithered<bits565, YuvToRgb>, Bgr16<bits565>>,
    .myYUV420ToRGB555_8u16u_P3C3R = rows420<YuvToRgb, Rgb16<bits555>>,
    .myYUV420ToRGB555Dither_8u16u_P3C3R = rows420<Dithered<bits555, YuvToRgb>, Rgb16<bits555>>,
    .myYUV420ToBGR555_8u16u_P3C3R = rows420<YuvToRgb, Bgr16<bits555>>,
    .myYUV420ToBGR555Dither_8u16u_P3C3R = rows420<Dithered<bits555, YuvToRgb>, Bgr16<bits555>>,
    .myYUV420ToRGB444_8u16u_P3C3R = rows420<YuvToRgb, Rgb16<bits444>>,
    .myYUV420ToRGB444Dither_8u16u_P3C3R = rows420<Dithered<bits444, YuvToRgb>, Rgb16<bits444>>,
    .myYUV420ToBGR444_8u16u_P3C3R = rows420<YuvToRgb, Bgr16<bits444>>,
    .myYUV420ToBGR444Dither_8u16u_P3C3R = rows420<Dithered<bits444, YuvToRgb>, Bgr16<bits444>>,

    .myYCbCr411ToBGR555_8u16u_P3C3R = rows<Planar411, Bt601_411ToRgb, Bgr16<bits555>>,
    .myYCbCr411ToBGR565_8u16u_P3C3R = rows<Planar411, Bt601_411ToRgb, Bgr16<bits565>>,

    .myBGR555ToYCbCr422_16u8u_C3C2R = rows<Bgr16<bits555>, RgbToBt601_422By8th, Yuy2Pairs>,
    .myBGR555ToYCbCr422_16u8u_C3P3R = rows<Bgr16<bits555>, RgbToBt601_422By8th, Planar422>,
    .myBGR555ToYCbCr411_16u8u_C3P3R = rows<Bgr16<bits555>, RgbToBt601_411, Planar411>,
    .myBGR555ToYCbCr420_16u8u_C3P3R = rows<Bgr16<bits555>, RgbToBt601_420, Planar420>,
    .myBGR555ToYUV420_16u8u_C3P3R = rows<Bgr16<bits555>, RgbToYuv420, Planar420>,
    .myBGR565ToYCbCr422_16u8u_C3C2R = rows<Bgr16<bits565>, RgbToBt601_422By8th, Yuy2Pairs>,
    .myBGR565ToYCbCr422_16u8u_C3P3R = rows<Bgr16<bits565>, RgbToBt601_422By8th, Planar422>,
    .myBGR565ToYCbCr411_16u8u_C3P3R = rows<Bgr16<bits565>, RgbToBt601_411, Planar411>,
    .myBGR565ToYCbCr420_16u8u_C3P3R = rows<Bgr16<bits565>, RgbToBt601_420, Planar420>,
    .myBGR565ToYUV420_16u8u_C3P3R = rows<Bgr16<bits565>, RgbToYuv420, Planar420>,

    .myRGB565ToRGB_16u8u_C3R = rows<Rgb16<bits565>, Unchanged, C3<>, Threads::tallImages>,
    .myRGBToRGB565_8u16u_C3R = rows<C3<>, Unchanged, Rgb16<bits565>, Threads::tallImages>,
};

} // namespace zorcc::ZORCC_TIER
