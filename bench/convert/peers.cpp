// SPDX-License-Identifier: MIT
#include "bench/convert/peers.h"

#include <map>
#include <memory>

#ifdef ZORCC_PEER_LIBYUV
    #include <libyuv.h>
#endif
#ifdef ZORCC_PEER_SWSCALE
extern "C" {
    #include <libavutil/pixdesc.h>
    #include <libswscale/swscale.h>
}
#endif
#ifdef ZORCC_PEER_ZIMG
    #include <zimg.h>
#endif

namespace zorcc::bench {

namespace {

using Peers = std::vector<Peer>;

#ifdef ZORCC_PEER_LIBYUV
void addLibyuv(const std::string& from, const std::string& to, const Frame& s, const Frame& d, Peers& peers)
{
    const auto [width, height] = s.size;
    if (from == "yuv420p" && to == "rgb24")
        peers.push_back({"libyuv I420ToRAW", [=, &s, &d] {
                             libyuv::I420ToRAW(s.bytes(0), s.step[0], s.bytes(1), s.step[1], s.bytes(2), s.step[2],
                                               d.bytes(0), d.step[0], width, height);
                         }});
    if (from == "rgb24" && to == "yuv420p")
        peers.push_back({"libyuv RAWToI420", [=, &s, &d] {
                             libyuv::RAWToI420(s.bytes(0), s.step[0], d.bytes(0), d.step[0], d.bytes(1), d.step[1],
                                               d.bytes(2), d.step[2], width, height);
                         }});
    if (from == "nv12" && to == "rgb24")
        peers.push_back({"libyuv NV12ToRAW", [=, &s, &d] {
                             libyuv::NV12ToRAW(s.bytes(0), s.step[0], s.bytes(1), s.step[1], d.bytes(0), d.step[0],
                                               width, height);
                         }});
    if (from == "yuyv" && to == "bgra")
        peers.push_back({"libyuv YUY2ToARGB", [=, &s, &d] {
                             libyuv::YUY2ToARGB(s.bytes(0), s.step[0], d.bytes(0), d.step[0], width, height);
                         }});
    if (from == "yuv420p" && to == "rgba")
        peers.push_back({"libyuv I420ToABGR", [=, &s, &d] {
                             libyuv::I420ToABGR(s.bytes(0), s.step[0], s.bytes(1), s.step[1], s.bytes(2), s.step[2],
                                                d.bytes(0), d.step[0], width, height);
                         }});
    if (from == "rgb24" && to == "nv12") {
        const auto chroma = std::make_shared<Frame>("yuv420p", s.size);
        peers.push_back({"libyuv RAWToI420 + MergeUVPlane", [=, &s, &d] {
                             libyuv::RAWToI420(s.bytes(0), s.step[0], d.bytes(0), d.step[0], chroma->bytes(1),
                                               chroma->step[1], chroma->bytes(2), chroma->step[2], width, height);
                             libyuv::MergeUVPlane(chroma->bytes(1), chroma->step[1], chroma->bytes(2), chroma->step[2],
                                                  d.bytes(1), d.step[1], width / 2, height / 2);
                         }});
    }
}
#endif

#ifdef ZORCC_PEER_SWSCALE
void addSwscale(const std::string& from, const std::string& to, const Frame& s, const Frame& d, Peers& peers)
{
    const std::map<std::string, AVPixelFormat> formats = {{"nv12", AV_PIX_FMT_NV12},       {"rgb24", AV_PIX_FMT_RGB24},
                                                          {"yuyv", AV_PIX_FMT_YUYV422},    {"bgra", AV_PIX_FMT_BGRA},
                                                          {"yuv420p", AV_PIX_FMT_YUV420P}, {"rgba", AV_PIX_FMT_RGBA}};
    const std::shared_ptr<SwsContext> context(sws_getContext(s.size.width, s.size.height, formats.at(from),
                                                             d.size.width, d.size.height, formats.at(to), SWS_BILINEAR,
                                                             nullptr, nullptr, nullptr),
                                              sws_freeContext);
    if (!context) throw std::runtime_error("libswscale refuses " + from);
    peers.push_back({"libswscale", [=, &s, &d] {
                         const std::uint8_t* planes[ZOR_MAX_PLANES] = {s.bytes(0), s.bytes(1), s.bytes(2), s.bytes(3)};
                         std::uint8_t* const results[ZOR_MAX_PLANES] = {d.bytes(0), d.bytes(1), d.bytes(2), d.bytes(3)};
                         sws_scale(context.get(), planes, s.step, 0, s.size.height, results, d.step);
                     }});
}
#endif

#ifdef ZORCC_PEER_ZIMG
zimg_image_format zimgFormat(bool rgb, ZorSize size)
{
    zimg_image_format f;
    zimg_image_format_default(&f, ZIMG_API_VERSION);
    f.width = static_cast<unsigned>(size.width);
    f.height = static_cast<unsigned>(size.height);
    f.pixel_type = ZIMG_PIXEL_BYTE;
    f.subsample_w = f.subsample_h = !rgb;
    f.color_family = rgb ? ZIMG_COLOR_RGB : ZIMG_COLOR_YUV;
    f.matrix_coefficients = rgb ? ZIMG_MATRIX_RGB : ZIMG_MATRIX_BT470_BG;
    f.pixel_range = rgb ? ZIMG_RANGE_FULL : ZIMG_RANGE_LIMITED;
    f.depth = 8;
    return f;
}

// It takes planes alone: 4:2:0 to planes of red, green and blue, or the reverse, is the nearest that it does.
void addZimg(const std::string& to, ZorSize size, Peers& peers)
{
    const bool toRgb = to != "nv12";
    const auto yuv = std::make_shared<Frame>("yuv420p", size), rgb = std::make_shared<Frame>("gbrp", size);
    zimg_graph_builder_params params;
    zimg_graph_builder_params_default(&params, ZIMG_API_VERSION);
    params.cpu_type = ZIMG_CPU_AUTO_64B;
    const zimg_image_format a = zimgFormat(!toRgb, size), b = zimgFormat(toRgb, size);
    const std::shared_ptr<zimg_filter_graph> graph(zimg_filter_graph_build(&a, &b, &params), zimg_filter_graph_free);
    if (!graph) throw std::runtime_error("zimg refuses 4:2:0");
    std::size_t bytes = 0;
    zimg_filter_graph_get_tmp_size(graph.get(), &bytes);
    const auto scratch = std::make_shared<Buffer>(bytes + 64);
    zimg_image_buffer_const from{ZIMG_API_VERSION, {}};
    zimg_image_buffer into{ZIMG_API_VERSION, {}};
    for (int p = 0; p < 3; ++p) {
        const Frame &source = toRgb ? *yuv : *rgb, &result = toRgb ? *rgb : *yuv;
        from.plane[p].data = source.plane[p];
        from.plane[p].stride = source.step[p];
        into.plane[p].data = result.plane[p];
        into.plane[p].stride = result.step[p];
        from.plane[p].mask = into.plane[p].mask = ZIMG_BUFFER_MAX;
    }
    peers.push_back({toRgb ? "zimg, i420 > planes" : "zimg, planes > i420", [=] {
                         const auto keep = {yuv, rgb};
                         static_cast<void>(keep);
                         zimg_filter_graph_process(graph.get(), &from, &into, scratch->data(), nullptr, nullptr,
                                                   nullptr, nullptr);
                     }});
}
#endif

} // namespace

std::vector<Peer> peersOf([[maybe_unused]] const std::string& from, [[maybe_unused]] const std::string& to,
                          [[maybe_unused]] const Frame& source, [[maybe_unused]] const Frame& destination)
{
    Peers peers;
#ifdef ZORCC_PEER_LIBYUV
    addLibyuv(from, to, source, destination, peers);
#endif
#ifdef ZORCC_PEER_SWSCALE
    addSwscale(from, to, source, destination, peers);
#endif
#ifdef ZORCC_PEER_ZIMG
    if (from == "nv12" || to == "nv12" || to == "rgba") addZimg(to, source.size, peers);
#endif
    return peers;
}

} // namespace zorcc::bench
