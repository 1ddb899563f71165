// SPDX-License-Identifier: MIT
#include "bench/peers/targets.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <set>

#include "bench/picture.h"
#include "bench/ranking.h"

namespace zorcc::bench {

namespace {

// What a speed is a multiple of, beside a peer by name: the fastest of other libraries, held to SSSE3 or not; of a
// unit.
constexpr std::string_view bestPeer = "best peer", bestSsse3Peer = "best peer held to SSSE3", absolute = "Mpx/s";

constexpr ZorSize bothSizes = {}; // cachedSize and frameSize

struct Target {
    std::string_view function;
    ZorSize size;
    Tier tier;
    double wanted;
    std::string_view peer;
};

const Target targets[] = {
    // In place of what is asked of everything. The peer of the first two calculates with 8-bit weights.
    {"zoriBGRToYUV420_8u_AC4P3R", bothSizes, Tier::avx2, 0.85, bestPeer},
    {"zoriBGRToYCbCr420_8u_AC4P3R", bothSizes, Tier::avx2, 0.85, bestPeer},
    {"zoriRGBToYUV420_8u_C3P3R", bothSizes, Tier::avx2, 1.15, bestPeer},
    {"zoriRGBToYCbCr420_8u_C3P3R", bothSizes, Tier::avx2, 1.15, bestPeer},
    {"zoriBGRToYCbCr420_8u_C3P3R", bothSizes, Tier::avx2, 1.15, bestPeer},
    {"zoriYCbCr420ToBGR_8u_P3C4R", bothSizes, Tier::avx2, 1.2, bestPeer},
    {"zoriRGBToYUV_8u_C3P3R", bothSizes, Tier::avx2, 1.5, bestPeer},
    {"zoriRGBToYCbCr_8u_C3P3R", bothSizes, Tier::avx2, 1.5, bestPeer},
    {"zoriYUV422ToRGB_8u_C2C3R", bothSizes, Tier::avx2, 1.3, bestPeer},
    {"zoriYCbCr422ToRGB_8u_C2C3R", bothSizes, Tier::avx2, 1.3, bestPeer},
    {"zoriRGBToHLS_32f_C3R", bothSizes, Tier::avx2, 1.4, bestPeer},
    {"zoriHLSToRGB_32f_C3R", bothSizes, Tier::avx2, 1.4, bestPeer},
    {"zoriReduceBits_8u_C1R fs", bothSizes, Tier::avx2, 1.3, bestPeer},
    {"zoriReduceBits_8u_C3R fs", bothSizes, Tier::avx2, 1.3, bestPeer},
    {"zoriCFAToRGB_16u_C1C3R", frameSize, Tier::avx2, 4, bestPeer},

    {"zoriRGBToYUV420_8u_C3P3R", cachedSize, Tier::avx512, 1.4, "libyuv RAWToI420"},
    {"zoriRGBToYUV420_8u_C3P3R", frameSize, Tier::avx512, 1.3, "libyuv RAWToI420"},
    {"zoriYUV420ToRGB_8u_P3C3R", cachedSize, Tier::avx512, 2.6, "libyuv I420ToRAW"},
    {"zoriYUV420ToRGB_8u_P3C3R", cachedSize, Tier::avx2, 1.1, "libyuv I420ToRAW"},
    {"zoriRGBToYUV_8u_C3R", cachedSize, Tier::avx512, 2.6, "OpenCV RGB2YUV"},
    {"zoriRGBToYUV_8u_C3R", frameSize, Tier::avx512, 2.6, "OpenCV RGB2YUV"},
    {"zoriRGBToYCbCr420_8u_C3P3R", cachedSize, Tier::avx512, 1.6, "libyuv RAWToI420"},
    {"zoriRGBToYCbCr420_8u_C3P3R", frameSize, Tier::avx512, 1.3, "libyuv RAWToI420"},
    {"zoriYCbCr420ToRGB_8u_P3C3R", cachedSize, Tier::avx512, 2.3, "libyuv I420ToRAW"},
    {"zoriYCbCr420ToRGB_8u_P3C3R", frameSize, Tier::avx512, 1.3, "libyuv I420ToRAW"},
    {"zoriYCbCr420ToBGR_8u_P3C4R", cachedSize, Tier::avx512, 1.6, "libyuv I420ToARGB"},
    {"zoriYCbCr420ToBGR_8u_P3C4R", frameSize, Tier::avx512, 1.3, "libyuv I420ToARGB"},
    {"zoriRGBToYCbCr_8u_C3P3R", cachedSize, Tier::avx512, 2.4, "libyuv RAWToARGB + ARGBToI444"},
    {"zoriRGBToYCbCr_8u_C3P3R", frameSize, Tier::avx512, 1.3, "libyuv RAWToARGB + ARGBToI444"},
    {"zoriRGBToYCbCr_8u_P3R", cachedSize, Tier::avx512, 3, "zimg 601"},
    {"zoriRGBToYCbCr_8u_P3R", frameSize, Tier::avx512, 1.3, "zimg 601"},
    {"zoriYCbCrToRGB_8u_P3R", cachedSize, Tier::avx512, 3, "zimg 601"},
    {"zoriYCbCrToRGB_8u_P3R", frameSize, Tier::avx512, 1.3, "zimg 601"},
    {"zoriYCbCr422ToRGB_8u_C2C3R", cachedSize, Tier::avx512, 1.5, "libyuv YUY2ToARGB + ARGBToRAW"},
    {"zoriYCbCr422ToRGB_8u_C2C3R", frameSize, Tier::avx512, 1.3, "libyuv YUY2ToARGB + ARGBToRAW"},
    {"zoriRGB565ToRGB_16u8u_C3R", cachedSize, Tier::avx512, 2.7, "OpenCV BGR5652BGR"},
    {"zoriRGB565ToRGB_16u8u_C3R", cachedSize, Tier::avx2, 1.5, "OpenCV BGR5652BGR"},
    // Frames are not reached: both libraries write as fast as a memcpy there, and stores that bypass the caches are
    // slower.
    {"zoriRGB565ToRGB_16u8u_C3R", frameSize, Tier::avx512, 2, "OpenCV BGR5652BGR"},
    {"zoriRGB565ToRGB_16u8u_C3R", frameSize, Tier::avx2, 1.3, "OpenCV BGR5652BGR"},
    {"zoriRGBToRGB565_8u16u_C3R", cachedSize, Tier::avx512, 2.2, "OpenCV BGR2BGR565"},
    {"zoriRGBToRGB565_8u16u_C3R", cachedSize, Tier::avx2, 1.5, "OpenCV BGR2BGR565"},
    {"zoriRGBToRGB565_8u16u_C3R", frameSize, Tier::avx512, 2, "OpenCV BGR2BGR565"},
    {"zoriRGBToRGB565_8u16u_C3R", frameSize, Tier::avx2, 1.3, "OpenCV BGR2BGR565"},
    {"zoriYCbCr420ToRGB565_8u16u_P3C3R", cachedSize, Tier::avx512, 1.3, "libyuv I420ToRGB565"},
    {"zoriYCbCr420ToRGB565_8u16u_P3C3R", cachedSize, Tier::avx2, 1.3, "libyuv I420ToRGB565"},
    {"zoriYCbCr420ToRGB565Dither_8u16u_P3C3R", cachedSize, Tier::avx512, 1.5, "libyuv I420ToRGB565Dither"},
    {"zoriYCbCr420ToRGB565Dither_8u16u_P3C3R", cachedSize, Tier::avx2, 1.5, "libyuv I420ToRGB565Dither"},
    {"zoriBGRToYCbCr420_8u_C3P3R", cachedSize, Tier::avx512, 1.6, "libyuv RGB24ToI420"},
    {"zoriBGRToYCbCr422_8u_C3C2R", cachedSize, Tier::avx512, 1.5, "libyuv RGB24ToARGB + ARGBToYUY2"},
    {"zoriBGRToYCbCr422_8u_C3C2R", cachedSize, Tier::avx2, 1.15, "libyuv RGB24ToARGB + ARGBToYUY2"},
    {"zoriBGRToYCbCr411_8u_C3P3R", cachedSize, Tier::avx512, 0.8, "zorcc twin"},
    {"zoriRGBToCbYCr422Gamma_8u_C3C2R", cachedSize, Tier::avx512, 0.5, "zorcc twin"},
    {"zoriRGBToYCoCg_8u_C3P3R", cachedSize, Tier::avx512, 0.9, "zorcc twin"},
    {"zoriYCoCgToRGB_8u_P3C3R", cachedSize, Tier::avx512, 0.9, "zorcc twin"},
    // 0.8 for each byte that is moved: 9, 12 and 18 for a pixel in place of 6.
    {"zoriBGRToYCoCg_8u16s_C3P3R", cachedSize, Tier::avx512, 0.8 * 6 / 9, "zorcc twin"},
    {"zoriBGRToYCoCg_Rev_8u16s_C3P3R", cachedSize, Tier::avx512, 0.8 * 6 / 9, "zorcc twin"},
    {"zoriSBGRToYCoCg_16s_C3P3R", cachedSize, Tier::avx512, 0.8 * 6 / 12, "zorcc twin"},
    {"zoriSBGRToYCoCg_Rev_16s_C3P3R", cachedSize, Tier::avx512, 0.8 * 6 / 12, "zorcc twin"},
    {"zoriSBGRToYCoCg_16s32s_C3P3R", cachedSize, Tier::avx512, 0.8 * 6 / 18, "zorcc twin"},
    {"zoriSBGRToYCoCg_Rev_16s32s_C3P3R", cachedSize, Tier::avx512, 0.8 * 6 / 18, "zorcc twin"},
    {"zoriYCoCgToBGR_16s8u_P3C3R", cachedSize, Tier::avx512, 0.8 * 6 / 9, "zorcc twin"},
    {"zoriYCoCgToBGR_Rev_16s8u_P3C3R", cachedSize, Tier::avx512, 0.8 * 6 / 9, "zorcc twin"},
    {"zoriYCoCgToSBGR_16s_P3C3R", cachedSize, Tier::avx512, 0.8 * 6 / 12, "zorcc twin"},
    {"zoriYCoCgToSBGR_Rev_16s_P3C3R", cachedSize, Tier::avx512, 0.8 * 6 / 12, "zorcc twin"},
    {"zoriYCoCgToSBGR_32s16s_P3C3R", cachedSize, Tier::avx512, 0.8 * 6 / 18, "zorcc twin"},
    {"zoriYCoCgToSBGR_Rev_32s16s_P3C3R", cachedSize, Tier::avx512, 0.8 * 6 / 18, "zorcc twin"},
    {"zoriReduceBits_8u_C1R none", frameSize, Tier::avx512, 1, "zorcc ordered"},
    {"zoriReduceBits_8u_C1R ordered", frameSize, Tier::ssse3, 0.4, "zimg ordered"},
    {"zoriReduceBits_8u_C1R fs", frameSize, Tier::ssse3, 0.4, "zimg error diffusion"},
    {"zoriReduceBits_8u_C1R jjn", frameSize, Tier::avx512, 0.5, "zorcc fs"},
    {"zoriReduceBits_8u_C1R jjn", frameSize, Tier::ssse3, 0.2, "zorcc fs"},
    {"zoriReduceBits_8u_C1R stucki", frameSize, Tier::avx512, 0.5, "zorcc fs"},
    {"zoriReduceBits_8u_C1R stucki", frameSize, Tier::ssse3, 0.2, "zorcc fs"},
    {"zoriReduceBits_8u_C3R ordered", frameSize, Tier::ssse3, 0.32, "zimg ordered"},
    {"zoriReduceBits_8u_C3R fs", frameSize, Tier::avx512, 1.2, "zimg error diffusion"},
    {"zoriReduceBits_8u_C3R fs", frameSize, Tier::ssse3, 0.48, "zimg error diffusion"},
    {"zoriYCbCr420_8u_P2P3R", cachedSize, Tier::avx512, 1.1, "libyuv NV12ToI420"},
    {"zoriYCbCr420_8u_P3P2R", cachedSize, Tier::avx512, 1.1, "libyuv I420ToNV12"},
    {"zoriYCbCr420ToYCbCr422_8u_P2C2R", cachedSize, Tier::avx512, 2, "libyuv NV12ToI420 + I420ToYUY2"},
    // Not reached: loads and stores alone come to 1.4 to 1.5 times, of UYVY to planes to 2.1 times.
    {"zoriYCrCb420ToYCbCr422_8u_P3C2R", cachedSize, Tier::avx512, 2, "libyuv I420ToYUY2"},
    {"zoriYCrCb420ToCbYCr422_8u_P3C2R", cachedSize, Tier::avx512, 2, "libyuv I420ToUYVY"},
    {"zoriYCbCr422ToYCbCr420_8u_C2P3R", cachedSize, Tier::avx512, 1.5, "libyuv YUY2ToI420"},
    {"zoriCbYCr422ToYCbCr420_8u_C2P3R", cachedSize, Tier::avx512, 2, "libyuv UYVYToI420"},
    {"zoriCbYCr422ToYCbCr420_8u_C2P2R", cachedSize, Tier::avx512, 2, "libyuv UYVYToNV12"},
    {"zoriYCbCr422_8u_C2P3R", cachedSize, Tier::avx512, 1.5, "libyuv YUY2ToI422"},
    {"zoriCbYCr422ToYCbCr422_8u_C2P3R", cachedSize, Tier::avx512, 1.5, "libyuv UYVYToI422"},
    {"zoriYCbCr422ToYCbCr420_8u_P3R", cachedSize, Tier::avx512, 1.2, "libyuv I422ToI420"},
    {"zoriRGBToHLS_8u_C3R", cachedSize, Tier::avx512, 4.5, "OpenCV RGB2HLS_FULL"},
    {"zoriRGBToHLS_8u_C3R", cachedSize, Tier::ssse3, 1, "OpenCV RGB2HLS_FULL"},
    {"zoriHLSToRGB_8u_C3R", cachedSize, Tier::avx512, 4, "OpenCV HLS2RGB_FULL"},
    {"zoriHLSToRGB_8u_C3R", cachedSize, Tier::ssse3, 1.2, "OpenCV HLS2RGB_FULL"},
    {"zoriRGBToHSV_8u_C3R", cachedSize, Tier::avx512, 3.7, "OpenCV RGB2HSV_FULL"},
    {"zoriRGBToHSV_8u_C3R", cachedSize, Tier::ssse3, 0.95, "OpenCV RGB2HSV_FULL"},
    {"zoriHSVToRGB_8u_C3R", cachedSize, Tier::avx512, 3, "OpenCV HSV2RGB_FULL"},
    {"zoriHSVToRGB_8u_C3R", cachedSize, Tier::ssse3, 1.2, "OpenCV HSV2RGB_FULL"},
    {"zoriRGBToHLS_32f_C3R", cachedSize, Tier::avx512, 2, "OpenCV RGB2HLS"},
    {"zoriRGBToHLS_32f_C3R", cachedSize, Tier::ssse3, 1, "OpenCV RGB2HLS"},
    {"zoriHLSToRGB_32f_C3R", cachedSize, Tier::avx512, 2, "OpenCV HLS2RGB"},
    {"zoriHLSToRGB_32f_C3R", cachedSize, Tier::ssse3, 1, "OpenCV HLS2RGB"},
    {"zoriRGBToXYZ_8u_C3R", cachedSize, Tier::avx512, 6.7, "OpenCV RGB2XYZ"},
    {"zoriRGBToXYZ_8u_C3R", cachedSize, Tier::avx2, 4, "OpenCV RGB2XYZ"},
    {"zoriXYZToRGB_8u_C3R", cachedSize, Tier::avx512, 6.7, "OpenCV XYZ2RGB"},
    {"zoriXYZToRGB_8u_C3R", cachedSize, Tier::avx2, 4, "OpenCV XYZ2RGB"},
    {"zoriRGBToLUV_8u_C3R", cachedSize, Tier::avx512, 4, "OpenCV LRGB2Luv"},
    {"zoriRGBToLUV_8u_C3R", cachedSize, Tier::avx2, 3, "OpenCV LRGB2Luv"},
    {"zoriLUVToRGB_8u_C3R", cachedSize, Tier::avx512, 4, "OpenCV Luv2LRGB"},
    {"zoriLUVToRGB_8u_C3R", cachedSize, Tier::avx2, 3, "OpenCV Luv2LRGB"},
    {"zoriBGRToLab_8u_C3R", cachedSize, Tier::avx512, 4, "OpenCV LBGR2Lab"},
    {"zoriBGRToLab_8u_C3R", cachedSize, Tier::avx2, 3, "OpenCV LBGR2Lab"},
    {"zoriLabToBGR_8u_C3R", cachedSize, Tier::avx512, 4, "OpenCV Lab2LBGR"},
    {"zoriLabToBGR_8u_C3R", cachedSize, Tier::avx2, 3, "OpenCV Lab2LBGR"},
    {"zoriRGBToXYZ_32f_C3R", cachedSize, Tier::avx512, 3.9, "OpenCV RGB2XYZ"},
    {"zoriRGBToXYZ_32f_C3R", cachedSize, Tier::avx2, 2, "OpenCV RGB2XYZ"},
    {"zoriXYZToRGB_32f_C3R", cachedSize, Tier::avx512, 3.9, "OpenCV XYZ2RGB"},
    {"zoriXYZToRGB_32f_C3R", cachedSize, Tier::avx2, 2, "OpenCV XYZ2RGB"},
    {"zoriRGBToLUV_32f_C3R", cachedSize, Tier::avx512, 3, "OpenCV LRGB2Luv"},
    {"zoriRGBToLUV_32f_C3R", cachedSize, Tier::avx2, 2, "OpenCV LRGB2Luv"},
    {"zoriLUVToRGB_32f_C3R", cachedSize, Tier::avx512, 4.7, "OpenCV Luv2LRGB"},
    {"zoriLUVToRGB_32f_C3R", cachedSize, Tier::avx2, 3, "OpenCV Luv2LRGB"},
    // Words have twice the bytes.
    {"zoriRGBToYCC_16u_C3R", cachedSize, Tier::avx512, 0.8 / 2, "zorcc twin"},
    {"zoriYCCToRGB_16u_C3R", cachedSize, Tier::avx512, 0.8 / 2, "zorcc twin"},
    // The first is not reached: a memcpy of the same bytes comes to 3.2 times.
    {"zoriRGBToGray_8u_C3C1R", cachedSize, Tier::avx512, 3, "libyuv RAWToJ400"},
    {"zoriRGBToGray_8u_C3C1R", cachedSize, Tier::avx2, 1.1, "libyuv RAWToJ400"},
    {"zoriRGBToGray_32f_C3C1R", cachedSize, Tier::avx512, 1.5, "OpenCV RGB2GRAY"},
    {"zoriRGBToGray_32f_C3C1R", cachedSize, Tier::avx2, 1.1, "OpenCV RGB2GRAY"},
    // Not reached on AVX2, where three products, three sums and two conversions for each sample fill the ports of
    // floating point.
    {"zoriColorTwist32f_8u_C3R", cachedSize, Tier::avx512, 1.1, "OpenCV transform"},
    {"zoriColorTwist32f_8u_C3R", cachedSize, Tier::avx2, 1.1, "OpenCV transform"},
    // Not reached: with VBMI it is at 0.9 of a memcpy, on AVX2 sixteen shuffles stand for one look-up.
    {"zoriGammaFwd_8u_C3R", cachedSize, Tier::avx512, 15, "OpenCV LUT"},
    {"zoriGammaFwd_8u_C3R", cachedSize, Tier::avx2, 3, "OpenCV LUT"},
    {"zoriGammaFwd_16u_C3R", cachedSize, Tier::avx2, 4, "C library pow"},
    // Not reached on AVX2, 3.9 to 4.7 times: the power has 50 operations on floating point without fusion.
    {"zoriGammaFwd_32f_C3R", cachedSize, Tier::avx512, 5, "C library pow"},
    {"zoriGammaFwd_32f_C3R", cachedSize, Tier::avx2, 5, "C library pow"},
    {"zoriGammaInv_32f_C3R", cachedSize, Tier::avx2, 5, "C library pow"},
    {"zoriCFAToRGB_8u_C1C3R", frameSize, Tier::avx512, 5, "OpenCV BayerRGGB2RGB_EA"},
    {"zoriCFAToRGB_8u_C1C3R", frameSize, Tier::ssse3, 1.5, "OpenCV BayerRGGB2RGB_EA"},
    {"zoriCFAToRGB_16u_C1C3R", frameSize, Tier::avx512, 8, "OpenCV BayerRGGB2RGB_EA"},
    {"zoriCFAToRGB_16u_C1C3R", frameSize, Tier::ssse3, 3, "OpenCV BayerRGGB2RGB_EA"},
    {"zoriDemosaicAHD_8u_C1C3R", frameSize, Tier::avx512, 8, "LibRaw AHD"},
    {"zoriDemosaicAHD_8u_C1C3R", frameSize, Tier::ssse3, 3, "LibRaw AHD"},
    {"zoriDemosaicAHD_16u_C1C3R", frameSize, Tier::avx512, 8, "LibRaw AHD"},
    {"zoriDemosaicAHD_16u_C1C3R", frameSize, Tier::ssse3, 3, "LibRaw AHD"},
};

bool isOf(const Result& result, std::string_view function) { return result.name == function; }

// Conversions that only move samples.
bool moves(const Result& result) { return result.function->source->model == interface::Model::anyYcc; }
bool computes(const Result& result) { return !moves(result); }

bool isAny(const Result&) { return true; }

// From and to PhotoYCC, which has no peer.
bool isPhotoYccOfBytes(const Result& result)
{
    return isOf(result, "zoriRGBToYCC_8u_C3R") || isOf(result, "zoriYCCToRGB_8u_C3R");
}

// Words through a table of the curve.
bool usesTable(const Result& result) { return isOf(result, "zoriGammaFwd_16u_C3R"); }

// Any function that computes with integers and neither has variants nor does a hundred times the work of a conversion.
bool isSimple(const Result& result)
{
    const interface::Function& function = *result.function;
    const bool ofBytes = function.source->sample == interface::Sample::u8;
    const bool usesFloats =
        function.family == "HLS and HSV" || function.family == "CIE XYZ, LUV and Lab" ||
        function.family == "PhotoYCC" || function.takesTwist ||
        (!ofBytes && (function.family == "Gamma correction" || function.family == "Grey and tone mapping"));
    return result.name == function.name && !usesFloats && !function.name.starts_with("zoriDemosaicAHD");
}

// What holds for many functions, but for those that have a target of their own against the same.
struct Rule {
    std::string_view name;
    bool (*holdsFor)(const Result&);
    ZorSize size;
    Tier tier;
    double wanted;
    std::string_view peer;
};

constexpr double mostTimeOfTinyCall = 1.5; // of libyuv's

const Rule rules[] = {
    {"everything", isAny, bothSizes, Tier::avx2, 1, bestPeer},
    {"everything", isAny, bothSizes, Tier::avx512, 1, bestPeer},
    {"everything", computes, bothSizes, Tier::ssse3, 0.5, bestSsse3Peer},
    {"moves of samples", moves, bothSizes, Tier::ssse3, 0.95, bestSsse3Peer},
    {"moves of samples", moves, frameSize, bestTier(), 0.9, "memcpy"},
    {"dithered 16-bit pixels", isAny, cachedSize, bestTier(), 0.6, "zorcc undithered"},
    {"calls on small images", isAny, tinySizes[0], Tier::avx2, 1 / mostTimeOfTinyCall, bestPeer},
    {"calls on small images", isAny, tinySizes[0], Tier::avx512, 1 / mostTimeOfTinyCall, bestPeer},
    {"PhotoYCC of bytes", isPhotoYccOfBytes, cachedSize, Tier::avx2, 2000, absolute},
    {"gamma of words", usesTable, frameSize, Tier::avx2, 250, absolute},
    {"functions of integers", isSimple, cachedSize, Tier::ssse3, 1000, absolute},
};

// Geomean of all that has a peer, in multiples of the best one.
constexpr double wantedGeomean = 3.5;
constexpr Tier tierOfGeomean = Tier::avx2;

// ---- judging --------------------------------------------------------------------------------------------------------

bool isIn(ZorSize size, ZorSize wanted) { return same(wanted, bothSizes) ? !isTiny(size) : same(size, wanted); }

struct Figure {
    double reached;
    std::string unit;
};

// Nothing where that peer is not there.
std::optional<Figure> figureOf(const Result& result, Tier tier, std::string_view peer)
{
    const double ours = result.ours.at(tier);
    if (peer == absolute) return Figure{ours, std::string(absolute)};
    const PeerSpeed* const found = peer == bestPeer        ? result.bestPeer()
                                   : peer == bestSsse3Peer ? result.bestPeer(true)
                                                           : result.find(peer);
    if (!found) return std::nullopt;
    return Figure{ours / found->speed, "x " + found->name};
}

std::string twoDigits(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return text;
}

class Judge {
public:
    void judge(const std::string& name, Tier tier, const Figure& figure, double wanted)
    {
        if (figure.reached >= wanted)
            ++met;
        else
            missed.push_back(
                {figure.reached / wanted, line(name, tier, wanted, figure.unit, twoDigits(figure.reached))});
    }

