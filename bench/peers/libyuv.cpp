// SPDX-License-Identifier: MIT
#include <memory>
#include <variant>

#include <libyuv.h>

#include "bench/peers/peer.h"
#include "bench/picture.h"

namespace zorcc::bench {

namespace {

using interface::Image;

// The signatures of its conversions: interleaved or packed (one plane) on both sides, to planes, from planes.
using Repack = int (*)(const uint8_t*, int, uint8_t*, int, int, int);
using Split = int (*)(const uint8_t*, int, uint8_t*, int, uint8_t*, int, uint8_t*, int, int, int);
using Join = int (*)(const uint8_t*, int, const uint8_t*, int, const uint8_t*, int, uint8_t*, int, int, int);

uint8_t* plane(const Image& image, int p) { return static_cast<uint8_t*>(image.plane[p]); }

void run(Repack convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(to, 0), to.step[0], size.width, size.height);
}

void run(Split convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(to, 0), to.step[0], plane(to, 1), to.step[1], plane(to, 2), to.step[2],
            size.width, size.height);
}

void run(Join convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(from, 1), from.step[1], plane(from, 2), from.step[2], plane(to, 0),
            to.step[0], size.width, size.height);
}

// Between images of separate planes. Planes are given in the order Y, U, V, whatever theirs.
using SplitPairs = int (*)(const uint8_t*, int, const uint8_t*, int, uint8_t*, int, uint8_t*, int, uint8_t*, int, int,
                           int);
using JoinPairs = int (*)(const uint8_t*, int, const uint8_t*, int, const uint8_t*, int, uint8_t*, int, uint8_t*, int,
                          int, int);
using Planes = int (*)(const uint8_t*, int, const uint8_t*, int, const uint8_t*, int, uint8_t*, int, uint8_t*, int,
                       uint8_t*, int, int, int);
using Pairs = int (*)(const uint8_t*, int, uint8_t*, int, uint8_t*, int, int, int);

void run(SplitPairs convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(from, 1), from.step[1], plane(to, 0), to.step[0], plane(to, 1),
            to.step[1], plane(to, 2), to.step[2], size.width, size.height);
}

void run(JoinPairs convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(from, 1), from.step[1], plane(from, 2), from.step[2], plane(to, 0),
            to.step[0], plane(to, 1), to.step[1], size.width, size.height);
}

void run(Planes convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(from, 1), from.step[1], plane(from, 2), from.step[2], plane(to, 0),
            to.step[0], plane(to, 1), to.step[1], plane(to, 2), to.step[2], size.width, size.height);
}

void run(Pairs convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(to, 0), to.step[0], plane(to, 1), to.step[1], size.width, size.height);
}

// Luma rows and rows of chroma pairs, interleaved, are packed 4:2:2: even rows, then odd ones.
int packNV12(const uint8_t* y, int yStep, const uint8_t* pairs, int pairsStep, uint8_t* packed, int packedStep,
             int width, int height)
{
    for (int odd : {0, 1})
        ::libyuv::MergeUVPlane(y + odd * yStep, 2 * yStep, pairs, pairsStep, packed + odd * packedStep, 2 * packedStep,
                               width, height / 2);
    return 0;
}
using JoinTwo = int (*)(const uint8_t*, int, const uint8_t*, int, uint8_t*, int, int, int);

void run(JoinTwo convert, const Image& from, const Image& to, ZorSize size)
{
    convert(plane(from, 0), from.step[0], plane(from, 1), from.step[1], plane(to, 0), to.step[0], size.width,
            size.height);
}

int swapBytes(const uint8_t* from, int fromStep, uint8_t* to, int toStep, int width, int height)
{
    ::libyuv::SwapUVPlane(from, fromStep, to, toStep, width, height);
    return 0;
}

int dither565(const uint8_t* y, int yStep, const uint8_t* u, int uStep, const uint8_t* v, int vStep, uint8_t* to,
              int toStep, int width, int height)
{
    return ::libyuv::I420ToRGB565Dither(y, yStep, u, uStep, v, vStep, to, toStep, nullptr, width, height);
}

