// SPDX-License-Identifier: MIT
// Row drivers of the RGB and HSV conversions, compiled once for every tier.
#include "colormodels/hsv_formulas.h"
#include "colormodels/interleaved_rows.h"

namespace zorcc::ZORCC_TIER {

#include "colormodels/hsv_rows.h"

namespace {

constexpr int truncatedBlock = 4; // pixels

// A row of bytes: hue and saturation are truncated in the whole blocks of a row and rounded in the rest.
template <class Source, class Destination>
ZORCC_INLINE void innerRGBToHSV_8u_C3R(const Source rgb, const Destination hsv, int width)
{
    const int whole = width - width % truncatedBlock;
    convertRow(rgb, RgbToHsv<uint8_t, Conversion::truncating>{}, hsv, whole);
    convertRow(from(rgb, whole), RgbToHsv<uint8_t, Conversion::rounding>{}, from(hsv, whole), width - whole);
}

template <class Source, class Destination>
ZORCC_INLINE void hsvFromBytes(const Image<Source> rgb, const Image<Destination> hsv, int width, int height)
{
    rowsAboveThreshold(width, height, [&](int y) { innerRGBToHSV_8u_C3R(rgb[y], hsv[y], width); });
}

} // namespace

void myRGBToHSV_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels)
{
    if (channels == 3)
        hsvFromBytes(rowsOf<C3<In>>(src, srcStep), rowsOf<C3<Out>>(dst, dstStep), width, height);
    else
        hsvFromBytes(rowsOf<AC4<In>>(src, srcStep), rowsOf<AC4<Out>>(dst, dstStep), width, height);
}

void myRGBToHSV_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<RgbToHsv<uint16_t, Conversion::rounding>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myHSVToRGB_8u_C3R(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width, int height,
                       int channels)
{
    convertInterleaved<HsvToRgb<uint8_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

void myHSVToRGB_16u_C3R(const uint16_t* src, ptrdiff_t srcStep, uint16_t* dst, ptrdiff_t dstStep, int width, int height,
                        int channels)
{
    convertInterleaved<HsvToRgb<uint16_t>>(src, srcStep, dst, dstStep, width, height, channels);
}

} // namespace zorcc::ZORCC_TIER
