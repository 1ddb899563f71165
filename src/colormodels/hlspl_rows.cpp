// SPDX-License-Identifier: MIT
// Row drivers of the BGR and HLS conversions from or to planes, compiled once for every tier.
#include "colormodels/hls_from_rgb.h"
#include "colormodels/hls_to_rgb.h"
#include "simd/alpha_along.h"
#include "simd/layouts_444.h"
#include "simd/threaded_rows.h"

namespace zorcc::ZORCC_TIER {

#include "colormodels/hlspl_rows.h"

void ownpi_BGRToHLS_8u_AC4P4(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep, int width,
                             int height)
{
    alwaysOnThreads(rowsOf<C4<In, Order::reversed>>(src, srcStep), AlphaAlong<RgbToHls<uint8_t>>{},
                    rowsOf<P4<Out>>(dst, dstStep), width, height);
}

void ownpi_BGRToHLS_8u_AP4C4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                             int height)
{
    alwaysOnThreads(rowsOf<P4<In, Order::reversed>>(src, srcStep), AlphaAlong<RgbToHls<uint8_t>>{},
                    rowsOf<C4<Out>>(dst, dstStep), width, height);
}

void ownpi_BGRToHLS_8u_AP4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep,
                           int width, int height)
{
    alwaysOnThreads(rowsOf<P4<In, Order::reversed>>(src, srcStep), AlphaAlong<RgbToHls<uint8_t>>{},
                    rowsOf<P4<Out>>(dst, dstStep), width, height);
}

void ownpi_BGRToHLS_8u_C3P3(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                            int height)
{
    alwaysOnThreads(rowsOf<C3<In, Order::reversed>>(src, srcStep), RgbToHls<uint8_t>{}, rowsOf<P3<Out>>(dst, dstStep),
                    width, height);
}

void ownpi_BGRToHLS_8u_P3C3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    alwaysOnThreads(rowsOf<P3<In, Order::reversed>>(src, srcStep), RgbToHls<uint8_t>{}, rowsOf<C3<Out>>(dst, dstStep),
                    width, height);
}

void ownpi_BGRToHLS_8u_P3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height)
{
    alwaysOnThreads(rowsOf<P3<In, Order::reversed>>(src, srcStep), RgbToHls<uint8_t>{}, rowsOf<P3<Out>>(dst, dstStep),
                    width, height);
}

void ownpi_HLSToBGR_8u_AC4P4(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep, int width,
                             int height)
{
    alwaysOnThreads(rowsOf<C4<In>>(src, srcStep), AlphaAlong<HlsToRgb<uint8_t>>{},
                    rowsOf<P4<Out, Order::reversed>>(dst, dstStep), width, height);
}

void ownpi_HLSToBGR_8u_AP4C4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                             int height)
{
    alwaysOnThreads(rowsOf<P4<In>>(src, srcStep), AlphaAlong<HlsToRgb<uint8_t>>{},
                    rowsOf<C4<Out, Order::reversed>>(dst, dstStep), width, height);
}

void ownpi_HLSToBGR_8u_AP4(const uint8_t* const src[4], ptrdiff_t srcStep, uint8_t* const dst[4], ptrdiff_t dstStep,
                           int width, int height)
{
    alwaysOnThreads(rowsOf<P4<In>>(src, srcStep), AlphaAlong<HlsToRgb<uint8_t>>{},
                    rowsOf<P4<Out, Order::reversed>>(dst, dstStep), width, height);
}

void ownpi_HLSToBGR_8u_C3P3(const uint8_t* src, ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep, int width,
                            int height)
{
    alwaysOnThreads(rowsOf<C3<In>>(src, srcStep), HlsToRgb<uint8_t>{}, rowsOf<P3<Out, Order::reversed>>(dst, dstStep),
                    width, height);
}

void ownpi_HLSToBGR_8u_P3C3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, int width,
                            int height)
{
    alwaysOnThreads(rowsOf<P3<In>>(src, srcStep), HlsToRgb<uint8_t>{}, rowsOf<C3<Out, Order::reversed>>(dst, dstStep),
                    width, height);
}

void ownpi_HLSToBGR_8u_P3(const uint8_t* const src[3], ptrdiff_t srcStep, uint8_t* const dst[3], ptrdiff_t dstStep,
                          int width, int height)
{
    alwaysOnThreads(rowsOf<P3<In>>(src, srcStep), HlsToRgb<uint8_t>{}, rowsOf<P3<Out, Order::reversed>>(dst, dstStep),
                    width, height);
}

} // namespace zorcc::ZORCC_TIER