// Where it has no direct conversion: the way over its four-byte pixels.
template <class Second> struct ViaARGB {
    Repack first;
    Second second;
};

template <class Convert> Work prepare(Convert convert, const Job& job)
{
    return [=] { run(convert, job.source, job.destination, job.size); };
}

template <class Second> Work prepare(ViaARGB<Second> steps, const Job& job)
{
    auto argb = std::make_shared<Picture>(interface::formats::bgra, job.size);
    return [=] {
        run(steps.first, job.source, argb->image, job.size);
        run(steps.second, argb->image, job.destination, job.size);
    };
}

// Or over its planar 4:2:0.
struct ViaI420 {
    SplitPairs first;
    Join second;
};

Work prepare(ViaI420 steps, const Job& job)
{
    auto planes = std::make_shared<Picture>(interface::formats::i420, job.size);
    return [=] {
        run(steps.first, job.source, planes->image, job.size);
        run(steps.second, planes->image, job.destination, job.size);
    };
}

struct Row {
    std::string_view function;
    const char* name;
    std::variant<Repack, Split, Join, SplitPairs, JoinPairs, Planes, Pairs, JoinTwo, ViaARGB<Repack>, ViaARGB<Split>,
                 ViaI420>
        convert;
};

// Its names give the channels of three- and four-byte pixels from the last byte to the first, but for RAW: R, G, B.
const Row rows[] = {
    {"zoriRGBToYUV420_8u_C3P3R", "RAWToI420", ::libyuv::RAWToI420},
    {"zoriBGRToYUV420_8u_AC4P3R", "ARGBToI420", ::libyuv::ARGBToI420},
    {"zoriYUV420ToRGB_8u_P3C3R", "I420ToRAW", ::libyuv::I420ToRAW},
    {"zoriYUV420ToBGR_8u_P3C3R", "I420ToRGB24", ::libyuv::I420ToRGB24},
    {"zoriYUV420ToRGB_8u_P3AC4R", "I420ToABGR", ::libyuv::I420ToABGR},
    {"zoriYUV422ToRGB_8u_P3C3R", "I422ToRAW", ::libyuv::I422ToRAW},
    {"zoriYUV422ToRGB_8u_P3AC4R", "I422ToABGR", ::libyuv::I422ToABGR},
    {"zoriYUVToRGB_8u_P3C3R", "I444ToRAW", ::libyuv::I444ToRAW},
    {"zoriRGBToYUV_8u_C3P3R", "RAWToARGB + ARGBToI444", ViaARGB<Split>{::libyuv::RAWToARGB, ::libyuv::ARGBToI444}},
    {"zoriRGBToYUV422_8u_C3P3R", "RAWToARGB + ARGBToI422", ViaARGB<Split>{::libyuv::RAWToARGB, ::libyuv::ARGBToI422}},
    {"zoriRGBToYUV422_8u_C3C2R", "RAWToARGB + ARGBToYUY2", ViaARGB<Repack>{::libyuv::RAWToARGB, ::libyuv::ARGBToYUY2}},
    {"zoriYUV422ToRGB_8u_C2C3R", "YUY2ToARGB + ARGBToRAW", ViaARGB<Repack>{::libyuv::YUY2ToARGB, ::libyuv::ARGBToRAW}},

    {"zoriRGBToYCbCr420_8u_C3P3R", "RAWToI420", ::libyuv::RAWToI420},
    {"zoriYCbCr420ToRGB_8u_P3C3R", "I420ToRAW", ::libyuv::I420ToRAW},
    {"zoriYCbCr420ToBGR_8u_P3C3R", "I420ToRGB24", ::libyuv::I420ToRGB24},
    {"zoriYCbCr420ToBGR_8u_P3C4R", "I420ToARGB", ::libyuv::I420ToARGB},
    {"zoriYCbCr422ToRGB_8u_P3C3R", "I422ToRAW", ::libyuv::I422ToRAW},
    {"zoriYCbCrToRGB_8u_P3C3R", "I444ToRAW", ::libyuv::I444ToRAW},
    {"zoriRGBToYCbCr_8u_C3P3R", "RAWToARGB + ARGBToI444", ViaARGB<Split>{::libyuv::RAWToARGB, ::libyuv::ARGBToI444}},
    {"zoriRGBToYCbCr422_8u_C3C2R", "RAWToARGB + ARGBToYUY2",
     ViaARGB<Repack>{::libyuv::RAWToARGB, ::libyuv::ARGBToYUY2}},
    {"zoriYCbCr422ToRGB_8u_C2C3R", "YUY2ToARGB + ARGBToRAW",
     ViaARGB<Repack>{::libyuv::YUY2ToARGB, ::libyuv::ARGBToRAW}},
    {"zoriBGRToYCbCr420_8u_C3P3R", "RGB24ToI420", ::libyuv::RGB24ToI420},
    {"zoriBGRToYCbCr420_8u_AC4P3R", "ARGBToI420", ::libyuv::ARGBToI420},
    {"zoriBGRToYCbCr422_8u_C3C2R", "RGB24ToARGB + ARGBToYUY2",
     ViaARGB<Repack>{::libyuv::RGB24ToARGB, ::libyuv::ARGBToYUY2}},
    {"zoriBGRToYCbCr422_8u_AC4C2R", "ARGBToYUY2", ::libyuv::ARGBToYUY2},
    {"zoriBGRToYCbCr422_8u_AC4P3R", "ARGBToI422", ::libyuv::ARGBToI422},
    {"zoriYCbCr422ToBGR_8u_C2C4R", "YUY2ToARGB", ::libyuv::YUY2ToARGB},
    {"zoriYCbCr422ToBGR_8u_P3C3R", "I422ToRGB24", ::libyuv::I422ToRGB24},
    {"zoriYCbCrToBGR_8u_P3C3R", "I444ToRGB24", ::libyuv::I444ToRGB24},
    {"zoriYCbCrToBGR_8u_P3C4R", "I444ToARGB", ::libyuv::I444ToARGB},
    {"zoriBGRToCbYCr422_8u_AC4C2R", "ARGBToUYVY", ::libyuv::ARGBToUYVY},
    {"zoriCbYCr422ToBGR_8u_C2C4R", "UYVYToARGB", ::libyuv::UYVYToARGB},
    {"zoriYCbCr420ToBGR_709CSC_8u_P3C3R", "H420ToRGB24", ::libyuv::H420ToRGB24},
    {"zoriCbYCr422ToBGR_709HDTV_8u_C2C4R", "UYVYToARGB", ::libyuv::UYVYToARGB},

    {"zoriRGBToGray_8u_C3C1R", "RAWToJ400", ::libyuv::RAWToJ400},
    {"zoriRGBToGray_8u_AC4C1R", "ABGRToJ400", ::libyuv::ABGRToJ400},

    // Its 16-bit pixels have B lowest.
    {"zoriYCbCr420ToRGB565_8u16u_P3C3R", "I420ToRGB565", ::libyuv::I420ToRGB565},
    {"zoriYCbCr420ToBGR565_8u16u_P3C3R", "I420ToRGB565", ::libyuv::I420ToRGB565},
    {"zoriYCbCr420ToRGB565Dither_8u16u_P3C3R", "I420ToRGB565Dither", dither565},
    {"zoriYCbCr420ToBGR565Dither_8u16u_P3C3R", "I420ToRGB565Dither", dither565},
    {"zoriYCbCr420ToBGR555_8u16u_P3C3R", "I420ToARGB1555", ::libyuv::I420ToARGB1555},
    {"zoriYCbCr420ToBGR444_8u16u_P3C3R", "I420ToARGB4444", ::libyuv::I420ToARGB4444},
    {"zoriYCbCr422ToBGR565_8u16u_P3C3R", "I422ToRGB565", ::libyuv::I422ToRGB565},
    {"zoriBGR565ToYCbCr420_16u8u_C3P3R", "RGB565ToI420", ::libyuv::RGB565ToI420},
    {"zoriBGR555ToYCbCr420_16u8u_C3P3R", "ARGB1555ToI420", ::libyuv::ARGB1555ToI420},

    // Where these drop every second row of chroma it takes the mean of two.
    {"zoriYCbCr420_8u_P2P3R", "NV12ToI420", ::libyuv::NV12ToI420},
    {"zoriYCbCr420_8u_P3P2R", "I420ToNV12", ::libyuv::I420ToNV12},
    {"zoriYCbCr420ToYCrCb420_8u_P2P3R", "NV12ToI420", ::libyuv::NV12ToI420},
    {"zoriYCrCb420ToYCbCr420_8u_P3P2R", "I420ToNV12", ::libyuv::I420ToNV12},
    {"zoriYCbCr422ToYCbCr420_8u_P3R", "I422ToI420", ::libyuv::I422ToI420},
    {"zoriYCbCr420ToYCbCr422_8u_P3R", "I420ToI422", ::libyuv::I420ToI422},
    {"zoriYCbCr420ToYCbCr422_8u_P2C2R", "NV12ToI420 + I420ToYUY2", ViaI420{::libyuv::NV12ToI420, ::libyuv::I420ToYUY2}},
    {"zoriYCbCr420ToYCbCr422_8u_P2C2R", "MergeUVPlane", packNV12},
    {"zoriYCrCb420ToYCbCr422_8u_P3C2R", "I420ToYUY2", ::libyuv::I420ToYUY2},
    {"zoriYCrCb420ToCbYCr422_8u_P3C2R", "I420ToUYVY", ::libyuv::I420ToUYVY},
    {"zoriYCbCr422ToYCrCb422_8u_P3C2R", "I422ToYUY2", ::libyuv::I422ToYUY2},
    {"zoriYCbCr422_8u_C2P3R", "YUY2ToI422", ::libyuv::YUY2ToI422},
    {"zoriCbYCr422ToYCbCr422_8u_C2P3R", "UYVYToI422", ::libyuv::UYVYToI422},
    {"zoriYCbCr422ToYCbCr420_8u_C2P3R", "YUY2ToI420", ::libyuv::YUY2ToI420},
    {"zoriCbYCr422ToYCbCr420_8u_C2P3R", "UYVYToI420", ::libyuv::UYVYToI420},
    {"zoriYCbCr422ToYCrCb420_8u_C2P3R", "YUY2ToI420", ::libyuv::YUY2ToI420},
    {"zoriCbYCr422ToYCrCb420_8u_C2P3R", "UYVYToI420", ::libyuv::UYVYToI420},
    {"zoriYCbCr422ToYCbCr420_8u_C2P2R", "YUY2ToNV12", ::libyuv::YUY2ToNV12},
    {"zoriCbYCr422ToYCbCr420_8u_C2P2R", "UYVYToNV12", ::libyuv::UYVYToNV12},
    {"zoriCbYCr422ToYCbCr422_8u_C2R", "SwapUVPlane", swapBytes},
    {"zoriYCbCr422ToCbYCr422_8u_C2R", "SwapUVPlane", swapBytes},
};

void useEverything()
{
    using namespace ::libyuv;
    constexpr int avx512 = kCpuHasAVX512BW | kCpuHasAVX512VL | kCpuHasAVX512VNNI | kCpuHasAVX512VBMI;
    MaskCpuFlags(highestTier == Tier::avx512 ? -1 : ~avx512);
}
void useSSSE3Only()
{
    using namespace ::libyuv;
    MaskCpuFlags(kCpuInitialized | kCpuHasX86 | kCpuHasSSE2 | kCpuHasSSSE3);
}

} // namespace

Library libyuv()
{
    Library library{"libyuv " + std::to_string(LIBYUV_VERSION), {}};
    for (const Row& row : rows) {
        auto prepareRow = [&row](const Job& job) {
            return std::visit([&](auto convert) { return prepare(convert, job); }, row.convert);
        };
        const std::string name = std::string("libyuv ") + row.name;
        library.peers.push_back({row.function, name, prepareRow, useEverything, false});
        library.peers.push_back({row.function, name + ", SSSE3 only", prepareRow, useSSSE3Only, true});
    }
    return library;
}

} // namespace zorcc::bench