    // `name` is that of the result, or of all that have the target.
    void judge(const Result& result, std::string_view name, const auto& target)
    {
        if (!result.ours.contains(target.tier))
            untried.insert(line(std::string(name), target.tier, target.wanted, target.peer));
        else if (const auto figure = figureOf(result, target.tier, target.peer))
            judge(result.name + " " + sizeName(result.size), target.tier, *figure, target.wanted);
    }

    bool sum()
    {
        std::ranges::sort(missed);
        std::printf("Targets: %d met, %zu missed\n", met, missed.size());
        for (const auto& [share, text] : missed) std::printf("%s\n", text.c_str());
        if (!untried.empty()) std::printf("Not tried, for want of the tier:\n");
        for (const std::string& text : untried) std::printf("%s\n", text.c_str());
        return missed.empty();
    }

private:
    int met = 0;
    std::vector<std::pair<double, std::string>> missed; // with the share that is reached
    std::set<std::string> untried;

    static std::string line(const std::string& name, Tier tier, double wanted, std::string_view unit,
                            const std::string& reached = "")
    {
        char text[200];
        std::snprintf(text, sizeof text, "  %-6s %-54s %8s, wanted %7.2f %.*s", nameOf(tier), name.c_str(),
                      reached.c_str(), wanted, static_cast<int>(unit.size()), unit.data());
        return text;
    }
};

} // namespace

bool checkTargets(const std::vector<Result>& results, bool areAll)
{
    Judge judge;
    Ranking all;
    for (const Result& result : results) {
        const std::string name = result.name + " " + sizeName(result.size);
        std::set<std::pair<Tier, std::string_view>> own;
        for (const Target& target : targets)
            if (target.function == result.name && isIn(result.size, target.size)) {
                judge.judge(result, name, target);
                own.insert({target.tier, target.peer});
            }
        for (const Rule& rule : rules)
            if (rule.holdsFor(result) && isIn(result.size, rule.size) && !own.contains({rule.tier, rule.peer}))
                judge.judge(result, rule.name, rule);
        if (!isTiny(result.size) && result.ours.contains(tierOfGeomean))
            if (const auto figure = figureOf(result, tierOfGeomean, bestPeer)) all.add(name, figure->reached);
    }
    if (areAll && results.front().ours.contains(tierOfGeomean))
        judge.judge("geomean", tierOfGeomean, {all.geomean(), std::string(bestPeer)}, wantedGeomean);
    return judge.sum();
}

} // namespace zorcc::bench
