// SPDX-License-Identifier: MIT
// Row drivers of the RGB and YCbCr (ITU-R BT.601) conversions, compiled once for every tier.
#include "frame/steps.h"
#include "lumachroma/subsampled_rows.h"
#include "lumachroma/ycbcr_formulas.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/ycbcr_rows.h"

namespace {

using Forward = RgbToYCbCr<ycbcr::bt601>;
using Forward422 = RgbToSubsampled<1, WeighedLuma<ycbcr::bt601.y, ycbcr::studioLuma, ycbcr::studioLumaDown>,
                                   YCbCrChroma<ycbcr::bt601, 2>>;
using PairedForward = PairedToYCbCr<ycbcr::bt601>;
using PairedForward420 = PairedToYCbCr420<ycbcr::bt601, ycbcr::studioLuma>;
using Inverse = YccToRgb<ycbcr::bt601ToRgb>;
using PlanarInverse = YccToRgb<ycbcr::bt601PlanarToRgb>;
using PackedInverse = YccToRgb<ycbcr::bt601PackedToRgb>;
using Inverse411 = YccToRgb<ycbcr::bt601ToRgb411>;

// ---- 4:2:0 with filtered chroma ------------------------------------------------------------------------------------

constexpr int tileChroma = 512; // chroma samples of a row that are upsampled at a time

// Columns 2 * first to 2 * (first + count) - 1 of a row of full size. Of its four nearest chroma samples the nearest
// counts 9, its neighbours in the row and in the column 3 each, the diagonal one 1, of 16. Edges repeat.
void upsample(const uint8_t* near, const uint8_t* far, int chromaWidth, int first, int count, uint8_t* full)
{
    uint16_t mixed[tileChroma + 2]; // 3 to 1 of the two rows, and a sample more on either side
    const auto mix = [=](int x) { return static_cast<uint16_t>(3 * near[x] + far[x]); };
    mixed[0] = mix(first > 0 ? first - 1 : 0);
    for (int i = 0; i < count; ++i) mixed[i + 1] = mix(first + i);
    mixed[count + 1] = mix(first + count < chromaWidth ? first + count : chromaWidth - 1);
    for (int i = 0; i < count; ++i) {
        full[2 * i] = static_cast<uint8_t>((3 * mixed[i + 1] + mixed[i] + 8) >> 4);
        full[2 * i + 1] = static_cast<uint8_t>((3 * mixed[i + 1] + mixed[i + 2] + 8) >> 4);
    }
}

// Width and height are even.
template <class Formula, class Destination>
void rgbFromFiltered420(const uint8_t* const* src, const PlaneSteps& srcStep, const Formula formula,
                        const Image<Destination> rgb, int width, int height)
{
    const int chromaWidth = width / 2, chromaHeight = height / 2;
    for (int y = 0; y < height; ++y) {
        const int near = y / 2, neighbour = y % 2 == 0 ? near - 1 : near + 1;
        const int far = neighbour < 0 || neighbour >= chromaHeight ? near : neighbour;
        for (int first = 0; first < chromaWidth; first += tileChroma) {
            const int count = chromaWidth - first < tileChroma ? chromaWidth - first : tileChroma;
            uint8_t full[2][2 * tileChroma];
            for (int c = 0; c < 2; ++c) {
                const uint8_t* plane = src[c + 1];
                upsample(plane + near * srcStep.of[c + 1], plane + far * srcStep.of[c + 1], chromaWidth, first, count,
                         full[c]);
            }
            const P3<In> ycc = {{{src[0] + y * srcStep.of[0] + 2 * first, full[0], full[1]}}};
            convertRow(ycc, formula, from(rgb[y], 2 * first), 2 * count);
        }
    }
}

} // namespace

void myRGBToYCbCr_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<Paired<C3<In>>>(src, srcStep), PairedForward{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myRGBToYCbCr_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<Paired<AC4<In>>>(src, srcStep), PairedForward{}, rowsOf<AC4<Out>>(dst, dstStep), width, height);
}

