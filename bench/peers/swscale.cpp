// SPDX-License-Identifier: MIT
#include <memory>
#include <stdexcept>

extern "C" {
#include <libavutil/cpu.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

#include "bench/peers/peer.h"

namespace zorcc::bench {

namespace {

using interface::Format;
using interface::Function;
using interface::Image;

AVPixelFormat pixelFormat(const Format& format)
{
    static constexpr struct {
        std::string_view ours;
        AVPixelFormat theirs;
    } pairs[] = {
        {"i420", AV_PIX_FMT_YUV420P},    {"i422", AV_PIX_FMT_YUV422P},    {"i411", AV_PIX_FMT_YUV411P},
        {"nv12", AV_PIX_FMT_NV12},       {"yuy2", AV_PIX_FMT_YUYV422},    {"uyvy", AV_PIX_FMT_UYVY422},
        {"rgb24", AV_PIX_FMT_RGB24},     {"bgr24", AV_PIX_FMT_BGR24},     {"rgba", AV_PIX_FMT_RGBA},
        {"bgra", AV_PIX_FMT_BGRA},       {"yuv444p", AV_PIX_FMT_YUV444P}, {"yuv422p", AV_PIX_FMT_YUV422P},
        {"yuv420p", AV_PIX_FMT_YUV420P}, {"yuyv", AV_PIX_FMT_YUYV422},    {"rgb565", AV_PIX_FMT_BGR565LE},
    };
    for (const auto& pair : pairs)
        if (pair.ours == format.name) return pair.theirs;
    return AV_PIX_FMT_NONE;
}

Work prepare(const Job& job)
{
    const auto [width, height] = job.size;
    // Bilinear: chroma samples of 4:2:0 are means of four pixels, as ours.
    const std::shared_ptr<SwsContext> context(sws_getContext(width, height, pixelFormat(*job.function.source), width,
                                                             height, pixelFormat(*job.function.destination),
                                                             SWS_BILINEAR, nullptr, nullptr, nullptr),
                                              sws_freeContext);
    if (!context) throw std::runtime_error("libswscale refuses " + std::string(job.function.name));
    return [=] {
        const Image &from = job.source, &to = job.destination;
        const uint8_t* planes[interface::maxPlanes];
        uint8_t* results[interface::maxPlanes];
        for (int p = 0; p < interface::maxPlanes; ++p) {
            planes[p] = static_cast<const uint8_t*>(from.plane[p]);
            results[p] = static_cast<uint8_t*>(to.plane[p]);
        }
        sws_scale(context.get(), planes, from.step, 0, job.size.height, results, to.step);
    };
}

} // namespace

// It converts between any two formats that it knows, and copies where they are one; the forms without steps would only
// measure the same again.
Library swscale()
{
    if (highestTier < Tier::avx512)
        av_force_cpu_flags(av_get_cpu_flags() & ~(AV_CPU_FLAG_AVX512 | AV_CPU_FLAG_AVX512ICL));
    Library library{"libswscale " AV_STRINGIFY(LIBSWSCALE_VERSION), {}};
    for (const Function& function : interface::functions()) {
        const AVPixelFormat from = pixelFormat(*function.source), to = pixelFormat(*function.destination);
        if (from == AV_PIX_FMT_NONE || to == AV_PIX_FMT_NONE || from == to || !function.signature.steps) continue;
        library.peers.push_back(
            {function.name, std::string("libswscale ") + av_get_pix_fmt_name(from) + " > " + av_get_pix_fmt_name(to),
             prepare});
    }
    return library;
}

} // namespace zorcc::bench