void myRGBToYCbCr_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                           int height)
{
    convertRows(rowsOf<Paired<C3<In>>>(src, srcStep), PairedForward{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myRGBToYCbCr_8u_AC4P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                            int height)
{
    convertRows(rowsOf<Paired<AC4<In>>>(src, srcStep), PairedForward{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myRGBToYCbCr_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                         int width, int height)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), Forward{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myRGBToYCbCr422_8u_C3C2R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                              int height)
{
    rgbTo422(rowsOf<C3<In>>(src, srcStep), Forward422{}, Forward{}, rowsOf<Packed422<Out>>(dst, dstStep), width,
             height);
}

void myRGBToYCbCr422_8u_P3C2R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height)
{
    rgbTo422(rowsOf<P3<In>>(src, srcStep), Forward422{}, Forward{}, rowsOf<Packed422<Out>>(dst, dstStep), width,
             height);
}

void myRGBToYCbCr420_8u_C3P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], PlaneSteps dstStep,
                              int width, int height)
{
    rgbTo420(rowsOf<Paired<C3<In>>>(src, srcStep), PairedForward420{}, dst, dstStep, width, height);
}

void myYCbCrToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<C3<In>>(src, srcStep), Inverse{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYCbCrToRGB_8u_AC4R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height)
{
    convertRows(rowsOf<AC4<In>>(src, srcStep), Inverse{}, rowsOf<AC4<Out>>(dst, dstStep), width, height);
}

void myYCbCrToRGB_8u_P3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                         int width, int height)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), Inverse{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myYCbCrToRGB_8u_P3C3R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                           int height)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), PlanarInverse{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYCbCrToRGB_8u_P3C4R(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                           int height, uint8_t aval)
{
    convertRows(rowsOf<P3<In>>(src, srcStep), WithAlpha<PlanarInverse>{aval}, rowsOf<C4<Out>>(dst, dstStep), width,
                height);
}

void myYCbCr422ToRGB_8u_C2C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                              int height)
{
    rgbFrom422(rowsOf<Packed422<In>>(src, srcStep), PackedInverse{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYCbCr422ToRGB_8u_C2P3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                              int width, int height)
{
    rgbFrom422(rowsOf<Packed422<In>>(src, srcStep), PackedInverse{}, rowsOf<P3<Out>>(dst, dstStep), width, height);
}

void myYCbCr422ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height)
{
    rgbFrom422(rowsOf<Planar422<In>>(src, srcStep), PlanarInverse{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYCbCr420ToRGB_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height)
{
    rgbFrom420(src, srcStep, Inverse{}, rowsOf<C3<Out>>(dst, dstStep), width, height);
}

void myYCbCr420ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height)
{
    rgbFrom420(src, srcStep, Inverse{}, rowsOf<BGR<Out>>(dst, dstStep), width, height);
}

void myYCbCr420ToBGR_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height, uint8_t aval)
{
    rgbFrom420(src, srcStep, WithAlpha<Inverse>{aval}, rowsOf<BGRA<Out>>(dst, dstStep), width, height);
}

void myYCrCb420ToRGB_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height, uint8_t aval)
{
    rgbFrom420(src, srcStep, WithAlpha<Inverse>{aval}, rowsOf<C4<Out>>(dst, dstStep), width, height);
}

void myYCbCr411ToBGR_8u_P3C3R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height)
{
    rgbFrom411(rowsOf<Planar411<In>>(src, srcStep), Inverse411{}, rowsOf<BGR<Out>>(dst, dstStep), width, height);
}

void myYCbCr411ToBGR_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                              int width, int height, uint8_t aval)
{
    rgbFrom411(rowsOf<Planar411<In>>(src, srcStep), WithAlpha<Inverse411>{aval}, rowsOf<BGRA<Out>>(dst, dstStep), width,
               height);
}

void myYCrCb420ToBGR_Filter_8u_P3C4R(const uint8_t* const src[3], PlaneSteps srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                     int width, int height, uint8_t aval)
{
    rgbFromFiltered420(src, srcStep, WithAlpha<Inverse>{aval}, rowsOf<BGRA<Out>>(dst, dstStep), width & ~1,
                       height & ~1);
}

} // namespace zorcc::ZORCC_TIER
